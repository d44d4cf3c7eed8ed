#include "Workbench/Meshes/MeshContent.h"
#include "Workbench/Meshes/MeshReader.h"
#include "Workbench/Meshes/TextScanner.h"

#include <QtCore/QtEndian>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <string>
#include <vector>

namespace Zorvane::Workbench {

namespace {

enum class PlyFormat
{
    None,
    Ascii,
    LittleEndian,
    BigEndian
};
enum class Type
{
    None,
    Int8,
    UInt8,
    Int16,
    UInt16,
    Int32,
    UInt32,
    Float,
    Double
};

struct TypeName
{
    const char* name;
    const char* otherName;
    Type type;
    std::size_t size;
};

// clang-format off
constexpr std::array<TypeName, 8> typeNames{{
    {"char",   "int8",    Type::Int8,   1},
    {"uchar",  "uint8",   Type::UInt8,  1},
    {"short",  "int16",   Type::Int16,  2},
    {"ushort", "uint16",  Type::UInt16, 2},
    {"int",    "int32",   Type::Int32,  4},
    {"uint",   "uint32",  Type::UInt32, 4},
    {"float",  "float32", Type::Float,  4},
    {"double", "float64", Type::Double, 8},
}};
// clang-format on

Type typeOf(std::string_view word)
{
    for (const TypeName& each : typeNames) {
        if (word == each.name || word == each.otherName)
            return each.type;
    }
    return Type::None;
}

std::size_t sizeOf(Type type)
{
    for (const TypeName& each : typeNames) {
        if (type == each.type)
            return each.size;
    }
    return 0;
}

struct Property
{
    std::string name;
    Type type = Type::None;
    /** Of the number of values; none for a single value. */
    Type countType = Type::None;
};

struct Element
{
    std::string name;
    long long count = 0;
    std::vector<Property> properties;
};

struct Header
{
    PlyFormat format = PlyFormat::None;
    std::vector<Element> elements;
};

/** Gives the values behind the header one by one, whatever the format. */
class Values
{
public:
    Values(const QByteArray& content, PlyFormat format, TextScanner scanner)
        : m_content(content)
        , m_format(format)
        , m_scanner(scanner)
        , m_position(scanner.position())
    {}

    /** None at the end of the file, or where a text has no number. */
    std::optional<double> next(Type type)
    {
        if (m_format == PlyFormat::Ascii)
            return numberIn(m_scanner.nextWord());
        const std::size_t size = sizeOf(type);
        if (size > static_cast<std::size_t>(m_content.size()) - m_position)
            return std::nullopt;
        const char* const bytes = m_content.constData() + m_position;
        m_position += size;
        return binary(bytes, type);
    }

    QString placeText() const
    {
        return m_format == PlyFormat::Ascii ? m_scanner.lineText()
                                            : MeshReader::tr("offset %1").arg(m_position);
    }

private:
    template <typename Number>
    Number as(const char* bytes) const
    {
        return m_format == PlyFormat::BigEndian ? qFromBigEndian<Number>(bytes)
                                                : qFromLittleEndian<Number>(bytes);
    }

    double binary(const char* bytes, Type type) const
    {
        switch (type) {
        case Type::Int8:
            return as<qint8>(bytes);
        case Type::UInt8:
            return as<quint8>(bytes);
        case Type::Int16:
            return as<qint16>(bytes);
        case Type::UInt16:
            return as<quint16>(bytes);
        case Type::Int32:
            return as<qint32>(bytes);
        case Type::UInt32:
            return as<quint32>(bytes);
        case Type::Float:
            return static_cast<double>(as<float>(bytes));
        case Type::Double:
            return as<double>(bytes);
        case Type::None:
            break;
        }
        return 0;
    }

    const QByteArray& m_content;
    PlyFormat m_format;
    TextScanner m_scanner;
    std::size_t m_position;
};

/** Reads the header; false, with the reason, if it is none. */
class HeaderReader
{
public:
    explicit HeaderReader(TextScanner& scanner)
        : m_scanner(scanner)
    {}

    bool run(Header& header, QString& reason)
    {
        if (m_scanner.nextWordOfLine() != "ply") {
            reason = MeshReader::tr("is no PLY file: it doesn't begin with \"ply\"");
            return false;
        }
        while (!m_scanner.isAtEnd()) {
            m_scanner.skipLine();
            const std::string_view word = m_scanner.nextWordOfLine();
            if (word == "end_header") {
                m_scanner.skipLine();
                return isComplete(header, reason);
            }
            if (!line(word, header)) {
                reason = MeshReader::tr("has a header line that isn't understood");
                return false;
            }
        }
        reason = MeshReader::tr("is cut off in its header");
        return false;
    }

private:
    bool line(std::string_view word, Header& header)
    {
        if (word == "format")
            return format(header);
        if (word == "element")
            return element(header);
        if (word == "property")
            return !header.elements.empty() && property(header.elements.back());
        return word.empty() || word == "comment" || word == "obj_info";
    }

    bool format(Header& header)
    {
        const std::string_view word = m_scanner.nextWordOfLine();
        if (word == "ascii")
            header.format = PlyFormat::Ascii;
        else if (word == "binary_little_endian")
            header.format = PlyFormat::LittleEndian;
        else if (word == "binary_big_endian")
            header.format = PlyFormat::BigEndian;
        return header.format != PlyFormat::None;
    }

    bool element(Header& header)
    {
        const std::string name(m_scanner.nextWordOfLine());
        const auto count = integerIn(m_scanner.nextWordOfLine());
        header.elements.push_back({name, count.value_or(-1), {}});
        return count.value_or(-1) >= 0;
    }

    bool property(Element& element)
    {
        Property property;
        std::string_view word = m_scanner.nextWordOfLine();
        if (word == "list") {
            property.countType = typeOf(m_scanner.nextWordOfLine());
            if (property.countType == Type::None)
                return false;
            word = m_scanner.nextWordOfLine();
        }
        property.type = typeOf(word);
        property.name = std::string(m_scanner.nextWordOfLine());
        element.properties.push_back(property);
        return property.type != Type::None;
    }

    static bool isComplete(const Header& header, QString& reason)
    {
        if (header.format == PlyFormat::None)
            reason = MeshReader::tr("doesn't tell its format");
        if (!hasPoints(header))
            reason = MeshReader::tr("has no points with x, y and z");
        for (const Element& element : header.elements) {
            // Entries of no size could be told by the billion in a small file.
            if (element.properties.empty() && element.count > 0)
                reason = MeshReader::tr("has entries without content");
        }
        return reason.isEmpty();
    }

    static bool hasPoints(const Header& header)
    {
        const auto isCoordinate = [](const Property& property) {
            return property.countType == Type::None &&
                   (property.name == "x" || property.name == "y" || property.name == "z");
        };
        return std::any_of(header.elements.begin(), header.elements.end(), [&](const Element& e) {
            return e.name == "vertex" &&
                   std::count_if(e.properties.begin(), e.properties.end(), isCoordinate) == 3;
        });
    }

    TextScanner& m_scanner;
};

/** Copies points and faces of a PLY file. */
class PlyCopy
{
public:
    explicit PlyCopy(const QByteArray& content)
        : m_content(content)
        , m_scanner(content)
    {}

    MeshContent run()
    {
        QString reason;
        if (!HeaderReader(m_scanner).run(m_header, reason))
            return MeshContent::wrong(reason, m_scanner.lineText());
        Values values(m_content, m_header.format, m_scanner);
        for (const Element& element : m_header.elements) {
            for (long long i = 0; i < element.count; ++i) {
                if (!entry(element, values))
                    return MeshContent::wrong(m_reason, values.placeText());
            }
        }
        if (m_highest >= m_points)
            return MeshContent::wrong(MeshReader::tr("has a face with point %1, but only %2 points")
                                          .arg(m_highest + 1)
                                          .arg(m_points));
        return {cleanHeader() + m_pointBytes + m_faceBytes, {}, {}};
    }

private:
    bool entry(const Element& element, Values& values)
    {
        std::array<float, 3> point{};
        for (const Property& property : element.properties) {
            if (property.countType != Type::None) {
                if (!list(element, property, values))
                    return false;
                continue;
            }
            const auto value = values.next(property.type);
            if (!value)
                return wrong(MeshReader::tr("is cut off or holds something else than numbers"));
            if (property.name.size() == 1 && property.name[0] >= 'x' && property.name[0] <= 'z')
                point[static_cast<std::size_t>(property.name[0] - 'x')] =
                    static_cast<float>(*value);
        }
        if (element.name == "vertex") {
            for (const float coordinate : point)
                append(m_pointBytes, coordinate);
            ++m_points;
        }
        return true;
    }

    bool list(const Element& element, const Property& property, Values& values)
    {
        const bool isFace = element.name == "face" &&
                            (property.name == "vertex_indices" || property.name == "vertex_index");
        const auto count = values.next(property.countType);
        if (!count || !isIndex(*count))
            return wrong(MeshReader::tr("is cut off or has a list of no sensible length"));
        if (isFace && *count < 3)
            return wrong(MeshReader::tr("has a face of fewer than three points"));
        if (isFace) {
            append(m_faceBytes, static_cast<quint32>(*count));
            ++m_faces;
        }
        for (double i = 0; i < *count; ++i) {
            const auto value = values.next(property.type);
            if (!value)
                return wrong(MeshReader::tr("is cut off or holds something else than numbers"));
            if (isFace && !corner(*value))
                return false;
        }
        return true;
    }

    /** A whole number that a file of this size can count to. */
    bool isIndex(double number) const
    {
        return number >= 0 && number <= m_content.size() && std::floor(number) == number;
    }

    bool corner(double index)
    {
        if (!isIndex(index))
            return wrong(MeshReader::tr("has a face with a point that doesn't exist"));
        const auto whole = static_cast<quint32>(index);
        m_highest = std::max<qint64>(m_highest, whole);
        append(m_faceBytes, whole);
        return true;
    }

    bool wrong(const QString& reason)
    {
        m_reason = reason;
        return false;
    }

    QByteArray cleanHeader() const
    {
        return "ply\nformat binary_little_endian 1.0\nelement vertex " +
               QByteArray::number(m_points) +
               "\nproperty float x\nproperty float y\nproperty float z\nelement face " +
               QByteArray::number(m_faces) + "\nproperty list uint uint vertex_indices\n" +
               "end_header\n";
    }

    template <typename Number>
    static void append(QByteArray& bytes, Number number)
    {
        const Number little = qToLittleEndian(number);
        char raw[sizeof little];
        std::memcpy(raw, &little, sizeof little);
        bytes.append(raw, sizeof raw);
    }

    const QByteArray& m_content;
    TextScanner m_scanner;
    Header m_header;
    QString m_reason;
    QByteArray m_pointBytes;
    QByteArray m_faceBytes;
    qint64 m_points = 0;
    qint64 m_faces = 0;
    qint64 m_highest = -1;
};

} // namespace

MeshContent checkPly(const QByteArray& content)
{
    return PlyCopy(content).run();
}

} // namespace Zorvane::Workbench
