#include "firmcal/ItemProperty.h"

#include "common/Failure.h"
#include "utilities/Clock.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace qncal::firmcal {
namespace {

/// A text that the property takes, and what it then shows.
std::pair<std::string, nlohmann::ordered_json> sampleFor(const ItemProperty& known)
{
    if (known.type == "yes/no")
        return {"yes", true};
    if (known.type == "date")
        return {"tomorrow", "2026-03-05"};
    if (known.type == "time")
        return {"10:30", "10:30"};
    if (known.type == "hours")
        return {"0:45", 0.75F};
    if (known.type == "colour")
        return {"#102030", "#102030"};
    if (known.name == "CalendarItemArchiveStatus")
        return {"2", 2};
    if (known.type == "text")
        return {"Größe = 5", "Größe = 5"};
    return {"3", 3};
}

TEST(ItemProperty, EveryFieldThatCanBeSetShowsWhatWasSet)
{
    const ClockOverride clock(Date::of(2026, 3, 4, 9));
    int checked = 0;
    for (const ItemProperty& known : itemProperties()) {
        if (!known.set || !known.get)
            continue;
        clsCalendarItem item;
        const auto& [text, shown] = sampleFor(known);
        applyAssignment(item, std::string(known.name) + "=" + text);
        EXPECT_EQ(known.get(item), shown) << known.name;
        ++checked;
    }
    EXPECT_EQ(checked, 50);
}

TEST(ItemProperty, ChannelsAreSetOneByOne)
{
    clsCalendarItem item;
    applyAssignment(item, "Notified_ByEmail=yes");
    applyAssignment(item, "Notified_ByPhone=yes");
    EXPECT_EQ(item.notifyType(), 5);
    applyAssignment(item, "Notified_ByFax=yes");
    applyAssignment(item, "Notified_ByLetter=yes");
    applyAssignment(item, "Notified_ByEmail=no");
    EXPECT_EQ(item.notifyType(), 14);
}

TEST(ItemProperty, NamesCompareWithoutRegardToCase)
{
    EXPECT_EQ(itemProperty("subject").name, "Subject");
    EXPECT_EQ(itemProperty("COMPANYIDNUM").name, "companyIDNum");
}

TEST(ItemProperty, AnUnknownNameIsAnsweredWithTheNearest)
{
    const std::pair<const char*, const char*> typos[] = {
        {"Subjct", "Subject"}, {"datefrm", "DateFrom"}, {"Stattus3", "Status3"}, {"remindd", "Remind"}};
    for (const auto& [typo, meant] : typos) {
        try {
            itemProperty(typo);
            ADD_FAILURE() << typo << " was taken";
        } catch (const Failure& failure) {
            EXPECT_NE(std::string(failure.what()).find(std::string("did you mean ") + meant + "?"), std::string::npos)
                << failure.what();
        }
    }
}

TEST(ItemProperty, AWrongAssignmentChangesNothing)
{
    clsCalendarItem item;
    item.Subject("Old");
    for (const char* assignment : {"Subject", "=x", "clientType=1", "DateFrom=someday", "Nothing=1", "notifyType=-1"})
        EXPECT_THROW(applyAssignment(item, assignment), Failure) << assignment;
    EXPECT_EQ(item.Subject(), "Old");
    applyAssignment(item, "Subject=");
    EXPECT_EQ(item.Subject(), "");
}

} // namespace
} // namespace qncal::firmcal
