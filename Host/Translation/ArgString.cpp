#include "Host/Translation/ArgString.h"

namespace Zorvane {

namespace {

int digitAt(const QString& text, int position)
{
    const ushort code = position < text.size() ? text.at(position).unicode() : ushort(0);
    return code >= '0' && code <= '9' ? code - '0' : -1;
}

struct Placeholder
{
    int number = 0;
    int length = 0;
};

/** What starts with the percent sign at the position; no number if it is only a percent sign. */
Placeholder placeholderAt(const QString& text, int position)
{
    const int first = digitAt(text, position + 1);
    const int second = digitAt(text, position + 2);
    if (first < 0)
        return {};
    return second < 0 ? Placeholder{first, 2} : Placeholder{first * 10 + second, 3};
}

} // namespace

ArgString::ArgString(const std::string& text)
    : m_text(QString::fromStdString(text))
{}

ArgString::ArgString(const QString& text)
    : m_text(text)
{}

ArgString& ArgString::arg(const std::string& value)
{
    return arg(QString::fromStdString(value));
}

ArgString& ArgString::arg(const QString& value)
{
    m_values.append(value);
    return *this;
}

ArgString& ArgString::arg(int value)
{
    return arg(QString::number(value));
}

QString ArgString::toQString() const
{
    QString filled;
    int copied = 0;
    for (int i = m_text.indexOf(u'%'); i >= 0; i = m_text.indexOf(u'%', i + 1)) {
        const Placeholder placeholder = placeholderAt(m_text, i);
        if (placeholder.number < 1 || placeholder.number > m_values.size())
            continue;
        filled += m_text.mid(copied, i - copied) + m_values.at(placeholder.number - 1);
        copied = i + placeholder.length;
    }
    return filled + m_text.mid(copied);
}

std::string ArgString::toStdString() const
{
    return toQString().toStdString();
}

} // namespace Zorvane
