#include "Workbench/Design/LooseParts.h"

#include "Workbench/Design/FileNames.h"
#include "Workbench/Design/FileSpellings.h"
#include "Workbench/Meshes/MeshReader.h"

#include <QtCore/QCollator>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QLocale>
#include <QtCore/QSet>

#include <algorithm>
#include <utility>

namespace Zorvane::Workbench {

namespace {

/** Always the same for the same path, so that views keep their place when it is opened again. */
GUIdentifier idOf(const QString& file)
{
    static const QUuid space(QStringLiteral("{8d1cf8a2-4c1e-4f43-9a6e-5a3f0a7c2b11}"));
    return GUIdentifier(QUuid::createUuidV5(space, file));
}

Part partOf(const QString& file)
{
    const QFileInfo info(file);
    Part part;
    part.id = idOf(file);
    part.name = info.fileName();
    part.file = file;
    part.state = info.isFile() ? FileState::Exists : FileState::Missing;
    return part;
}

bool isSame(const Part& left, const Part& right)
{
    return left.file == right.file && left.state == right.state;
}

} // namespace

void LooseParts::add(const QString& path, bool isFolder)
{
    const auto known = std::any_of(m_entries.begin(), m_entries.end(), [&path](const Entry& entry) {
        return FileNames::areSame(entry.path, path);
    });
    if (!known)
        m_entries.push_back({path, isFolder});
}

void LooseParts::clear()
{
    m_entries.clear();
    m_parts.clear();
}

bool LooseParts::refresh()
{
    std::vector<Part> parts;
    FileSpellings spellings;
    QSet<QString> seen;
    for (const Entry& entry : m_entries) {
        const QStringList files =
            entry.isFolder ? meshFilesIn(entry.path) : QStringList(entry.path);
        for (const QString& file : files) {
            const QString first = spellings.firstOf(file);
            if (!seen.contains(first))
                parts.push_back(partOf(file));
            seen.insert(first);
        }
    }
    const bool same =
        std::equal(parts.begin(), parts.end(), m_parts.begin(), m_parts.end(), isSame);
    m_parts = std::move(parts);
    return !same;
}

QStringList LooseParts::folders() const
{
    QStringList folders;
    for (const Entry& entry : m_entries) {
        if (entry.isFolder)
            folders.append(entry.path);
    }
    return folders;
}

QStringList LooseParts::meshFilesIn(const QString& folder)
{
    QStringList names = QDir(folder).entryList(MeshReader::nameFilters(), QDir::Files);
    // The C locale knows no numeric order.
    const QLocale locale;
    QCollator order(locale.language() == QLocale::C ? QLocale(QLocale::English) : locale);
    order.setNumericMode(true);
    order.setCaseSensitivity(Qt::CaseInsensitive);
    std::sort(names.begin(), names.end(), order);
    for (QString& name : names)
        name = QDir(folder).filePath(name);
    return names;
}

} // namespace Zorvane::Workbench
