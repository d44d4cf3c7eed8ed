#include "Workbench/DialogPanel/DialogOutcome.h"

namespace Zorvane::Workbench {

namespace {

const QString s_indent(4, QLatin1Char(' '));

} // namespace

QString DialogOutcome::text() const
{
    QStringList lines{title, tr("Shown by: %1").arg(shower)};
    if (isFinished)
        lines += fileLines();
    if (!exception.isEmpty())
        lines << tr("Exception: %1").arg(exception);
    if (type)
        lines << tr("Type: %1").arg(*type);
    if (isEndingAdded)
        lines << tr("The ending was added.");
    lines += controlLines();
    lines += eventLines();
    if (isFinished)
        lines << tr("Dialogs open: at most %1, now %2").arg(mostOpen).arg(openAfterwards);
    return lines.join(QLatin1Char('\n'));
}

QStringList DialogOutcome::fileLines() const
{
    if (files.isEmpty())
        return {tr("Nothing chosen")};
    QStringList lines{tr("Chosen: %1").arg(files.size())};
    for (const QString& file : files)
        lines << s_indent + file;
    return lines;
}

QStringList DialogOutcome::controlLines() const
{
    if (controls.empty())
        return {};
    QStringList lines{tr("Controls:")};
    for (const Control& control : controls) {
        const QString state = control.items.isEmpty() ? control.value != 0 ? tr("on") : tr("off")
                                                      : control.items.value(control.value);
        lines << s_indent + QStringLiteral("%1 %2: ").arg(control.id).arg(control.label) + state;
    }
    return lines;
}

QStringList DialogOutcome::eventLines() const
{
    if (events.isEmpty())
        return {tr("No events")};
    QStringList lines{tr("Events, [dialogs open]:")};
    for (const QString& event : events)
        lines << s_indent + event;
    return lines;
}

} // namespace Zorvane::Workbench
