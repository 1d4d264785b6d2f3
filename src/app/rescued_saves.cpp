#include "app/rescued_saves.h"

#include <utility>

#include "view/native_file.h"
#include "view/path_text.h"

namespace orvanta {

namespace {

constexpr std::string_view notWritten = " was not written", copyLies = ". A copy is in ",
                           noCopy = ", and no copy could be kept.";

std::string joined(std::string_view file, std::string_view words, std::string_view place = {}) {
    return std::string(file).append(notWritten).append(words).append(place);
}

}  // namespace

void RescuedSaves::sessionNotWritten(const std::string& path, std::string_view bytes) {
    const std::string name = nativeFromPath(path);
    const std::string_view file = native::withoutFolder(name);
    try {
        const std::string copy = m_store.keep(name, bytes);
        tell(joined(file, copyLies, m_store.folder()), joined(name, copyLies, copy));
    } catch (const Failure&) {
        tell(joined(file, noCopy), joined(name, noCopy));
    }
}

void RescuedSaves::documentNotWritten(const std::string& path) {
    const std::string name = nativeFromPath(path);
    tell(joined(native::withoutFolder(name), "."), joined(name, "."));
}

void RescuedSaves::forget() {
    if (!m_line.empty()) tell({}, {});
}

void RescuedSaves::tell(std::string line, std::string details) {
    m_line = std::move(line);
    m_details = std::move(details);
    changed();
}

}  // namespace orvanta
