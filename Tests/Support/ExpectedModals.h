#pragma once

#include <QtCore/QObject>
#include <QtCore/QStringList>
#include <QtWidgets/QDialog>
#include <QtWidgets/QMessageBox>

#include <deque>
#include <functional>
#include <vector>

namespace Zorvane::Testing {

/**
 * The modal windows that a test expects, in order, each with its answer:
 *
 *     ExpectedModals modals;
 *     modals.expectMessageBox(QStringLiteral("Copy File"), QMessageBox::Yes);
 *     modals.expectDialog<CollisionDialog>(QStringLiteral("collision"), [](CollisionDialog& box) {
 *         QTest::mouseClick(box.skipButton(), Qt::LeftButton);
 *     });
 *     ... code that shows them ...
 *     QVERIFY(modals.allMet());
 *
 * The test fails if a window appears that is not the next one expected (it is closed at once, so
 * that nothing hangs), if an answer leaves its window open, and if an expectation is still unmet
 * when the list goes out of scope. Answers run inside the window's own event loop, after it is
 * shown, so a further modal window may be opened by one; that window's expectation stands next
 * in the list. A window that closes before anybody could answer counts as if it had not come. Only
 * one list may be alive at a time.
 * Not supported: windows that Qt doesn't draw (native file dialogs, message boxes of the system).
 */
class ExpectedModals : public QObject
{
    Q_OBJECT

public:
    ExpectedModals();
    ~ExpectedModals() override;

    /** A message box with a text that matches (title, text or informative text), and its button. */
    void expectMessageBox(const QString& pattern, QMessageBox::StandardButton answer);
    /** The same, answered by code that leaves the box closed. */
    void expectMessageBox(const QString& pattern, std::function<void(QMessageBox&)> answer);

    /** A window of the class, answered by code that leaves it closed. */
    template <typename Dialog>
    void expectDialog(const QString& description, std::function<void(Dialog&)> answer)
    {
        expect(description, matcherOf<Dialog>(),
               [answer](QWidget& window) { answer(dynamic_cast<Dialog&>(window)); });
    }

    /** Windows of the class come and go by themselves: progress, for example. */
    template <typename Dialog>
    void tolerate()
    {
        m_tolerated.push_back(matcherOf<Dialog>());
    }

    /** Whether every window that was expected so far has come, and no other. */
    bool allMet() const { return m_expected.empty() && m_failures.isEmpty(); }
    /** What went wrong so far, in plain words. */
    const QStringList& failures() const { return m_failures; }
    /**
     * Takes the failures and the unmet expectations, so that they do not fail the test: for the
     * tests of this class.
     */
    QStringList takeFailures();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    using Matcher = std::function<bool(const QWidget&)>;
    struct Expectation
    {
        QString description;
        Matcher matches;
        std::function<void(QWidget&)> answer;
    };

    template <typename Dialog>
    static Matcher matcherOf()
    {
        return
            [](const QWidget& window) { return dynamic_cast<const Dialog*>(&window) != nullptr; };
    }

    void expect(const QString& description, Matcher matches, std::function<void(QWidget&)> answer);
    bool isTolerated(const QWidget& window) const;
    void handle(QWidget& window);
    void refuse(QWidget& window, const QString& why);

    std::deque<Expectation> m_expected;
    std::vector<Matcher> m_tolerated;
    QStringList m_failures;
};

} // namespace Zorvane::Testing
