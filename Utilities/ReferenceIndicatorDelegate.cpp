#include "Utilities/ReferenceIndicatorDelegate.h"

#include "Host/Configuration/ColorConfiguration.h"
#include "Host/Translation/Translator.h"
#include "Host/Widgets/ZVGuiTools.h"

#include <QtGui/QHelpEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QToolTip>

#include <algorithm>
#include <array>

namespace Zorvane {

namespace {

using Colors = std::array<QColor, 3>;

constexpr int s_mostColors = 3;

/** Four references and more show the first two colours and points. */
int numberOfColorsShown(int references)
{
    return references > s_mostColors ? 2 : std::max(0, references);
}

} // namespace

ReferenceIndicatorDelegate::ReferenceIndicatorDelegate(QObject* parent)
    : ZVItemDelegate(parent)
{}

void ReferenceIndicatorDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                       const QModelIndex& index) const
{
    ZVItemDelegate::paint(painter, option, index);
    painter->save();
    painter->setLayoutDirection(option.direction);
    drawPatch(painter, option, index);
    painter->restore();
}

void ReferenceIndicatorDelegate::drawPatch(QPainter* painter, const QStyleOptionViewItem& option,
                                           const QModelIndex& index) const
{
    const int references = getNumberOfRefs(index);
    const int colorCount = numberOfColorsShown(references);
    if (colorCount == 0)
        return;
    const bool isUsable = isEnabled(index) && option.state.testFlag(QStyle::State_Enabled);
    Colors colors;
    for (int i = 0; i < colorCount; ++i) {
        const QColor color = getColor(index, FirstColorRole + i);
        if (!color.isValid())
            return;
        colors[std::size_t(i)] = isUsable ? color : disabledColor(color);
    }

    const QRect patch = option.rect.adjusted(m_horizontalMargin, m_verticalMargin,
                                             -(m_horizontalMargin + 1), -(m_verticalMargin + 1));
    const bool isFlat = ZVGuiTools::isFlatStyle();
    if (references > s_mostColors)
        ZVGuiTools::drawBeautifiedColorPatchDiagonalWithPoints(painter, patch, colors[0], colors[1],
                                                               isFlat);
    else if (references == 3)
        ZVGuiTools::drawBeautifiedThreeColorPatchDiagonal(painter, patch, colors[0], colors[1],
                                                          colors[2], isFlat);
    else if (references == 2)
        ZVGuiTools::drawBeautifiedTwoColorPatchDiagonal(painter, patch, colors[0], colors[1],
                                                        m_twoColorStyle, isFlat);
    else
        ZVGuiTools::drawBeautifiedColorPatch(painter, patch, colors[0], isFlat, 255);
}

QWidget* ReferenceIndicatorDelegate::createEditor(QWidget*, const QStyleOptionViewItem&,
                                                  const QModelIndex&) const
{
    return nullptr;
}

bool ReferenceIndicatorDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                                           const QStyleOptionViewItem& option,
                                           const QModelIndex& index)
{
    const int references = getNumberOfRefs(index);
    const bool saysCount = event && view && event->type() == QEvent::ToolTip && references > 0 &&
                           !index.data(Qt::ToolTipRole).isValid();
    if (!saysCount)
        return ZVItemDelegate::helpEvent(event, view, option, index);
    QToolTip::showText(event->globalPos(), textForReferences(references), view->viewport(),
                       option.rect);
    return true;
}

QString ReferenceIndicatorDelegate::textForReferences(int count)
{
    if (count <= 0)
        return Translator::translate("ReferenceIndicatorDelegate", "No references");
    if (count == 1)
        return Translator::translate("ReferenceIndicatorDelegate", "One reference");
    return Translator::translate("ReferenceIndicatorDelegate", "%n references", nullptr, count);
}

void ReferenceIndicatorDelegate::initStyleOption(QStyleOptionViewItem* option,
                                                 const QModelIndex& index) const
{
    ZVItemDelegate::initStyleOption(option, index);
    option->state.setFlag(QStyle::State_HasFocus, false);
}

int ReferenceIndicatorDelegate::getNumberOfRefs(const QModelIndex& index) const
{
    const QVariant value = index.data(NumberOfReferencesRole);
    return value.isNull() ? 0 : value.toInt();
}

QColor ReferenceIndicatorDelegate::getColor(const QModelIndex& index, int role) const
{
    const QVariant id = index.data(role);
    if (id.isNull())
        return {};
    const auto color = ColorConfiguration::getRegisteredInstance()->getColor(id.toInt());
    return QColor::fromRgbF(qreal(color.red), qreal(color.green), qreal(color.blue), 1.0);
}

} // namespace Zorvane
