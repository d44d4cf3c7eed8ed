#include "Workbench/Design/FileSpellings.h"

#include "Workbench/Design/FileNames.h"

namespace Zorvane::Workbench {

QString FileSpellings::firstOf(const QString& file)
{
    const QString key = file.toCaseFolded();
    for (auto known = m_files.constFind(key); known != m_files.cend() && known.key() == key;
         ++known)
        if (FileNames::areSame(*known, file))
            return *known;
    m_files.insert(key, file);
    return file;
}

} // namespace Zorvane::Workbench
