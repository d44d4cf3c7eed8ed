#include "Workbench/Tree/DesignTreeDelegate.h"

#include "Host/Widgets/ZVWidgetStatus.h"
#include "Workbench/Tree/RowDecoration.h"

#include <QtGui/QHelpEvent>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QToolTip>

namespace Zorvane::Workbench {

namespace {

constexpr int s_roomAroundText = 6;

/** Readable on this background. */
QColor warningColour(const QColor& background)
{
    const bool dark = background.lightness() < 128;
    return dark ? QColor(0xff, 0x9a, 0x86) : QColor(0xb0, 0x2a, 0x1c);
}

ZVWidgetStatus::Stati statiOf(const QModelIndex& index)
{
    const QVariant stati = index.sibling(index.row(), TreeColumn::Name).data(s_statiRole);
    return ZVWidgetStatus::Stati(QFlag(stati.toInt()));
}

} // namespace

QWidget* DesignTreeDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                          const QModelIndex& index) const
{
    if (index.column() != TreeColumn::Name)
        return nullptr;
    QWidget* editor = QStyledItemDelegate::createEditor(parent, option, index);
    editor->setAccessibleName(tr("New name of %1").arg(index.data().toString()));
    return editor;
}

bool DesignTreeDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                                   const QStyleOptionViewItem& option, const QModelIndex& index)
{
    const bool isCut = sizeHint(option, index).width() > option.rect.width();
    if (event->type() != QEvent::ToolTip || !isCut || index.data(Qt::ToolTipRole).isValid())
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    QToolTip::showText(event->globalPos(), index.data().toString(), view->viewport(), option.rect);
    return true;
}

QSize DesignTreeDelegate::sizeHint(const QStyleOptionViewItem& option,
                                   const QModelIndex& index) const
{
    QSize size = QStyledItemDelegate::sizeHint(option, index);
    size.setHeight(std::max(size.height(), option.fontMetrics.height() + s_roomAroundText));
    return size;
}

void DesignTreeDelegate::initStyleOption(QStyleOptionViewItem* option,
                                         const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    const ZVWidgetStatus::Stati stati = statiOf(index);
    const bool wrong = stati & (ZVWidgetStatus::Missing | ZVWidgetStatus::Error);
    const bool tells = index.column() == TreeColumn::Name || index.column() == TreeColumn::State;
    // No warning colour can be read on the colours of all selections.
    if (wrong && tells)
        option->palette.setColor(QPalette::Text,
                                 warningColour(option->palette.color(QPalette::Base)));
    if (stati.testFlag(ZVWidgetStatus::Modified) && tells)
        option->font.setItalic(true);
}

} // namespace Zorvane::Workbench
