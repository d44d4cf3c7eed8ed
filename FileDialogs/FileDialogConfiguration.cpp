#include "FileDialogs/FileDialogConfiguration.h"

#include "FileDialogs/FileDialogEventHandler.h"
#include "FileDialogs/ScreenGeometry.h"
#include "Files/ApplicationMainWindow.h"

#include <QtCore/QSettings>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDesktopWidget>

#include <algorithm>

namespace Zorvane {

namespace {

constexpr QSize s_usualDialogSize(625, 600);

QString topLeftKey(const QString& settingsKey)
{
    return settingsKey + QStringLiteral("/topLeft");
}

QString bottomRightKey(const QString& settingsKey)
{
    return settingsKey + QStringLiteral("/bottomRight");
}

QString windowSizeKey(const QString& settingsKey)
{
    return settingsKey + QStringLiteral("/windowSize");
}

} // namespace

const QString FileDialogConfiguration::s_defaultSettingsKey = QStringLiteral("StandardFileDialog");

FileDialogConfiguration::FileDialogConfiguration(const QString& settingsKey)
    : m_defaultDialogSize(s_usualDialogSize)
    , m_topLeftOffset(0, 0)
    , m_settingsKey(settingsKey)
{}

FileDialogConfiguration::FileDialogConfiguration(const FileDialogConfiguration& other) = default;
FileDialogConfiguration&
FileDialogConfiguration::operator=(const FileDialogConfiguration& other) = default;
FileDialogConfiguration::~FileDialogConfiguration() = default;

void FileDialogConfiguration::setEventHandler(FileDialogEventHandler* eventHandler)
{
    m_eventHandler = eventHandler;
}

QSize FileDialogConfiguration::getTopLeftOffset()
{
    const QDesktopWidget* desktop = qApp ? QApplication::desktop() : nullptr;
    if (!desktop)
        return QSize();
    const QWidget* mainWindow = applicationMainWindow();
    return offsetOnScreen(m_topLeftOffset,
                          mainWindow ? desktop->screenGeometry(mainWindow) : QRect());
}

bool FileDialogConfiguration::getFileDialogGeometry(QRect& rect)
{
    const QSettings settings;
    const QVariant topLeft = settings.value(topLeftKey(m_settingsKey));
    const QVariant bottomRight = settings.value(bottomRightKey(m_settingsKey));
    if (!topLeft.isValid() || !bottomRight.isValid())
        return false;
    rect.setTopLeft(topLeft.toPoint());
    rect.setBottomRight(bottomRight.toPoint());
    return true;
}

void FileDialogConfiguration::storeFileDialogGeometry(const QRect& rect)
{
    QSettings settings;
    settings.setValue(topLeftKey(m_settingsKey), rect.topLeft());
    settings.setValue(bottomRightKey(m_settingsKey), rect.bottomRight());
}

void FileDialogConfiguration::storeWindowSize(const QSize& size)
{
    QSettings().setValue(windowSizeKey(m_settingsKey), size);
}

QSize FileDialogConfiguration::placedSize(const QSize& stored) const
{
    const QSize window = QSettings().value(windowSizeKey(m_settingsKey)).toSize();
    return QSize(stored.width() == window.width() + 1 ? window.width() : stored.width(),
                 stored.height() == window.height() + 1 ? window.height() : stored.height());
}

QPoint FileDialogConfiguration::getPositionForPreviewer()
{
    return QPoint(-1, -1);
}

void FileDialogConfiguration::storeTemporaryFileDialogGeometry(const QRect&) {}

FileDialogEventHandler* FileDialogConfiguration::getEventHandler() const
{
    return m_eventHandler;
}

void FileDialogConfiguration::addCustomControl(const CustomItem& control)
{
    m_customControls.append(control);
}

int FileDialogConfiguration::numberOfcustomControls() const
{
    return m_customControls.size();
}

const FileDialogConfiguration::CustomItem&
FileDialogConfiguration::getCustomControl(int index) const
{
    return m_customControls.at(index);
}

const FileDialogConfiguration::CustomItem*
FileDialogConfiguration::findCustomControl(int controlId) const
{
    const auto found =
        std::find_if(m_customControls.begin(), m_customControls.end(),
                     [controlId](const CustomItem& item) { return item.controlId == controlId; });
    return found == m_customControls.end() ? nullptr : &*found;
}

void FileDialogConfiguration::setInitialValue(int controlId, const QVariant& value)
{
    for (CustomItem& item : m_customControls) {
        if (item.controlId == controlId) {
            item.initialValue = value;
            return;
        }
    }
}

void FileDialogConfiguration::setDefaultDialogSize(const QSize& size)
{
    m_defaultDialogSize = size;
}

QSize FileDialogConfiguration::getDefaultDialogSize() const
{
    const QRect previewer = m_eventHandler ? m_eventHandler->getPreviewerSize() : QRect();
    if (!previewer.isValid())
        return m_defaultDialogSize;
    return QSize(m_defaultDialogSize.width(), previewer.height());
}

void FileDialogConfiguration::setTopLeftOffset(const QSize& offset)
{
    m_topLeftOffset = offset;
}

void FileDialogConfiguration::setMinimumDialogWidth(int width)
{
    m_minimumDialogWidth = width;
}

int FileDialogConfiguration::minimumDialogWidth() const
{
    return m_minimumDialogWidth;
}

} // namespace Zorvane
