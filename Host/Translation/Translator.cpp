#include "Host/Translation/Translator.h"

#include <QtCore/QCoreApplication>

namespace Zorvane {

QString Translator::translate(const char* context, const char* sourceText,
                              const char* disambiguation, int count)
{
    return QCoreApplication::translate(context, sourceText, disambiguation, count);
}

} // namespace Zorvane
