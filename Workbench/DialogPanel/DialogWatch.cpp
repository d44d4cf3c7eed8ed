#include "Workbench/DialogPanel/DialogWatch.h"

#include "Host/System/CommandLineParser.h"
#include "Workbench/DialogPanel/DialogRecord.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtWidgets/QDialog>

#include <utility>

namespace Zorvane::Workbench {

namespace {

QString purposeText(FileDialogPurpose purpose)
{
    return purpose == FileDialogPurpose::SaveFile ? QStringLiteral("save") : QStringLiteral("open");
}

/** "accepted", or how else it ended, and the system's code. */
QString resultText(const FileDialogResult& result)
{
    const QString code = QString::number(static_cast<std::uint32_t>(result.nativeCode), 16);
    QString text = QStringLiteral("failed");
    if (!result.isFailure())
        text = result.paths.isEmpty() ? QStringLiteral("cancelled") : QStringLiteral("accepted");
    return QStringLiteral("%1 0x%2").arg(text, code.rightJustified(8, QLatin1Char('0')));
}

/** Notes what a driver is asked for and what it answers. */
class WatchedDriver : public FileDialogDriver
{
public:
    WatchedDriver(std::shared_ptr<FileDialogDriver> driver, DialogRecord& record)
        : m_driver(std::move(driver))
        , m_record(record)
    {}

    FileDialogResult run(const FileDialogRequest& request) override
    {
        const QString name = purposeText(request.purpose);
        m_record.note(QStringLiteral("%1(%2)").arg(
            name,
            quoted({request.caption, request.start, request.filter, request.selectedFilter})));
        const FileDialogResult result = m_driver->run(request);
        m_record.note(QStringLiteral("%1 -> %2").arg(name, resultText(result)));
        return result;
    }

private:
    const std::shared_ptr<FileDialogDriver> m_driver;
    DialogRecord& m_record;
};

class FailingDriver : public FileDialogDriver
{
public:
    FileDialogResult run(const FileDialogRequest&) override { return FileDialogResult::failed(-1); }
};

std::shared_ptr<FileDialogDriver> driverOf(DialogShower shower)
{
    switch (shower) {
    case DialogShower::Failing:
        return std::make_shared<FailingDriver>();
    case DialogShower::Qt:
        return nullptr;
    case DialogShower::Usual:
    case DialogShower::Option:
        break;
    }
    return createNativeFileDialogDriver();
}

void readArguments(const QStringList& more)
{
    CommandLineParser::instance()->parse(QCoreApplication::arguments() + more);
}

} // namespace

DialogWatch::DialogWatch(DialogShower shower, DialogRecord& record)
    : m_record(record)
    , m_givesOption(shower == DialogShower::Option)
{
    // One driver for all dialogs of the call: a new one would be asked of the watch itself.
    const std::shared_ptr<FileDialogDriver> driver = driverOf(shower);
    m_replacement.emplace([driver, &record]() -> std::unique_ptr<FileDialogDriver> {
        return driver ? std::make_unique<WatchedDriver>(driver, record) : nullptr;
    });
    if (m_givesOption)
        readArguments({QStringLiteral("--alternativeFileDialog")});
    qApp->installEventFilter(this);
}

DialogWatch::~DialogWatch()
{
    if (m_givesOption)
        readArguments({});
}

bool DialogWatch::eventFilter(QObject* watched, QEvent* event)
{
    const auto* const dialog = qobject_cast<QDialog*>(watched);
    if (dialog && event->type() == QEvent::Show && !event->spontaneous() && dialog->isModal())
        m_record.note(
            QStringLiteral("%1(%2)").arg(QString::fromLatin1(dialog->metaObject()->className()),
                                         quoted({dialog->windowTitle()})));
    return QObject::eventFilter(watched, event);
}

} // namespace Zorvane::Workbench
