#include <windows.h>
// Needs the former.
#include <shobjidl.h>

#include <QDir>
#include <memory>

#include "core/constants.h"
#include "desktop/conversions.h"
#include "desktop/file_dialog_place.h"
#include "desktop/system_file_dialog.h"
#include "view/windows_names.h"

namespace orvanta::desktop {

namespace {

struct Release {
    void operator()(IUnknown* object) const { object->Release(); }
};
template <class Interface>
using Held = std::unique_ptr<Interface, Release>;

/// Null where the call fails.
template <class Interface, class Call>
Held<Interface> heldFrom(Call call) {
    Interface* object = nullptr;
    return Held<Interface>(SUCCEEDED(call(&object)) ? object : nullptr);
}

Held<IShellItem> itemOf(const std::wstring& path) {
    return heldFrom<IShellItem>([&](IShellItem** item) {
        return SHCreateItemFromParsingName(path.c_str(), nullptr, IID_PPV_ARGS(item));
    });
}

/// Takes over what the system has made.
std::string textOf(wchar_t* made) {
    const std::string text = made ? native::utf8From(made) : std::string();
    CoTaskMemFree(made);
    return text;
}

std::string pathOf(IShellItem* item) {
    wchar_t* path = nullptr;
    if (item) item->GetDisplayName(SIGDN_FILESYSPATH, &path);
    return textOf(path);
}

std::string typedIn(IFileDialog& dialog) {
    wchar_t* typed = nullptr;
    dialog.GetFileName(&typed);
    return textOf(typed);
}

std::string shownFolder(IFileDialog& dialog) {
    return pathOf(heldFrom<IShellItem>([&](auto** item) { return dialog.GetFolder(item); }).get());
}

std::vector<std::string> severalChosenIn(IFileOpenDialog& dialog) {
    std::vector<std::string> paths;
    const auto items =
        heldFrom<IShellItemArray>([&](auto** all) { return dialog.GetResults(all); });
    DWORD count = 0;
    if (items) items->GetCount(&count);
    for (DWORD i = 0; i < count; ++i)
        paths.push_back(pathOf(
            heldFrom<IShellItem>([&](auto** item) { return items->GetItemAt(i, item); }).get()));
    return paths;
}

std::vector<std::string> chosenIn(IFileDialog& dialog) {
    const std::string typed = typedIn(dialog);
    if (beginsAtHome(typed)) return {typed};  // a name to the system
    const auto several = heldFrom<IFileOpenDialog>(
        [&](auto** open) { return dialog.QueryInterface(IID_PPV_ARGS(open)); });
    if (several) return severalChosenIn(*several);
    return {
        pathOf(heldFrom<IShellItem>([&](auto** item) { return dialog.GetResult(item); }).get())};
}

HWND windowOf(IFileDialog& dialog) {
    HWND handle = nullptr;
    const auto window = heldFrom<IOleWindow>(
        [&](auto** found) { return dialog.QueryInterface(IID_PPV_ARGS(found)); });
    if (window) window->GetWindow(&handle);
    return handle;
}

void refuse(IFileDialog& dialog, const FileChoice& choice) {
    const std::wstring text =
        fromCp1252(choice.reason).toStdWString() + L'\n' + native::wideFrom(choice.path);
    MessageBoxW(windowOf(dialog), text.c_str(), fromCp1252(appTitle).toStdWString().c_str(),
                MB_OK | MB_ICONERROR);
}

/// Holds the dialog to the rules. It lives on the stack, longer than the dialog, and counts
/// nothing.
class Rules : public IFileDialogEvents {
public:
    explicit Rules(const FileDialogRequest& request) : m_place(placeOf(request)) {}

    /// What the rules made of what was chosen last.
    const QStringList& paths() const { return m_paths; }

    HRESULT STDMETHODCALLTYPE OnFileOk(IFileDialog* dialog) override {
        m_paths.clear();
        m_place.folder = shownFolder(*dialog);
        const bool takesAll = takeAll(m_place, chosenIn(*dialog), [&](const FileChoice& choice) {
            return take(*dialog, choice);
        });
        return takesAll && !m_paths.isEmpty() ? S_OK : S_FALSE;
    }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
        const bool known = IsEqualIID(id, IID_IUnknown) || IsEqualIID(id, IID_IFileDialogEvents);
        *object = known ? this : nullptr;
        return known ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 1; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    HRESULT STDMETHODCALLTYPE OnFolderChanging(IFileDialog*, IShellItem*) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnFolderChange(IFileDialog*) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnSelectionChange(IFileDialog*) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnShareViolation(IFileDialog*, IShellItem*,
                                               FDE_SHAREVIOLATION_RESPONSE*) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE OnTypeChange(IFileDialog*) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnOverwrite(IFileDialog*, IShellItem*,
                                          FDE_OVERWRITE_RESPONSE*) override {
        return E_NOTIMPL;
    }

private:
    bool take(IFileDialog& dialog, const FileChoice& choice) {
        switch (choice.act) {
            case FileChoiceAct::EnterFolder:
                if (const auto folder = itemOf(native::wideFrom(choice.path)))
                    dialog.SetFolder(folder.get());
                dialog.SetFileName(L"");
                return false;
            case FileChoiceAct::Refuse:
                refuse(dialog, choice);
                return false;
            case FileChoiceAct::TakeFile:
                m_paths.append(QString::fromStdString(choice.path));
        }
        return true;
    }

    FileDialogPlace m_place;
    QStringList m_paths;
};

Held<IFileDialog> dialogFor(FileDialogMode mode) {
    const CLSID& kind = mode == FileDialogMode::Open ? CLSID_FileOpenDialog : CLSID_FileSaveDialog;
    return heldFrom<IFileDialog>([&](IFileDialog** dialog) {
        return CoCreateInstance(kind, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(dialog));
    });
}

/// What the system would ask or refuse by itself is left to the rules.
void setOptions(IFileDialog& dialog, FileCount count) {
    FILEOPENDIALOGOPTIONS options = 0;
    dialog.GetOptions(&options);
    options &= ~static_cast<DWORD>(FOS_OVERWRITEPROMPT | FOS_FILEMUSTEXIST | FOS_NOREADONLYRETURN);
    options |= FOS_FORCEFILESYSTEM | FOS_NOCHANGEDIR | FOS_NOTESTFILECREATE;
    if (count == FileCount::Several) options |= FOS_ALLOWMULTISELECT;
    dialog.SetOptions(options);
}

void setFilter(IFileDialog& dialog, const std::string& filter) {
    const QString whole = fromCp1252(filter);
    const std::wstring description = whole.section(u'|', 0, 0).toStdWString(),
                       pattern = whole.section(u'|', 1, 1).toStdWString();
    if (pattern.empty()) return;
    const COMDLG_FILTERSPEC type{description.c_str(), pattern.c_str()};
    dialog.SetFileTypes(1, &type);
}

void prepare(IFileDialog& dialog, const FileDialogRequest& request) {
    setFilter(dialog, request.filter);
    const QString folder = QDir::toNativeSeparators(startFolder(request.initialPath));
    if (const auto item = itemOf(folder.toStdWString())) dialog.SetFolder(item.get());
    if (!request.fileName.empty())
        dialog.SetFileName(fromPath(request.fileName).toStdWString().c_str());
}

}  // namespace

QStringList askForFiles(const FileDialogRequest& request, FileCount count, QWidget* owner) {
    const auto dialog = dialogFor(request.mode);
    if (!dialog) return {};
    setOptions(*dialog, count);
    prepare(*dialog, request);
    Rules rules(request);
    DWORD listening = 0;
    dialog->Advise(&rules, &listening);
    const HRESULT result =
        dialog->Show(owner ? reinterpret_cast<HWND>(owner->window()->winId()) : nullptr);
    dialog->Unadvise(listening);
    return SUCCEEDED(result) ? rules.paths() : QStringList();
}

}  // namespace orvanta::desktop
