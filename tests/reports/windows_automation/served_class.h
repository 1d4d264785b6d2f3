#pragma once

#include <windows.h>

namespace orvanta::test {

/// The class under which the tests register the word processor of this program.
inline constexpr GUID servedClass{
    0x2d8e4c17, 0x61fa, 0x4b93, {0xa7, 0x5e, 0xc0, 0x38, 0x9a, 0x12, 0x6f, 0xd4}};

}  // namespace orvanta::test
