#include "view/failure.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace orvanta::test {
namespace {

struct Shown {
    ErrorNumber error;
    int number;
    std::string description;
};

const std::vector<Shown> allErrors{
    {ErrorNumber::InvalidCall, 5, "Invalid procedure call or argument"},
    {ErrorNumber::Overflow, 6, "Overflow"},
    {ErrorNumber::SubscriptOutOfRange, 9, "Subscript out of range"},
    {ErrorNumber::FileNotFound, 53, "File not found"},
    {ErrorNumber::DiskFull, 61, "Disk full"},
    {ErrorNumber::PermissionDenied, 70, "Permission denied"},
    {ErrorNumber::PathFileAccess, 75, "Path/File access error"},
    {ErrorNumber::PathNotFound, 76, "Path not found"},
    {ErrorNumber::ObjectNotSet, 91, "Object variable or With block variable not set"},
    {ErrorNumber::CannotCreateObject, 429, "ActiveX component can't create object"},
    {ErrorNumber::Cancelled, 32755, "Cancel was selected."},
    {ErrorNumber::IndexOutOfBounds, 35600, "Index out of bounds"},
    {ErrorNumber::ElementNotFound, 35601, "Element not found"},
    {ErrorNumber::KeyNotUnique, 35602, "Key is not unique in collection"},
};

TEST(Failure, CarriesItsNumberAndDescription) {
    for (const Shown& shown : allErrors) {
        const Failure failure(shown.error);
        EXPECT_EQ(failure.number, shown.number);
        EXPECT_EQ(failure.description, shown.description);
    }
}

}  // namespace
}  // namespace orvanta::test
