#pragma once

#include "Workbench/Tree/ObjectKind.h"

#include <QtWidgets/QWidget>

#include <map>

QT_BEGIN_NAMESPACE
class QAction;
class QLineEdit;
class QToolButton;
QT_END_NAMESPACE

namespace Zorvane::Workbench {

/** A text and the kinds to show, above the tree. Escape in the text clears it. */
class FilterBar : public QWidget
{
    Q_OBJECT

public:
    explicit FilterBar(QWidget* parent = nullptr);

    void setText(const QString& text);
    void setKindShown(ObjectKind kind, bool shown);
    void showAllKinds();
    /** Gives the text the focus, selected. */
    void focusText();

Q_SIGNALS:
    void textChanged(const QString& text);
    void kindToggled(Zorvane::Workbench::ObjectKind kind, bool shown);

private:
    void addKinds();
    void describeKinds();

    QLineEdit* m_text;
    QToolButton* m_kinds;
    std::map<ObjectKind, QAction*> m_kindActions;
};

} // namespace Zorvane::Workbench
