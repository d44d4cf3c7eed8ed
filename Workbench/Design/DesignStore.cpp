#include "Workbench/Design/DesignStore.h"

#include "Workbench/Design/DesignWriter.h"
#include "Workbench/Design/FileAdditions.h"
#include "Workbench/Design/FileNames.h"
#include "Workbench/Design/FileReferences.h"

#include <QtCore/QFileInfo>

#include <algorithm>
#include <utility>

namespace Zorvane::Workbench {

namespace {

QString leafName(const QString& file)
{
    return QFileInfo(file).fileName();
}

bool contains(const std::vector<Design>& designs, const QString& file)
{
    return std::any_of(designs.begin(), designs.end(),
                       [&file](const Design& design) { return design.file == file; });
}

/** Each piece with its place when the ones before it were still there. */
template <typename Piece>
TakenObjects::Places<Piece> takeFrom(std::vector<Piece>& pieces,
                                     const std::vector<GUIdentifier>& ids)
{
    TakenObjects::Places<Piece> taken;
    std::vector<Piece> kept;
    for (std::size_t place = 0; place < pieces.size(); ++place) {
        if (std::find(ids.begin(), ids.end(), pieces[place].id) == ids.end())
            kept.push_back(std::move(pieces[place]));
        else
            taken.emplace_back(place, std::move(pieces[place]));
    }
    pieces = std::move(kept);
    return taken;
}

/** Those that were appended, each with its place. */
template <typename Piece>
TakenObjects::Places<Piece> piecesFrom(std::size_t first, const std::vector<Piece>& pieces)
{
    TakenObjects::Places<Piece> appended;
    for (std::size_t place = first; place < pieces.size(); ++place)
        appended.emplace_back(place, pieces[place]);
    return appended;
}

template <typename Piece>
bool holdsAll(const std::vector<Piece>& pieces, const TakenObjects::Places<Piece>& wanted)
{
    const auto isThere = [&pieces](const auto& entry) {
        return std::any_of(pieces.begin(), pieces.end(), [&entry](const Piece& piece) {
            return piece.id == entry.second.id && DesignWriter::isSame(piece, entry.second);
        });
    };
    return std::all_of(wanted.begin(), wanted.end(), isThere);
}

template <typename Piece>
void putInto(std::vector<Piece>& pieces, const TakenObjects::Places<Piece>& taken)
{
    for (const auto& [place, piece] : taken)
        pieces.insert(pieces.begin() + std::ptrdiff_t(std::min(place, pieces.size())), piece);
}

template <typename Map>
void moveEntry(Map& from, const typename Map::key_type& key, Map& to)
{
    if (auto entry = from.extract(key))
        to.insert(std::move(entry));
}

void append(Problems& problems, const Problems& more)
{
    problems.insert(problems.end(), more.begin(), more.end());
}

} // namespace

void DesignStore::add(const QString& file)
{
    const QString known = knownSpelling(file);
    if (!m_opened.contains(known))
        m_opened.append(known);
    arrange();
}

/** As it is known already; else as it is. */
QString DesignStore::knownSpelling(const QString& file) const
{
    if (m_records.count(file) != 0)
        return file;
    const auto isSame = [&file](const auto& entry) {
        return FileNames::areSame(entry.first, file);
    };
    const auto found = std::find_if(m_records.begin(), m_records.end(), isSame);
    return found == m_records.end() ? file : found->first;
}

void DesignStore::replace(GUIdentifier designId, const QString& file)
{
    const Design* const found = find(designId);
    if (found == nullptr)
        return;
    const QString replaced = found->file;
    const int place = m_opened.indexOf(replaced);
    const QString known = knownSpelling(file);
    m_opened.removeAll(known);
    m_opened.insert(place < 0 ? m_opened.size() : place, known);
    // If others refer to it, it is read again.
    forget(replaced);
    arrange();
}

bool DesignStore::canClose(const GUIdentifier& designId) const
{
    const Design* const found = find(designId);
    return found != nullptr && !m_referred.contains(found->file);
}

void DesignStore::close(GUIdentifier designId)
{
    if (!canClose(designId))
        return;
    forget(QString(find(designId)->file));
    arrange();
}

void DesignStore::forget(const QString& file)
{
    m_opened.removeAll(file);
    m_records.erase(file);
    m_designs.erase(std::remove_if(m_designs.begin(), m_designs.end(),
                                   [&](const Design& design) { return design.file == file; }),
                    m_designs.end());
}

void DesignStore::clear()
{
    const int lastReading = m_lastReading;
    *this = DesignStore();
    m_lastReading = lastReading;
}

Problems DesignStore::problems() const
{
    Problems all;
    for (const auto& [file, record] : m_records) {
        append(all, record.file);
        append(all, record.pieces);
    }
    append(all, m_references);
    return all;
}

const Design* DesignStore::find(const GUIdentifier& objectId) const
{
    const auto found =
        std::find_if(m_designs.begin(), m_designs.end(), [&objectId](const Design& design) {
            return design.findName(objectId) != nullptr;
        });
    return found == m_designs.end() ? nullptr : &*found;
}

GUIdentifier DesignStore::idOf(const QString& file) const
{
    const auto found = std::find_if(m_designs.begin(), m_designs.end(),
                                    [&file](const Design& design) { return design.file == file; });
    return found == m_designs.end() ? GUIdentifier() : found->id;
}

DesignStore::Readings DesignStore::readings() const
{
    Readings readings;
    for (const Design& design : m_designs)
        readings.emplace(design.id, m_records.at(design.file).reading);
    return readings;
}

QStringList DesignStore::designFiles() const
{
    QStringList files;
    for (const auto& [file, record] : m_records)
        files.append(file);
    return files;
}

/** Puts the designs into order, reads those newly referred to, drops those that nobody wants. */
void DesignStore::arrange()
{
    Pool pool;
    for (Design& design : m_designs) {
        const QString file = design.file;
        pool.emplace(file, std::move(design));
    }
    m_designs.clear();
    m_references.clear();
    m_referred.clear();
    for (const QString& file : std::as_const(m_opened))
        placeOpened(file, pool);
    for (const auto& [file, record] : m_records) {
        // No longer referred to, but with changes that only we have.
        if (!record.isModified() || contains(m_designs, file))
            continue;
        m_opened.append(file);
        placeOpened(file, pool);
    }
    for (auto record = m_records.begin(); record != m_records.end();) {
        const bool wanted = m_opened.contains(record->first) || m_referred.contains(record->first);
        record = wanted ? std::next(record) : m_records.erase(record);
    }
}

void DesignStore::placeOpened(const QString& file, Pool& pool)
{
    QStringList path;
    place(file, path, pool);
}

void DesignStore::place(const QString& file, QStringList& path, Pool& pool)
{
    if (contains(m_designs, file))
        return;
    readNew(file, pool);
    const auto found = pool.find(file);
    if (found == pool.end())
        return;
    const std::size_t index = m_designs.size();
    m_designs.push_back(std::move(found->second));
    pool.erase(found);
    path.append(file);
    for (std::size_t i = 0; i < m_designs[index].files.size(); ++i)
        followReference(index, i, path, pool);
    path.removeLast();
}

void DesignStore::followReference(std::size_t index, std::size_t reference, QStringList& path,
                                  Pool& pool)
{
    // By index: placing a design moves the others.
    FileReference& source = m_designs[index].files[reference];
    source.design = {};
    if (source.kind != FileKind::Design || source.state != FileState::Exists)
        return;
    const QString target = knownSpelling(QFileInfo(source.file).canonicalFilePath());
    m_referred.insert(target);
    const QString where = tr("reference \"%1\"").arg(source.name);
    if (path.contains(target)) {
        QStringList circle = path.mid(path.indexOf(target)) + QStringList(target);
        std::transform(circle.begin(), circle.end(), circle.begin(), leafName);
        m_references.push_back(
            {m_designs[index].file, where,
             tr("closes a circle of designs: %1").arg(circle.join(QStringLiteral(" \u2192 ")))});
        return;
    }
    if (path.size() >= deepestReference) {
        m_references.push_back(
            {m_designs[index].file, where,
             tr("more than %1 designs refer to one another in a row").arg(deepestReference)});
        return;
    }
    place(target, path, pool);
    if (const Design* design = findByFile(target))
        m_designs[index].files[reference].design = design->id;
}

void DesignStore::readNew(const QString& file, Pool& pool)
{
    if (pool.count(file) != 0)
        return;
    DesignReading reading = DesignReader(takenIds(file, pool)).read(file);
    Record& record = m_records[file];
    record = Record();
    record.reading = ++m_lastReading;
    (reading.design ? record.pieces : record.file) = std::move(reading.problems);
    record.content = reading.content;
    if (reading.design)
        pool.emplace(file, std::move(*reading.design));
}

DesignReader::TakenIds DesignStore::takenIds(const QString& exceptFile, const Pool& pool) const
{
    DesignReader::TakenIds taken;
    const auto take = [&](const Design& design) {
        if (design.file == exceptFile)
            return;
        for (const GUIdentifier& id : design.allIds())
            taken.emplace(id, leafName(design.file));
    };
    std::for_each(m_designs.begin(), m_designs.end(), take);
    for (const auto& [file, design] : pool)
        take(design);
    return taken;
}

DesignStore::Outcome DesignStore::follow(const QString& file)
{
    const auto found = m_records.find(file);
    if (found == m_records.end())
        return Outcome::Nothing;
    Record& record = found->second;
    Design* design = findByFile(file);
    DesignReading reading = DesignReader(takenIds(file, {})).read(file);
    if (design != nullptr && reading.content == record.content) {
        const bool different = !record.file.empty() || record.conflict;
        record.file.clear();
        record.conflict = false;
        return different ? Outcome::Changed : Outcome::Nothing;
    }
    if (design != nullptr && reading.design && record.isModified()) {
        const bool known = record.conflict;
        noteConflict(record, file);
        return known ? Outcome::Nothing : Outcome::Conflict;
    }
    if (design == nullptr || accept(record, *design, std::move(reading)))
        arrange();
    return Outcome::Changed;
}

void DesignStore::noteConflict(Record& record, const QString& file)
{
    record.conflict = true;
    record.file = {{file, {}, tr("was changed by another program; your unsaved changes are kept")}};
}

/** Takes over what was read; false, with only the problems taken over, if that is no design. */
bool DesignStore::accept(Record& record, Design& design, DesignReading reading)
{
    if (!reading.design) {
        record.file = std::move(reading.problems);
        record.file.push_back({design.file, {}, tr("is shown as it was read last")});
        return false;
    }
    record = Record();
    record.reading = ++m_lastReading;
    record.content = reading.content;
    record.pieces = std::move(reading.problems);
    design = std::move(*reading.design);
    return true;
}

bool DesignStore::refreshStates()
{
    bool different = false;
    for (Design& design : m_designs)
        different |= refreshReferences(design);
    if (different)
        arrange();
    return different;
}

bool DesignStore::rename(GUIdentifier objectId, const QString& name)
{
    for (Design& design : m_designs) {
        QString* const present = design.findName(objectId);
        if (present == nullptr)
            continue;
        if (*present == name)
            return false;
        Names& saved = m_records[design.file].savedNames;
        const auto first = saved.emplace(objectId, *present).first;
        if (first->second == name)
            saved.erase(first);
        *present = name;
        return true;
    }
    return false;
}

bool DesignStore::setQuantity(GUIdentifier objectId, Quantity quantity, double value)
{
    for (Design& design : m_designs) {
        double* const present = design.findQuantity(objectId, quantity);
        if (present == nullptr)
            continue;
        if (*present == value)
            return false;
        Quantities& saved = m_records[design.file].savedQuantities;
        const auto first = saved.emplace(std::pair(objectId, quantity), *present).first;
        if (first->second == value)
            saved.erase(first);
        *present = value;
        return true;
    }
    return false;
}

TakenObjects DesignStore::addFiles(GUIdentifier designId, const QStringList& files)
{
    const Design* const found = find(designId);
    Design* const design = found == nullptr ? nullptr : findByFile(found->file);
    if (design == nullptr)
        return {};
    const std::size_t firstFile = design->files.size();
    const std::size_t firstPart = design->parts.size();
    for (const QString& file : files)
        FileAdditions::add(*design, file);
    TakenObjects added{design->id, piecesFrom(firstFile, design->files),
                       piecesFrom(firstPart, design->parts)};
    const std::vector<GUIdentifier> ids = added.ids();
    m_records[design->file].added.insert(ids.begin(), ids.end());
    if (!added.isEmpty())
        arrange();
    return added;
}

bool DesignStore::holds(const TakenObjects& objects) const
{
    const Design* const design = find(objects.design);
    return design != nullptr && holdsAll(design->files, objects.files) &&
           holdsAll(design->parts, objects.parts);
}

TakenObjects DesignStore::take(GUIdentifier designId, const std::vector<GUIdentifier>& objects)
{
    const Design* const found = find(designId);
    Design* const design = found == nullptr ? nullptr : findByFile(found->file);
    if (design == nullptr)
        return {};
    TakenObjects taken{design->id, takeFrom(design->files, objects),
                       takeFrom(design->parts, objects)};
    Record& record = m_records[design->file];
    for (const GUIdentifier& id : taken.ids())
        record.noteTaken(id);
    if (!taken.isEmpty())
        arrange();
    return taken;
}

bool DesignStore::putBack(const TakenObjects& taken)
{
    const Design* const found = find(taken.design);
    Design* const design = found == nullptr ? nullptr : findByFile(found->file);
    const std::vector<GUIdentifier> ids = taken.ids();
    const auto isThere = [this](const GUIdentifier& id) { return find(id) != nullptr; };
    if (design == nullptr || std::any_of(ids.begin(), ids.end(), isThere))
        return false;
    putInto(design->files, taken.files);
    putInto(design->parts, taken.parts);
    Record& record = m_records[design->file];
    for (const GUIdentifier& id : ids)
        record.notePutBack(id);
    refreshReferences(*design);
    arrange();
    return true;
}

bool DesignStore::isModified() const
{
    return std::any_of(m_records.begin(), m_records.end(),
                       [](const auto& entry) { return entry.second.isModified(); });
}

bool DesignStore::isModified(const GUIdentifier& objectId) const
{
    const Record* record = recordOf(objectId);
    return record != nullptr && record->isModified(objectId);
}

bool DesignStore::Record::isModified(const GUIdentifier& objectId) const
{
    const auto hasOtherValue = [&](Quantity quantity) {
        return savedQuantities.count({objectId, quantity}) != 0;
    };
    return savedNames.count(objectId) != 0 || added.count(objectId) != 0 ||
           std::any_of(std::begin(s_quantities), std::end(s_quantities), hasOtherValue);
}

void DesignStore::Record::noteTaken(const GUIdentifier& objectId)
{
    if (added.erase(objectId) == 0) {
        removed.insert(objectId);
        return;
    }
    moveEntry(savedNames, objectId, namesOfTaken);
    for (const Quantity quantity : s_quantities)
        moveEntry(savedQuantities, {objectId, quantity}, quantitiesOfTaken);
}

void DesignStore::Record::notePutBack(const GUIdentifier& objectId)
{
    if (removed.erase(objectId) != 0)
        return;
    added.insert(objectId);
    moveEntry(namesOfTaken, objectId, savedNames);
    for (const Quantity quantity : s_quantities)
        moveEntry(quantitiesOfTaken, {objectId, quantity}, savedQuantities);
}

bool DesignStore::hasConflict(const GUIdentifier& designId) const
{
    const Record* record = recordOf(designId);
    return record != nullptr && record->conflict;
}

bool DesignStore::isDesignModified(const GUIdentifier& designId) const
{
    const Record* record = recordOf(designId);
    return record != nullptr && record->isModified();
}

bool DesignStore::areQuantitiesModified(const GUIdentifier& designId) const
{
    const Record* record = recordOf(designId);
    return record != nullptr && !record->savedQuantities.empty();
}

Problems DesignStore::save(GUIdentifier designId, bool overwriteConflicts)
{
    Problems failures;
    for (Design& design : m_designs) {
        Record& record = m_records[design.file];
        if (designId == GUIdentifier() ? !record.isModified() : design.id != designId)
            continue;
        if (const auto failure = saveOne(design, record, overwriteConflicts))
            failures.push_back(*failure);
    }
    return failures;
}

std::optional<Problem> DesignStore::saveOne(Design& design, Record& record, bool overwriteConflict)
{
    // The watch may not have told yet what another program wrote a moment ago.
    const DesignReading present = DesignReader().read(design.file);
    const bool differs = QFileInfo::exists(design.file) && present.content != record.content;
    if (differs && !overwriteConflict) {
        noteConflict(record, design.file);
        return Problem{
            design.file, {}, tr("was changed by another program and is not overwritten")};
    }
    if (const auto failure = DesignWriter::write(design))
        return failure;
    noteSaved(design, record);
    return std::nullopt;
}

void DesignStore::noteSaved(Design& design, Record& record)
{
    design.source.insert(QStringLiteral("version"), DesignReader::currentVersion);
    const QByteArray written = DesignWriter::toJson(design);
    const Problems pieces =
        DesignReader(takenIds(design.file, {})).parse(written, design.file).problems;
    const int reading = record.reading;
    record = Record();
    record.reading = reading;
    record.content = written;
    record.pieces = pieces;
}

void DesignStore::revert(GUIdentifier designId)
{
    const Design* found = find(designId);
    if (found == nullptr)
        return;
    const QString file = found->file;
    DesignReading reading = DesignReader(takenIds(file, {})).read(file);
    if (accept(m_records[file], *findByFile(file), std::move(reading)))
        arrange();
}

void DesignStore::retryUnread()
{
    // Arranging reads whatever is wanted and not there.
    arrange();
}

Design* DesignStore::findByFile(const QString& file)
{
    const auto found = std::find_if(m_designs.begin(), m_designs.end(),
                                    [&file](const Design& design) { return design.file == file; });
    return found == m_designs.end() ? nullptr : &*found;
}

const DesignStore::Record* DesignStore::recordOf(const GUIdentifier& objectId) const
{
    const Design* design = find(objectId);
    return design == nullptr ? nullptr : &m_records.at(design->file);
}

} // namespace Zorvane::Workbench
