#pragma once

#include "Host/HostExport.h"

#include <QtCore/QString>

namespace Zorvane {

/**
 * Gives user-visible texts in the user's language. Callers translate at the moment of use, so a
 * catalogue that is installed later serves every text asked for from then on.
 */
class ZORVANE_HOST_EXPORT Translator
{
public:
    Translator() = delete;

    /**
     * The text's translation from the installed catalogues (`QCoreApplication::installTranslator`),
     * or the source text itself where none has it.
     *
     * The source text is UTF-8. A count of 0 or more selects the plural form and replaces "%n".
     */
    static QString translate(const char* context, const char* sourceText,
                             const char* disambiguation = nullptr, int count = -1);
};

} // namespace Zorvane
