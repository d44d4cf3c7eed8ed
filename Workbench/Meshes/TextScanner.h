#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <optional>
#include <string_view>

namespace Zorvane::Workbench {

/** Walks through the words of a text. The text must outlive it. */
class TextScanner
{
public:
    explicit TextScanner(const QByteArray& text);

    /** The next word, across line ends; empty at the end of the text. */
    std::string_view nextWord();
    /** The next word of this line; empty at the end of the line. */
    std::string_view nextWordOfLine();
    /** Goes on behind the next line end. */
    void skipLine();
    bool isAtEnd() const { return m_position == m_text.size(); }
    std::size_t position() const { return m_position; }
    /** Counted from 1; that of the word read last. */
    int line() const { return m_line; }
    /** "line 12" */
    QString lineText() const;

private:
    void skipBlanks(bool acrossLines);
    std::string_view takeWord();

    std::string_view m_text;
    std::size_t m_position = 0;
    int m_line = 1;
};

/** The number that the whole word tells, in any locale's presence written with '.'. */
std::optional<double> numberIn(std::string_view word);
std::optional<long long> integerIn(std::string_view word);

} // namespace Zorvane::Workbench
