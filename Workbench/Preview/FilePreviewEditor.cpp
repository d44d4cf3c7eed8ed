#include "Workbench/Preview/FilePreviewEditor.h"

#include "Workbench/Preview/PreviewWindow.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>
#include <QtGui/QWindow>

namespace Zorvane::Workbench {

namespace {

int numberOf(const QScreen* screen)
{
    const QList<QScreen*> screens = QGuiApplication::screens();
    for (int number = 0; number < screens.size(); ++number)
        if (screens[number] == screen)
            return number;
    return 0;
}

} // namespace

FilePreviewEditor::FilePreviewEditor(QWidget* beside)
    : m_beside(beside)
{}

FilePreviewEditor::~FilePreviewEditor() = default;

void FilePreviewEditor::initialize(int screen)
{
    const QList<QScreen*> screens = QGuiApplication::screens();
    const int number = screen >= 0 && screen < screens.size() ? screen : getScreenNumber();
    m_window = std::make_unique<PreviewWindow>();
    if (number < screens.size())
        m_window->move(screens[number]->availableGeometry().topLeft());
    keepInFront();
    m_window->showFile(m_path);
}

/** Of the window beside it, though it has no parent that a dialog would block it with. */
void FilePreviewEditor::keepInFront()
{
    QWindow* const beside = m_beside ? m_beside->window()->windowHandle() : nullptr;
    // There is no window of the system before somebody asks for it.
    if (beside != nullptr && m_window->winId() != 0)
        m_window->windowHandle()->setTransientParent(beside);
}

int FilePreviewEditor::getScreenNumber() const
{
    if (m_window)
        return numberOf(m_window->screen());
    return m_beside ? numberOf(m_beside->screen()) : 0;
}

QRect FilePreviewEditor::getGeometry() const
{
    return m_window ? m_window->frameGeometry() : QRect();
}

void FilePreviewEditor::setVisible(bool visible)
{
    if (!m_window)
        return;
    m_window->setVisible(visible);
    // What nobody sees isn't read, and what is seen is read for the room that there is.
    m_window->showFile(visible ? m_path : QString());
    if (visible)
        m_window->raise();
}

void FilePreviewEditor::moveTo(const QPoint& topLeft)
{
    // Unlike the widget, the window minds a frame that it is yet to get.
    if (m_window && m_window->winId() != 0)
        m_window->windowHandle()->setFramePosition(topLeft);
}

void FilePreviewEditor::showFile(const std::string& path)
{
    m_path = QString::fromStdString(path);
    if (m_window && m_window->isVisible())
        m_window->showFile(m_path);
}

} // namespace Zorvane::Workbench
