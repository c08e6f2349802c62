#include "base/EventGuard.h"

#include <gtest/gtest.h>

#include <new>
#include <stdexcept>
#include <string>
#include <vector>

#include "base/Errors.h"
#include "fakes/FakeReporter.h"

namespace kalvora {
namespace {

class EventGuards : public testing::Test {
 protected:
  using Messages = std::vector<std::wstring>;
  FakeReporter reporter_;
  EventGuard guard_{reporter_};
};

TEST_F(EventGuards, letAHandlerRunToItsEnd) {
  int runs = 0;
  EXPECT_TRUE(guard_.run([&] { ++runs; }));
  EXPECT_EQ(runs, 1);
  EXPECT_EQ(reporter_.messages, Messages{});
}

TEST_F(EventGuards, reportAFailureAndEndTheHandlerThatMetIt) {
  bool passed = false;
  EXPECT_FALSE(guard_.run([&] {
    throw Failure(L"Not now");
    passed = true;
  }));
  EXPECT_FALSE(passed);
  EXPECT_EQ(reporter_.messages, Messages{L"Not now"});
}

TEST_F(EventGuards, reportOverflowsAndConversionErrorsWithTheirValue) {
  guard_.run([] { throw OverflowError(40000); });
  guard_.run([] { throw ConversionError(L"ten"); });
  ASSERT_EQ(reporter_.messages.size(), 2U);
  EXPECT_NE(reporter_.messages[0].find(L"40000"), std::wstring::npos);
  EXPECT_NE(reporter_.messages[1].find(L"ten"), std::wstring::npos);
}

TEST_F(EventGuards, reportOtherExceptionsToo) {
  EXPECT_FALSE(guard_.run([] { throw std::runtime_error("caf\xE9"); }));
  EXPECT_FALSE(guard_.run([] { throw std::bad_alloc(); }));
  EXPECT_FALSE(guard_.run([] { throw 5; }));
  EXPECT_EQ(reporter_.messages,
            (Messages{L"caf\u00E9", L"There is not enough memory.", L"An unknown error."}));
}

TEST_F(EventGuards, innerGuardKeepsTheOuterHandlerRunning) {
  bool passed = false;
  EXPECT_TRUE(guard_.run([&] {
    guard_.run([] { throw Failure(L"inner"); });
    passed = true;
  }));
  EXPECT_TRUE(passed);
  EXPECT_EQ(reporter_.messages, Messages{L"inner"});
}

TEST_F(EventGuards, handlerThatIsMissingIsReported) {
  EXPECT_FALSE(guard_.run({}));
  EXPECT_EQ(reporter_.messages.size(), 1U);
}

}  // namespace
}  // namespace kalvora
