#include "Workbench/Design/Design.h"

#include "Host/FileHandling/FileUtilities.h"

#include <QtCore/QFileInfo>

#include <algorithm>
#include <array>
#include <utility>

namespace Zorvane::Workbench {

namespace {

using KindWord = std::pair<FileKind, const char*>;

// clang-format off
constexpr std::array<KindWord, 5> kindWords{{
    {FileKind::Mesh,     "mesh"},
    {FileKind::Material, "material"},
    {FileKind::Result,   "result"},
    {FileKind::Design,   "design"},
    {FileKind::Document, "document"},
}};
// clang-format on

/** Calls `visit(object)` for the design and each object until it returns true. */
template <typename AnyDesign, typename Visit>
bool visitObjects(AnyDesign& design, Visit visit)
{
    const auto visitAll = [&visit](auto& objects) {
        return std::any_of(objects.begin(), objects.end(), visit);
    };
    if (visit(design) || (design.blank && visit(*design.blank)) || visitAll(design.parts))
        return true;
    for (auto& operation : design.operations) {
        if (visit(operation) || visitAll(operation.tools))
            return true;
    }
    return visitAll(design.materials) || visitAll(design.files);
}

GUIdentifier geometryOf(const Part& part)
{
    return part.geometry;
}
GUIdentifier geometryOf(const Tool& tool)
{
    return tool.geometry;
}
GUIdentifier geometryOf(const Blank& blank)
{
    return blank.geometry;
}
GUIdentifier geometryOf(const FileReference& file)
{
    return file.kind == FileKind::Mesh ? file.id : GUIdentifier();
}
template <typename Other>
GUIdentifier geometryOf(const Other&)
{
    return {};
}

double* quantityOf(Blank& blank, Quantity quantity)
{
    return quantity == Quantity::Thickness ? &blank.thickness : nullptr;
}
double* quantityOf(Part& part, Quantity quantity)
{
    return quantity == Quantity::Thickness ? &part.thickness : &part.force;
}
double* quantityOf(Operation& operation, Quantity quantity)
{
    return quantity == Quantity::Force ? &operation.force : nullptr;
}
double* quantityOf(Tool& tool, Quantity quantity)
{
    return quantity == Quantity::Force ? &tool.force : nullptr;
}
template <typename Other>
double* quantityOf(Other&, Quantity)
{
    return nullptr;
}

} // namespace

int Design::version() const
{
    return source.value(QStringLiteral("version")).toInt();
}

QString Design::folder() const
{
    return QFileInfo(file).absolutePath();
}

const FileReference* Design::findFile(const GUIdentifier& fileId) const
{
    const auto found = std::find_if(files.begin(), files.end(), [&fileId](const auto& reference) {
        return reference.id == fileId;
    });
    return found == files.end() ? nullptr : &*found;
}

const FileReference* Design::findGeometry(const GUIdentifier& objectId) const
{
    GUIdentifier geometry;
    visitObjects(*this, [&](const auto& object) {
        if (object.id != objectId)
            return false;
        geometry = geometryOf(object);
        return true;
    });
    return geometry.isNull() ? nullptr : findFile(geometry);
}

QString* Design::findName(const GUIdentifier& objectId)
{
    QString* found = nullptr;
    visitObjects(*this, [&](auto& object) {
        if (object.id == objectId)
            found = &object.name;
        return found != nullptr;
    });
    return found;
}

const QString* Design::findName(const GUIdentifier& objectId) const
{
    const QString* found = nullptr;
    visitObjects(*this, [&](const auto& object) {
        if (object.id == objectId)
            found = &object.name;
        return found != nullptr;
    });
    return found;
}

double* Design::findQuantity(const GUIdentifier& objectId, Quantity quantity)
{
    double* found = nullptr;
    visitObjects(*this, [&](auto& object) {
        if (object.id != objectId)
            return false;
        found = quantityOf(object, quantity);
        return true;
    });
    return found;
}

const double* Design::findQuantity(const GUIdentifier& objectId, Quantity quantity) const
{
    return const_cast<Design*>(this)->findQuantity(objectId, quantity);
}

bool Design::refersTo(const GUIdentifier& fileId) const
{
    const auto hasGeometry = [&fileId](const auto& piece) { return piece.geometry == fileId; };
    const auto isUsedByTools = [&](const Operation& operation) {
        return std::any_of(operation.tools.begin(), operation.tools.end(), hasGeometry);
    };
    return (blank && hasGeometry(*blank)) || std::any_of(parts.begin(), parts.end(), hasGeometry) ||
           std::any_of(operations.begin(), operations.end(), isUsedByTools) ||
           std::any_of(materials.begin(), materials.end(),
                       [&fileId](const Material& material) { return material.file == fileId; });
}

std::vector<GUIdentifier> Design::allIds() const
{
    std::vector<GUIdentifier> ids;
    visitObjects(*this, [&ids](const auto& object) {
        ids.push_back(object.id);
        return false;
    });
    return ids;
}

const Design* designOfFile(const std::vector<Design>& designs, const QString& path)
{
    const auto isSame = [&path](const Design& design) {
        return FileUtilities::isEquivalent(FileName(design.file), FileName(path));
    };
    const auto found = std::find_if(designs.begin(), designs.end(), isSame);
    return found == designs.end() ? nullptr : &*found;
}

QString fileKindWord(FileKind kind)
{
    for (const auto& [known, word] : kindWords) {
        if (known == kind)
            return QString::fromLatin1(word);
    }
    return {};
}

FileKind fileKindFromWord(const QString& word)
{
    for (const auto& [kind, known] : kindWords) {
        if (word == QLatin1String(known))
            return kind;
    }
    return FileKind::Other;
}

} // namespace Zorvane::Workbench
