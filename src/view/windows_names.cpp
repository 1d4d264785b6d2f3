#include "view/windows_names.h"

#include <windows.h>

namespace orvanta::native {

namespace {

constexpr std::wstring_view longPrefix = LR"(\\?\)", longNetworkPrefix = LR"(\\?\UNC\)",
                            networkPrefix = LR"(\\)", devicePrefix = LR"(\\.\)";

/// A text that the system gives once it was told the room for it.
template <class Text, class Call>
Text filledBy(Call call) {
    Text text(static_cast<std::size_t>(call(nullptr, 0)), {});
    text.resize(static_cast<std::size_t>(call(text.data(), text.size())));
    return text;
}

std::wstring wholePath(const std::wstring& name) {
    return filledBy<std::wstring>([&](wchar_t* room, std::size_t size) {
        return GetFullPathNameW(name.c_str(), static_cast<DWORD>(size), room, nullptr);
    });
}

}  // namespace

std::wstring wideFrom(std::string_view utf8) {
    return filledBy<std::wstring>([&](wchar_t* room, std::size_t size) {
        return MultiByteToWideChar(CP_UTF8, 0, utf8.data(), static_cast<int>(utf8.size()), room,
                                   static_cast<int>(size));
    });
}

std::string utf8From(std::wstring_view wide) {
    return filledBy<std::string>([&](char* room, std::size_t size) {
        return WideCharToMultiByte(CP_UTF8, 0, wide.data(), static_cast<int>(wide.size()), room,
                                   static_cast<int>(size), nullptr, nullptr);
    });
}

std::wstring longName(const std::string& name) {
    const std::wstring whole = wholePath(wideFrom(name));
    if (whole.starts_with(longPrefix) || isDevice(whole)) return whole;
    if (whole.starts_with(networkPrefix))
        return std::wstring(longNetworkPrefix) + whole.substr(networkPrefix.size());
    return whole.empty() ? whole : std::wstring(longPrefix) + whole;
}

bool isDevice(std::wstring_view longName) { return longName.starts_with(devicePrefix); }

std::string usualName(std::wstring_view longName) {
    if (longName.starts_with(longNetworkPrefix))
        return R"(\\)" + utf8From(longName.substr(longNetworkPrefix.size()));
    return utf8From(longName.substr(longName.starts_with(longPrefix) ? longPrefix.size() : 0));
}

}  // namespace orvanta::native
