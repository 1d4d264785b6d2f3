#pragma once

#include <string>
#include <string_view>

namespace orvanta {

// Paths inside the program are Windows-1252 texts like all others, but a folder may have any name
// that the system allows. So what the code page lacks stands in a path as the name's own bytes, in
// hex digits between two of the bytes that the code page leaves open; to say it with "?" would make
// one path of two names and lead back to neither.
//
// One text rather than a value with two: a path goes through the models of list and text boxes, the
// fields of the file dialog, the settings and routines that put folders and names together. As the
// text leads back to the name, all of them hold the name too, and two paths are the same where
// their texts are. A path within the code page is its plain text. Only the edges know: the disk,
// and what the window shows, takes from the system and hands to it. The test driver gives paths as
// they are in the code page, with "?" for the rest.

/// The path of a name that the system gave (UTF-8, or whatever bytes it is of).
std::string pathFromNative(std::string_view name);

/// The name that a path leads back to. Any text can be a path.
std::string nativeFromPath(std::string_view path);

}  // namespace orvanta
