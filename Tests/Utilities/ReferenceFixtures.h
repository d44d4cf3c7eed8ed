#pragma once

#include "Host/Configuration/ColorConfiguration.h"
#include "Utilities/ReferenceIndicatorDelegate.h"

#include <QtCore/QSize>
#include <QtCore/QVariant>
#include <QtCore/QVector>
#include <QtGui/QColor>
#include <QtGui/QImage>
#include <QtGui/QPalette>
#include <QtGui/QStandardItemModel>
#include <QtWidgets/QStyleOptionViewItem>

namespace Zorvane::Testing {

/** Keys of the colours below. */
enum ColorId
{
    Steel = 11,
    Brass = 12,
    Green = 13,
    Black = 14,
    White = 15,
    HighlightBlue = 16
};

constexpr QSize s_cell(40, 20);

/** A model with one item of that many references, and colours as long as the list goes. */
class References : public QStandardItemModel
{
public:
    explicit References(const QVariant& count, const QVector<QVariant>& colors = {})
    {
        auto* const item = new QStandardItem;
        appendRow(item);
        item->setData(count, ReferenceIndicatorDelegate::NumberOfReferencesRole);
        for (int i = 0; i < colors.size(); ++i)
            item->setData(colors.at(i), ReferenceIndicatorDelegate::FirstColorRole + i);
    }
    QModelIndex cell() const { return index(0, 0); }

    /** As models with references do: the text is looked up whenever it is asked for. */
    QVariant data(const QModelIndex& index, int role) const override
    {
        if (role == Qt::AccessibleTextRole)
            return ReferenceIndicatorDelegate::textForReferences(
                QStandardItemModel::data(index, ReferenceIndicatorDelegate::NumberOfReferencesRole)
                    .toInt());
        return QStandardItemModel::data(index, role);
    }
};

inline QPalette lightPalette()
{
    QPalette palette(Qt::black, Qt::white);
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Highlight, QColor(0x30, 0x8c, 0xc6));
    return palette;
}

inline QPalette darkPalette()
{
    QPalette palette(Qt::white, QColor(0x2b, 0x2b, 0x2b));
    palette.setColor(QPalette::Base, QColor(0x23, 0x26, 0x29));
    palette.setColor(QPalette::Highlight, QColor(0x2a, 0x82, 0xda));
    return palette;
}

/** An active, enabled cell. */
inline QStyleOptionViewItem optionFor(const QPoint& position, const QPalette& palette)
{
    QStyleOptionViewItem option;
    option.rect = QRect(position, s_cell);
    option.palette = palette;
    option.state = QStyle::State_Enabled | QStyle::State_Active;
    option.direction = Qt::LeftToRight;
    option.showDecorationSelected = true;
    return option;
}

inline QImage blankImage(const QSize& size, qreal scale, const QColor& background)
{
    QImage image(size * scale, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(background);
    return image;
}

inline void setColor(int id, const QColor& color)
{
    ColorConfiguration::getRegisteredInstance()->setColor(
        id, {float(color.redF()), float(color.greenF()), float(color.blueF())});
}

inline QColor colorOf(int id)
{
    const auto color = ColorConfiguration::getRegisteredInstance()->getColor(id);
    return QColor::fromRgbF(qreal(color.red), qreal(color.green), qreal(color.blue));
}

/** What every id of these tests looks like. */
inline void fillColors()
{
    setColor(Steel, QColor(0x5f, 0x71, 0x9d));
    setColor(Brass, QColor(0xaf, 0x89, 0x59));
    setColor(Green, QColor(0x65, 0x97, 0x68));
    setColor(Black, Qt::black);
    setColor(White, Qt::white);
    setColor(HighlightBlue, lightPalette().color(QPalette::Highlight));
}

} // namespace Zorvane::Testing
