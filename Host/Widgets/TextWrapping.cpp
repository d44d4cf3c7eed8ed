#include "Host/Widgets/TextWrapping.h"

#include <QtCore/QStringList>
#include <QtGui/QTextLayout>

namespace Zorvane {

namespace {

QStringList linesOf(const QString& paragraph, const QFont& font, int width)
{
    QTextLayout layout(paragraph, font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    QStringList lines;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        lines.append(paragraph.mid(line.textStart(), line.textLength()));
    }
    layout.endLayout();
    return lines;
}

} // namespace

QString wrapTextToFitWidth(const QString& text, const QFont& font, int width)
{
    if (width <= 0)
        return text;
    QStringList wrapped;
    for (const QString& paragraph : text.split(QLatin1Char('\n')))
        wrapped.append(paragraph.isEmpty() ? QStringList(paragraph)
                                           : linesOf(paragraph, font, width));
    return wrapped.join(QLatin1Char('\n'));
}

} // namespace Zorvane
