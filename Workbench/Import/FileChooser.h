#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace Zorvane {
class PathProvider;
}

namespace Zorvane::Workbench {

/** What a dialog for choosing files or a folder is to show. */
struct FileChoice
{
    QString caption;
    /** Tells by the scope where the dialog opens, and is told what was chosen. Not owned. */
    PathProvider* paths = nullptr;
    QString scope;
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
    /**
     * The absolute path of a file to write, `fileName` proposed; empty when cancelled. A name
     * without an ending has got the first one of the filters. The user has agreed to replace a file
     * that exists.
     */
    virtual QString fileToSave(QWidget* parent, const FileChoice& choice,
                               const QString& fileName) = 0;
    /** The same for a file in the folder of `path`, which is proposed. */
    virtual QString fileToSaveBeside(QWidget* parent, const FileChoice& choice,
                                     const QString& path) = 0;
};

/** Asks by the library's dialogs; files are shown beside the dialog while the user selects. */
class DialogFileChooser : public FileChooser
{
public:
    QStringList files(QWidget* parent, const FileChoice& choice) override;
    QString folder(QWidget* parent, const FileChoice& choice) override;
    QString fileToSave(QWidget* parent, const FileChoice& choice, const QString& fileName) override;
    QString fileToSaveBeside(QWidget* parent, const FileChoice& choice,
                             const QString& path) override;
};

} // namespace Zorvane::Workbench
