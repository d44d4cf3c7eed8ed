#include "Workbench/Design/DesignSession.h"

#include "Workbench/Design/FileAdditions.h"
#include "Workbench/Design/FileNames.h"
#include "Workbench/Design/ObjectNames.h"
#include "Workbench/Meshes/MeshReader.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

#include <algorithm>
#include <limits>
#include <utility>

namespace Zorvane::Workbench {

namespace {

/** Empty if an object may be called so. */
QString nameObstacle(const QString& name)
{
    if (name.isEmpty())
        return DesignSession::tr("A name must not be empty.");
    if (name.size() > s_longestObjectName)
        return DesignSession::tr("A name must not be longer than %1 characters.")
            .arg(s_longestObjectName);
    if (std::any_of(name.begin(), name.end(), isControlCharacter))
        return DesignSession::tr("A name must be one line without control characters.");
    return {};
}

} // namespace

DesignSession::DesignSession(QObject* parent)
    : QObject(parent)
{
    connect(&m_watch, &FileWatch::changed, this, &DesignSession::follow);
}

void DesignSession::open(const QStringList& paths)
{
    for (const QString& path : paths)
        openOne(path);
    m_looseParts.refresh();
    watch();
    Q_EMIT changed();
}

void DesignSession::openOne(const QString& path)
{
    const QFileInfo info(path);
    const QString real = info.canonicalFilePath();
    const QString shown = QDir::cleanPath(info.absoluteFilePath());
    m_openProblems.erase(std::remove_if(m_openProblems.begin(), m_openProblems.end(),
                                        [&shown](const Problem& p) { return p.file == shown; }),
                         m_openProblems.end());
    if (path.isEmpty() || real.isEmpty())
        m_openProblems.push_back({shown, {}, tr("doesn't exist")});
    else if (info.isDir())
        openFolder(real);
    else
        openFile(real);
}

void DesignSession::openFolder(const QString& folder)
{
    const QDir dir(folder);
    const QStringList designFiles =
        dir.entryList({QStringLiteral("*.dsg")}, QDir::Files, QDir::Name | QDir::IgnoreCase);
    for (const QString& name : designFiles)
        m_store.add(QFileInfo(dir.filePath(name)).canonicalFilePath());
    if (!designFiles.isEmpty())
        return;
    if (!dir.isReadable())
        m_openProblems.push_back({folder, {}, tr("is a folder that may not be read")});
    else if (LooseParts::meshFilesIn(folder).isEmpty())
        m_openProblems.push_back({folder, {}, tr("holds neither a design file nor mesh files")});
    else
        m_looseParts.add(folder, true);
}

void DesignSession::openFile(const QString& file)
{
    if (FileNames::isDesign(file))
        m_store.add(file);
    else if (MeshReader::isMeshFile(file))
        m_looseParts.add(file, false);
    else
        m_openProblems.push_back(
            {file, {}, tr("is neither a design file (dsg) nor a mesh file (stl, obj, ply)")});
}

void DesignSession::close()
{
    const DesignStore::Readings before = m_store.readings();
    m_store.clear();
    m_looseParts.clear();
    m_openProblems.clear();
    watch();
    tellReread(before);
    Q_EMIT changed();
}

bool DesignSession::canClose(const GUIdentifier& designId) const
{
    return m_store.canClose(designId);
}

void DesignSession::close(GUIdentifier designId)
{
    if (!canClose(designId))
        return;
    const DesignStore::Readings before = m_store.readings();
    m_store.close(designId);
    watch();
    tellReread(before);
    Q_EMIT changed();
}

void DesignSession::replace(GUIdentifier designId, const QString& file)
{
    const DesignStore::Readings before = m_store.readings();
    m_store.replace(designId, QFileInfo(file).canonicalFilePath());
    watch();
    tellReread(before);
    Q_EMIT changed();
}

Problems DesignSession::problems() const
{
    Problems all = m_openProblems;
    const Problems ofDesigns = m_store.problems();
    all.insert(all.end(), ofDesigns.begin(), ofDesigns.end());
    return all;
}

const Design* DesignSession::findDesign(const GUIdentifier& objectId) const
{
    return m_store.find(objectId);
}

const Design* DesignSession::findByFile(const QString& path) const
{
    return designOfFile(designs(), path);
}

const Part* DesignSession::findLoosePart(const GUIdentifier& id) const
{
    const std::vector<Part>& parts = looseParts();
    const auto found =
        std::find_if(parts.begin(), parts.end(), [&id](const Part& part) { return part.id == id; });
    return found == parts.end() ? nullptr : &*found;
}

QString DesignSession::name(const GUIdentifier& objectId) const
{
    if (const Design* design = findDesign(objectId))
        return *design->findName(objectId);
    const Part* part = findLoosePart(objectId);
    return part == nullptr ? QString() : part->name;
}

QString DesignSession::geometryFile(const GUIdentifier& objectId) const
{
    if (const Design* design = findDesign(objectId)) {
        const FileReference* reference = design->findGeometry(objectId);
        return reference == nullptr ? QString() : reference->file;
    }
    const Part* part = findLoosePart(objectId);
    return part == nullptr ? QString() : part->file;
}

FileState DesignSession::geometryState(const GUIdentifier& objectId) const
{
    if (const Design* design = findDesign(objectId)) {
        const FileReference* reference = design->findGeometry(objectId);
        return reference == nullptr ? FileState::Missing : reference->state;
    }
    const Part* part = findLoosePart(objectId);
    return part == nullptr ? FileState::Missing : part->state;
}

QStringList DesignSession::meshFiles() const
{
    QStringList files;
    for (const Design& design : designs()) {
        for (const FileReference& file : design.files) {
            if (file.kind == FileKind::Mesh && file.state == FileState::Exists)
                files.append(file.file);
        }
    }
    for (const Part& part : looseParts()) {
        if (part.state == FileState::Exists)
            files.append(part.file);
    }
    files.removeDuplicates();
    return files;
}

bool DesignSession::canRename(const GUIdentifier& objectId) const
{
    return findDesign(objectId) != nullptr;
}

QString DesignSession::rename(GUIdentifier objectId, const QString& name)
{
    if (findLoosePart(objectId) != nullptr)
        return tr("A mesh file that was opened by itself is named by its file.");
    if (!canRename(objectId))
        return tr("The object to be renamed is no longer there.");
    const QString trimmed = name.trimmed();
    const QString obstacle = nameObstacle(trimmed);
    const QString before = this->name(objectId);
    if (obstacle.isEmpty() && before != trimmed)
        replay(NameEdit{objectId, before, trimmed});
    return obstacle;
}

bool DesignSession::replay(const NameEdit& edit)
{
    const Design* design = findDesign(edit.object);
    if (design == nullptr || *design->findName(edit.object) != edit.before)
        return false;
    m_store.rename(edit.object, edit.after);
    tellEdited(edit, edit.object);
    return true;
}

std::optional<double> DesignSession::quantity(const GUIdentifier& objectId, Quantity quantity) const
{
    const Design* design = findDesign(objectId);
    const double* value = design == nullptr ? nullptr : design->findQuantity(objectId, quantity);
    return value == nullptr ? std::nullopt : std::optional<double>(*value);
}

QString DesignSession::setQuantity(GUIdentifier objectId, Quantity quantity, double value)
{
    const std::optional<double> before = this->quantity(objectId, quantity);
    if (!before)
        return tr("The object has no such value.");
    if (!isQuantity(value) && value != noValue)
        return tr("A value must be a number from 0 on.");
    if (*before != value)
        replay(QuantityEdit{objectId, quantity, *before, value});
    return {};
}

bool DesignSession::replay(const QuantityEdit& edit)
{
    if (quantity(edit.object, edit.quantity) != edit.before)
        return false;
    m_store.setQuantity(edit.object, edit.quantity, edit.after);
    tellEdited(edit, edit.object);
    return true;
}

Problems DesignSession::addFiles(GUIdentifier designId, const QStringList& files)
{
    const Design* design = findDesign(designId);
    if (design == nullptr)
        return {{{}, {}, tr("the design is no longer open")}};
    Problems obstacles;
    for (const QString& file : files)
        if (const std::optional<Problem> obstacle = FileAdditions::obstacle(*design, file))
            obstacles.push_back(*obstacle);
    if (!obstacles.empty())
        return obstacles;
    const TakenObjects added = m_store.addFiles(designId, files);
    if (!added.isEmpty()) {
        watch();
        tellEdited(AdditionEdit{added}, added.design);
    }
    return {};
}

TakenObjects DesignSession::take(GUIdentifier designId, const std::vector<GUIdentifier>& objects)
{
    TakenObjects taken = m_store.take(designId, objects);
    if (!taken.isEmpty()) {
        watch();
        tellEdited(RemovalEdit{taken}, taken.design);
    }
    return taken;
}

bool DesignSession::canTake(const GUIdentifier& objectId) const
{
    const Design* design = findDesign(objectId);
    if (design == nullptr)
        return false;
    const auto isIt = [&objectId](const auto& piece) { return piece.id == objectId; };
    if (std::any_of(design->parts.begin(), design->parts.end(), isIt))
        return true;
    return std::any_of(design->files.begin(), design->files.end(), isIt) &&
           !design->refersTo(objectId);
}

bool DesignSession::putBack(const TakenObjects& taken)
{
    if (!m_store.putBack(taken))
        return false;
    watch();
    tellEdited(AdditionEdit{taken}, taken.design);
    return true;
}

bool DesignSession::takeAgain(const TakenObjects& objects)
{
    return m_store.holds(objects) && !take(objects.design, objects.ids()).isEmpty();
}

GUIdentifier DesignSession::findObject(const GUIdentifier& designId, const QString& file) const
{
    const Design* design = findDesign(designId);
    const FileReference* reference =
        design == nullptr ? nullptr : FileAdditions::find(*design, file);
    if (reference == nullptr)
        return {};
    for (const Part& part : design->parts)
        if (part.geometry == reference->id)
            return part.id;
    return reference->id;
}

bool DesignSession::isModified(const GUIdentifier& objectId) const
{
    return m_store.isModified(objectId);
}

bool DesignSession::isDesignModified(const GUIdentifier& designId) const
{
    return m_store.isDesignModified(designId);
}

bool DesignSession::areQuantitiesModified(const GUIdentifier& designId) const
{
    return m_store.areQuantitiesModified(designId);
}

bool DesignSession::hasConflict(const GUIdentifier& designId) const
{
    return m_store.hasConflict(designId);
}

Problems DesignSession::save(OnConflict onConflict)
{
    return save(GUIdentifier(), onConflict);
}

Problems DesignSession::save(GUIdentifier designId, OnConflict onConflict)
{
    const Problems failures = m_store.save(designId, onConflict == OnConflict::Overwrite);
    watch();
    Q_EMIT changed();
    return failures;
}

void DesignSession::revert(GUIdentifier designId)
{
    const DesignStore::Readings before = m_store.readings();
    m_store.revert(designId);
    watch();
    tellReread(before);
    Q_EMIT changed();
}

void DesignSession::reload()
{
    const DesignStore::Readings before = m_store.readings();
    std::vector<GUIdentifier> ids;
    for (const Design& design : designs())
        ids.push_back(design.id);
    for (const GUIdentifier& id : ids)
        m_store.revert(id);
    m_store.retryUnread();
    for (const Problem& problem : std::exchange(m_openProblems, {}))
        openOne(problem.file);
    m_looseParts.refresh();
    watch();
    tellReread(before);
    Q_EMIT changed();
}

/** For a change of the object that has just been made. */
void DesignSession::tellEdited(const DesignEdit& edit, const GUIdentifier& objectId)
{
    // Posted: whoever makes the change relies on the design until that is done.
    if (hasConflict(objectId) && !isDesignModified(objectId))
        QMetaObject::invokeMethod(
            this, [this, file = findDesign(objectId)->file] { follow({file}); },
            Qt::QueuedConnection);
    Q_EMIT edited(edit);
    Q_EMIT changed();
}

void DesignSession::tellReread(const DesignStore::Readings& before)
{
    const DesignStore::Readings now = m_store.readings();
    std::vector<GUIdentifier> different;
    for (const auto& [id, reading] : before) {
        const auto found = now.find(id);
        if (found == now.end() || found->second != reading)
            different.push_back(id);
    }
    if (!different.empty())
        Q_EMIT reread(different);
}

void DesignSession::watch()
{
    QStringList files = m_store.designFiles();
    for (const Design& design : designs()) {
        for (const FileReference& reference : design.files) {
            // What leads outside isn't looked at, not even to see whether it changes.
            if (reference.state != FileState::Outside)
                files.append(reference.file);
        }
    }
    for (const Part& part : looseParts())
        files.append(part.file);
    m_watch.watch(files, m_looseParts.folders());
}

void DesignSession::follow(const QStringList& files)
{
    bool different = false;
    const DesignStore::Readings before = m_store.readings();
    std::vector<GUIdentifier> conflicts;
    for (const QString& file : m_store.designFiles()) {
        if (!files.contains(file))
            continue;
        const DesignStore::Outcome outcome = m_store.follow(file);
        different |= outcome != DesignStore::Outcome::Nothing;
        if (outcome == DesignStore::Outcome::Conflict)
            conflicts.push_back(m_store.idOf(file));
    }
    different |= m_store.refreshStates();
    different |= m_looseParts.refresh();
    watch();
    tellReread(before);
    if (different)
        Q_EMIT changed();
    for (const QString& file : files)
        Q_EMIT fileChanged(file);
    for (const GUIdentifier& design : conflicts)
        Q_EMIT conflictFound(design);
}

} // namespace Zorvane::Workbench
