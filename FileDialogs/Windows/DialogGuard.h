#pragma once

#include "Files/Windows/ComPointer.h"

#include <QtCore/QTimer>

#include <exception>
#include <memory>

#include <windows.h>

#include <shobjidl.h>

namespace Zorvane {

/**
 * Lets code of the host run inside the system's while a dialog is shown. What it throws may not
 * pass through the system's code: it is kept for whoever shows the dialog, the dialog is closed,
 * and the host is called no more. Lives as long as the dialog's call, so that what comes later can
 * find out that it is over.
 */
class DialogGuard : public std::enable_shared_from_this<DialogGuard>
{
public:
    /** Without a dialog there is nothing to close. */
    explicit DialogGuard(IFileDialog* dialog)
        : m_dialog(dialog)
    {}

    DialogGuard(const DialogGuard&) = delete;
    DialogGuard& operator=(const DialogGuard&) = delete;

    /** For code that is called out of a message or an event of the dialog. */
    template <typename Code>
    void run(Code code)
    {
        if (keepThrown(code))
            close();
    }

    /**
     * For code that the system calls while it looks for the next message: a dialog that is closed
     * by then may throw that message away, such as the one that Qt's timers wait for.
     */
    template <typename Code>
    void runBetweenMessages(Code code)
    {
        if (!keepThrown(code))
            return;
        QTimer::singleShot(0, [guard = weak_from_this()] {
            if (const std::shared_ptr<DialogGuard> living = guard.lock())
                living->close();
        });
    }

    /** Throws what was kept, if there is something. */
    void rethrow() const
    {
        if (m_thrown)
            std::rethrow_exception(m_thrown);
    }

private:
    /** Whether the code has just thrown something. */
    template <typename Code>
    bool keepThrown(Code& code)
    {
        if (m_thrown)
            return false;
        try {
            code();
        } catch (...) {
            m_thrown = std::current_exception();
        }
        return m_thrown != nullptr;
    }

    void close()
    {
        if (m_dialog)
            m_dialog->Close(E_UNEXPECTED);
    }

    ComPointer<IFileDialog> m_dialog;
    std::exception_ptr m_thrown;
};

} // namespace Zorvane
