#include "Workbench/Undo/EditCommand.h"

#include "Host/FileHandling/FileUtilities.h"
#include "Workbench/Design/DesignSession.h"
#include "Workbench/Design/FileNames.h"
#include "Workbench/Design/FileReferences.h"

#include <algorithm>
#include <utility>

namespace Zorvane::Workbench {

namespace {

/** Null for an edit of another kind. */
TakenObjects* objectsOf(DesignEdit& edit)
{
    if (auto* addition = std::get_if<AdditionEdit>(&edit))
        return &addition->objects;
    auto* removal = std::get_if<RemovalEdit>(&edit);
    return removal == nullptr ? nullptr : &removal->objects;
}

/** Calls `visit(id)` for every identifier in the edit. */
template <typename Visit>
void visitIds(TakenObjects& objects, Visit visit)
{
    visit(objects.design);
    for (auto& [place, file] : objects.files)
        visit(file.id);
    for (auto& [place, part] : objects.parts) {
        visit(part.id);
        visit(part.geometry);
        visit(part.material);
    }
}

template <typename Visit>
void visitIds(DesignEdit& edit, Visit visit)
{
    if (auto* name = std::get_if<NameEdit>(&edit))
        visit(name->object);
    else if (auto* value = std::get_if<QuantityEdit>(&edit))
        visit(value->object);
    else
        visitIds(*objectsOf(edit), visit);
}

bool areInOneFolder(const Design& left, const Design& right)
{
    return FileUtilities::isEquivalent(FileName(left.folder()), FileName(right.folder()));
}

/** Whether there is a file at the path from the design's folder that the design doesn't know. */
bool isTaken(const QString& path, const Design& design)
{
    const QString folder = design.folder();
    const ResolvedReference there = resolveReference(folder, path);
    const auto leadsThere = [&](const FileReference& reference) {
        return FileNames::areSame(resolveReference(folder, reference.path).file, there.file);
    };
    return there.state == FileState::Exists &&
           std::none_of(design.files.begin(), design.files.end(), leadsThere);
}

} // namespace

EditCommand::EditCommand(DesignSession& session, DesignEdit edit)
    : m_session(&session)
    , m_edit(std::move(edit))
    , m_text(describe())
    , m_design(designChanged())
{}

QString EditCommand::describe() const
{
    if (const auto* name = std::get_if<NameEdit>(&m_edit))
        return tr("Rename %1").arg(name->before);
    if (const auto* value = std::get_if<QuantityEdit>(&m_edit))
        return tr("Change %1 of %2")
            .arg(quantityName(value->quantity), m_session->name(value->object));
    if (const auto* addition = std::get_if<AdditionEdit>(&m_edit))
        return tr("Add %1").arg(addition->objects.firstName());
    return tr("Remove %1").arg(std::get<RemovalEdit>(m_edit).objects.firstName());
}

GUIdentifier EditCommand::designChanged() const
{
    if (const auto* addition = std::get_if<AdditionEdit>(&m_edit))
        return addition->objects.design;
    if (const auto* removal = std::get_if<RemovalEdit>(&m_edit))
        return removal->objects.design;
    const auto* name = std::get_if<NameEdit>(&m_edit);
    const Design* design =
        m_session->findDesign(name ? name->object : std::get<QuantityEdit>(m_edit).object);
    return design == nullptr ? GUIdentifier() : design->id;
}

bool EditCommand::changesFiles() const
{
    return std::holds_alternative<AdditionEdit>(m_edit) ||
           std::holds_alternative<RemovalEdit>(m_edit);
}

bool EditCommand::isRemovalOf(const TakenObjects& objects) const
{
    const auto* removal = std::get_if<RemovalEdit>(&m_edit);
    return removal && removal->objects.ids() == objects.ids();
}

bool EditCommand::mergeWith(const EditCommand& later)
{
    auto* mine = std::get_if<QuantityEdit>(&m_edit);
    const auto* theirs = std::get_if<QuantityEdit>(&later.m_edit);
    // Another program may have changed the value in between, while the design was closed.
    if (!mine || !theirs || mine->object != theirs->object || mine->quantity != theirs->quantity ||
        mine->after != theirs->before)
        return false;
    mine->after = theirs->after;
    return true;
}

bool EditCommand::isNothing() const
{
    const auto* value = std::get_if<QuantityEdit>(&m_edit);
    return value && value->after == value->before;
}

bool EditCommand::follow(Successors& successors, const Design& copy)
{
    const Design* const former = m_session->findDesign(m_design);
    const bool isElsewhere = former == nullptr || !areInOneFolder(*former, copy);
    bool isWhole = true;
    const auto follow = [&successors, &isWhole](GUIdentifier& id) {
        if (id.isNull())
            return;
        const auto [known, isNew] = successors.emplace(id, GUIdentifier());
        if (isNew)
            known->second = GUIdentifier::create();
        isWhole = isWhole && !known->second.isNull();
        id = known->second;
    };
    visitIds(m_edit, follow);
    follow(m_design);
    return followFiles(copy, isElsewhere) && isWhole;
}

/** False if one of the files would be found at the place of a stranger's. */
bool EditCommand::followFiles(const Design& copy, bool isElsewhere)
{
    TakenObjects* const objects = objectsOf(m_edit);
    if (objects == nullptr)
        return true;
    for (auto& [place, file] : objects->files) {
        if (const FileReference* const present = copy.findFile(file.id))
            file.path = present->path;
        else if (isElsewhere && isTaken(file.path, copy))
            return false;
    }
    return true;
}

bool EditCommand::apply(bool forward)
{
    if (const auto* name = std::get_if<NameEdit>(&m_edit))
        return m_session->replay(forward ? *name
                                         : NameEdit{name->object, name->after, name->before});
    if (const auto* value = std::get_if<QuantityEdit>(&m_edit))
        return m_session->replay(
            forward ? *value
                    : QuantityEdit{value->object, value->quantity, value->after, value->before});
    const auto* addition = std::get_if<AdditionEdit>(&m_edit);
    const TakenObjects& objects =
        addition ? addition->objects : std::get<RemovalEdit>(m_edit).objects;
    return (addition != nullptr) == forward ? m_session->putBack(objects)
                                            : m_session->takeAgain(objects);
}

} // namespace Zorvane::Workbench
