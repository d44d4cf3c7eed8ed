#pragma once

#include "Host/HostExport.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <string>

namespace Zorvane {

/**
 * Fills the placeholders "%1", "%2", ... of a template: the first `arg` is for "%1", the second
 * for "%2", and so on up to "%99".
 *
 * All placeholders are filled at once, when the text is asked for, so a value that itself holds
 * "%1" (a file name may) stays as it is. A placeholder may stand several times or not at all, as
 * translations need it; one that has no value stays in the text. Texts are UTF-8.
 */
class ZORVANE_HOST_EXPORT ArgString
{
public:
    explicit ArgString(const std::string& text);
    explicit ArgString(const QString& text);

    ArgString& arg(const std::string& value);
    ArgString& arg(const QString& value);
    ArgString& arg(int value);

    QString toQString() const;
    std::string toStdString() const;
    operator std::string() const { return toStdString(); }

private:
    QString m_text;
    QStringList m_values;
};

} // namespace Zorvane
