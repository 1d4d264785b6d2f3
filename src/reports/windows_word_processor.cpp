#include "reports/windows_word_processor.h"

#include <windows.h>

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

/// An object of the other process. It fails with InvalidCall whatever is wrong there.
class AutomationObject : public WordObject {
public:
    /// Takes over one reference.
    explicit AutomationObject(IDispatch* object) : m_object(object) {}
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
        return std::make_shared<AutomationObject>(object);
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
        require(m_object->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &number));
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
        require(m_object->Invoke(numberOf(member), IID_NULL, LOCALE_USER_DEFAULT, how, &parameters,
                                 result, nullptr, nullptr));
    }

    IDispatch* m_object;
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
        return std::make_shared<AutomationObject>(application);
    return m_otherwise.createApplication();
}

}  // namespace orvanta
