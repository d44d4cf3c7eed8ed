#include "Workbench/Meshes/TextScanner.h"

#include "Workbench/Meshes/MeshReader.h"

#include <charconv>

namespace Zorvane::Workbench {

namespace {

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\r' || c == '\v' || c == '\f';
}

template <typename Number>
std::optional<Number> parse(std::string_view word)
{
    if (!word.empty() && word.front() == '+')
        word.remove_prefix(1);
    Number number{};
    const char* const end = word.data() + word.size();
    const auto [stop, error] = std::from_chars(word.data(), end, number);
    const bool isNumber = error == std::errc() && stop == end;
    return isNumber ? std::optional<Number>(number) : std::nullopt;
}

} // namespace

TextScanner::TextScanner(const QByteArray& text)
    : m_text(text.constData(), static_cast<std::size_t>(text.size()))
{}

void TextScanner::skipBlanks(bool acrossLines)
{
    for (; m_position < m_text.size(); ++m_position) {
        const char c = m_text[m_position];
        if (c == '\n' && acrossLines)
            ++m_line;
        else if (!isBlank(c))
            return;
    }
}

std::string_view TextScanner::takeWord()
{
    const std::size_t start = m_position;
    while (m_position < m_text.size() && !isBlank(m_text[m_position]) && m_text[m_position] != '\n')
        ++m_position;
    return m_text.substr(start, m_position - start);
}

std::string_view TextScanner::nextWord()
{
    skipBlanks(true);
    return takeWord();
}

std::string_view TextScanner::nextWordOfLine()
{
    skipBlanks(false);
    return takeWord();
}

void TextScanner::skipLine()
{
    const std::size_t end = m_text.find('\n', m_position);
    m_position = end == std::string_view::npos ? m_text.size() : end + 1;
    m_line += end == std::string_view::npos ? 0 : 1;
}

QString TextScanner::lineText() const
{
    return MeshReader::tr("line %1").arg(m_line);
}

std::optional<double> numberIn(std::string_view word)
{
    return parse<double>(word);
}

std::optional<long long> integerIn(std::string_view word)
{
    return parse<long long>(word);
}

} // namespace Zorvane::Workbench
