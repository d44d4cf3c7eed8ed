#pragma once

#include "Files/FileCopyUtility.h"
#include "UiToolsExport.h"

#include <functional>
#include <memory>

namespace Zorvane {

/**
 * Copies files that have been checked already into a folder, showing progress and asking about
 * names that are taken. One implementation a platform.
 */
class ZORVANE_UITOOLS_EXPORT FileCopier
{
public:
    FileCopier();
    virtual ~FileCopier();

    FileCopier(const FileCopier&) = delete;
    FileCopier& operator=(const FileCopier&) = delete;

    /**
     * What became of the sources, in their order. A failure that concerns everything leaves the
     * list empty or its records at "not copied"; nothing is thrown. `owner` may be null.
     */
    virtual QList<FileCopyUtility::FileCopyInfo> copy(QWidget* owner, const QStringList& sources,
                                                      const QString& targetFolder) = 0;
};

using FileCopierFactory = std::function<std::unique_ptr<FileCopier>()>;

/** The copier to use: the platform's, or that of the innermost live `FileCopierReplacement`. */
ZORVANE_UITOOLS_EXPORT std::unique_ptr<FileCopier> createFileCopier();

/** The platform's copier; each platform folder defines it. */
std::unique_ptr<FileCopier> createPlatformFileCopier();

/** As long as it lives, copies are made by the copiers of `factory`: for hosts with their own. */
class ZORVANE_UITOOLS_EXPORT FileCopierReplacement
{
public:
    explicit FileCopierReplacement(FileCopierFactory factory);
    ~FileCopierReplacement();

    FileCopierReplacement(const FileCopierReplacement&) = delete;
    FileCopierReplacement& operator=(const FileCopierReplacement&) = delete;

private:
    FileCopierFactory m_previous;
};

} // namespace Zorvane
