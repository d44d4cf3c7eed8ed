#pragma once

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtWidgets/QDialog>

#include <deque>
#include <functional>

namespace Zorvane::Workbench {

/**
 * Answers the modal dialogs that appear while it lives, each by the next answer in line, which has
 * to close it. Dialogs that stay open, and those that nobody has an answer for, are rejected, so
 * that nothing hangs, and counted.
 */
class DialogAnswers : public QObject
{
    Q_OBJECT

public:
    using Answer = std::function<void(QDialog&)>;

    DialogAnswers();

    void add(Answer answer) { m_answers.push_back(std::move(answer)); }
    /** Whether all answers were given, and no dialog was without. */
    bool allGiven() const { return m_answers.empty() && m_rejected == 0; }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void answer(QDialog& dialog);

    std::deque<Answer> m_answers;
    int m_rejected = 0;
};

} // namespace Zorvane::Workbench
