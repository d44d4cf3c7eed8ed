#include "Workbench/Tree/ReferenceDataProvider.h"

#include "Host/Widgets/ZVTreeViewItem.h"
#include "Utilities/ReferenceIndicatorDelegate.h"
#include "Workbench/Tree/DesignCatalog.h"

#include <QtCore/QStringList>

namespace Zorvane::Workbench {

namespace {

constexpr int s_colourRoles[] = {ReferenceIndicatorDelegate::FirstColorRole,
                                 ReferenceIndicatorDelegate::SecondColorRole,
                                 ReferenceIndicatorDelegate::ThirdColorRole};
constexpr int s_mostNames = 20;

bool canBeReferredTo(const CatalogEntry* entry)
{
    return entry && (entry->kind == ObjectKind::Material || entry->kind == ObjectKind::File);
}

QString namesOf(const DesignCatalog& catalog, const std::vector<IDCombiner>& ids)
{
    QStringList names;
    for (const IDCombiner& id : ids) {
        if (names.size() == s_mostNames)
            return names.join(QLatin1Char('\n')) + QStringLiteral("\n…");
        names << catalog.find(id)->name;
    }
    return names.join(QLatin1Char('\n'));
}

} // namespace

ReferenceDataProvider::ReferenceDataProvider(const DesignCatalog& catalog, int column)
    : m_catalog(catalog)
    , m_column(column)
{}

Qt::ItemFlags ReferenceDataProvider::getItemFlags()
{
    return Qt::NoItemFlags;
}

void ReferenceDataProvider::addDataTo(const RowList& rows)
{
    for (const auto& [id, row] : rows)
        tell(id, *row);
}

void ReferenceDataProvider::tell(const IDCombiner& id, ZVTreeViewItem& row) const
{
    const CatalogEntry* entry = m_catalog.find(id);
    const bool counts = canBeReferredTo(entry);
    const std::vector<IDCombiner> referrers = counts ? entry->referrers : std::vector<IDCombiner>();
    const int count = int(referrers.size());
    row.setData(m_column, ReferenceIndicatorDelegate::NumberOfReferencesRole,
                count > 0 ? QVariant(count) : QVariant());
    for (std::size_t i = 0; i < std::size(s_colourRoles); ++i) {
        const bool isThere = i < referrers.size();
        row.setData(m_column, s_colourRoles[i],
                    isThere ? QVariant(PartColours::colorId(m_catalog.find(referrers[i])->colour))
                            : QVariant());
    }
    row.setData(m_column, Qt::ToolTipRole,
                count > 0 ? QVariant(namesOf(m_catalog, referrers)) : QVariant());
    row.setData(m_column, Qt::AccessibleTextRole,
                counts ? QVariant(ReferenceIndicatorDelegate::textForReferences(count))
                       : QVariant());
}

} // namespace Zorvane::Workbench
