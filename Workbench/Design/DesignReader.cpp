#include "Workbench/Design/DesignReader.h"

#include "Workbench/Design/FileReferences.h"
#include "Workbench/Design/JsonFields.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QJsonDocument>
#include <QtCore/QLocale>

#include <algorithm>
#include <cmath>
#include <set>
#include <utility>

namespace Zorvane::Workbench {

namespace {

/** Reads the pieces of one design file. */
class PieceReader
{
    Q_DECLARE_TR_FUNCTIONS(Zorvane::Workbench::DesignReader)

public:
    PieceReader(const DesignReader::TakenIds& taken, ProblemList& problems)
        : m_identifiers(taken)
        , m_problems(problems)
    {}

    std::optional<Design> design(const QJsonObject& object, const QString& path);

private:
    /** Identifier, name and source, which every piece has; none if the piece is unusable. */
    template <typename Piece>
    std::optional<Piece> piece(const JsonFields& fields);
    /** Fills `unread` with the entries that `read` gives nothing for. */
    template <typename Piece>
    std::vector<Piece> list(const JsonFields& owner, const QString& key, UnreadEntries& unread,
                            std::optional<Piece> (PieceReader::*read)(const JsonFields&));
    void blank(const JsonFields& owner, Design& design);

    std::optional<Part> part(const JsonFields& fields);
    std::optional<Tool> tool(const JsonFields& fields);
    std::optional<Operation> operation(const JsonFields& fields);
    std::optional<Material> material(const JsonFields& fields);
    std::optional<FileReference> file(const JsonFields& fields);

    GUIdentifier link(const JsonFields& fields, const QString& key);
    void reportDeadLinks(const Design& design);
    void reportOutside(const Design& design);

    /** A place that names another entry, looked at when all entries are known. */
    struct Link
    {
        QString where;
        GUIdentifier target;
    };

    IdentifierRegister m_identifiers;
    ProblemList& m_problems;
    std::vector<Link> m_links;
    std::map<GUIdentifier, QString> m_filePlaces;
};

template <typename Piece>
std::optional<Piece> PieceReader::piece(const JsonFields& fields)
{
    // The name first: an entry that is left out must not keep its identifier from others.
    const std::optional<QString> name = fields.requiredText(QStringLiteral("name"));
    const std::optional<GUIdentifier> id = name ? fields.identifier(m_identifiers) : std::nullopt;
    if (!id)
        return std::nullopt;
    Piece result;
    result.id = *id;
    result.name = *name;
    result.source = fields.object();
    return result;
}

template <typename Piece>
std::vector<Piece> PieceReader::list(const JsonFields& owner, const QString& key,
                                     UnreadEntries& unread,
                                     std::optional<Piece> (PieceReader::*read)(const JsonFields&))
{
    std::vector<Piece> pieces;
    const QJsonArray entries = owner.list(key);
    for (int i = 0; i < entries.size(); ++i) {
        const QString where = owner.pathOf(key) + QStringLiteral("[%1]").arg(i);
        std::optional<Piece> one;
        if (entries.at(i).isObject())
            one = (this->*read)(JsonFields(entries.at(i).toObject(), where, m_problems));
        else
            m_problems.add(where, tr("must be an object"));
        if (one)
            pieces.push_back(std::move(*one));
        else
            unread.emplace(i, entries.at(i));
    }
    return pieces;
}

GUIdentifier PieceReader::link(const JsonFields& fields, const QString& key)
{
    const GUIdentifier target = fields.reference(key);
    if (!target.isNull())
        m_links.push_back({fields.pathOf(key), target});
    return target;
}

std::optional<Part> PieceReader::part(const JsonFields& fields)
{
    std::optional<Part> part = piece<Part>(fields);
    if (part) {
        part->geometry = link(fields, QStringLiteral("geometry"));
        part->material = link(fields, QStringLiteral("material"));
        part->thickness = fields.quantity(QStringLiteral("thickness"));
        part->force = fields.quantity(QStringLiteral("force"));
    }
    return part;
}

std::optional<Tool> PieceReader::tool(const JsonFields& fields)
{
    std::optional<Tool> tool = piece<Tool>(fields);
    if (tool) {
        tool->kind = fields.text(QStringLiteral("kind"));
        tool->geometry = link(fields, QStringLiteral("geometry"));
        tool->force = fields.quantity(QStringLiteral("force"));
    }
    return tool;
}

std::optional<Operation> PieceReader::operation(const JsonFields& fields)
{
    std::optional<Operation> operation = piece<Operation>(fields);
    if (operation) {
        operation->kind = fields.text(QStringLiteral("kind"));
        operation->force = fields.quantity(QStringLiteral("force"));
        operation->tools =
            list(fields, QStringLiteral("tools"), operation->unreadTools, &PieceReader::tool);
    }
    return operation;
}

std::optional<Material> PieceReader::material(const JsonFields& fields)
{
    std::optional<Material> material = piece<Material>(fields);
    if (material)
        material->file = link(fields, QStringLiteral("file"));
    return material;
}

std::optional<FileReference> PieceReader::file(const JsonFields& fields)
{
    const std::optional<QString> path = fields.requiredText(QStringLiteral("path"));
    std::optional<FileReference> file = path ? piece<FileReference>(fields) : std::nullopt;
    if (file) {
        file->path = *path;
        file->kind = fileKindFromWord(fields.text(QStringLiteral("kind")));
        m_filePlaces[file->id] = fields.pathOf(QStringLiteral("path"));
    }
    return file;
}

void PieceReader::blank(const JsonFields& owner, Design& design)
{
    const QString key = QStringLiteral("blank");
    const QJsonValue value = owner.object().value(key);
    if (!value.isObject()) {
        if (!value.isUndefined())
            owner.report(key, tr("must be an object"));
        return;
    }
    const JsonFields fields(value.toObject(), owner.pathOf(key), m_problems);
    design.blank = piece<Blank>(fields);
    if (!design.blank)
        return;
    design.blank->thickness = fields.quantity(QStringLiteral("thickness"));
    design.blank->material = link(fields, QStringLiteral("material"));
    design.blank->geometry = link(fields, QStringLiteral("geometry"));
}

std::optional<Design> PieceReader::design(const QJsonObject& object, const QString& path)
{
    const JsonFields fields(object, {}, m_problems);
    std::optional<Design> design = piece<Design>(fields);
    if (!design)
        return std::nullopt;
    design->file = path;
    const auto unread = [&design](const QString& key) -> UnreadEntries& {
        return design->unread[key];
    };
    blank(fields, *design);
    QString key = QStringLiteral("parts");
    design->parts = list(fields, key, unread(key), &PieceReader::part);
    key = QStringLiteral("operations");
    design->operations = list(fields, key, unread(key), &PieceReader::operation);
    key = QStringLiteral("materials");
    design->materials = list(fields, key, unread(key), &PieceReader::material);
    key = QStringLiteral("files");
    design->files = list(fields, key, unread(key), &PieceReader::file);
    refreshReferences(*design);
    reportDeadLinks(*design);
    reportOutside(*design);
    return design;
}

void PieceReader::reportDeadLinks(const Design& design)
{
    const std::vector<GUIdentifier> all = design.allIds();
    const std::set<GUIdentifier> known(all.begin(), all.end());
    for (const Link& each : m_links) {
        if (known.count(each.target) == 0)
            m_problems.add(each.where, tr("names an entry that the design doesn't have"));
    }
}

void PieceReader::reportOutside(const Design& design)
{
    for (const FileReference& reference : design.files) {
        if (reference.state == FileState::Outside)
            m_problems.add(m_filePlaces[reference.id],
                           tr("\"%1\" leads out of the design's folder").arg(reference.path));
    }
}

QString positionText(const QByteArray& content, int offset)
{
    const QByteArray before = content.left(offset);
    const int line = before.count('\n') + 1;
    const int column = before.size() - before.lastIndexOf('\n');
    return DesignReader::tr("line %1, column %2 (offset %3)")
        .arg(line)
        .arg(column)
        .arg(before.size());
}

/** Empty if this program can read designs of the version told. */
QString versionObstacle(const QJsonValue& version)
{
    if (version.isUndefined())
        return DesignReader::tr("is missing");
    if (!version.isDouble())
        return DesignReader::tr("must be a number");
    const double number = version.toDouble();
    if (number >= DesignReader::oldestVersion && number <= DesignReader::currentVersion &&
        number == std::floor(number))
        return {};
    return DesignReader::tr("version %1 isn't supported, only versions %2 to %3 are")
        .arg(number)
        .arg(DesignReader::oldestVersion)
        .arg(DesignReader::currentVersion);
}

/** The content, or none with the reason. */
std::optional<QByteArray> contentOf(const QString& path, QString& reason)
{
    const QFileInfo info(path);
    if (!info.exists() || !info.isFile()) {
        reason = info.exists() ? DesignReader::tr("is no file") : DesignReader::tr("doesn't exist");
        return std::nullopt;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        reason = DesignReader::tr("cannot be opened: %1").arg(file.errorString());
        return std::nullopt;
    }
    // Reading takes memory for all that is asked for, so no more than there is.
    const QByteArray content =
        info.size() > DesignReader::largestFile
            ? QByteArray()
            : file.read(std::min(file.size(), DesignReader::largestFile + 1));
    if (file.error() != QFileDevice::NoError) {
        reason = DesignReader::tr("cannot be read: %1").arg(file.errorString());
        return std::nullopt;
    }
    const qint64 size = std::max<qint64>(info.size(), content.size());
    if (size <= DesignReader::largestFile)
        return content;
    reason = DesignReader::tr("is too large for a design file: %1, the limit is %2")
                 .arg(QLocale().formattedDataSize(size),
                      QLocale().formattedDataSize(DesignReader::largestFile));
    return std::nullopt;
}

} // namespace

DesignReader::DesignReader(TakenIds taken)
    : m_taken(std::move(taken))
{}

DesignReading DesignReader::read(const QString& path) const
{
    QString reason;
    const std::optional<QByteArray> content = contentOf(path, reason);
    if (!content)
        return {std::nullopt, {}, {{path, {}, reason}}};
    return parse(*content, path);
}

DesignReading DesignReader::parse(const QByteArray& content, const QString& path) const
{
    ProblemList problems(path);
    const auto refuse = [&](const QString& where, const QString& reason) {
        problems.add(where, reason);
        return DesignReading{std::nullopt, content, problems.take()};
    };
    if (content.trimmed().isEmpty())
        return refuse({}, tr("is empty"));
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(content, &error);
    if (document.isNull())
        return refuse(positionText(content, error.offset),
                      tr("is no complete JSON: %1").arg(error.errorString()));
    if (!document.isObject())
        return refuse({}, tr("must hold a JSON object"));
    const QString versionKey = QStringLiteral("version");
    const QString obstacle = versionObstacle(document.object().value(versionKey));
    if (!obstacle.isEmpty())
        return refuse(versionKey, obstacle);
    std::optional<Design> design = PieceReader(m_taken, problems).design(document.object(), path);
    return {std::move(design), content, problems.take()};
}

} // namespace Zorvane::Workbench
