#include "Workbench/Preview/TableHead.h"

#include <algorithm>
#include <array>

namespace Zorvane::Workbench {

namespace {

constexpr QLatin1Char s_quote('"');

constexpr std::array<QLatin1Char, 3> s_separators{QLatin1Char(';'), QLatin1Char('\t'),
                                                  QLatin1Char(',')};

/** How often each separator stands in the first line that holds anything, outside of quotes. */
std::array<int, 3> separatorsInFirstLine(const QString& text)
{
    std::array<int, 3> counts{};
    bool quoted = false;
    bool startsCell = true;
    bool hasCells = false;
    for (const QChar character : text) {
        const bool endsLine = character == QLatin1Char('\n') && !quoted;
        if (endsLine && hasCells)
            break;
        hasCells = hasCells || !character.isSpace();
        if (character == s_quote && (quoted || startsCell))
            quoted = !quoted;
        const auto* found = std::find(s_separators.begin(), s_separators.end(), character);
        const bool separates = !quoted && found != s_separators.end();
        if (separates)
            ++counts[std::size_t(found - s_separators.begin())];
        startsCell = separates || endsLine;
    }
    return counts;
}

QChar separatorOf(const QString& text)
{
    const std::array<int, 3> counts = separatorsInFirstLine(text);
    // The first of equals: a decimal comma is more likely than a semicolon in a number.
    const auto* most = std::max_element(counts.begin(), counts.end());
    return s_separators[std::size_t(most - counts.begin())];
}

/** Takes a text apart character by character. */
class Cells
{
public:
    explicit Cells(QChar separator)
        : m_separator(separator)
    {}

    void take(QChar character, QChar next)
    {
        if (m_isSecondQuote) {
            m_isSecondQuote = false;
        } else if (character == s_quote && m_quoted && next == s_quote) {
            m_isSecondQuote = true;
            append(character);
        } else if (character == s_quote && (m_quoted || m_cell.isEmpty())) {
            m_quoted = !m_quoted;
        } else if (m_quoted) {
            append(character);
        } else if (character == m_separator) {
            endCell();
        } else if (character == QLatin1Char('\n')) {
            endRow();
        } else if (character != QLatin1Char('\r')) {
            append(character);
        }
    }

    void endRow()
    {
        const bool hasCells = !m_row.isEmpty() || !m_cell.isEmpty();
        endCell();
        if (hasCells && isFull())
            m_head.hasMoreRows = true;
        else if (hasCells)
            m_head.rows.push_back(m_row);
        m_row.clear();
        m_quoted = false;
    }

    bool isFull() const { return int(m_head.rows.size()) == TableHead::mostRows; }
    const TableHead& head() const { return m_head; }

private:
    void append(QChar character)
    {
        if (m_cell.size() < TableHead::longestCell)
            m_cell.append(character);
    }

    void endCell()
    {
        if (m_row.size() < TableHead::mostColumns)
            m_row.append(m_cell.trimmed());
        else
            m_head.hasMoreColumns = true;
        m_cell.clear();
    }

    const QChar m_separator;
    TableHead m_head;
    QStringList m_row;
    QString m_cell;
    bool m_quoted = false;
    bool m_isSecondQuote = false;
};

} // namespace

TableHead TableHead::read(const QString& text)
{
    Cells cells(separatorOf(text));
    for (int i = 0; i < text.size() && !cells.head().hasMoreRows; ++i)
        cells.take(text[i], i + 1 < text.size() ? text[i + 1] : QChar());
    cells.endRow();
    return cells.head();
}

} // namespace Zorvane::Workbench
