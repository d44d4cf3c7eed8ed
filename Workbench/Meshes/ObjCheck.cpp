#include "Workbench/Meshes/MeshContent.h"
#include "Workbench/Meshes/MeshReader.h"
#include "Workbench/Meshes/TextScanner.h"

namespace Zorvane::Workbench {

namespace {

/** Copies points and faces of an OBJ text, with the faces' indices counted from the start. */
class ObjCopy
{
public:
    explicit ObjCopy(const QByteArray& text)
        : m_scanner(text)
    {}

    MeshContent run()
    {
        for (; !m_scanner.isAtEnd(); m_scanner.skipLine()) {
            const std::string_view word = m_scanner.nextWordOfLine();
            if ((word == "v" && !point()) || (word == "f" && !face()))
                return m_wrong;
        }
        if (m_highest > m_points)
            return MeshContent::wrong(MeshReader::tr("has a face with point %1, but only %2 points")
                                          .arg(m_highest)
                                          .arg(m_points),
                                      m_highestLine);
        return {m_clean, {}, {}};
    }

private:
    bool point()
    {
        m_clean += "v";
        for (int i = 0; i < 3; ++i) {
            const std::string_view word = m_scanner.nextWordOfLine();
            if (!numberIn(word))
                return wrong(MeshReader::tr("has a point that isn't three numbers"));
            m_clean += ' ';
            m_clean.append(word.data(), static_cast<int>(word.size()));
        }
        m_clean += '\n';
        ++m_points;
        return true;
    }

    bool face()
    {
        m_clean += "f";
        int corners = 0;
        for (std::string_view word = m_scanner.nextWordOfLine(); !word.empty();
             word = m_scanner.nextWordOfLine(), ++corners) {
            if (word == "\\") {
                // Goes on in the next line.
                m_scanner.skipLine();
                --corners;
            } else if (!corner(word)) {
                return false;
            }
        }
        m_clean += '\n';
        return corners >= 3 || wrong(MeshReader::tr("has a face of fewer than three points"));
    }

    bool corner(std::string_view word)
    {
        const auto told = integerIn(word.substr(0, word.find('/')));
        // Counted from 1, or backwards from the point read last by -1.
        const long long index = told.value_or(0) < 0 ? m_points + 1 + *told : told.value_or(0);
        if (index < 1)
            return wrong(MeshReader::tr("has a face with a point that doesn't exist"));
        if (index > m_highest) {
            m_highest = index;
            m_highestLine = m_scanner.lineText();
        }
        m_clean += ' ' + QByteArray::number(index);
        return true;
    }

    bool wrong(const QString& reason)
    {
        m_wrong = MeshContent::wrong(reason, m_scanner.lineText());
        return false;
    }

    TextScanner m_scanner;
    QByteArray m_clean;
    MeshContent m_wrong;
    long long m_points = 0;
    long long m_highest = 0;
    QString m_highestLine;
};

} // namespace

MeshContent checkObj(const QByteArray& content)
{
    return ObjCopy(content).run();
}

} // namespace Zorvane::Workbench
