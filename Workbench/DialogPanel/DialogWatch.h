#pragma once

#include "FileDialogs/FileDialogDriver.h"

#include <QtCore/QObject>
#include <QtCore/QString>

#include <memory>
#include <optional>

namespace Zorvane::Workbench {

class DialogRecord;

/** Whose dialogs are shown. */
enum class DialogShower
{
    /** The system's where it has one, as always. */
    Usual,
    /** Qt's, as on a system without dialogs of its own. */
    Qt,
    /** As with the command-line option "alternativeFileDialog". */
    Option,
    /** The system's fails, and the library asks by Qt's. */
    Failing
};

/** While it lives, dialogs are shown by whom one wants, and those that appear are noted. */
class DialogWatch : public QObject
{
    Q_OBJECT

public:
    DialogWatch(DialogShower shower, DialogRecord& record);
    ~DialogWatch() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    DialogRecord& m_record;
    const bool m_givesOption;
    std::optional<NativeFileDialogReplacement> m_replacement;
};

} // namespace Zorvane::Workbench
