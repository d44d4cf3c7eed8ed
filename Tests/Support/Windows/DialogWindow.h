#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <vector>

#include <windows.h>

namespace Zorvane::Testing {

/**
 * The window of the system's file dialog, looked at and worked with as a user would. What lies
 * inside is Wine's: on another system controls may have other identifiers.
 */
class DialogWindow
{
public:
    explicit DialogWindow(HWND window = nullptr);

    /** Dialog windows of this thread that are visible, the newest first. */
    static std::vector<DialogWindow> all();
    /** Those that are not. */
    static std::vector<DialogWindow> allHidden();

    HWND handle() const { return m_window; }
    bool exists() const;
    bool isVisible() const;
    QString title() const;
    HWND owner() const;
    /** With right and bottom as the system has them: beside the window. */
    RECT rectangle() const;

    QString fileName() const;
    void typeFileName(const QString& text) const;
    QStringList fileTypes() const;
    int selectedFileType() const;
    void chooseFileType(int index) const;

    QStringList files() const;
    QStringList selectedFiles() const;
    void selectFiles(const QStringList& names) const;

    /** The custom control with that text; null where there is none. */
    HWND findControl(const wchar_t* windowClass, const QString& text) const;
    /** Custom combo boxes from top to bottom. */
    std::vector<HWND> comboBoxes() const;
    void click(HWND button) const;
    void chooseItem(HWND comboBox, int index) const;

    /** The button that accepts: "Open" or "Save". */
    void accept() const;
    void cancel() const;
    /** A message box's button, such as `IDNO`. */
    void answer(int button) const;
    void pressEscape() const;
    void close() const;

private:
    HWND fileList() const;

    HWND m_window;
};

/** Texts of a combo box. */
QStringList itemsOf(HWND comboBox);
int selectedItemOf(HWND comboBox);
QString textOf(HWND window);

} // namespace Zorvane::Testing
