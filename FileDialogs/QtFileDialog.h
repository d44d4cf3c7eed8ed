#pragma once

#include "FileDialogs/FileDialogConfiguration.h"
#include "FileDialogs/FileDialogDriver.h"

#include <QtCore/QList>
#include <QtCore/QTimer>
#include <QtCore/QUrl>
#include <QtWidgets/QFileDialog>

#include <exception>
#include <functional>
#include <optional>

QT_BEGIN_NAMESPACE
class QComboBox;
class QDialogButtonBox;
class QGridLayout;
class QLineEdit;
class QListView;
class QSplitter;
class QTreeView;
QT_END_NAMESPACE

namespace Zorvane {

class CustomControls;
class FileDialogEventHandler;

/** Qt's own dialog for every purpose, drawn by Qt on every platform. Doesn't fail. */
class QtFileDialogDriver final : public FileDialogDriver
{
public:
    /** Throws what the configuration's handler has thrown, once the dialog is gone. */
    FileDialogResult run(const FileDialogRequest& request) override;
};

/**
 * Qt's own file dialog, with places for this one dialog, columns and a side bar that are wide
 * enough, and the geometry that the user gave it last. With a configuration it has that one's
 * controls, events and geometry; there are controls only where a handler is notified of them.
 *
 * A dialog with a configuration is a child of its owner and blocks the owner's window and those
 * above; a window beside it that has no parent can be used. Without one it has no parent, stays in
 * front of its owner's window and blocks the whole application. Both close with their owner.
 */
class QtFileDialog : public QFileDialog
{
    Q_OBJECT

public:
    /**
     * What the request points at must outlive the dialog. An exception out of a handler, which
     * must not pass Qt's event loop, ends the dialog and is kept in `thrown`.
     */
    QtFileDialog(const FileDialogRequest& request, std::exception_ptr& thrown);
    ~QtFileDialog() override;

    FileDialogResult accepted() const;

    void setControlState(int controlId, int state);
    /** Moves and sizes the window by the configuration, as soon as its frame is known. */
    void placeLater(FileDialogConfiguration* configuration);

protected:
    void accept() override;
    void done(int result) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    /**
     * What Qt's dialog is made of. The names are Qt's and the same since Qt 4, but not documented:
     * another version may lack them. They belong to the dialog.
     */
    struct Parts
    {
        /** Folder, list, name and type one under the other, the buttons beside the last two. */
        QGridLayout* rows = nullptr;
        QSplitter* splitter = nullptr;
        QListView* sideBar = nullptr;
        QListView* list = nullptr;
        QTreeView* details = nullptr;
        QLineEdit* name = nullptr;
        QComboBox* types = nullptr;
        QDialogButtonBox* buttons = nullptr;
    };

    std::optional<Parts> findParts() const;
    void narrowFirstRow();
    void setUpPurpose(const FileDialogRequest& request);
    void setUpFiles(const FileDialogRequest& request);
    void addPlaces(const std::vector<QString>& places);
    void addControls();
    void connectEvents();
    void followOwner(QWidget& owner);
    void stayInFrontOfOwner();
    /** Where the dialog was left the last time; at first over its owner. */
    void placeAsLeft();
    void whenExposed(const std::function<void()>& action);
    void widenSideBar();
    void followListing();
    void fitColumns();
    void followName(const QString& text);
    void place(const QRect& wanted);
    void storeGeometry();
    void closeDown();
    template <typename Event>
    void notify(Event event);
    void notifyType();
    void notifySelection();

    const FileDialogPurpose m_purpose;
    const QPointer<QWidget> m_owner;
    /** Where dialogs without a configuration keep their geometry. */
    FileDialogConfiguration m_standard;
    FileDialogConfiguration* const m_configuration;
    FileDialogEventHandler* const m_handler;
    std::exception_ptr& m_thrown;
    /** As the caller wrote them, where the dialog shows them in another form. */
    QStringList m_types;
    QList<QUrl> m_addedPlaces;
    /** Without them, in a version of Qt that lacks one, the dialog is just Qt's. */
    std::optional<Parts> m_parts;
    /** Null without a handler or without parts. */
    CustomControls* m_controls = nullptr;
    /** A new file with a name that Qt takes for several ones. */
    QString m_quotedFile;
    QTimer m_movementEnd;
    QTimer m_listing;
    bool m_wasShown = false;
    bool m_areColumnsTheUsers = false;
    /** Until then the window is where the window manager first put it. */
    bool m_isPlaced = false;
    bool m_isClosedDown = false;
};

} // namespace Zorvane
