#include "Tests/Support/ExpectedModals.h"

#include <QtCore/QEvent>
#include <QtCore/QPointer>
#include <QtCore/QRegularExpression>
#include <QtCore/QTimer>
#include <QtTest/QtTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>

#include <algorithm>

namespace Zorvane::Testing {

namespace {

ExpectedModals* s_current = nullptr;

QString describe(const QWidget& window)
{
    QStringList parts{QString::fromLatin1(window.metaObject()->className()), window.windowTitle()};
    if (const auto* box = qobject_cast<const QMessageBox*>(&window))
        parts << box->text() << box->informativeText();
    parts.removeAll(QString());
    return parts.join(QStringLiteral(" / "));
}

bool matchesText(const QWidget& window, const QString& pattern)
{
    const auto* box = qobject_cast<const QMessageBox*>(&window);
    if (!box)
        return false;
    const QRegularExpression expression(pattern);
    const QStringList texts{box->windowTitle(), box->text(), box->informativeText()};
    return std::any_of(texts.begin(), texts.end(), [&expression](const QString& text) {
        return expression.match(text).hasMatch();
    });
}

void closeWindow(QWidget& window)
{
    if (auto* dialog = qobject_cast<QDialog*>(&window))
        dialog->done(QDialog::Rejected);
    else
        window.close();
}

} // namespace

ExpectedModals::ExpectedModals()
{
    Q_ASSERT_X(!s_current, "ExpectedModals", "only one list may be alive at a time");
    s_current = this;
    qApp->installEventFilter(this);
}

ExpectedModals::~ExpectedModals()
{
    s_current = nullptr;
    const QStringList failures = takeFailures();
    if (!failures.isEmpty())
        QTest::qFail(qPrintable(failures.join(QStringLiteral("; "))), __FILE__, __LINE__);
}

void ExpectedModals::expectMessageBox(const QString& pattern, QMessageBox::StandardButton answer)
{
    expectMessageBox(pattern, [this, answer](QMessageBox& box) {
        QAbstractButton* button = box.button(answer);
        if (button && button->isVisible() && button->isEnabled())
            QTest::mouseClick(button, Qt::LeftButton);
        else
            refuse(box, QStringLiteral("cannot press button %1").arg(answer, 0, 16));
    });
}

void ExpectedModals::expectMessageBox(const QString& pattern,
                                      std::function<void(QMessageBox&)> answer)
{
    expect(
        QStringLiteral("message box ") + pattern,
        [pattern](const QWidget& window) { return matchesText(window, pattern); },
        [answer](QWidget& window) { answer(dynamic_cast<QMessageBox&>(window)); });
}

void ExpectedModals::expect(const QString& description, Matcher matches,
                            std::function<void(QWidget&)> answer)
{
    m_expected.push_back({description, std::move(matches), std::move(answer)});
}

QStringList ExpectedModals::takeFailures()
{
    QStringList failures;
    failures.swap(m_failures);
    for (const Expectation& expectation : m_expected)
        failures << QStringLiteral("expected modal window that never came: ") +
                        expectation.description;
    m_expected.clear();
    return failures;
}

bool ExpectedModals::eventFilter(QObject* watched, QEvent* event)
{
    auto* window = qobject_cast<QWidget*>(watched);
    if (event->type() != QEvent::Show || event->spontaneous() || !window || !window->isWindow() ||
        !window->isModal() || isTolerated(*window))
        return false;
    // The window's own event loop has not started yet.
    QTimer::singleShot(0, window, [this, list = QPointer<ExpectedModals>(this), window] {
        if (list)
            handle(*window);
    });
    return false;
}

bool ExpectedModals::isTolerated(const QWidget& window) const
{
    return std::any_of(m_tolerated.begin(), m_tolerated.end(),
                       [&window](const Matcher& matches) { return matches(window); });
}

void ExpectedModals::handle(QWidget& window)
{
    if (!window.isVisible())
        return;
    if (m_expected.empty()) {
        refuse(window, QStringLiteral("unexpected modal window"));
        return;
    }
    if (!m_expected.front().matches(window)) {
        refuse(window, QStringLiteral("expected ") + m_expected.front().description +
                           QStringLiteral(" but there came"));
        return;
    }
    const Expectation expectation = m_expected.front();
    m_expected.pop_front();
    const QPointer<QWidget> answered(&window);
    expectation.answer(window);
    if (answered && answered->isVisible())
        refuse(*answered, QStringLiteral("the answer left the window open"));
}

void ExpectedModals::refuse(QWidget& window, const QString& why)
{
    m_failures << why + QStringLiteral(": ") + describe(window);
    closeWindow(window);
}

} // namespace Zorvane::Testing
