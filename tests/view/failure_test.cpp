#include "view/failure.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "analysis_bench.h"
#include "core/failures.h"

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

TEST(Failure, IsTheOnlyThingThatCarryingOnPassesOver) {
    const BestEffort step;
    EXPECT_TRUE(step([] {}));
    EXPECT_FALSE(step([] { throw Failure(ErrorNumber::DiskFull); }));
    EXPECT_THROW(step([] { throw std::runtime_error("our own mistake"); }), std::runtime_error);
}

TEST(Failure, IsShownWithItsNumberInBrackets) {
    Bench bench;
    bench.start();
    reportingFailures(bench.program().platform.messages,
                      [] { throw Failure(ErrorNumber::FileNotFound); });
    bench.play({{"do", "activate"}});
    EXPECT_EQ(bench.events(), Json::array({refusal("[53] File not found")}));
}

TEST(Failure, LeavesTheStepsAheadOfItDone) {
    Bench bench;
    int done = 0;
    reportingFailures(bench.program().platform.messages, [&] {
        ++done;
        throw Failure(ErrorNumber::FileNotFound);
    });
    EXPECT_EQ(done, 1);
}

TEST(Narrowing, KeepsWhatFitsAndFailsBeyond) {
    EXPECT_EQ(narrowed<std::int16_t>(32767), 32767);
    EXPECT_THROW(narrowed<std::int16_t>(32768), Failure);
    EXPECT_EQ(narrowed<std::int32_t>(std::int64_t{2147483647}), 2147483647);
    EXPECT_THROW(narrowed<std::int32_t>(std::int64_t{2147483648}), Failure);
}

}  // namespace
}  // namespace orvanta::test
