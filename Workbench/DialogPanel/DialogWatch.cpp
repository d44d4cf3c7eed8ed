#include "Workbench/DialogPanel/DialogWatch.h"

#include "Host/System/CommandLineParser.h"
#include "Workbench/DialogPanel/DialogRecord.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtWidgets/QDialog>

#include <utility>

namespace Zorvane::Workbench {

namespace {

/** What Windows calls E_FAIL. */
constexpr std::int32_t s_failure = -2147467259;

QString codeText(std::int32_t code)
{
    return QStringLiteral("0x") + QString::number(static_cast<std::uint32_t>(code), 16)
                                      .rightJustified(8, QLatin1Char('0'));
}

/** Notes what a driver is asked for and what it answers. */
class WatchedDriver : public NativeFileDialogDriver
{
public:
    WatchedDriver(std::shared_ptr<NativeFileDialogDriver> driver, DialogRecord& record)
        : m_driver(std::move(driver))
        , m_record(record)
    {}

    NativeFileDialogResult open(const NativeFileDialogRequest& request) override
    {
        return run(QStringLiteral("open"), request, &NativeFileDialogDriver::open);
    }
    NativeFileDialogResult save(const NativeFileDialogRequest& request) override
    {
        return run(QStringLiteral("save"), request, &NativeFileDialogDriver::save);
    }

private:
    using Run = NativeFileDialogResult (NativeFileDialogDriver::*)(const NativeFileDialogRequest&);

    NativeFileDialogResult run(const QString& name, const NativeFileDialogRequest& request,
                               Run operation)
    {
        const NativeFileFilters& filters = request.filters;
        m_record.note(QStringLiteral("%1(%2)").arg(
            name, quoted({request.caption, request.folder, request.fileName,
                          filters.patterns.join(QLatin1Char('|')), filters.preselectedPattern})));
        const NativeFileDialogResult result = ((*m_driver).*operation)(request);
        m_record.note(QStringLiteral("%1 -> %2").arg(name, codeText(result.code)));
        return result;
    }

    const std::shared_ptr<NativeFileDialogDriver> m_driver;
    DialogRecord& m_record;
};

class FailingDriver : public NativeFileDialogDriver
{
public:
    NativeFileDialogResult open(const NativeFileDialogRequest&) override { return {s_failure, {}}; }
    NativeFileDialogResult save(const NativeFileDialogRequest&) override { return {s_failure, {}}; }
};

std::shared_ptr<NativeFileDialogDriver> driverOf(DialogShower shower)
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
    const std::shared_ptr<NativeFileDialogDriver> driver = driverOf(shower);
    m_replacement.emplace([driver, &record]() -> std::unique_ptr<NativeFileDialogDriver> {
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
