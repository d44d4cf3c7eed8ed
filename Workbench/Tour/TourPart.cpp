#include "Workbench/Tour/TourPart.h"

#include "Workbench/Window/Appearance.h"
#include "Workbench/Window/MainWindow.h"
#include "Workbench/Window/SampleDesigns.h"

#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <QtWidgets/QAction>
#include <QtWidgets/QApplication>

namespace Zorvane::Workbench {

namespace {

bool copyFolder(const QString& from, const QString& to)
{
    const QDir source(from);
    if (from.isEmpty() || !QDir().mkpath(to))
        return false;
    QDirIterator files(from, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString target = QDir(to).filePath(source.relativeFilePath(files.next()));
        if (!QDir().mkpath(QFileInfo(target).path()) || !QFile::copy(files.filePath(), target))
            return false;
    }
    return true;
}

} // namespace

TourPart::TourPart(TourContext& context)
    : m_window(context.window)
    , m_driver(context.driver)
    , m_report(context.report)
    , m_work(context.work)
{}

bool TourPart::copySample(const QString& name)
{
    return copyFolder(sampleFolder(name), workFolder(name));
}

void TourPart::reopen(const QStringList& paths)
{
    m_window.loader().cancel();
    m_window.session().close();
    m_driver.settle();
    m_window.open(paths);
}

void TourPart::picture(const QString& name)
{
    m_report.addPicture(name, m_driver.picture());
}

void TourPart::pictureInBoth(const QString& name, QWidget& dialog, QWidget* beside)
{
    m_report.addPicture(name, m_driver.pictureWith(dialog, beside));
    applyAppearance(*qApp, Appearance::Dark);
    m_driver.settle();
    m_report.addPicture(name + QStringLiteral("-dark"), m_driver.pictureWith(dialog, beside));
    applyAppearance(*qApp, Appearance::Light);
    m_driver.settle();
}

QAction* TourPart::commandNamed(const QString& text) const
{
    for (QAction* action : m_window.actions())
        if (QString(action->text()).remove(QLatin1Char('&')).startsWith(text))
            return action;
    return nullptr;
}

} // namespace Zorvane::Workbench
