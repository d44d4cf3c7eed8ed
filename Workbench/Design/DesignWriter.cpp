#include "Workbench/Design/DesignWriter.h"

#include "Workbench/Design/DesignReader.h"
#include "Workbench/Design/JsonFields.h"
#include "Workbench/Writing/WholeFile.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>

#include <limits>

namespace Zorvane::Workbench {

namespace {

// A field keeps its text as read unless reading it gives another value than the piece has now.
void putText(QJsonObject& object, const QString& key, const QString& value)
{
    if (object.value(key).toString() != value)
        object.insert(key, value);
}

void putQuantity(QJsonObject& object, const QString& key, double value)
{
    if (quantityIn(object.value(key)) == value)
        return;
    if (isQuantity(value))
        object.insert(key, value);
    else
        object.remove(key);
}

void putId(QJsonObject& object, const QString& key, const GUIdentifier& id)
{
    if (identifierIn(object.value(key)) == id)
        return;
    if (id.isNull())
        object.remove(key);
    else
        object.insert(key, QString::fromStdString(id.getUUID()));
}

template <typename Piece>
QJsonObject common(const Piece& piece)
{
    QJsonObject object = piece.source;
    putId(object, QStringLiteral("id"), piece.id);
    putText(object, QStringLiteral("name"), piece.name);
    return object;
}

QJsonObject toObject(const Part& part)
{
    QJsonObject object = common(part);
    putId(object, QStringLiteral("geometry"), part.geometry);
    putId(object, QStringLiteral("material"), part.material);
    putQuantity(object, QStringLiteral("thickness"), part.thickness);
    putQuantity(object, QStringLiteral("force"), part.force);
    return object;
}

QJsonObject toObject(const Tool& tool)
{
    QJsonObject object = common(tool);
    putText(object, QStringLiteral("kind"), tool.kind);
    putId(object, QStringLiteral("geometry"), tool.geometry);
    putQuantity(object, QStringLiteral("force"), tool.force);
    return object;
}

QJsonObject toObject(const Material& material)
{
    QJsonObject object = common(material);
    putId(object, QStringLiteral("file"), material.file);
    return object;
}

QJsonObject toObject(const Blank& blank)
{
    QJsonObject object = common(blank);
    putQuantity(object, QStringLiteral("thickness"), blank.thickness);
    putId(object, QStringLiteral("material"), blank.material);
    putId(object, QStringLiteral("geometry"), blank.geometry);
    return object;
}

QJsonObject toObject(const FileReference& file)
{
    QJsonObject object = common(file);
    const QString kind = QStringLiteral("kind");
    if (fileKindFromWord(object.value(kind).toString()) != file.kind)
        object.insert(kind, fileKindWord(file.kind));
    putText(object, QStringLiteral("path"), file.path);
    return object;
}

QJsonObject toObject(const Operation& operation);

/** The pieces in order, with the unread entries at the places where they stood. */
template <typename Piece>
void putList(QJsonObject& object, const QString& key, const std::vector<Piece>& pieces,
             const UnreadEntries& unread)
{
    QJsonArray entries;
    auto nextUnread = unread.begin();
    const auto putUnread = [&](int upTo) {
        for (; nextUnread != unread.end() && nextUnread->first <= upTo; ++nextUnread)
            entries.append(nextUnread->second);
    };
    for (const Piece& piece : pieces) {
        // An unread entry shifts the place of what follows, which may be that of the next one.
        for (int before = -1; before != entries.size();) {
            before = entries.size();
            putUnread(before);
        }
        entries.append(toObject(piece));
    }
    putUnread(std::numeric_limits<int>::max());
    const QJsonValue former = object.value(key);
    if (entries.isEmpty() && !former.isArray())
        return;
    // What should have been a list is not lost to the first entry of one.
    if (!former.isArray() && !former.isUndefined() && !former.isNull())
        entries.prepend(former);
    object.insert(key, entries);
}

QJsonObject toObject(const Operation& operation)
{
    QJsonObject object = common(operation);
    putText(object, QStringLiteral("kind"), operation.kind);
    putQuantity(object, QStringLiteral("force"), operation.force);
    putList(object, QStringLiteral("tools"), operation.tools, operation.unreadTools);
    return object;
}

QJsonObject toObject(const Design& design)
{
    QJsonObject object = common(design);
    object.insert(QStringLiteral("version"), DesignReader::currentVersion);
    if (design.blank)
        object.insert(QStringLiteral("blank"), toObject(*design.blank));
    const auto put = [&](const QString& key, const auto& pieces) {
        const auto unread = design.unread.find(key);
        putList(object, key, pieces,
                unread == design.unread.end() ? UnreadEntries() : unread->second);
    };
    put(QStringLiteral("parts"), design.parts);
    put(QStringLiteral("operations"), design.operations);
    put(QStringLiteral("materials"), design.materials);
    put(QStringLiteral("files"), design.files);
    return object;
}

} // namespace

QByteArray DesignWriter::toJson(const Design& design)
{
    return QJsonDocument(toObject(design)).toJson();
}

std::optional<Problem> DesignWriter::write(const Design& design)
{
    const QString obstacle = writeWholeFile(design.file, toJson(design));
    if (obstacle.isEmpty())
        return std::nullopt;
    return Problem{design.file, {}, tr("cannot be written: %1").arg(obstacle)};
}

bool DesignWriter::isSame(const Part& left, const Part& right)
{
    return toObject(left) == toObject(right);
}

bool DesignWriter::isSame(const FileReference& left, const FileReference& right)
{
    return toObject(left) == toObject(right);
}

} // namespace Zorvane::Workbench
