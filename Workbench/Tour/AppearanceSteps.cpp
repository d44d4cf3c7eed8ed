#include "Workbench/Tour/AppearanceSteps.h"

#include "Workbench/MeshView/MeshView.h"
#include "Workbench/Texts/Language.h"
#include "Workbench/Window/Appearance.h"
#include "Workbench/Window/MainWindow.h"

#include <QtWidgets/QApplication>
#include <QtWidgets/QTreeView>

namespace Zorvane::Workbench {

namespace {

constexpr double s_largeScale = 1.5;

/** A window as on a screen of another scale. */
QImage scaledPicture(QWidget& window, double scale)
{
    QImage picture(window.size() * scale, QImage::Format_RGB32);
    picture.setDevicePixelRatio(scale);
    window.render(&picture);
    return picture;
}

} // namespace

void AppearanceSteps::perform()
{
    goDark();
    lookClosely();
    mirror();
    speakGerman();
    walkByTab();
}

void AppearanceSteps::goDark()
{
    m_report.beginStep(text("Dark"), text("The same in dark colours, seen from a corner."));
    reopen({workFolder(text("door-panel"))});
    m_driver.waitUntilRead();
    m_driver.select(ObjectKind::Tool, text("Draw punch"));
    m_driver.waitFor([this] { return m_window.meshView().hasMesh(); });
    m_window.meshView().setDirection(ViewDirection::Isometric);
    applyAppearance(*qApp, Appearance::Dark);
    m_driver.settle();
    const QImage dark = m_driver.picture();
    m_report.expect(qGray(dark.pixel(dark.width() / 2, dark.height() - 4)) < 90,
                    text("dark colours"));
    picture(text("dark"));
    applyAppearance(*qApp, Appearance::Light);
}

void AppearanceSteps::lookClosely()
{
    m_report.beginStep(QStringLiteral("At 150 %"),
                       QStringLiteral("Patches and pictures as sharp as the screen."));
    m_driver.select(ObjectKind::Material, QStringLiteral("DC06, 0.8 mm"));
    m_report.addPicture(QStringLiteral("at-150-percent"), scaledPicture(m_window, s_largeScale));
}

void AppearanceSteps::mirror()
{
    m_report.beginStep(QStringLiteral("From right to left"),
                       QStringLiteral("Mirrored, as languages written from right to left are."));
    QApplication::setLayoutDirection(Qt::RightToLeft);
    // Figures are brought into their order when they are written.
    reopen({workFolder(QStringLiteral("door-panel"))});
    m_driver.waitUntilRead();
    m_driver.select(ObjectKind::Part, QStringLiteral("Door panel"));
    m_driver.waitFor([this] { return m_window.meshView().hasMesh(); });
    const MeshLegend& legend = m_window.meshView().legend();
    m_report.expect(legend.geometry().center().x() < m_window.meshView().width() / 2,
                    QStringLiteral("the legend on the left"));
    picture(QStringLiteral("from-right-to-left"));
    QApplication::setLayoutDirection(Qt::LeftToRight);
    m_driver.settle();
}

void AppearanceSteps::speakGerman()
{
    m_report.beginStep(QStringLiteral("In German"),
                       QStringLiteral("Another window, as on a German system."));
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    {
        const Language language{QLocale()};
        MainWindow window;
        window.resizeAndDivide(m_window.size());
        window.show();
        window.open({workFolder(QStringLiteral("drawn-cup"))});
        m_report.expect(m_driver.waitFor([&window] { return !window.loader().isBusy(); }),
                        QStringLiteral("all meshes are read"));
        window.tree().refreshNow();
        const QAbstractItemModel& model = window.tree().model();
        const QString title = model.headerData(TreeColumn::UsedBy, Qt::Horizontal).toString();
        m_report.expect(title == QStringLiteral("Nutzer"), QStringLiteral("the title ") + title);
        m_report.addPicture(QStringLiteral("in-german"), window.grab().toImage());
    }
    QLocale::setDefault(before);
    m_window.activateWindow();
    m_report.expect(m_driver.waitFor([this] { return m_window.isActiveWindow(); }),
                    QStringLiteral("the first window again"));
}

void AppearanceSteps::walkByTab()
{
    m_report.beginStep(text("By keyboard"),
                       text("The Tab key leads to every control, and each has a name."));
    m_driver.settle();
    const QStringList stops = m_driver.tabStops();
    m_report.expect(stops.size() >= 4, text("at least four stops"));
    m_report.expect(!stops.contains(QString()), stops.join(text(", ")));
    m_window.treeView().setFocus();
}

} // namespace Zorvane::Workbench
