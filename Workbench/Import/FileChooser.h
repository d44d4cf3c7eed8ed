#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace Zorvane::Workbench {

/** What a dialog for choosing files or a folder is to show. */
struct FileChoice
{
    QString caption;
    /** Where it opens; empty: where the system likes. */
    QString folder;
    /** Entries "description (*.ending ...)", separated by ";;". */
    QString filters;
};

/** Whom the Workbench asks for files: dialogs for people, scripts for tests and the tour. */
class FileChooser
{
public:
    FileChooser();
    virtual ~FileChooser();

    FileChooser(const FileChooser&) = delete;
    FileChooser& operator=(const FileChooser&) = delete;

    /** Absolute paths of existing files; none when cancelled. `parent` may be null. */
    virtual QStringList files(QWidget* parent, const FileChoice& choice) = 0;
    /** The absolute path of a folder; empty when cancelled. */
    virtual QString folder(QWidget* parent, const FileChoice& choice) = 0;
};

/** Asks by the system's dialogs. */
class DialogFileChooser : public FileChooser
{
public:
    QStringList files(QWidget* parent, const FileChoice& choice) override;
    QString folder(QWidget* parent, const FileChoice& choice) override;
};

} // namespace Zorvane::Workbench
