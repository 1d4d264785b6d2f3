#include "view/failure.h"

#include <array>
#include <cassert>

namespace orvanta {

namespace {

struct ErrorText {
    ErrorNumber number;
    std::string_view description;
};

constexpr std::array<ErrorText, 14> errorTexts{{
    {ErrorNumber::InvalidCall, "Invalid procedure call or argument"},
    {ErrorNumber::Overflow, "Overflow"},
    {ErrorNumber::SubscriptOutOfRange, "Subscript out of range"},
    {ErrorNumber::FileNotFound, "File not found"},
    {ErrorNumber::DiskFull, "Disk full"},
    {ErrorNumber::PermissionDenied, "Permission denied"},
    {ErrorNumber::PathFileAccess, "Path/File access error"},
    {ErrorNumber::PathNotFound, "Path not found"},
    {ErrorNumber::ObjectNotSet, "Object variable or With block variable not set"},
    {ErrorNumber::CannotCreateObject, "ActiveX component can't create object"},
    {ErrorNumber::Cancelled, "Cancel was selected."},
    {ErrorNumber::IndexOutOfBounds, "Index out of bounds"},
    {ErrorNumber::ElementNotFound, "Element not found"},
    {ErrorNumber::KeyNotUnique, "Key is not unique in collection"},
}};

std::string_view descriptionOf(ErrorNumber error) {
    for (const ErrorText& text : errorTexts)
        if (text.number == error) return text.description;
    assert(false);
    return {};
}

}  // namespace

Failure::Failure(ErrorNumber error)
    : number(static_cast<int>(error)), description(descriptionOf(error)) {}

}  // namespace orvanta
