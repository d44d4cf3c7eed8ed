#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <windows.h>

namespace Zorvane::Testing {

/** What fake objects write down of the calls that they get, and which of them they let fail. */
class CallScript
{
public:
    /** Notes a call, in words such as "SetTitle(Open)", and says what it is to return. */
    HRESULT enter(const QString& call);

    const QStringList& calls() const { return m_calls; }
    /** The first word of each call, for tests of their order. */
    QStringList names() const;
    /** The calls of that name, with their arguments. */
    QStringList callsOf(const QString& name) const;
    bool hasCall(const QString& call) const { return m_calls.contains(call); }

    /** Every call of that name fails. */
    void failCalls(const QString& name, HRESULT result);
    /** The call at that place fails, counted from 0. */
    void failCallAt(int place, HRESULT result);
    /** Every call of that name throws `std::bad_alloc`. */
    void throwAtCalls(const QString& name) { m_throwingName = name; }

    /** While it lives nothing is written down and nothing fails: a fake makes the calls itself. */
    class Silence
    {
    public:
        explicit Silence(CallScript& script)
            : m_script(script)
        {
            ++m_script.m_silences;
        }
        ~Silence() { --m_script.m_silences; }

        Silence(const Silence&) = delete;
        Silence& operator=(const Silence&) = delete;

    private:
        CallScript& m_script;
    };

private:
    QStringList m_calls;
    QString m_failingName;
    QString m_throwingName;
    int m_failingPlace = -1;
    HRESULT m_failure = E_FAIL;
    int m_silences = 0;
};

/** How many objects of derived classes there are. */
class Counted
{
public:
    static int living();

protected:
    Counted();
    Counted(const Counted&);
    Counted& operator=(const Counted&) = default;
    ~Counted();
};

} // namespace Zorvane::Testing
