#pragma once

#include "FileDialogs/NativeFileDialog.h"
#include "FileDialogs/QtDialogParts.h"

#include <QtCore/QList>
#include <QtCore/QTimer>
#include <QtCore/QUrl>
#include <QtWidgets/QFileDialog>

#include <exception>
#include <optional>

namespace Zorvane {

class CustomControls;
class FileDialogEventHandler;

/**
 * Qt's open dialog doing what a configuration asks for, for systems whose own dialogs cannot: the
 * controls, the events to the handler, and the geometry kept under the configuration's key. As
 * with a dialog of the system, there are controls only where a handler is told of them.
 *
 * It blocks its owner's window and those above; a window beside it that has no parent can be used.
 * It closes with its owner's window. Not supported: saving.
 */
class ConfiguredFileDialog : public QFileDialog
{
    Q_OBJECT

public:
    /**
     * The request's configuration must not be null and must outlive the dialog. What a handler
     * throws, which Qt's event loop must not see, ends the dialog and is kept in `thrown`.
     */
    ConfiguredFileDialog(const NativeFileDialogRequest& request, QFileDialog::Options options,
                         std::exception_ptr& thrown);
    ~ConfiguredFileDialog() override;

    void selectType(const QString& type);
    QString selectedType() const;

    void setControlState(int controlId, int state);
    /** Moves and sizes the window by the configuration, as soon as its frame is known. */
    void placeLater(FileDialogConfiguration* configuration);

protected:
    void done(int result) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void setUpFiles(const NativeFileDialogRequest& request);
    void addPlaces(const std::vector<QString>& places);
    void addControls();
    void connectEvents();
    void giveOuterGeometry(const QRect& rect);
    void storeGeometry();
    void closeDown();
    template <typename Event>
    void tell(Event event);
    void tellType();
    void tellSelection();

    FileDialogConfiguration* const m_configuration;
    FileDialogEventHandler* const m_handler;
    std::exception_ptr& m_thrown;
    /** As the caller wrote them, where the dialog shows them in another form. */
    QStringList m_types;
    QList<QUrl> m_addedPlaces;
    /** Without them, in a version of Qt that lacks one, there are neither controls nor events. */
    std::optional<QtDialogParts> m_parts;
    /** Null without a handler or without parts. */
    CustomControls* m_controls = nullptr;
    QTimer m_movementEnd;
    bool m_wasShown = false;
    /** Until then the window is where the window manager first put it. */
    bool m_isPlaced = false;
    bool m_isClosedDown = false;
};

/**
 * Shows the dialog and waits for its end; the user's filter is written to `selectedFilter`. Throws
 * what a handler has thrown, once the dialog is gone.
 */
NativeFileDialogResult openConfiguredFileDialog(const NativeFileDialogRequest& request,
                                                QFileDialog::Options options,
                                                QString* selectedFilter);

} // namespace Zorvane
