#include "Workbench/Preview/TextHead.h"

#include <QtCore/QTextCodec>

#include <algorithm>

namespace Zorvane::Workbench {

namespace {

bool isLineSpace(QChar character)
{
    return character == QLatin1Char('\n') || character == QLatin1Char('\t');
}

bool isOddControl(QChar character)
{
    return character.category() == QChar::Other_Control && !isLineSpace(character) &&
           character != QLatin1Char('\r') && character != QLatin1Char('\f');
}

/** Programs write a page feed or an escape into a text now and then, but not everywhere. */
bool looksLikeText(const QString& text)
{
    const auto odd = std::count_if(text.begin(), text.end(), &isOddControl);
    return odd * 50 <= text.size();
}

} // namespace

std::optional<QString> decodeText(const QByteArray& bytes)
{
    QTextCodec* const latin1 = QTextCodec::codecForName("ISO-8859-1");
    QTextCodec* const utf8 = QTextCodec::codecForName("UTF-8");
    QTextCodec* const marked = QTextCodec::codecForUtfText(bytes, utf8);
    if (marked == utf8 && bytes.contains('\0'))
        return std::nullopt;
    QTextCodec::ConverterState state;
    QString text = marked->toUnicode(bytes.constData(), bytes.size(), &state);
    if (state.invalidChars > 0)
        text = latin1->toUnicode(bytes);
    return looksLikeText(text) ? std::optional(text) : std::nullopt;
}

QString firstLines(const QString& text, int most)
{
    QString lines;
    int ends = 0;
    for (const QChar character : text) {
        if (character == QLatin1Char('\n') && ++ends == most)
            break;
        if (isLineSpace(character) || character.category() != QChar::Other_Control)
            lines.append(character);
    }
    return lines;
}

} // namespace Zorvane::Workbench
