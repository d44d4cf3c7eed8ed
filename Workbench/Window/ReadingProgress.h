#pragma once

#include <QtWidgets/QWidget>

QT_BEGIN_NAMESPACE
class QLabel;
class QProgressBar;
class QPushButton;
QT_END_NAMESPACE

namespace Zorvane::Workbench {

class MeshLoader;

/** Shows how far the reading of meshes is, with a button to stop it; hidden while none is read. */
class ReadingProgress : public QWidget
{
    Q_OBJECT

public:
    explicit ReadingProgress(const MeshLoader& loader, QWidget* parent = nullptr);

Q_SIGNALS:
    void cancelled();

private:
    void show(int done, int total);

    QLabel* m_text;
    QProgressBar* m_bar;
    QPushButton* m_cancel;
};

} // namespace Zorvane::Workbench
