#include <windows.h>
// Takes the types of the one above.
#include <shellapi.h>

#include <string>
#include <vector>

#include "recorder.h"
#include "served_class.h"
#include "served_object.h"
#include "view/windows_names.h"

// A word processor in a process of its own that does nothing but keep what is done to it:
//   orvanta_automation_server OPERATIONS [fail N] [end N] [lack MEMBER] [busy N]
// The system starts it for whom asks for an instance. OPERATIONS, a file, gets the operations, a
// line each; nobody else can open it until the process has ended. "fail": the use of that number
// fails, the making of the instance being the first; "end": the process ends there; "lack": no
// object has that member; "busy": so many calls are taken at the second attempt only.

namespace orvanta::test {
namespace {

constexpr UINT longestRun = 120'000;  // milliseconds; for a caller that went without a release

struct Request {
    std::wstring operations;
    int failingUse = 0;
    Flaws flaws;
};

Request requestFrom(const std::vector<std::wstring>& words) {
    Request request;
    if (words.size() > 1) request.operations = words[1];
    for (std::size_t i = 2; i + 1 < words.size(); ++i) {
        if (words[i] == L"fail") request.failingUse = std::stoi(words[i + 1]);
        if (words[i] == L"end") request.flaws.lastUse = std::stoi(words[i + 1]);
        if (words[i] == L"busy") request.flaws.busyCalls = std::stoi(words[i + 1]);
        if (words[i] == L"lack") request.flaws.lackedMember = native::utf8From(words[i + 1]);
    }
    return request;
}

std::vector<std::wstring> wordsOfCommandLine() {
    int count = 0;
    wchar_t** const words = CommandLineToArgvW(GetCommandLineW(), &count);
    return {words, words + count};
}

/// Makes one instance. It lives as long as the program.
class Factory final : public IClassFactory {
public:
    Factory(Service& service, WordProcessors& wordProcessors)
        : m_service(service), m_wordProcessors(wordProcessors) {}

    STDMETHODIMP QueryInterface(REFIID kind, void** result) override {
        const bool known = kind == IID_IUnknown || kind == IID_IClassFactory;
        *result = known ? this : nullptr;
        return known ? S_OK : E_NOINTERFACE;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return 2; }
    STDMETHODIMP_(ULONG) Release() override { return 1; }

    STDMETHODIMP CreateInstance(IUnknown* outer, REFIID kind, void** result) override {
        *result = nullptr;
        if (outer) return CLASS_E_NOAGGREGATION;
        try {
            m_service.use();
            IDispatch* const application = serve(m_service, m_wordProcessors.createApplication());
            const HRESULT given = application->QueryInterface(kind, result);
            application->Release();
            return given;
        } catch (const Failure&) {
            PostQuitMessage(0);
            return E_FAIL;
        }
    }
    STDMETHODIMP LockServer(BOOL) override { return S_OK; }

private:
    Service& m_service;
    WordProcessors& m_wordProcessors;
};

/// Serves until the last object is released.
bool serveAll(Factory& factory) {
    DWORD registration = 0;
    if (FAILED(CoRegisterClassObject(servedClass, &factory, CLSCTX_LOCAL_SERVER, REGCLS_SINGLEUSE,
                                     &registration)))
        return false;
    SetTimer(nullptr, 0, longestRun, nullptr);
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        if (message.message == WM_TIMER && !message.hwnd) break;
        DispatchMessageW(&message);
    }
    CoRevokeClassObject(registration);
    return true;
}

int run(const Request& request) {
    const HANDLE operations = CreateFileW(request.operations.c_str(), GENERIC_WRITE, 0, nullptr,
                                          CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (operations == INVALID_HANDLE_VALUE) return 1;
    Recorder recorder;
    recorder.failUse(request.failingUse);
    Service service(request.flaws);
    Factory factory(service, recorder);
    if (!serveAll(factory)) return 1;
    std::string lines;
    for (const std::string& operation : recorder.operations()) lines += operation + '\n';
    DWORD written = 0;
    const BOOL kept =
        WriteFile(operations, lines.data(), static_cast<DWORD>(lines.size()), &written, nullptr);
    return kept && written == lines.size() ? 0 : 1;
}

}  // namespace
}  // namespace orvanta::test

int main() {
    using namespace orvanta::test;
    if (FAILED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) return 1;
    const int result = run(requestFrom(wordsOfCommandLine()));
    // At once: a thread of the system may still be at work on the answer to the last call.
    TerminateProcess(GetCurrentProcess(), static_cast<UINT>(result));
}
