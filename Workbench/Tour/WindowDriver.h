#pragma once

#include "Host/Identifiers/IDCombiner.h"
#include "Workbench/Tree/ObjectKind.h"

#include <QtCore/QStringList>
#include <QtGui/QImage>

#include <functional>
#include <vector>

QT_BEGIN_NAMESPACE
class QModelIndex;
class QPainter;
class QWidget;
QT_END_NAMESPACE

namespace Zorvane::Workbench {

class MainWindow;

/** Hands and eyes of someone who uses the main window. */
class WindowDriver
{
public:
    explicit WindowDriver(MainWindow& window);

    /** Lets events run until the condition holds; false if it doesn't within two minutes. */
    bool waitFor(const std::function<bool()>& condition) const;
    /** Lets the events that are waiting, and those they cause, run. */
    void settle() const;
    /** Until nothing is read any more and the tree is in step. */
    bool waitUntilRead() const;
    void pressKey(QWidget* widget, int key, const QString& text = {}) const;
    void type(QWidget* widget, const QString& text) const;

    /** Nothing's id unless there is an object of this kind and name. */
    IDCombiner find(ObjectKind kind, const QString& name) const;
    bool select(ObjectKind kind, const QString& name) const;
    /** What the tree shows at an object; empty when the object is not shown. */
    QString cell(const IDCombiner& id, int column) const;
    /** Names of all rows in the order shown, those below collapsed rows left out. */
    QStringList visibleNames() const;
    /** The name of the first row in sight. */
    QString firstNameInSight() const;
    /** The editor of a name in the tree; null while none is edited. */
    QWidget* nameEditor() const;
    /** Accessible names of the widgets that the Tab key leads to, in order, from the tree. */
    QStringList tabStops() const;

    QImage picture() const;
    /** The window with a dialog over it, under its title, and with the window beside that. */
    QImage pictureWith(QWidget& dialog, QWidget* beside = nullptr) const;

private:
    int titleHeight(const QWidget& window) const;
    QSize frameSize(const QWidget& window) const;
    void drawWindow(QPainter& painter, QWidget& window, const QPoint& corner) const;
    void addVisibleNames(const QModelIndex& parent, QStringList& names) const;

    MainWindow& m_window;
};

} // namespace Zorvane::Workbench
