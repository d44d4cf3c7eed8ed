#pragma once

#include "Host/HostExport.h"

#include <QtCore/QString>

#include <memory>

namespace Zorvane {

/**
 * Gives user-visible texts in the user's language. Callers translate at the moment of use, so a
 * catalogue that is installed later serves every text asked for from then on.
 *
 * A suite that keeps its texts elsewhere derives from it and registers that. Texts of classes with
 * Qt's `tr` come from `QCoreApplication` all the same.
 */
class ZORVANE_HOST_EXPORT Translator
{
public:
    Translator();
    Translator(const Translator&);
    Translator& operator=(const Translator&);
    virtual ~Translator();

    /** Returns the instance before, which it replaces. Null stands for our own. */
    static std::shared_ptr<Translator> registerInstance(std::shared_ptr<Translator> instance);

    /**
     * The text's translation by the registered instance, or the source text itself where none has
     * it.
     *
     * The source text is UTF-8. A count of 0 or more selects the plural form and replaces "%n".
     */
    static QString translate(const char* context, const char* sourceText,
                             const char* disambiguation = nullptr, int count = -1);

    /** What `translate` returns; here from the catalogues of `QCoreApplication`. */
    virtual QString getText(const char* context, const char* sourceText, const char* disambiguation,
                            int count) const;
};

} // namespace Zorvane
