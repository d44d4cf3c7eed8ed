#pragma once

#include "Tests/Support/TestCase.h"

#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

namespace Zorvane::Testing {

/**
 * The offscreen screen activates whatever is shown, which others leave to whoever is active. A
 * window of the system is active before Qt has heard of it, and keys go where Qt thinks they do.
 */
inline void activate(QWidget& window)
{
    window.activateWindow();
    QTRY_COMPARE(QApplication::activeWindow(), &window);
    QTRY_VERIFY(QApplication::focusWidget() && QApplication::focusWidget()->window() == &window);
}

/** To whatever has the focus, as a keyboard does. */
inline void press(QWidget& window, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    activate(window);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key(key), modifiers);
}

inline void type(QWidget& window, const QString& text)
{
    activate(window);
    QTest::keyClicks(QApplication::focusWidget(), text);
    // Names that the dialog knows are proposed in a list that takes the next keys.
    if (QWidget* proposals = QApplication::activePopupWidget())
        proposals->hide();
}

inline bool isFocused(const char* objectName)
{
    const QWidget* focused = QApplication::focusWidget();
    return focused != nullptr && focused->objectName() == QLatin1String(objectName);
}

} // namespace Zorvane::Testing
