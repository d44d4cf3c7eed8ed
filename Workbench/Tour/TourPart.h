#pragma once

#include "Workbench/Tour/TourContext.h"

QT_BEGIN_NAMESPACE
class QAction;
class QWidget;
QT_END_NAMESPACE

namespace Zorvane::Workbench {

/** Steps of a tour that belong together. A part begins where the one before has left the window. */
class TourPart
{
public:
    explicit TourPart(TourContext& context);

protected:
    static QString text(const char* literal) { return QString::fromUtf8(literal); }

    bool copySample(const QString& name);
    QString workFolder(const QString& name) const { return m_work.filePath(name); }
    void reopen(const QStringList& paths);
    void picture(const QString& name);
    /** Over the window, in light and in dark colours. */
    void pictureInBoth(const QString& name, QWidget& dialog, QWidget* beside = nullptr);
    /** Of the window, wherever the menus have it; null if none begins so. */
    QAction* commandNamed(const QString& text) const;

    MainWindow& m_window;
    const WindowDriver& m_driver;
    TourReport& m_report;

private:
    const QTemporaryDir& m_work;
};

} // namespace Zorvane::Workbench
