#include "Tests/Support/Windows/RegisteredClass.h"

#include "Files/Windows/ComObject.h"
#include "Tests/Support/Windows/CallScript.h"

#include <QtCore/QtGlobal>

#include <utility>

namespace Zorvane::Testing {

namespace {

class Factory final : public ComObject<IClassFactory>, private Counted
{
public:
    explicit Factory(RegisteredClass::Create create)
        : m_create(std::move(create))
    {}

    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID iid, void** result) override
    {
        return outer ? CLASS_E_NOAGGREGATION : m_create(iid, result);
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }

private:
    RegisteredClass::Create m_create;
};

} // namespace

RegisteredClass::RegisteredClass(REFCLSID classId, Create create)
{
    const auto factory = ComPointer<Factory>::adopt(new Factory(std::move(create)));
    if (FAILED(CoRegisterClassObject(classId, factory.get(), CLSCTX_INPROC_SERVER,
                                     REGCLS_MULTIPLEUSE, &m_cookie)))
        qFatal("cannot register a class object");
}

RegisteredClass::~RegisteredClass()
{
    CoRevokeClassObject(m_cookie);
}

} // namespace Zorvane::Testing
