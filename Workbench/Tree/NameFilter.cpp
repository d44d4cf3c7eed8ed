#include "Workbench/Tree/NameFilter.h"

#include "Workbench/Tree/DesignCatalog.h"

#include <QtCore/QFileInfo>

#include <algorithm>

namespace Zorvane::Workbench {

NameFilter::NameFilter(const DesignCatalog& catalog)
    : m_catalog(catalog)
{}

void NameFilter::setText(const QString& text)
{
    const QStringList words = text.simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    if (words == m_words)
        return;
    m_words = words;
    m_changed();
}

bool NameFilter::accept(const IDCombiner& id)
{
    if (m_words.isEmpty())
        return true;
    const CatalogEntry* entry = m_catalog.find(id);
    if (entry == nullptr)
        return false;
    // Of an absolute path only the file's own name: its folder is the same for all.
    const QString path =
        QFileInfo(entry->path).isAbsolute() ? QFileInfo(entry->path).fileName() : entry->path;
    return std::all_of(m_words.begin(), m_words.end(), [&](const QString& word) {
        return entry->name.contains(word, Qt::CaseInsensitive) ||
               entry->kindText.contains(word, Qt::CaseInsensitive) ||
               path.contains(word, Qt::CaseInsensitive);
    });
}

Signals::Connection NameFilter::connectToChanged(const Signals::Slot<void()>& slot)
{
    return m_changed.connect(slot);
}

} // namespace Zorvane::Workbench
