#include "FileDialogs/Windows/CFileInitializeSelectHandler.h"

#include "FileDialogs/Windows/DialogGuard.h"
#include "Files/Windows/ComPointer.h"
#include "Files/Windows/ShellPath.h"
#include "Files/Windows/TaskMemory.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

#include <utility>

#include <shlguid.h>
#include <shlobj.h>

namespace Zorvane {

namespace {

/** The list of files in a dialog that is shown; null before. */
ComPointer<IShellView> viewOf(IFileDialog* dialog)
{
    ComPointer<IServiceProvider> services;
    ComPointer<IShellBrowser> browser;
    ComPointer<IShellView> view;
    if (!dialog || FAILED(dialog->QueryInterface(IID_PPV_ARGS(services.put()))) ||
        FAILED(services->QueryService(SID_STopLevelBrowser, IID_PPV_ARGS(browser.put()))) ||
        FAILED(browser->QueryActiveShellView(view.put())))
        return {};
    return view;
}

QString nameOfFile(IShellFolder* folder, const ITEMIDLIST* child)
{
    ComPointer<IShellItem> item;
    if (FAILED(SHCreateShellItem(nullptr, folder, child, item.put())))
        return {};
    return QFileInfo(QDir::cleanPath(nameOfItem(item.get(), SIGDN_FILESYSPATH))).fileName();
}

/** The last element of the file's identifier list; null where it is not in the view. */
TaskIdList findFile(IFolderView* view, const QString& fileName)
{
    ComPointer<IShellFolder> folder;
    int count = 0;
    if (FAILED(view->GetFolder(IID_PPV_ARGS(folder.put()))) ||
        FAILED(view->ItemCount(SVGIO_ALLVIEW, &count)))
        return {};
    for (int i = 0; i < count; ++i) {
        ITEMIDLIST* child = nullptr;
        if (FAILED(view->Item(i, &child)))
            continue;
        TaskIdList owned(child);
        if (nameOfFile(folder.get(), owned.get()) == fileName)
            return owned;
    }
    return {};
}

void selectFile(IFileDialog* dialog, const QString& fileName)
{
    const ComPointer<IShellView> view = viewOf(dialog);
    ComPointer<IFolderView> items;
    if (!view || FAILED(view->QueryInterface(IID_PPV_ARGS(items.put()))))
        return;
    if (const TaskIdList file = findFile(items.get(), fileName))
        view->SelectItem(file.get(),
                         SVSI_SELECT | SVSI_DESELECTOTHERS | SVSI_ENSUREVISIBLE | SVSI_FOCUSED);
}

} // namespace

CFileInitializeSelectHandler::CFileInitializeSelectHandler(const QString& fileName,
                                                           DialogGuard& guard)
    : m_fileName(fileName)
    , m_guard(guard)
{}

CFileInitializeSelectHandler::~CFileInitializeSelectHandler() = default;

HRESULT CFileInitializeSelectHandler::OnSelectionChange(IFileDialog* dialog)
{
    // Selecting is a change of the selection too, so that this is called again from inside.
    if (!m_fileName.isEmpty() && std::exchange(m_isStillToSelect, false))
        m_guard.run([&] { selectFile(dialog, m_fileName); });
    return S_OK;
}

} // namespace Zorvane
