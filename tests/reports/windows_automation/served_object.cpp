#include "served_object.h"

#include <algorithm>

#include "view/failure.h"
#include "view/path_text.h"
#include "view/windows_names.h"

namespace orvanta::test {

namespace {

/// Asks an object of this process for itself.
constexpr GUID servedObject{
    0x9b1f6a52, 0x3c47, 0x4e0d, {0x8f, 0x21, 0x5d, 0x0e, 0x77, 0xc4, 0x19, 0xab}};

/// What a caller has got wrong, as automation says it.
struct Refused {
    HRESULT reason;
};

class ServedObject final : public IDispatch {
public:
    ServedObject(Service& service, WordObjectPtr object)
        : m_service(service), m_object(std::move(object)) {
        m_service.objectMade();
    }

    STDMETHODIMP QueryInterface(REFIID kind, void** result) override {
        const bool known = kind == IID_IUnknown || kind == IID_IDispatch || kind == servedObject;
        *result = known ? this : nullptr;
        if (!known) return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return ++m_references; }
    STDMETHODIMP_(ULONG) Release() override {
        const ULONG left = --m_references;
        if (left == 0) delete this;
        return left;
    }

    STDMETHODIMP GetTypeInfoCount(UINT* count) override {
        *count = 0;
        return S_OK;
    }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) override {
        if (m_service.isBusy()) return RPC_E_CALL_REJECTED;
        if (count != 1) return DISP_E_UNKNOWNNAME;
        *ids = m_service.numberOf(native::utf8From(*names));
        return *ids == DISPID_UNKNOWN ? DISP_E_UNKNOWNNAME : S_OK;
    }
    STDMETHODIMP Invoke(DISPID member, REFIID, LCID, WORD how, DISPPARAMS* parameters,
                        VARIANT* result, EXCEPINFO* exception, UINT*) override {
        if (m_service.isBusy()) return RPC_E_SERVERCALL_RETRYLATER;
        try {
            m_service.use();
            invoke(m_service.memberOf(member), how, *parameters, result);
            return S_OK;
        } catch (const Refused& refused) {
            return refused.reason;
        } catch (const Failure& failure) {
            if (exception) *exception = {};
            if (exception) exception->wCode = static_cast<WORD>(failure.number);
            return DISP_E_EXCEPTION;
        }
    }

    const WordObjectPtr& object() const { return m_object; }

private:
    ~ServedObject() { m_service.objectReleased(); }

    void invoke(const std::string& member, WORD how, const DISPPARAMS& parameters,
                VARIANT* result) {
        const WordArguments arguments = argumentsOf(parameters);
        const bool isPut = how & DISPATCH_PROPERTYPUT;
        if (parameters.cNamedArgs != (isPut ? 1 : 0)) throw Refused{DISP_E_NONAMEDARGS};
        if (isPut) {
            if (*parameters.rgdispidNamedArgs != DISPID_PROPERTYPUT || arguments.size() != 1)
                throw Refused{DISP_E_PARAMNOTFOUND};
            m_object->put(member, arguments.front());
        } else if (how & DISPATCH_PROPERTYGET) {
            if (!result) throw Refused{E_POINTER};
            result->pdispVal = serve(m_service, m_object->get(member, arguments));
            result->vt = VT_DISPATCH;
        } else {
            m_object->call(member, arguments);
        }
    }

    static WordArguments argumentsOf(const DISPPARAMS& parameters) {
        WordArguments arguments;
        for (UINT i = parameters.cArgs; i > 0; --i)  // the last one comes first
            arguments.push_back(valueOf(parameters.rgvarg[i - 1]));
        return arguments;
    }

    static WordValue valueOf(const VARIANT& value) {
        switch (value.vt) {
            case VT_BOOL:
                return value.boolVal != VARIANT_FALSE;
            case VT_I4:
                return static_cast<int>(value.lVal);
            case VT_R8:
                return value.dblVal;
            case VT_BSTR:
                return pathFromNative(
                    native::utf8From({value.bstrVal, SysStringLen(value.bstrVal)}));
            case VT_DISPATCH:
                return objectOf(value.pdispVal);
            default:
                throw Refused{DISP_E_BADVARTYPE};
        }
    }

    static WordObjectPtr objectOf(IDispatch* object) {
        void* served = nullptr;
        if (!object || FAILED(object->QueryInterface(servedObject, &served)))
            throw Refused{DISP_E_TYPEMISMATCH};
        auto* const own = static_cast<ServedObject*>(served);
        const WordObjectPtr found = own->object();
        own->Release();
        return found;
    }

    Service& m_service;
    WordObjectPtr m_object;
    ULONG m_references = 1;
};

}  // namespace

DISPID Service::numberOf(const std::string& member) {
    if (member == m_flaws.lackedMember) return DISPID_UNKNOWN;
    const auto found = std::ranges::find(m_members, member);
    const auto index = found - m_members.begin();
    if (found == m_members.end()) m_members.push_back(member);
    return static_cast<DISPID>(index + 1);
}

const std::string& Service::memberOf(DISPID number) const {
    const auto index = static_cast<std::size_t>(number) - 1;
    if (index >= m_members.size()) throw Refused{DISP_E_MEMBERNOTFOUND};
    return m_members[index];
}

bool Service::isBusy() {
    const bool isFirstAttempt = ++m_calls % 2 == 1;
    return isFirstAttempt && m_calls < 2 * m_flaws.busyCalls;
}

void Service::use() {
    if (++m_uses == m_flaws.lastUse) TerminateProcess(GetCurrentProcess(), 1);
}

void Service::objectReleased() {
    if (--m_objects == 0) PostQuitMessage(0);
}

IDispatch* serve(Service& service, WordObjectPtr object) {
    return new ServedObject(service, std::move(object));
}

}  // namespace orvanta::test
