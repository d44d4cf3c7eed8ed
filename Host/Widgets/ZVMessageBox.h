#pragma once

#include "Host/HostExport.h"

#include <QtCore/QHash>
#include <QtCore/QString>
#include <QtWidgets/QMessageBox>

#include <functional>
#include <memory>

namespace Zorvane {

class MessageBoxTitleBar;
class ZVMessageBox;

/**
 * Shows all message boxes that wait for an answer. An application that asks its user in another
 * way, or runs without one, derives from it and registers that.
 */
class ZORVANE_HOST_EXPORT MessageBoxPresenter
{
public:
    MessageBoxPresenter();
    MessageBoxPresenter(const MessageBoxPresenter&);
    MessageBoxPresenter& operator=(const MessageBoxPresenter&);
    virtual ~MessageBoxPresenter();

    /** Returns the instance before, which it replaces. Null stands for our own. */
    static std::shared_ptr<MessageBoxPresenter>
    registerInstance(std::shared_ptr<MessageBoxPresenter> instance);

    /**
     * Returns when the box is answered: when one of its buttons was clicked, by `click()` also
     * without showing it. A box left without a click counts as closed. The box may be deleted
     * meanwhile.
     */
    virtual void present(ZVMessageBox& box);
};

/**
 * The suite's message box. Everything of `QMessageBox` holds, with five differences:
 * - The window flags are taken as they are given. A box without a system frame
 *   (`Qt::FramelessWindowHint`) draws a title bar of its own, which moves the box.
 * - The close button of the title can be taken away. Then Escape and the window system's close
 *   request do nothing either, as long as one button can be pressed. While the close button is
 *   there, closing always works; without an escape button `exec` returns 0 (no button).
 * - A box that is shown without any button that can be pressed, since all are hidden or disabled,
 *   gets an OK button, so that the user is not caught in it. It can always be closed.
 * - Buttons that were hidden stay hidden, and texts that buttons were given stay, when style or
 *   language change while the box is shown. Translating such a text again is up to its owner.
 * - A maximum width is kept: the text wraps. Set it before the box is shown.
 */
class ZORVANE_HOST_EXPORT ZVMessageBox : public QMessageBox
{
    Q_OBJECT

public:
    static constexpr Qt::WindowFlags s_framedFlags =
        Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;

    ZVMessageBox(Icon icon, const QString& title, const QString& text, StandardButtons buttons = Ok,
                 QWidget* parent = nullptr, Qt::WindowFlags flags = s_framedFlags);

    bool isTitleCloseButtonVisible() const;
    void setTitleCloseButtonVisible(bool visible);

    /** Has the registered presenter show the box. Returns the standard button, 0 for none. */
    int exec() override;

    /** In pixels. Buttons and single words that need more get it. */
    void setMaximumWidth(int width);

    /**
     * Show a box of the kind and return the button pressed, as `QMessageBox`'s do; no button if the
     * parent is deleted meanwhile.
     */
    static StandardButton critical(QWidget* parent, const QString& title, const QString& text,
                                   StandardButtons buttons = Ok,
                                   StandardButton defaultButton = NoButton);
    static StandardButton information(QWidget* parent, const QString& title, const QString& text,
                                      StandardButtons buttons = Ok,
                                      StandardButton defaultButton = NoButton);
    static StandardButton question(QWidget* parent, const QString& title, const QString& text,
                                   StandardButtons buttons = StandardButtons(Yes | No),
                                   StandardButton defaultButton = NoButton);
    static StandardButton warning(QWidget* parent, const QString& title, const QString& text,
                                  StandardButtons buttons = Ok,
                                  StandardButton defaultButton = NoButton);

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    bool mayBeClosed() const;
    bool hasPressableButton() const;
    void addWayOut();
    void rememberTexts();
    void keepHidden(const std::function<void()>& change);
    void keepTexts(const std::function<void()>& change);
    void fitToMaximumWidth();
    void placeTitleBar();

    // Only in boxes without a system frame; owned as a child widget.
    MessageBoxTitleBar* m_titleBar = nullptr;
    // The OK button of a box that would have none; owned as a child widget.
    QPushButton* m_wayOut = nullptr;
    // What Qt called the buttons that it made.
    QHash<QAbstractButton*, QString> m_usualTexts;
    int m_maximumWidth = QWIDGETSIZE_MAX;
};

} // namespace Zorvane
