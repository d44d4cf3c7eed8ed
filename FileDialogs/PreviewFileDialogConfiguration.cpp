#include "FileDialogs/PreviewFileDialogConfiguration.h"

#include "FileDialogs/PreviewEditorInterface.h"
#include "FileDialogs/PreviewFileDialogEventHandler.h"
#include "FileDialogs/ScreenGeometry.h"
#include "Host/Translation/Translator.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>

namespace Zorvane {

namespace {

constexpr QSize s_usualScreenMargin(30, 30);

/** The screen of a preview window; null if there is none of this number. */
const QScreen* screenOfNumber(int number)
{
    const QList<QScreen*> screens = QGuiApplication::screens();
    return screens.value(number == -1 ? 0 : number);
}

QPoint asPoint(const QSize& distance)
{
    return QPoint(distance.width(), distance.height());
}

} // namespace

const int PreviewFileDialogConfiguration::s_distanceBetweenFileDlgAndPreviewer = distanceToPreview;

PreviewFileDialogConfiguration::PreviewFileDialogConfiguration(
    const std::string& settingsKey, const std::string& showPreviewKey,
    const std::string& captionForSingleFile, const std::string& captionForMultipleFiles,
    const std::string& scope, const std::list<ZvFileType>& fileTypes, bool enableAllFilesEntry)
    : FileDialogConfiguration(QString::fromStdString(settingsKey))
    , m_showPreviewKey(QString::fromStdString(showPreviewKey))
    , m_captionForSingleFile(QString::fromStdString(captionForSingleFile))
    , m_captionForMultipleFiles(QString::fromStdString(captionForMultipleFiles))
    , m_scope(QString::fromStdString(scope))
    , m_fileTypes(fileTypes)
    , m_enableAllFilesEntry(enableAllFilesEntry)
    , m_screenMargin(s_usualScreenMargin)
{}

PreviewFileDialogConfiguration::PreviewFileDialogConfiguration(
    const PreviewFileDialogConfiguration& other) = default;
PreviewFileDialogConfiguration&
PreviewFileDialogConfiguration::operator=(const PreviewFileDialogConfiguration& other) = default;
PreviewFileDialogConfiguration::~PreviewFileDialogConfiguration() = default;

void PreviewFileDialogConfiguration::setEventHandler(PreviewFileDialogEventHandler* eventHandler)
{
    FileDialogConfiguration::setEventHandler(eventHandler);
    if (!eventHandler)
        return;
    eventHandler->setFileDialogConfiguration(this);
    CustomItem checkBox;
    checkBox.controlId = PreviewFileDialogEventHandler::s_previewCheckBoxId;
    checkBox.controlType = CheckBox;
    checkBox.controlState = ControlEnabledVisible;
    checkBox.content = Translator::translate("PreviewFileDialogConfiguration", "Preview");
    checkBox.initialValue = eventHandler->isPreviewWanted();
    addCustomControl(checkBox);
}

void PreviewFileDialogConfiguration::setEventHandler(std::nullptr_t)
{
    FileDialogConfiguration::setEventHandler(nullptr);
}

void PreviewFileDialogConfiguration::beginCall(bool isPreviewWanted)
{
    m_dialogWithPreviewGeometry = QRect();
    m_temporaryDialogGeometry = QRect();
    setInitialValue(PreviewFileDialogEventHandler::s_previewCheckBoxId, isPreviewWanted);
}

bool PreviewFileDialogConfiguration::prepareFitting(const QRect& preview)
{
    const bool isLaidOut = !m_dialogWithPreviewGeometry.isNull();
    const QRect dialog = isLaidOut ? m_dialogWithPreviewGeometry
                                   : QRect(asPoint(getTopLeftOffset()), getDefaultDialogSize());
    const bool isPreviewOnScreen =
        isLaidOut || getGeometryOfScreenWithFileDialog(dialog).contains(preview);
    if (isPreviewOnScreen && dialog.width() >= minimumDialogWidth())
        return false;
    storeTemporaryFileDialogGeometry(dialog);
    return true;
}

QSize PreviewFileDialogConfiguration::getTopLeftOffset()
{
    PreviewFileDialogEventHandler* handler = previewHandler();
    const QScreen* screen =
        handler ? screenOfNumber(handler->editor()->getScreenNumber()) : nullptr;
    return screen ? offsetOnScreen(m_screenMargin, screen->geometry()) : QSize();
}

bool PreviewFileDialogConfiguration::getFileDialogGeometry(QRect& rect)
{
    const QRect besidePreview = getFileDialogWithPreviewGeometry();
    if (!besidePreview.isNull()) {
        rect = besidePreview;
        storeFileDialogGeometry(QRect());
        return true;
    }
    return previewHandler() && FileDialogConfiguration::getFileDialogGeometry(rect);
}

void PreviewFileDialogConfiguration::storeFileDialogGeometry(const QRect& rect)
{
    if (previewHandler())
        FileDialogConfiguration::storeFileDialogGeometry(rect);
}

QPoint PreviewFileDialogConfiguration::getPositionForPreviewer()
{
    QRect dialog = takeDialogGeometry();
    PreviewFileDialogEventHandler* handler = previewHandler();
    if (dialog.isNull() || !handler) {
        const int width = getDefaultDialogSize().width() + distanceToPreview;
        return asPoint(getTopLeftOffset()) + QPoint(width, 0);
    }
    const std::shared_ptr<PreviewEditorInterface>& editor = handler->editor();
    QRect screen = getGeometryOfScreenWithFileDialog(dialog);
    if (screen.isNull()) {
        const QScreen* previewScreen = screenOfNumber(editor->getScreenNumber());
        screen = previewScreen ? previewScreen->availableGeometry() : QRect();
        dialog.moveTopLeft(asPoint(offsetOnScreen(m_screenMargin, screen)));
    }
    QRect preview = editor->getGeometry();
    adjustGeometryOfFileDialogAndPreview(dialog, preview, screen);
    keepMinimumWidth(dialog, preview, screen, minimumDialogWidth());
    m_dialogWithPreviewGeometry = dialog;
    return preview.topLeft();
}

QRect PreviewFileDialogConfiguration::takeDialogGeometry()
{
    QRect dialog = getTemporaryFileDialogGeometry();
    m_temporaryDialogGeometry = QRect();
    // A program that ended while the dialog was open has left a null rectangle in the settings.
    if (dialog.isNull() && previewHandler() && !QGuiApplication::screens().isEmpty())
        getFileDialogGeometry(dialog);
    return dialog;
}

void PreviewFileDialogConfiguration::storeTemporaryFileDialogGeometry(const QRect& rect)
{
    m_temporaryDialogGeometry = rect;
}

QString PreviewFileDialogConfiguration::getShowPreviewKey() const
{
    return m_showPreviewKey;
}

QString PreviewFileDialogConfiguration::getDialogCaptionForSingleFile() const
{
    return m_captionForSingleFile;
}

QString PreviewFileDialogConfiguration::getDialogCaptionForMultipleFiles() const
{
    return m_captionForMultipleFiles;
}

QString PreviewFileDialogConfiguration::getScopeName() const
{
    return m_scope;
}

const std::list<ZvFileType>& PreviewFileDialogConfiguration::getFileTypes() const
{
    return m_fileTypes;
}

bool PreviewFileDialogConfiguration::enableAllFilesEntry() const
{
    return m_enableAllFilesEntry;
}

PreviewFileDialogEventHandler* PreviewFileDialogConfiguration::previewHandler() const
{
    return dynamic_cast<PreviewFileDialogEventHandler*>(getEventHandler());
}

QRect PreviewFileDialogConfiguration::getFileDialogWithPreviewGeometry() const
{
    return m_dialogWithPreviewGeometry;
}

QRect PreviewFileDialogConfiguration::getTemporaryFileDialogGeometry() const
{
    return m_temporaryDialogGeometry;
}

QRect PreviewFileDialogConfiguration::getGeometryOfScreenWithFileDialog(const QRect& rect) const
{
    return availableAreaWith(rect, currentScreens());
}

void PreviewFileDialogConfiguration::adjustGeometryOfFileDialogAndPreview(QRect& dialog,
                                                                          QRect& preview,
                                                                          const QRect& screen) const
{
    placeSideBySide(dialog, preview, screen, m_screenMargin);
}

} // namespace Zorvane
