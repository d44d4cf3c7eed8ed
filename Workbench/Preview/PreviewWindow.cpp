#include "Workbench/Preview/PreviewWindow.h"

#include <QtCore/QEvent>
#include <QtCore/QFileInfo>
#include <QtGui/QGuiApplication>
#include <QtWidgets/QVBoxLayout>

namespace Zorvane::Workbench {

namespace {

/** Most files are read sooner; until then the previous one stays, rather than flicker. */
constexpr int s_patienceMilliseconds = 150;
constexpr QSize s_usualSize(420, 600);

} // namespace

PreviewWindow::PreviewWindow()
    : QWidget(nullptr, Qt::Tool | Qt::WindowDoesNotAcceptFocus)
    , m_pane(new PreviewPane(this))
{
    setWindowTitle(tr("Preview"));
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_QuitOnClose, false);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_pane);
    resize(sizeHint());
    m_patience.setSingleShot(true);
    m_patience.setInterval(s_patienceMilliseconds);
    connect(&m_patience, &QTimer::timeout, this, &PreviewWindow::tellReading);
    connect(&m_reader, &PreviewReader::ready, this,
            [this](const QString& path, const PreviewContent& content) {
                m_patience.stop();
                PreviewContent shown = content;
                shown.picture.setDevicePixelRatio(devicePixelRatioF());
                m_pane->show(QFileInfo(path).fileName(), shown);
            });
    // Without a parent, so that the dialog doesn't block it, nothing else keeps it in front.
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this,
            [this](Qt::ApplicationState state) {
                if (state == Qt::ApplicationActive && isVisible())
                    raise();
            });
    showFile({});
}

QSize PreviewWindow::sizeHint() const
{
    return s_usualSize;
}

void PreviewWindow::showFile(const QString& path)
{
    m_path = path;
    if (path.isEmpty()) {
        m_reader.cancel();
        m_patience.stop();
        m_pane->showMessage(tr("Select a file to see it here."));
        return;
    }
    read();
    m_patience.start();
}

void PreviewWindow::read()
{
    PreviewRequest request;
    request.path = m_path;
    request.look.pixels = (QSizeF(m_pane->contentSize()) * devicePixelRatioF()).toSize();
    request.look.dark = palette().color(QPalette::Window).lightness() < 128;
    m_reader.request(request);
}

void PreviewWindow::tellReading()
{
    m_pane->showMessage(tr("Reading %1…").arg(QFileInfo(m_path).fileName()));
}

void PreviewWindow::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && !m_path.isEmpty())
        read();
}

} // namespace Zorvane::Workbench
