#include "Workbench/Edit/ReferenceMenu.h"

#include "Host/ApplicationWidgets/SvgIcon.h"
#include "Workbench/MeshView/PartIcon.h"
#include "Workbench/Texts/MenuText.h"
#include "Workbench/Tree/DesignCatalog.h"

#include <QtWidgets/QMenu>

namespace Zorvane::Workbench {

namespace {

QIcon iconOf(const CatalogEntry& entry)
{
    const QIcon picture = createSvgIcon(iconPath(entry.kind));
    return entry.colour.isValid() ? colourIcon(entry.colour) : picture;
}

} // namespace

ReferenceMenu::ReferenceMenu(const DesignCatalog& catalog, QObject* parent)
    : QObject(parent)
    , m_catalog(catalog)
{}

bool ReferenceMenu::leadsAnywhere(const IDCombiner& from) const
{
    const CatalogEntry* entry = m_catalog.find(from);
    return entry != nullptr && !entry->links.empty();
}

void ReferenceMenu::follow(const IDCombiner& from, QWidget* window, const QPoint& place)
{
    const CatalogEntry* entry = m_catalog.find(from);
    if (entry == nullptr || entry->links.empty())
        return;
    if (entry->links.size() == 1) {
        const IDCombiner to = entry->links.front();
        Q_EMIT chosen(to);
        return;
    }
    auto* menu = new QMenu(window);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    fill(*menu, from);
    menu->popup(place);
    menu->setActiveAction(menu->actions().constFirst());
}

void ReferenceMenu::fill(QMenu& menu, const IDCombiner& from)
{
    const CatalogEntry* entry = m_catalog.find(from);
    if (entry == nullptr)
        return;
    for (const IDCombiner& to : entry->links) {
        const CatalogEntry* target = m_catalog.find(to);
        QAction* action = menu.addAction(
            iconOf(*target), tr("%1 (%2)").arg(menuText(target->name), target->kindText));
        connect(action, &QAction::triggered, this, [this, to] { Q_EMIT chosen(to); });
    }
}

} // namespace Zorvane::Workbench
