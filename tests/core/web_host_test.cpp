#include "core/web_host.h"

#include <gtest/gtest.h>

namespace orvanta::test {
namespace {

TEST(ReservedHost, EndsInANameThatIsKeptForExamplesAndTests) {
    for (const char* host :
         {"www.orvanta.example", "swot.invalid", "pages.test", "localhost", "my.localhost",
          "example.com", "www.example.net", "example.org", "WWW.Orvanta.EXAMPLE",
          "www.orvanta.example.", "www.orvanta.example:8080", "localhost:80"})
        EXPECT_TRUE(isReservedHost(host)) << host;
}

TEST(ReservedHost, IsNoneThatOnlyLooksLikeOne) {
    for (const char* host :
         {"www.orvanta.com", "example.de", "myexample.com", "orvanta-example.net", "latest",
          "contest.eu", "test.eu", "localhost.eu", "example.com.eu", "127.0.0.1", "", "."})
        EXPECT_FALSE(isReservedHost(host)) << host;
}

TEST(InstalledCopy, TakesThePlaceOfPagesThatCannotBeThere) {
    EXPECT_EQ(installedCopy("http://www.orvanta.example/orvanta-overview/", "www.orvanta.example"),
              "site/orvanta-overview/index.html");
    EXPECT_EQ(installedCopy("http://localhost:80/support/", "localhost:80"),
              "site/support/index.html");
}

TEST(InstalledCopy, LeavesThePagesOfARealHostAlone) {
    EXPECT_EQ(installedCopy("http://www.orvanta.com/support/", "www.orvanta.com"), std::nullopt);
    EXPECT_EQ(installedCopy("http://www.orvanta.com/orvanta-overview/", "www.orvanta.com"),
              std::nullopt);
}

TEST(InstalledCopy, StandsForNothingElse) {
    for (const char* target :
         {"http://swot.example/", "http://swot.example/download.php?type=gbs",
          "http://swot.example/support", "http://swot.example/support/index.html",
          "http://other.example/support/", "https://swot.example/support/",
          "mailto:?subject=Invitation&body=http%3A%2F%2Fswot.example%2Fdownload.php?type%3Dgbs ",
          "app/System/report.htm", "/support/", ""})
        EXPECT_EQ(installedCopy(target, "swot.example"), std::nullopt) << target;
}

TEST(WebAddress, NamesTheHostOfTheBuild) {
    EXPECT_EQ(webAddress(supportPage), "http://" + std::string(webHost()) + "/support/");
    EXPECT_EQ(webAddress(overviewPage, "swot.eu:8080"), "http://swot.eu:8080/orvanta-overview/");
}

}  // namespace
}  // namespace orvanta::test
