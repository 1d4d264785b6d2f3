#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace orvanta {

inline constexpr std::string_view overviewPage = "/orvanta-overview/";
inline constexpr std::string_view supportPage = "/support/";

/// The host of the product's pages, a port included where it has one: ORVANTA_WEB_HOST of the
/// build.
std::string_view webHost();

/// The address of one of the pages above.
std::string webAddress(std::string_view page, std::string_view host = webHost());

/// True for a host whose name is kept for examples and tests, so that no page can be there.
bool isReservedHost(std::string_view host);

/// The copy of a page that was installed with the program, as a path below the program's folder;
/// none if the target is no such page or its host is a real one.
std::optional<std::string> installedCopy(std::string_view target,
                                         std::string_view host = webHost());

}  // namespace orvanta
