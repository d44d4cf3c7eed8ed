#pragma once

#include "Host/Signals/Signal.h"
#include "TreeModel/ModelItemFilterInterface.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

namespace Zorvane::Workbench {

class DesignCatalog;

/**
 * Accepts objects whose name, kind or path contains every word of a text, in any case and order.
 * An empty text accepts everything. The catalog must outlive the filter.
 */
class NameFilter : public GenericTreeViewModelHandling::ModelItemFilterInterface
{
public:
    explicit NameFilter(const DesignCatalog& catalog);

    /** Announced when the words differ from those before. */
    void setText(const QString& text);
    bool isActive() const { return !m_words.isEmpty(); }

    using ModelItemFilterInterface::accept;
    bool accept(const IDCombiner& id) override;
    Signals::Connection connectToChanged(const Signals::Slot<void()>& slot) override;

private:
    const DesignCatalog& m_catalog;
    QStringList m_words;
    Signals::Signal<void()> m_changed;
};

} // namespace Zorvane::Workbench
