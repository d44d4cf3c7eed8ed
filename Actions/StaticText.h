#pragma once

#include <QtCore/QString>

#include <cstddef>

namespace Zorvane {

/**
 * An ASCII text in a constant table. Its QString shares the table's memory: as with QStringLiteral,
 * which cannot stand in such a table, nothing is converted or allocated, which would add a third to
 * what creating the main actions takes. It must outlive the QString, so only tables of static
 * storage hold one.
 *
 * Not supported: texts of more than `s_capacity - 1` characters; these do not compile.
 */
class StaticText
{
public:
    static constexpr std::size_t s_capacity = 48;

    constexpr StaticText()
        : StaticText("")
    {}
    template <std::size_t Size>
    constexpr StaticText(const char (&text)[Size])
        : m_header
        Q_STATIC_STRING_DATA_HEADER_INITIALIZER_WITH_OFFSET(int(Size) - 1, sizeof(QStringData))
    {
        static_assert(Size <= s_capacity, "The text is too long for the table.");
        for (std::size_t i = 0; i < Size; ++i)
            m_characters[i] = char16_t(text[i]);
    }

    QString toString() const
    {
        static_assert(offsetof(StaticText, m_characters) == sizeof(QStringData),
                      "The text must begin where its header says.");
        // Never written to: the header says that the data is static.
        auto* const header = const_cast<QArrayData*>(&m_header);
        return QString(QStringDataPtr{static_cast<QStringData*>(header)});
    }

private:
    QArrayData m_header;
    /** Directly behind the header, where its offset points. */
    char16_t m_characters[s_capacity] = {};
};

} // namespace Zorvane
