#include "Workbench/MeshView/MeshLegend.h"

#include "Workbench/MeshView/PartIcon.h"

#include <QtGui/QPainter>
#include <QtWidgets/QScrollBar>

#include <algorithm>

namespace Zorvane::Workbench {

namespace {

constexpr int s_padding = 4;
constexpr int s_veilAlpha = 150;

} // namespace

MeshLegend::MeshLegend(QWidget* parent)
    : QListWidget(parent)
{
    setAccessibleName(tr("Legend of colours"));
    setFrameShape(QFrame::NoFrame);
    setIconSize(colourPatchSize());
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTextElideMode(Qt::ElideMiddle);
    setUniformItemSizes(true);
    viewport()->setAutoFillBackground(false);
    hide();
    connect(this, &QListWidget::itemClicked, this, &MeshLegend::choose);
    connect(this, &QListWidget::itemActivated, this, &MeshLegend::choose);
}

void MeshLegend::setEntries(const std::vector<LegendEntry>& entries)
{
    if (entries == m_entries)
        return;
    m_entries = entries;
    clear();
    for (const LegendEntry& entry : entries) {
        auto* item = new QListWidgetItem(colourIcon(entry.colour), entry.name, this);
        item->setToolTip(entry.name);
        QFont font = this->font();
        font.setBold(entry.isShown);
        item->setFont(font);
        if (entry.isShown)
            setCurrentItem(item);
    }
    updateGeometry();
}

void MeshLegend::fitInto(const QRect& area)
{
    setVisible(!m_entries.empty());
    QSize size = sizeHint().boundedTo(area.size());
    if (sizeHintForRow(0) > 0)
        size.setHeight(size.height() / sizeHintForRow(0) * sizeHintForRow(0));
    const bool toTheLeft = layoutDirection() == Qt::RightToLeft;
    const int left = toTheLeft ? area.left() : area.right() + 1 - size.width();
    setGeometry(QRect(QPoint(left, area.top()), size));
    if (currentItem() != nullptr)
        scrollToItem(currentItem());
}

QSize MeshLegend::sizeHint() const
{
    const int width = sizeHintForColumn(0) + 2 * s_padding;
    const int height = sizeHintForRow(0) * count() + 2 * frameWidth();
    return {std::max(width, 0) + verticalScrollBar()->sizeHint().width(), std::max(height, 0)};
}

void MeshLegend::paintEvent(QPaintEvent* event)
{
    // The mesh shows through, but not so much that names could not be read.
    QColor veil = palette().color(QPalette::Window);
    veil.setAlpha(s_veilAlpha);
    QPainter(viewport()).fillRect(viewport()->rect(), veil);
    QListWidget::paintEvent(event);
}

void MeshLegend::choose(const QListWidgetItem* item)
{
    const IDCombiner id = m_entries[std::size_t(row(item))].id;
    Q_EMIT chosen(id);
}

} // namespace Zorvane::Workbench
