#include "Workbench/Window/DetailsPanel.h"

#include "Workbench/Texts/SizeText.h"
#include "Workbench/Tree/FactTexts.h"

#include <QtCore/QDir>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QShortcut>
#include <QtWidgets/QTreeWidget>
#include <QtWidgets/QVBoxLayout>

namespace Zorvane::Workbench {

namespace {

QString namesOf(const DesignCatalog& catalog, const std::vector<IDCombiner>& ids)
{
    QStringList names;
    for (const IDCombiner& id : ids)
        names << catalog.find(id)->name;
    return names.join(QStringLiteral(", "));
}

} // namespace

DetailsPanel::DetailsPanel(QWidget* parent)
    : QWidget(parent)
    , m_properties(new QTreeWidget(this))
{
    m_properties->setAccessibleName(tr("Details of the selected object"));
    m_properties->setHeaderLabels({tr("Property"), tr("Value")});
    m_properties->setRootIsDecorated(false);
    m_properties->setAlternatingRowColors(true);
    m_properties->setUniformRowHeights(true);
    m_properties->setFrameShape(QFrame::NoFrame);
    m_properties->setTextElideMode(Qt::ElideMiddle);
    m_properties->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    m_properties->header()->setStretchLastSection(true);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_properties);
    auto* copy =
        new QShortcut(QKeySequence::Copy, m_properties, nullptr, nullptr, Qt::WidgetShortcut);
    connect(copy, &QShortcut::activated, this, &DetailsPanel::copyCurrent);
}

void DetailsPanel::show(const DesignCatalog& catalog, const IDCombiner& id)
{
    const CatalogEntry* entry = catalog.find(id);
    fill(entry ? rowsFor(catalog, *entry) : Rows());
}

DetailsPanel::Rows DetailsPanel::rowsFor(const DesignCatalog& catalog,
                                         const CatalogEntry& entry) const
{
    Rows rows{{tr("Name"), entry.name}, {tr("Kind"), entry.kindText}};
    rows.insert(rows.end(), entry.particulars.begin(), entry.particulars.end());
    if (!entry.referrers.empty())
        rows.emplace_back(tr("Used by"), namesOf(catalog, entry.referrers));
    if (const std::optional<MeshFacts> facts = catalog.facts(entry)) {
        rows.emplace_back(tr("Triangles"), QLocale().toString(qulonglong(facts->triangles)));
        rows.emplace_back(tr("Size"), sizeText(facts->box.size(), QLocale()));
        rows.emplace_back(tr("From"), pointText(facts->box.lowest, QLocale()));
        rows.emplace_back(tr("To"), pointText(facts->box.highest, QLocale()));
        rows.emplace_back(tr("Surface"), surfaceText(facts->surface, QLocale()));
        rows.emplace_back(tr("Watertight"), yesNoText(facts->watertight));
    }
    if (!entry.path.isEmpty())
        rows.emplace_back(tr("File"), QDir::toNativeSeparators(entry.path));
    const QString problem = catalog.meshProblem(entry);
    const QString state = problem.isEmpty() ? catalog.stateText(entry) : problem;
    if (!state.isEmpty())
        rows.emplace_back(tr("State"), state);
    return rows;
}

void DetailsPanel::fill(const Rows& rows)
{
    // The same rows are written over, so that a selection and the scroll position stay.
    while (m_properties->topLevelItemCount() > int(rows.size()))
        delete m_properties->takeTopLevelItem(m_properties->topLevelItemCount() - 1);
    while (m_properties->topLevelItemCount() < int(rows.size()))
        m_properties->addTopLevelItem(new QTreeWidgetItem);
    for (std::size_t row = 0; row < rows.size(); ++row) {
        QTreeWidgetItem* item = m_properties->topLevelItem(int(row));
        item->setText(0, rows[row].first);
        item->setText(1, rows[row].second);
        item->setToolTip(1, rows[row].second);
    }
}

void DetailsPanel::copyCurrent() const
{
    if (const QTreeWidgetItem* item = m_properties->currentItem())
        QGuiApplication::clipboard()->setText(item->text(1));
}

} // namespace Zorvane::Workbench
