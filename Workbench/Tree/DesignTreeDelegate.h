#pragma once

#include <QtWidgets/QStyledItemDelegate>

namespace Zorvane::Workbench {

/**
 * Paints the rows of the design tree: what is wrong in a warning colour unless it is selected, what
 * is modified in italics. Only names are edited.
 */
class DesignTreeDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    /** A text without a tool tip of its own that is cut short is shown whole. */
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

} // namespace Zorvane::Workbench
