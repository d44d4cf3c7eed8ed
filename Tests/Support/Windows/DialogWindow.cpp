#include "Tests/Support/Windows/DialogWindow.h"

#include "Files/Windows/ShellPath.h"

#include <functional>

#include <commctrl.h>

namespace Zorvane::Testing {

namespace {

constexpr int s_fileNameEdit = 0x480;
constexpr int s_fileTypeBox = 0x470;

QString classOf(HWND window)
{
    wchar_t name[64];
    return QString::fromWCharArray(name, GetClassNameW(window, name, 64));
}

using Visit = std::function<void(HWND)>;

BOOL CALLBACK visitWindow(HWND window, LPARAM visit)
{
    (*reinterpret_cast<Visit*>(visit))(window);
    return TRUE;
}

void forEachChild(HWND parent, Visit visit)
{
    EnumChildWindows(parent, visitWindow, reinterpret_cast<LPARAM>(&visit));
}

HWND firstChild(HWND parent, const QString& windowClass)
{
    HWND found = nullptr;
    forEachChild(parent, [&](HWND child) {
        if (!found && classOf(child) == windowClass)
            found = child;
    });
    return found;
}

/** Each custom control lies in a window of its own. */
bool isCustomControl(HWND child)
{
    return classOf(GetParent(child)) == QLatin1String("FloatNotifySink");
}

/** As the user does it: the parent is told, which a choice by message alone leaves out. */
void choose(HWND comboBox, int index)
{
    SendMessageW(comboBox, CB_SETCURSEL, WPARAM(index), 0);
    const auto id = WORD(GetDlgCtrlID(comboBox));
    SendMessageW(GetParent(comboBox), WM_COMMAND, MAKEWPARAM(id, CBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(comboBox));
}

QString itemText(HWND list, int index)
{
    wchar_t text[MAX_PATH];
    LVITEMW item{};
    item.pszText = text;
    item.cchTextMax = MAX_PATH;
    const LRESULT length =
        SendMessageW(list, LVM_GETITEMTEXTW, WPARAM(index), reinterpret_cast<LPARAM>(&item));
    return QString::fromWCharArray(text, int(length));
}

bool isSelected(HWND list, int index)
{
    return SendMessageW(list, LVM_GETITEMSTATE, WPARAM(index), LVIS_SELECTED) & LVIS_SELECTED;
}

void setSelected(HWND list, int index, bool on)
{
    LVITEMW item{};
    item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
    item.state = on ? item.stateMask : 0U;
    SendMessageW(list, LVM_SETITEMSTATE, WPARAM(index), reinterpret_cast<LPARAM>(&item));
}

std::vector<DialogWindow> dialogsOfThread(bool areVisible)
{
    std::vector<DialogWindow> dialogs;
    Visit visit = [&](HWND window) {
        if (bool(IsWindowVisible(window)) == areVisible &&
            classOf(window) == QLatin1String("#32770"))
            dialogs.emplace_back(window);
    };
    EnumThreadWindows(GetCurrentThreadId(), visitWindow, reinterpret_cast<LPARAM>(&visit));
    return dialogs;
}

} // namespace

QString textOf(HWND window)
{
    std::vector<wchar_t> text(std::size_t(SendMessageW(window, WM_GETTEXTLENGTH, 0, 0)) + 1);
    SendMessageW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
    return QString::fromWCharArray(text.data());
}

QStringList itemsOf(HWND comboBox)
{
    QStringList items;
    const LRESULT count = SendMessageW(comboBox, CB_GETCOUNT, 0, 0);
    for (LRESULT i = 0; i < count; ++i) {
        std::vector<wchar_t> text(
            std::size_t(SendMessageW(comboBox, CB_GETLBTEXTLEN, WPARAM(i), 0)) + 1);
        SendMessageW(comboBox, CB_GETLBTEXT, WPARAM(i), reinterpret_cast<LPARAM>(text.data()));
        items.append(QString::fromWCharArray(text.data()));
    }
    return items;
}

int selectedItemOf(HWND comboBox)
{
    return int(SendMessageW(comboBox, CB_GETCURSEL, 0, 0));
}

DialogWindow::DialogWindow(HWND window)
    : m_window(window)
{}

std::vector<DialogWindow> DialogWindow::all()
{
    return dialogsOfThread(true);
}

std::vector<DialogWindow> DialogWindow::allHidden()
{
    return dialogsOfThread(false);
}

bool DialogWindow::exists() const
{
    return IsWindow(m_window);
}

bool DialogWindow::isVisible() const
{
    return IsWindowVisible(m_window);
}

QString DialogWindow::title() const
{
    return textOf(m_window);
}

HWND DialogWindow::owner() const
{
    return GetWindow(m_window, GW_OWNER);
}

RECT DialogWindow::rectangle() const
{
    RECT rect{};
    GetWindowRect(m_window, &rect);
    return rect;
}

QString DialogWindow::fileName() const
{
    return textOf(GetDlgItem(m_window, s_fileNameEdit));
}

void DialogWindow::typeFileName(const QString& text) const
{
    SendMessageW(GetDlgItem(m_window, s_fileNameEdit), WM_SETTEXT, 0,
                 reinterpret_cast<LPARAM>(wide(text)));
}

QStringList DialogWindow::fileTypes() const
{
    return itemsOf(GetDlgItem(m_window, s_fileTypeBox));
}

int DialogWindow::selectedFileType() const
{
    return selectedItemOf(GetDlgItem(m_window, s_fileTypeBox));
}

void DialogWindow::chooseFileType(int index) const
{
    choose(GetDlgItem(m_window, s_fileTypeBox), index);
}

QStringList DialogWindow::files() const
{
    QStringList names;
    const HWND list = fileList();
    const int count = int(SendMessageW(list, LVM_GETITEMCOUNT, 0, 0));
    for (int i = 0; i < count; ++i)
        names.append(itemText(list, i));
    return names;
}

QStringList DialogWindow::selectedFiles() const
{
    QStringList selected;
    const QStringList names = files();
    for (int i = 0; i < names.size(); ++i) {
        if (isSelected(fileList(), i))
            selected.append(names.at(i));
    }
    return selected;
}

void DialogWindow::selectFiles(const QStringList& names) const
{
    const QStringList present = files();
    for (int i = 0; i < present.size(); ++i) {
        if (!names.contains(present.at(i)))
            setSelected(fileList(), i, false);
    }
    for (const QString& name : names)
        setSelected(fileList(), present.indexOf(name), true);
}

HWND DialogWindow::findControl(const wchar_t* windowClass, const QString& text) const
{
    HWND found = nullptr;
    forEachChild(m_window, [&](HWND child) {
        if (!found && isCustomControl(child) &&
            classOf(child) == QString::fromWCharArray(windowClass) && textOf(child) == text)
            found = child;
    });
    return found;
}

std::vector<HWND> DialogWindow::comboBoxes() const
{
    std::vector<HWND> boxes;
    forEachChild(m_window, [&](HWND child) {
        if (isCustomControl(child) && classOf(child) == QLatin1String("ComboBox"))
            boxes.push_back(child);
    });
    return boxes;
}

void DialogWindow::click(HWND button) const
{
    PostMessageW(button, BM_CLICK, 0, 0);
}

void DialogWindow::chooseItem(HWND comboBox, int index) const
{
    choose(comboBox, index);
}

void DialogWindow::accept() const
{
    click(GetDlgItem(m_window, IDOK));
}

void DialogWindow::cancel() const
{
    click(GetDlgItem(m_window, IDCANCEL));
}

void DialogWindow::answer(int button) const
{
    click(GetDlgItem(m_window, button));
}

void DialogWindow::pressEscape() const
{
    PostMessageW(GetDlgItem(m_window, s_fileNameEdit), WM_KEYDOWN, VK_ESCAPE, 0);
}

void DialogWindow::close() const
{
    PostMessageW(m_window, WM_CLOSE, 0, 0);
}

HWND DialogWindow::fileList() const
{
    return firstChild(firstChild(m_window, QStringLiteral("SHELLDLL_DefView")),
                      QStringLiteral("SysListView32"));
}

} // namespace Zorvane::Testing
