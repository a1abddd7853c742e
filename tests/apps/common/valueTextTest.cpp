#include "common/valueText.h"

#include <gtest/gtest.h>

namespace qncal::firmcal {
namespace {

const Date moment = Date::of(2026, 3, 31, 9, 5);

TEST(ValueText, WritesDays) { EXPECT_EQ(dayText(moment), "2026-03-31"); }

TEST(ValueText, WritesTimes) { EXPECT_EQ(timeText(moment), "09:05"); }

TEST(ValueText, WritesDaysForPeople) { EXPECT_EQ(readableDay(moment), "Tue, Mar 31, 2026"); }

TEST(ValueText, AnItemWithoutASubjectSaysSo)
{
    EXPECT_EQ(subjectText(""), "(no subject)");
    EXPECT_EQ(subjectText("Year end"), "Year end");
}

} // namespace
} // namespace qncal::firmcal
