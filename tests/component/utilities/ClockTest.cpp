#include "utilities/Clock.h"

#include <gtest/gtest.h>

#include <optional>
#include <thread>

namespace qncal {
namespace {

const Date morning = Date::of(2026, 3, 31, 9, 30);

TEST(ClockTest, GivesTheMomentThatWasSet)
{
    const ClockOverride clock(morning);
    EXPECT_EQ(now(), morning);
    EXPECT_EQ(today(), Date::of(2026, 3, 31));
}

TEST(ClockTest, AsksTheSourceEachTime)
{
    Date moment = morning;
    const ClockOverride clock([&] { return moment; });
    EXPECT_EQ(now(), morning);
    moment = morning.addDays(1);
    EXPECT_EQ(now(), morning.addDays(1));
    EXPECT_EQ(today(), Date::of(2026, 4, 1));
}

TEST(ClockTest, InnerOverrideEndsWithItsLife)
{
    const ClockOverride outer(morning);
    std::optional<ClockOverride> inner(std::in_place, morning.addDays(1));
    EXPECT_EQ(now(), morning.addDays(1));
    inner.reset();
    EXPECT_EQ(now(), morning);
}

TEST(ClockTest, OverrideHoldsForItsThreadAlone)
{
    const ClockOverride clock(morning);
    Date elsewhere;
    std::thread([&] {
        const ClockOverride other(morning.addDays(7));
        elsewhere = now();
    }).join();
    EXPECT_EQ(elsewhere, morning.addDays(7));
    EXPECT_EQ(now(), morning);
}

} // namespace
} // namespace qncal
