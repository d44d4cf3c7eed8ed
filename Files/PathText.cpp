#include "Files/PathText.h"

#include <algorithm>
#include <array>

namespace Zorvane {

namespace {

constexpr char16_t s_escape = 0xDC00;

unsigned byteAt(const std::string& bytes, std::size_t at)
{
    return static_cast<unsigned char>(bytes[at]);
}

/** The rows of the Unicode standard's table of well-formed sequences: lead, and second byte. */
struct SequenceRule
{
    unsigned leadFirst, leadLast, secondFirst, secondLast;
    std::size_t length;
};

// clang-format off
constexpr std::array<SequenceRule, 9> s_rules{{
    {0x00, 0x7F, 0x00, 0xFF, 1},
    {0xC2, 0xDF, 0x80, 0xBF, 2},
    {0xE0, 0xE0, 0xA0, 0xBF, 3},
    {0xE1, 0xEC, 0x80, 0xBF, 3},
    {0xED, 0xED, 0x80, 0x9F, 3},
    {0xEE, 0xEF, 0x80, 0xBF, 3},
    {0xF0, 0xF0, 0x90, 0xBF, 4},
    {0xF1, 0xF3, 0x80, 0xBF, 4},
    {0xF4, 0xF4, 0x80, 0x8F, 4},
}};
// clang-format on

bool fits(const SequenceRule& rule, const std::string& bytes, std::size_t at)
{
    if (at + rule.length > bytes.size())
        return false;
    if (rule.length == 1)
        return true;
    const unsigned second = byteAt(bytes, at + 1);
    if (second < rule.secondFirst || second > rule.secondLast)
        return false;
    for (std::size_t i = 2; i < rule.length; ++i) {
        if ((byteAt(bytes, at + i) & 0xC0U) != 0x80U)
            return false;
    }
    return true;
}

bool isAscii(const std::string& bytes)
{
    return std::all_of(bytes.begin(), bytes.end(), [](char byte) { return (byte & 0x80) == 0; });
}

bool isEscapedByte(const QString& path, int at)
{
    const ushort unit = path.at(at).unicode();
    const bool inRange = unit >= s_escape + 0x80 && unit <= s_escape + 0xFF;
    return inRange && (at == 0 || !path.at(at - 1).isHighSurrogate());
}

} // namespace

std::size_t utf8SequenceLength(const std::string& bytes, std::size_t at)
{
    const unsigned lead = byteAt(bytes, at);
    for (const SequenceRule& rule : s_rules) {
        if (lead >= rule.leadFirst && lead <= rule.leadLast)
            return fits(rule, bytes, at) ? rule.length : 0;
    }
    return 0;
}

bool isAscii(const QString& text)
{
    return std::all_of(text.begin(), text.end(), [](QChar unit) { return unit.unicode() < 0x80; });
}

QString pathFromBytes(const std::string& bytes)
{
    if (isAscii(bytes))
        return QString::fromLatin1(bytes.data(), static_cast<int>(bytes.size()));
    QString path;
    std::size_t textStart = 0;
    const auto appendText = [&](std::size_t end) {
        path += QString::fromUtf8(bytes.data() + textStart, static_cast<int>(end - textStart));
    };
    for (std::size_t at = 0; at < bytes.size();) {
        const std::size_t length = utf8SequenceLength(bytes, at);
        if (length == 0) {
            appendText(at);
            path += QChar(static_cast<ushort>(s_escape + byteAt(bytes, at)));
            textStart = at + 1;
        }
        at += length == 0 ? 1 : length;
    }
    appendText(bytes.size());
    return path;
}

std::string pathToBytes(const QString& path)
{
    std::string bytes;
    if (isAscii(path)) {
        bytes.resize(static_cast<std::size_t>(path.size()));
        std::transform(path.begin(), path.end(), bytes.begin(),
                       [](QChar unit) { return unit.toLatin1(); });
        return bytes;
    }
    int textStart = 0;
    for (int at = 0; at < path.size(); ++at) {
        if (!isEscapedByte(path, at))
            continue;
        bytes += path.midRef(textStart, at - textStart).toUtf8().toStdString();
        bytes += static_cast<char>(path.at(at).unicode() - s_escape);
        textStart = at + 1;
    }
    return bytes + path.midRef(textStart).toUtf8().toStdString();
}

QString pathForDisplay(const QString& path)
{
    QString shown;
    for (int at = 0; at < path.size(); ++at) {
        if (isEscapedByte(path, at))
            shown += QStringLiteral("\\x") +
                     QString::number(path.at(at).unicode() - s_escape, 16).toUpper();
        else
            shown += path.at(at);
    }
    return shown;
}

} // namespace Zorvane
