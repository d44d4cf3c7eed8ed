#pragma once

#include "Host/Identifiers/GUIdentifier.h"
#include "Workbench/Design/Quantity.h"

#include <QtCore/QJsonObject>
#include <QtCore/QString>

#include <map>
#include <optional>
#include <vector>

namespace Zorvane::Workbench {

enum class FileKind
{
    Mesh,
    Material,
    Result,
    Design,
    Document,
    Other
};

enum class FileState
{
    Exists,
    Missing,
    /** The path leads out of the design's folder; such a file is never looked at. */
    Outside
};

/**
 * Entries of a list in a design file that could not be read, by their place in the list. They are
 * written back where they stood, so that saving never drops what this program doesn't understand.
 */
using UnreadEntries = std::map<int, QJsonValue>;

/** A file that a design refers to. Parts, tools, blanks and materials name it by `id`. */
struct FileReference
{
    GUIdentifier id;
    QString name;
    FileKind kind = FileKind::Other;
    /** As it stands in the design file: relative to the design's folder, with '/'. */
    QString path;
    FileState state = FileState::Missing;
    /** Absolute path; empty when outside. */
    QString file;
    /** The design read from the file; null unless `kind` is `Design` and it could be opened. */
    GUIdentifier design;
    QJsonObject source;
};

struct Material
{
    GUIdentifier id;
    QString name;
    /** The file reference with the material's data; may be null. */
    GUIdentifier file;
    QJsonObject source;
};

struct Tool
{
    GUIdentifier id;
    QString name;
    /** "die", "punch", "binder" and the like; other words are kept. */
    QString kind;
    /** The file reference with the mesh; may be null. */
    GUIdentifier geometry;
    /** With which it presses or holds, in newtons; `noValue` if the file has none. */
    double force = noValue;
    QJsonObject source;
};

struct Operation
{
    GUIdentifier id;
    QString name;
    /** "draw", "trim", "flange" and the like; other words are kept. */
    QString kind;
    /** Of the press, in newtons; `noValue` if the file has none. */
    double force = noValue;
    std::vector<Tool> tools;
    UnreadEntries unreadTools;
    QJsonObject source;
};

struct Blank
{
    GUIdentifier id;
    QString name;
    /** In millimetres; `noValue` if the file has none. */
    double thickness = noValue;
    /** Of a material of the design; may be null. */
    GUIdentifier material;
    /** The file reference with the mesh; may be null. */
    GUIdentifier geometry;
    QJsonObject source;
};

/** A part to look at: one of a design, or a mesh file opened by itself. */
struct Part
{
    GUIdentifier id;
    QString name;
    /** The file reference with the mesh; null for a mesh file opened by itself. */
    GUIdentifier geometry;
    /** Of a material of the design; may be null. */
    GUIdentifier material;
    /** Of its sheet, in millimetres; `noValue` if the file has none. */
    double thickness = noValue;
    /** That forming it takes, in newtons; `noValue` if the file has none. */
    double force = noValue;
    /** Absolute path of a mesh file opened by itself; empty for a part of a design. */
    QString file;
    /** Of a mesh file opened by itself. */
    FileState state = FileState::Exists;
    QJsonObject source;
};

/**
 * A forming design as its design file tells it. `source` in each piece is the JSON object that the
 * piece was read from: fields that this program doesn't know stay there and are written back.
 */
struct Design
{
    GUIdentifier id;
    QString name;
    /** Absolute path of the design file. */
    QString file;
    std::optional<Blank> blank;
    std::vector<Part> parts;
    std::vector<Operation> operations;
    std::vector<Material> materials;
    std::vector<FileReference> files;
    /** By list: "parts", "operations", "materials", "files". */
    std::map<QString, UnreadEntries> unread;
    QJsonObject source;

    /** Of the file as it was read or saved last. */
    int version() const;
    /** The folder that holds the design file and everything it refers to. */
    QString folder() const;
    /** Null when the design has no such file reference. */
    const FileReference* findFile(const GUIdentifier& fileId) const;
    /** The mesh file reference of a part, tool, blank or mesh file reference; null without one. */
    const FileReference* findGeometry(const GUIdentifier& objectId) const;
    /** The name of the design or of an object of it, to read or to change; null if not its own. */
    QString* findName(const GUIdentifier& objectId);
    const QString* findName(const GUIdentifier& objectId) const;
    /** The value to read or to change; null if no object of the design with this id has it. */
    double* findQuantity(const GUIdentifier& objectId, Quantity quantity);
    const double* findQuantity(const GUIdentifier& objectId, Quantity quantity) const;
    /** Whether an object of the design refers to the file reference. */
    bool refersTo(const GUIdentifier& fileId) const;
    /** Of the design itself and of every object in it, in the order of the file. */
    std::vector<GUIdentifier> allIds() const;
};

/** The design of the file, however its path is written; null if none is. */
const Design* designOfFile(const std::vector<Design>& designs, const QString& path);

/** The word of the design file, such as "mesh"; empty for `Other`. */
QString fileKindWord(FileKind kind);
/** `Other` for an unknown word. */
FileKind fileKindFromWord(const QString& word);

} // namespace Zorvane::Workbench
