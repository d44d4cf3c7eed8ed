#pragma once

#include "FileDialogs/Windows/DialogEvents.h"
#include "UiToolsExport.h"

#include <QtCore/QString>

#include <windows.h>

#include <shobjidl.h>

namespace Zorvane {

class DialogGuard;

/**
 * Shows a preset file selected and scrolled into view: with the first change of the selection,
 * which comes when the dialog has filled its list. Later changes are the user's.
 */
class ZORVANE_UITOOLS_EXPORT CFileInitializeSelectHandler : public DialogEvents<>
{
public:
    /** The guard is used as long as this lives. */
    CFileInitializeSelectHandler(const QString& fileName, DialogGuard& guard);

    HRESULT STDMETHODCALLTYPE OnSelectionChange(IFileDialog* dialog) override;

protected:
    ~CFileInitializeSelectHandler() override;

private:
    QString m_fileName;
    DialogGuard& m_guard;
    bool m_isStillToSelect = true;
};

} // namespace Zorvane
