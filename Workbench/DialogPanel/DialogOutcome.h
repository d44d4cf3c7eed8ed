#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>
#include <vector>

namespace Zorvane::Workbench {

/** What came out of a call for files or a folder, and what happened meanwhile. */
class DialogOutcome
{
    Q_DECLARE_TR_FUNCTIONS(Zorvane::Workbench::DialogOutcome)

public:
    struct Control
    {
        int id = 0;
        QString label;
        /** A combo box's; none for a check box. */
        QStringList items;
        /** 0 or 1 for a check box, the index of a combo box's item. */
        int value = 0;
    };

    /** To be read by people, one fact a line. */
    QString text() const;

    QString title;
    /** Whose dialog was asked for, in words. */
    QString shower;
    /** As the call gave them; none when it was cancelled. */
    QStringList files;
    /** The type that was chosen, from calls that tell it. */
    std::optional<QString> type;
    bool isEndingAdded = false;
    /** As they were when the dialog was closed. */
    std::vector<Control> controls;
    /** In order, each behind the number of dialogs that were open then: "[1] onTypeChanged()". */
    QStringList events;
    int mostOpen = 0;
    int openAfterwards = 0;
    /** What a handler threw; empty if nothing. */
    QString exception;
    bool isFinished = false;

private:
    QStringList fileLines() const;
    QStringList controlLines() const;
    QStringList eventLines() const;
};

} // namespace Zorvane::Workbench
