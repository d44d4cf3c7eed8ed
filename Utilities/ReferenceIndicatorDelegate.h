#pragma once

#include "Host/Widgets/ZVItemDelegate.h"
#include "UiToolsExport.h"

#include <QtCore/QString>

namespace Zorvane {

/**
 * Draws a colour patch over a cell of a tree or list that shows how many references its item has,
 * and in which colours: one colour, two or three parted by slanted edges, or two with points for
 * four or more. A count without all of its colours draws nothing.
 *
 * The model gives the count and the colours, as ids of the host's `ColorConfiguration`, under
 * `Role`. Screen readers read the model's `Qt::AccessibleTextRole`, which such a model answers
 * with `textForReferences`; the delegate shows the same text as a tool tip where the
 * model has none of its own. The application's setting `ZVGuiTools::isFlatStyle` decides whether
 * patches are shaded. Cells are never edited and show no focus frame.
 *
 * Not supported: more than three colours, a size of its own (the patch fills the
 * cell), noticing a changed setting or colour table (update the view after it).
 */
class ZORVANE_UITOOLS_EXPORT ReferenceIndicatorDelegate : public ZVItemDelegate
{
    Q_OBJECT

public:
    /** What the delegate reads of an item, all of them `int`. Stored by hosts, as they are. */
    enum Role
    {
        NumberOfReferencesRole = 457,
        FirstColorRole = 458,
        SecondColorRole = 459,
        ThirdColorRole = 460
    };

    explicit ReferenceIndicatorDelegate(QObject* parent);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

    /** What a patch says, in words: "3 references". Negative counts read as none. */
    static QString textForReferences(int count);

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

private:
    int getNumberOfRefs(const QModelIndex& index) const;
    QColor getColor(const QModelIndex& index, int role) const;
    void drawPatch(QPainter* painter, const QStyleOptionViewItem& option,
                   const QModelIndex& index) const;

    int m_verticalMargin = 2;
    int m_horizontalMargin = 1;
    /** The way in which two colours are parted, a `ZVGuiTools::DiagonalStyle`. */
    int m_twoColorStyle = 0;
};

} // namespace Zorvane
