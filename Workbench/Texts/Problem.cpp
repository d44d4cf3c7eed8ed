#include "Workbench/Texts/Problem.h"

#include <QtCore/QDir>
#include <QtCore/QStringList>

namespace Zorvane::Workbench {

QString Problem::text() const
{
    QStringList pieces{QDir::toNativeSeparators(file), where, reason};
    pieces.removeAll(QString());
    return pieces.join(QStringLiteral(": "));
}

} // namespace Zorvane::Workbench
