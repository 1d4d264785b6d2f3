#pragma once

#include <string_view>

namespace orvanta {

/// What the world can refuse. The numbers are those that a person sees in a message.
enum class ErrorNumber {
    InvalidCall = 5,
    Overflow = 6,
    SubscriptOutOfRange = 9,
    FileNotFound = 53,
    DiskFull = 61,
    PermissionDenied = 70,
    PathFileAccess = 75,
    PathNotFound = 76,
    ObjectNotSet = 91,
    CannotCreateObject = 429,
    Cancelled = 32755,
    IndexOutOfBounds = 35600,
    ElementNotFound = 35601,
    KeyNotUnique = 35602,
};

/// A failure of the world, thrown by value. Nothing else is thrown by this program on purpose.
struct Failure {
    explicit Failure(ErrorNumber error);

    int number;
    std::string_view description;
};

}  // namespace orvanta
