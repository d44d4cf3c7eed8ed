#pragma once

#include <QtCore/QObject>
#include <QtCore/QPointer>

QT_BEGIN_NAMESPACE
class QDialog;
class QWidget;
QT_END_NAMESPACE

namespace Zorvane::Workbench {

/**
 * The library shows Qt's plain file dialogs without a parent. While this lives, modal dialogs that
 * come without one belong to the owner's window: they stay in front of it, and are cancelled when
 * the owner goes, as all that come later. Without an owner nothing changes.
 * Not supported: dialogs that the system draws.
 */
class DialogOwner : public QObject
{
    Q_OBJECT

public:
    explicit DialogOwner(QWidget* owner);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void own(QDialog& dialog) const;

    const QPointer<QWidget> m_owner;
};

} // namespace Zorvane::Workbench
