#include "view/notice.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>

namespace orvanta::test {
namespace {

TEST(Notice, TellsItsListenersInTheOrderInWhichTheySubscribed) {
    Notice notice;
    std::string told;
    for (const char name : {'a', 'b', 'c'}) notice.subscribe([&told, name] { told += name; });
    notice();
    notice();
    EXPECT_EQ(told, "abcabc");
}

TEST(Notice, TellsAllListenersAtOnceWhenOneOfThemGivesItAgain) {
    Notice notice;
    std::string told;
    notice.subscribe([&] {
        told += 'a';
        if (told == "a") notice();
    });
    notice.subscribe([&told] { told += 'b'; });
    notice();
    EXPECT_EQ(told, "aabb");
}

TEST(Notice, TakesListenersOfOtherNoticesWhileItIsGiven) {
    Notice notice, other;
    std::string told;
    notice.subscribe([&] { other.subscribe([&told] { told += 'o'; }); });
    notice();
    other();
    EXPECT_EQ(told, "o");
}

TEST(Notice, TakesListenersAgainOnceOneHasThrown) {
    Notice notice;
    bool throws = true;
    notice.subscribe([&throws] {
        if (throws) throw std::runtime_error("refused");
    });
    EXPECT_THROW(notice(), std::runtime_error);
    throws = false;
    bool told = false;
    notice.subscribe([&told] { told = true; });
    notice();
    EXPECT_TRUE(told);
}

TEST(NoticeDeathTest, EndsTheProgramWhenAListenerSubscribesToTheNoticeThatItIsToldOf) {
    Notice notice;
    notice.subscribe([&notice] { notice.subscribe([] {}); });
    EXPECT_DEATH(notice(), "subscribes to the notice that it is told of");
}

TEST(NoticeDeathTest, EndsTheProgramWhenAListenerDestroysTheNoticeThatItIsToldOf) {
    auto notice = std::make_unique<Notice>();
    notice->subscribe([&notice] { notice.reset(); });
    EXPECT_DEATH((*notice)(), "destroys the notice that it is told of");
}

TEST(NoticeDeathTest, EndsTheProgramAtAListenerThatIsNone) {
    Notice notice;
    EXPECT_DEATH(notice.subscribe({}), "listener");
}

}  // namespace
}  // namespace orvanta::test
