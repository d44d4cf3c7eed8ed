#include "Tests/Support/Windows/CallScript.h"

#include <new>

namespace Zorvane::Testing {

namespace {

int s_living = 0;

QString nameOf(const QString& call)
{
    return call.section(QLatin1Char('('), 0, 0);
}

} // namespace

HRESULT CallScript::enter(const QString& call)
{
    if (m_silences > 0)
        return S_OK;
    const bool fails = m_calls.size() == m_failingPlace || nameOf(call) == m_failingName;
    m_calls.append(call);
    if (nameOf(call) == m_throwingName)
        throw std::bad_alloc();
    return fails ? m_failure : S_OK;
}

QStringList CallScript::names() const
{
    QStringList names;
    for (const QString& call : m_calls)
        names.append(nameOf(call));
    return names;
}

QStringList CallScript::callsOf(const QString& name) const
{
    QStringList found;
    for (const QString& call : m_calls) {
        if (nameOf(call) == name)
            found.append(call);
    }
    return found;
}

void CallScript::failCalls(const QString& name, HRESULT result)
{
    m_failingName = name;
    m_failure = result;
}

void CallScript::failCallAt(int place, HRESULT result)
{
    m_failingPlace = place;
    m_failure = result;
}

int Counted::living()
{
    return s_living;
}

Counted::Counted()
{
    ++s_living;
}

Counted::Counted(const Counted&)
{
    ++s_living;
}

Counted::~Counted()
{
    --s_living;
}

} // namespace Zorvane::Testing
