#include "Workbench/Meshes/MeshContent.h"
#include "Workbench/Meshes/MeshReader.h"
#include "Workbench/Meshes/TextScanner.h"

#include <QtCore/QLocale>
#include <QtCore/QtEndian>

#include <algorithm>

namespace Zorvane::Workbench {

namespace {

constexpr int headerSize = 84;
constexpr int triangleSize = 50;

/** What a binary STL file with as many triangles as this one's header tells takes. */
qint64 sizeTold(const QByteArray& content)
{
    return headerSize + triangleSize * qint64(qFromLittleEndian<quint32>(content.constData() + 80));
}

bool looksLikeText(const QByteArray& content)
{
    constexpr int looked = 1000;
    const auto end = content.begin() + std::min(content.size(), looked);
    return std::none_of(content.begin(), end, [](char c) {
        const auto byte = static_cast<unsigned char>(c);
        return byte == 127 || (byte < ' ' && byte != '\n' && byte != '\r' && byte != '\t');
    });
}

MeshContent wrongSize(const QByteArray& content)
{
    const QLocale locale;
    const qint64 told = sizeTold(content);
    return MeshContent::wrong(
        (content.size() < told ? MeshReader::tr("is cut off: %1 triangles take %2 bytes, but it "
                                                "has %3")
                               : MeshReader::tr("is longer than it says: %1 triangles take %2 "
                                                "bytes, but it has %3"))
            .arg(locale.toString((told - headerSize) / triangleSize), locale.toString(told),
                 locale.toString(content.size())));
}

/** Checks one ASCII STL text word by word. */
class AsciiCheck
{
public:
    explicit AsciiCheck(const QByteArray& text)
        : m_text(text)
        , m_scanner(text)
    {}

    MeshContent run()
    {
        for (std::string_view word = m_scanner.nextWord(); !word.empty();
             word = m_scanner.nextWord()) {
            if (word != "solid")
                return expected(quoted("solid"), word);
            m_scanner.skipLine();
            if (!facets())
                return m_wrong;
            m_scanner.skipLine();
        }
        return {m_text, {}, {}};
    }

private:
    /** All facets of a solid, and "endsolid". */
    bool facets()
    {
        for (;;) {
            const std::string_view word = m_scanner.nextWord();
            if (word == "endsolid")
                return true;
            if (word != "facet") {
                m_wrong = expected(quoted("facet"), word);
                return false;
            }
            if (!facet())
                return false;
        }
    }

    bool facet()
    {
        return take("normal") && numbers() && take("outer") && take("loop") && vertex() &&
               vertex() && vertex() && take("endloop") && take("endfacet");
    }

    bool vertex() { return take("vertex") && numbers(); }

    bool take(const char* wanted)
    {
        const std::string_view word = m_scanner.nextWord();
        if (word == wanted)
            return true;
        m_wrong = expected(quoted(wanted), word);
        return false;
    }

    bool numbers()
    {
        for (int i = 0; i < 3; ++i) {
            const std::string_view word = m_scanner.nextWord();
            if (!numberIn(word)) {
                m_wrong = expected(MeshReader::tr("a number"), word);
                return false;
            }
        }
        return true;
    }

    /** `wanted` is a word of the format, or translated. */
    MeshContent expected(const QString& wanted, std::string_view found) const
    {
        if (found.empty())
            return MeshContent::wrong(
                MeshReader::tr("is cut off: ends where %1 should stand").arg(wanted),
                m_scanner.lineText());
        constexpr std::size_t shown = 20;
        const QString foundText =
            QString::fromUtf8(found.data(), static_cast<int>(std::min(found.size(), shown)));
        return MeshContent::wrong(
            MeshReader::tr("has \"%1\" where %2 should stand").arg(foundText, wanted),
            m_scanner.lineText());
    }

    static QString quoted(const char* word)
    {
        return QLatin1Char('"') + QLatin1String(word) + QLatin1Char('"');
    }

    QByteArray m_text;
    TextScanner m_scanner;
    MeshContent m_wrong;
};

} // namespace

MeshContent checkStl(const QByteArray& content)
{
    // The size decides first: many binary files begin with the word "solid" too.
    if (content.size() >= headerSize && sizeTold(content) == content.size())
        return {content, {}, {}};
    if (looksLikeText(content)) {
        const QByteArray text = content.toLower();
        if (!text.trimmed().startsWith("solid"))
            return MeshContent::wrong(
                MeshReader::tr("is a text but no STL: it doesn't begin with \"solid\""));
        return AsciiCheck(text).run();
    }
    if (content.size() < headerSize)
        return MeshContent::wrong(MeshReader::tr("is too short for an STL file"));
    return wrongSize(content);
}

} // namespace Zorvane::Workbench
