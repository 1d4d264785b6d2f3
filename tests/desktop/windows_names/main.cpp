// Starts the program and asks for its main window as an assistive program of Windows does, through
// UI Automation: its name, its role and its name within the program.
//   orvanta_window_names PROGRAM
// Wine 8 has the plain functions of that interface and none of its classes, and stops for good
// between two elements of a window, so that the window itself is all that can be asked for.

#include <windows.h>

#include <chrono>
#include <cstdlib>
#include <iostream>
#include <string>
#include <thread>

namespace {

constexpr int controlType = 30003, name = 30005, automationId = 30011;
constexpr LONG windowRole = 50032;

using Node = void*;

struct Client {
    HMODULE library = LoadLibraryW(L"uiautomationcore.dll");
    HRESULT(WINAPI* nodeFromHandle)(HWND, Node*) = routine("UiaNodeFromHandle");
    HRESULT(WINAPI* getPropertyValue)(Node, int, VARIANT*) = routine("UiaGetPropertyValue");

private:
    struct Routine {
        FARPROC address;
        template <class Pointer>
        operator Pointer() const {
            return reinterpret_cast<Pointer>(reinterpret_cast<void*>(address));
        }
    };
    Routine routine(const char* routineName) const {
        return {library ? GetProcAddress(library, routineName) : nullptr};
    }
};

/// The window with a title bar; the picture of the start has none.
HWND mainWindowOf(DWORD process) {
    struct Search {
        DWORD process;
        HWND window = nullptr;
    } search{process};
    EnumWindows(
        [](HWND window, LPARAM parameter) -> BOOL {
            auto& wanted = *reinterpret_cast<Search*>(parameter);
            DWORD owner = 0;
            GetWindowThreadProcessId(window, &owner);
            const bool titled = (GetWindowLongW(window, GWL_STYLE) & WS_CAPTION) == WS_CAPTION;
            if (owner != wanted.process || !titled || !IsWindowVisible(window)) return TRUE;
            wanted.window = window;
            return FALSE;
        },
        reinterpret_cast<LPARAM>(&search));
    return search.window;
}

HWND waitForMainWindow(DWORD process) {
    for (int tries = 0; tries < 600; ++tries) {
        if (const HWND window = mainWindowOf(process)) return window;
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
    }
    return nullptr;
}

std::wstring textOf(const Client& client, Node node, int property) {
    VARIANT value;
    VariantInit(&value);
    if (FAILED(client.getPropertyValue(node, property, &value)) || value.vt != VT_BSTR) return {};
    return value.bstrVal;
}

LONG roleOf(const Client& client, Node node) {
    VARIANT value;
    VariantInit(&value);
    const bool told = SUCCEEDED(client.getPropertyValue(node, controlType, &value));
    return told && value.vt == VT_I4 ? value.lVal : 0;
}

bool isToldRight(HWND window) {
    const Client client;
    Node node = nullptr;
    if (!client.nodeFromHandle || !client.getPropertyValue ||
        FAILED(client.nodeFromHandle(window, &node)))
        return false;
    const std::wstring told = textOf(client, node, name), id = textOf(client, node, automationId);
    const LONG role = roleOf(client, node);
    std::wcout << L"role " << role << L", name \"" << told << L"\", id \"" << id << L"\"\n";
    return role == windowRole && told == L"Orvanta" && id == L"frmMain";
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2 || FAILED(CoInitializeEx(nullptr, COINIT_MULTITHREADED))) return EXIT_FAILURE;
    std::string command = argv[1];
    STARTUPINFOA startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION program{};
    if (!CreateProcessA(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                        &startup, &program))
        return EXIT_FAILURE;
    const HWND window = waitForMainWindow(program.dwProcessId);
    const bool right = window && isToldRight(window);
    TerminateProcess(program.hProcess, EXIT_SUCCESS);
    return right ? EXIT_SUCCESS : EXIT_FAILURE;
}
