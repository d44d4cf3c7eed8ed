#pragma once

#include "TreeModel/ZVTextProviderInterface.h"
#include "Workbench/Tree/DesignCatalog.h"

#include <functional>

namespace Zorvane::Workbench {

/**
 * Texts of one column from what the catalog knows of the row's object; empty for rows without one.
 * The catalog must outlive it.
 */
class CatalogTextProvider : public GenericTreeViewModelHandling::ZVTextProviderInterface
{
public:
    using Text = std::function<QString(const DesignCatalog&, const CatalogEntry&)>;

    CatalogTextProvider(const DesignCatalog& catalog, Text text)
        : m_catalog(catalog)
        , m_text(std::move(text))
    {}

    std::string getText(const IDCombiner& id) override
    {
        const CatalogEntry* entry = m_catalog.find(id);
        return entry ? m_text(m_catalog, *entry).toStdString() : std::string();
    }
    void registerTextChangedCallback(std::function<void()> callback) override
    {
        m_textChanged = std::move(callback);
    }
    void tellChanged() const
    {
        if (m_textChanged)
            m_textChanged();
    }

private:
    const DesignCatalog& m_catalog;
    Text m_text;
    std::function<void()> m_textChanged;
};

} // namespace Zorvane::Workbench
