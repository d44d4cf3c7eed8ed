#pragma once

#include "FileDialogs/NativeFileFilters.h"
#include "UiToolsExport.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

class QWidget;

namespace Zorvane {

class FileDialogConfiguration;

/** All that a dialog of the system needs to know for one run. Nothing is owned. */
struct NativeFileDialogRequest
{
    /** Its native window (`QWidget::winId`) owns the dialog; may be null, and may be destroyed
     * while the dialog is shown. */
    QWidget* owner = nullptr;
    QString caption;
    /** Open dialogs only. */
    bool multiSelection = false;
    NativeFileFilters filters;
    /** Where the dialog opens, with native separators; may not exist. */
    QString folder;
    /** The file preset in it; may be empty, and need not exist. */
    QString fileName;
    /** Folders to offer in the navigation pane, in order; those that don't exist are skipped. */
    std::vector<QString> places;
    /** Open dialogs only; null for none. */
    FileDialogConfiguration* configuration = nullptr;
};

/** How a run ended. The code is the system's: negative on failure, cancel included. */
struct NativeFileDialogResult
{
    static constexpr std::int32_t s_ok = 0;
    /** What Windows makes of its error 1223. */
    static constexpr std::int32_t s_cancelled = -2147023673;

    /** Only the low 16 bits tell. */
    bool isCancelled() const { return (static_cast<std::uint32_t>(code) & 0xFFFFU) == 1223U; }
    bool isFailure() const { return code < 0 && !isCancelled(); }

    std::int32_t code = s_ok;
    /** The chosen paths with native separators, in the order of the dialog; one for a save. */
    QStringList paths;
};

/**
 * Shows the system's file dialogs. Both operations return when the dialog is closed; a failure
 * leaves nothing on screen and makes the caller show Qt's dialog instead.
 */
class ZORVANE_UITOOLS_EXPORT NativeFileDialogDriver
{
public:
    NativeFileDialogDriver();
    virtual ~NativeFileDialogDriver();

    NativeFileDialogDriver(const NativeFileDialogDriver&) = delete;
    NativeFileDialogDriver& operator=(const NativeFileDialogDriver&) = delete;

    virtual NativeFileDialogResult open(const NativeFileDialogRequest& request) = 0;
    virtual NativeFileDialogResult save(const NativeFileDialogRequest& request) = 0;
};

using NativeFileDialogFactory = std::function<std::unique_ptr<NativeFileDialogDriver>()>;

/**
 * The driver to use: the platform's, or that of the innermost live `NativeFileDialogReplacement`.
 * Null where the system has no such dialog. Asked anew for every dialog.
 */
ZORVANE_UITOOLS_EXPORT std::unique_ptr<NativeFileDialogDriver> createNativeFileDialogDriver();

/** The platform's driver, null for none; each platform folder defines it. */
std::unique_ptr<NativeFileDialogDriver> createPlatformFileDialogDriver();

/** As long as it lives, dialogs are shown by the drivers of `factory`: for hosts with their own. */
class ZORVANE_UITOOLS_EXPORT NativeFileDialogReplacement
{
public:
    explicit NativeFileDialogReplacement(NativeFileDialogFactory factory);
    ~NativeFileDialogReplacement();

    NativeFileDialogReplacement(const NativeFileDialogReplacement&) = delete;
    NativeFileDialogReplacement& operator=(const NativeFileDialogReplacement&) = delete;

private:
    NativeFileDialogFactory m_previous;
};

} // namespace Zorvane
