#include "reports/windows_word_processor.h"

#include <windows.h>

#include <memory>
#include <utility>

#include "view/failure.h"
#include "view/path_text.h"
#include "view/windows_names.h"

namespace orvanta {

namespace {

/// Of a text of the code page or a path.
std::wstring wide(std::string_view text) { return native::wideFrom(nativeFromPath(text)); }

class Variant {
public:
    Variant() { VariantInit(&m_value); }
    explicit Variant(const WordValue& value) : Variant() {
        std::visit([this](const auto& kind) { hold(kind); }, value);
    }
    ~Variant() { VariantClear(&m_value); }
    Variant(const Variant&) = delete;
    Variant& operator=(const Variant&) = delete;

    VARIANT& raw() { return m_value; }

private:
    void hold(bool value) {
        m_value.vt = VT_BOOL;
        m_value.boolVal = value ? VARIANT_TRUE : VARIANT_FALSE;
    }
    void hold(int value) {
        m_value.vt = VT_I4;
        m_value.lVal = value;
    }
    void hold(double value) {
        m_value.vt = VT_R8;
        m_value.dblVal = value;
    }
    void hold(const std::string& value) {
        const std::wstring text = wide(value);
        m_value.vt = VT_BSTR;
        m_value.bstrVal = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
    }
    void hold(const WordObjectPtr& value);

    VARIANT m_value;
};

/// A word processor that is busy, as one that has just started, takes no calls for a while. One
/// that shows a dialog which nobody sees takes none at all: its calls wait ten seconds together.
class Patience {
public:
    /// What the call gives once it is taken.
    template <class Call>
    HRESULT wait(Call call) {
        HRESULT result = call();
        for (; isBusy(result) && m_pausesLeft > 0; --m_pausesLeft) {
            pause();
            result = call();
        }
        return result;
    }

private:
    static bool isBusy(HRESULT result) {
        return result == RPC_E_CALL_REJECTED || result == RPC_E_SERVERCALL_RETRYLATER;
    }
    /// A tenth of a second, in which what other processes send to this thread gets its answer.
    static void pause() {
        HANDLE endOfThread = GetCurrentThread();
        DWORD which = 0;
        CoWaitForMultipleHandles(0, 100, 1, &endOfThread, &which);
    }

    int m_pausesLeft = 100;
};

/// An object of the other process. It fails with InvalidCall whatever is wrong there.
class AutomationObject : public WordObject {
public:
    /// Takes over one reference. All objects of an instance have the same patience.
    AutomationObject(IDispatch* object, std::shared_ptr<Patience> patience)
        : m_object(object), m_patience(std::move(patience)) {}
    ~AutomationObject() override { m_object->Release(); }
    AutomationObject(const AutomationObject&) = delete;
    AutomationObject& operator=(const AutomationObject&) = delete;

    WordObjectPtr get(std::string_view member, const WordArguments& arguments) override {
        Variant result;
        invoke(member, arguments, DISPATCH_METHOD | DISPATCH_PROPERTYGET, &result.raw());
        if (result.raw().vt != VT_DISPATCH || !result.raw().pdispVal)
            throw Failure(ErrorNumber::InvalidCall);
        IDispatch* object = result.raw().pdispVal;
        object->AddRef();
        return std::make_shared<AutomationObject>(object, m_patience);
    }
    void put(std::string_view member, const WordValue& value) override {
        invoke(member, {value}, DISPATCH_PROPERTYPUT, nullptr);
    }
    void call(std::string_view member, const WordArguments& arguments) override {
        invoke(member, arguments, DISPATCH_METHOD, nullptr);
    }

    IDispatch* raw() const { return m_object; }

private:
    static void require(HRESULT result) {
        if (FAILED(result)) throw Failure(ErrorNumber::InvalidCall);
    }

    DISPID numberOf(std::string_view member) const {
        std::wstring name = wide(member);
        LPOLESTR names = name.data();
        DISPID number = DISPID_UNKNOWN;
        require(m_patience->wait([&] {
            return m_object->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &number);
        }));
        return number;
    }

    void invoke(std::string_view member, const WordArguments& arguments, WORD how,
                VARIANT* result) {
        std::vector<VARIANT> raw;
        std::vector<std::unique_ptr<Variant>> held;
        for (auto argument = arguments.rbegin(); argument != arguments.rend(); ++argument) {
            held.push_back(std::make_unique<Variant>(*argument));  // the last one comes first
            raw.push_back(held.back()->raw());
        }
        DISPPARAMS parameters{raw.data(), nullptr, static_cast<UINT>(raw.size()), 0};
        DISPID valueOfProperty = DISPID_PROPERTYPUT;
        if (how == DISPATCH_PROPERTYPUT) {
            parameters.rgdispidNamedArgs = &valueOfProperty;
            parameters.cNamedArgs = 1;
        }
        const DISPID number = numberOf(member);
        require(m_patience->wait([&] {
            return m_object->Invoke(number, IID_NULL, LOCALE_USER_DEFAULT, how, &parameters, result,
                                    nullptr, nullptr);
        }));
    }

    IDispatch* m_object;
    std::shared_ptr<Patience> m_patience;
};

void Variant::hold(const WordObjectPtr& value) {
    const auto* object = dynamic_cast<const AutomationObject*>(value.get());
    if (!object) throw Failure(ErrorNumber::InvalidCall);
    m_value.vt = VT_DISPATCH;
    m_value.pdispVal = object->raw();
    m_value.pdispVal->AddRef();
}

/// A new instance with one reference; nothing where none can be had.
IDispatch* newApplication() {
    CLSID wordClass;
    if (FAILED(CLSIDFromProgID(L"Word.Application", &wordClass))) return nullptr;
    void* application = nullptr;
    if (FAILED(
            CoCreateInstance(wordClass, nullptr, CLSCTX_LOCAL_SERVER, IID_IDispatch, &application)))
        return nullptr;
    return static_cast<IDispatch*>(application);
}

}  // namespace

WindowsWordProcessors::WindowsWordProcessors(WordProcessors& otherwise)
    : m_otherwise(otherwise),
      m_usesCom(SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {}

WindowsWordProcessors::~WindowsWordProcessors() {
    if (m_usesCom) CoUninitialize();
}

WordObjectPtr WindowsWordProcessors::createApplication() {
    if (IDispatch* application = newApplication())
        return std::make_shared<AutomationObject>(application, std::make_shared<Patience>());
    return m_otherwise.createApplication();
}

}  // namespace orvanta
