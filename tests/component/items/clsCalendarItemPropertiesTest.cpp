#include "items/clsCalendarItem.h"
#include "support/ComponentTest.h"
#include "support/RecordingDatabase.h"
#include "support/rowName.h"
#include "utilities/numberText.h"

#include <concepts>
#include <functional>

namespace qncal {
namespace {

std::string asText(const std::string& value) { return value; }
std::string asText(Date value) { return numberText(value.serial()); }
std::string asText(bool value) { return value ? "True" : "False"; }
template <class Number>
    requires(std::integral<Number> || std::floating_point<Number> || std::is_enum_v<Number>)
std::string asText(Number value) { return numberText(static_cast<double>(value)); }

/// A property that may be read and written, its default, and another value.
struct Property {
    std::string name;
    std::string defaultText;
    std::string otherText;
    std::function<std::string(clsCalendarItem&)> get;
    std::function<void(clsCalendarItem&)> setDefault;
    std::function<void(clsCalendarItem&)> setOther;
    bool marksDirty = true;
    bool isReset = true;
};

template <class Result, class Value>
Property property(const char* name, Result (clsCalendarItem::*get)() const, void (clsCalendarItem::*set)(Value),
                  std::type_identity_t<Value> defaultValue, std::type_identity_t<Value> other)
{
    return {name,
            asText(defaultValue),
            asText(other),
            [get](clsCalendarItem& item) { return asText((item.*get)()); },
            [set, defaultValue](clsCalendarItem& item) { (item.*set)(defaultValue); },
            [set, other](clsCalendarItem& item) { (item.*set)(other); }};
}

Property notReset(Property row)
{
    row.isReset = false;
    return row;
}

Property clean(Property row)
{
    row.marksDirty = false;
    return row;
}

std::vector<Property> properties()
{
    using Item = clsCalendarItem;
    const Date today = test::TestWorld::today();
    return {
        notReset(property("itemID", &Item::itemID, &Item::itemID, -1, 17)),
        property("companyIDNum", &Item::companyIDNum, &Item::companyIDNum, -1, 5),
        property("contactIDNum", &Item::contactIDNum, &Item::contactIDNum, -1, 7),
        property("userIDNum", &Item::userIDNum, &Item::userIDNum, -1, 2),
        property("ScheduleTypeIDNum", &Item::ScheduleTypeIDNum, &Item::ScheduleTypeIDNum, -1, 3),
        property("ScheduleIDNum", &Item::ScheduleIDNum, &Item::ScheduleIDNum, -1, 4),
        property("ProjectStepIDNum", &Item::ProjectStepIDNum, &Item::ProjectStepIDNum, -1, 6),
        property("CommunicationLogIDNum", &Item::CommunicationLogIDNum, &Item::CommunicationLogIDNum, -1, 8),
        property("SeriesNum", &Item::SeriesNum, &Item::SeriesNum, 0, 9),
        property("Subject", &Item::Subject, &Item::Subject, "", "Budget"),
        property("DateFrom", &Item::DateFrom, &Item::DateFrom, today, today.addDays(3)),
        property("timeduration", &Item::timeduration, &Item::timeduration, 1.0F, 2.5F),
        property("TimeFrom", &Item::TimeFrom, &Item::TimeFrom, Date(0.375), Date::timeOf(11)),
        property("TimeTo", &Item::TimeTo, &Item::TimeTo, Date(10.0 / 24), Date::timeOf(13)),
        property("TitleText", &Item::TitleText, &Item::TitleText, "", "t"),
        property("appointmentText", &Item::appointmentText, &Item::appointmentText, "", "t"),
        property("AfterAppointmentText", &Item::AfterAppointmentText, &Item::AfterAppointmentText, "", "t"),
        property("BeforeAppointmentText", &Item::BeforeAppointmentText, &Item::BeforeAppointmentText, "", "t"),
        property("RecurAnnually", &Item::RecurAnnually, &Item::RecurAnnually, false, true),
        property("hideInTasks", &Item::hideInTasks, &Item::hideInTasks, false, true),
        property("RepeatNum", &Item::RepeatNum, &Item::RepeatNum, 0, 12),
        property("UserGroupNum", &Item::UserGroupNum, &Item::UserGroupNum, 0, 13),
        property("PrivateItem", &Item::PrivateItem, &Item::PrivateItem, false, true),
        property("reminderPeriod", &Item::reminderPeriod, &Item::reminderPeriod, "15 Min", "1 Hr"),
        property("Remind", &Item::Remind, &Item::Remind, false, true),
        property("ClientNotifiedFlag", &Item::ClientNotifiedFlag, &Item::ClientNotifiedFlag, false, true),
        property("ForeColour", &Item::ForeColour, &Item::ForeColour, 0, 255),
        property("BackColour", &Item::BackColour, &Item::BackColour, 16777215, 255),
        property("TitleForeColour", &Item::TitleForeColour, &Item::TitleForeColour, 16777215, 255),
        property("TitleBackColour", &Item::TitleBackColour, &Item::TitleBackColour, 10649190, 255),
        property("ColourSchemeID", &Item::ColourSchemeID, &Item::ColourSchemeID, -1, 2),
        property("NotesFlag", &Item::NotesFlag, &Item::NotesFlag, false, true),
        property("Notes_RichText", &Item::Notes_RichText, &Item::Notes_RichText, "", "{\\rtf1 a}"),
        property("notifyType", &Item::notifyType, &Item::notifyType, 0, 5),
        clean(property("notifiedDate", &Item::notifiedDate, &Item::notifiedDate, today.addDays(-1), today)),
        notReset(clean(property("ShowNotificationWindow", &Item::ShowNotificationWindow, &Item::ShowNotificationWindow,
                                false, true))),
        property("Status1", &Item::Status1, &Item::Status1, false, true),
        property("Status2", &Item::Status2, &Item::Status2, false, true),
        property("Status3", &Item::Status3, &Item::Status3, false, true),
        property("Status4", &Item::Status4, &Item::Status4, false, true),
        property("Status5", &Item::Status5, &Item::Status5, false, true),
        property("Custom1", &Item::Custom1, &Item::Custom1, "", "c"),
        property("Custom2", &Item::Custom2, &Item::Custom2, "", "c"),
        property("Custom3", &Item::Custom3, &Item::Custom3, "", "c"),
        property("Custom4", &Item::Custom4, &Item::Custom4, "", "c"),
        property("Custom5", &Item::Custom5, &Item::Custom5, "", "c"),
        property("CalendarItemArchiveStatus", &Item::CalendarItemArchiveStatus, &Item::CalendarItemArchiveStatus,
                 CalendarItemArchiveStatus_Normal, CalendarItemArchiveStatus_Archived),
        notReset(clean(property("IsSecondaryConnectionForTaskClass", &Item::IsSecondaryConnectionForTaskClass,
                                &Item::IsSecondaryConnectionForTaskClass, false, true))),
    };
}

class clsCalendarItemPropertyTest : public test::ComponentTestWith<Property> {
protected:
    clsCalendarItem item;
};

TEST_P(clsCalendarItemPropertyTest, HasItsDefaultAtFirst)
{
    EXPECT_EQ(GetParam().get(item), GetParam().defaultText);
    EXPECT_FALSE(item.IsDirty());
}

TEST_P(clsCalendarItemPropertyTest, ANewValueIsStoredAndMarksDirtyAsTold)
{
    GetParam().setOther(item);
    EXPECT_EQ(GetParam().get(item), GetParam().otherText);
    EXPECT_EQ(item.IsDirty(), GetParam().marksDirty);
}

TEST_P(clsCalendarItemPropertyTest, AnEqualValueChangesNothing)
{
    GetParam().setDefault(item);
    EXPECT_EQ(GetParam().get(item), GetParam().defaultText);
    EXPECT_FALSE(item.IsDirty());
}

TEST_P(clsCalendarItemPropertyTest, IsResetAsTold)
{
    GetParam().setOther(item);
    item.resetAllInformation();
    EXPECT_EQ(GetParam().get(item), GetParam().isReset ? GetParam().defaultText : GetParam().otherText);
    EXPECT_FALSE(item.IsDirty());
    EXPECT_FALSE(item.IsSaved());
}

INSTANTIATE_TEST_SUITE_P(Properties, clsCalendarItemPropertyTest, testing::ValuesIn(properties()), test::rowName);

class clsCalendarItemPropertiesTest : public test::ComponentTest {
protected:
    clsCalendarItem item;
};

TEST_F(clsCalendarItemPropertiesTest, AnItemMadeBeforeTheErrorControlHasItsDefaults)
{
    serviceRegistry() = {};
    const clsCalendarItem early;
    EXPECT_EQ(early.DateFrom(), today());
    EXPECT_EQ(early.notifiedDate(), today().addDays(-1));
    EXPECT_EQ(early.reminderPeriod(), "15 Min");
    EXPECT_EQ(early.itemID(), -1);
}

TEST_F(clsCalendarItemPropertiesTest, AContactTakesThePlaceOfACompany)
{
    item.companyIDNum(5);
    EXPECT_EQ(item.clientType(), 2);
    item.contactIDNum(7);
    EXPECT_EQ(item.companyIDNum(), -1);
    EXPECT_EQ(item.contactIDNum(), 7);
    EXPECT_EQ(item.clientType(), 1);
}

TEST_F(clsCalendarItemPropertiesTest, ACompanyTakesThePlaceOfAContact)
{
    item.contactIDNum(0);
    EXPECT_EQ(item.clientType(), 1);
    item.companyIDNum(0);
    EXPECT_EQ(item.contactIDNum(), -1);
    EXPECT_EQ(item.clientType(), 2);
}

TEST_F(clsCalendarItemPropertiesTest, NoContactOnACompanyItemLeavesTheClientType)
{
    item.companyIDNum(5);
    item.contactIDNum(-1);
    EXPECT_EQ(item.clientType(), 2);
    item.contactIDNum(-9);
    EXPECT_EQ(item.contactIDNum(), -1);
    EXPECT_EQ(item.clientType(), 2);
}

TEST_F(clsCalendarItemPropertiesTest, AClientIdBelowZeroBecomesNone)
{
    item.companyIDNum(5);
    item.companyIDNum(-8);
    EXPECT_EQ(item.companyIDNum(), -1);
    EXPECT_EQ(item.clientType(), 0);
    item.contactIDNum(5);
    item.contactIDNum(-8);
    EXPECT_EQ(item.contactIDNum(), -1);
    EXPECT_EQ(item.clientType(), 0);
}

TEST_F(clsCalendarItemPropertiesTest, ADurationBelowAMinuteIsRaisedAndANegativeOneStays)
{
    const float minute = 1.0F / 60.0F;
    item.timeduration(0);
    EXPECT_EQ(item.timeduration(), minute);
    EXPECT_TRUE(item.IsDirty());
    item.timeduration(0.01F);
    EXPECT_EQ(item.timeduration(), minute);
    item.timeduration(minute);
    EXPECT_EQ(item.timeduration(), minute);
    item.timeduration(-2);
    EXPECT_EQ(item.timeduration(), -2);
    EXPECT_EQ(item.TimeTo(), Date::timeOf(10)) << "the end time stays";
}

TEST_F(clsCalendarItemPropertiesTest, AnEndBeforeTheStartGivesAPositiveDuration)
{
    item.TimeTo(Date::timeOf(7, 30));
    EXPECT_EQ(item.timeduration(), 1.5F);
    EXPECT_TRUE(item.IsDirty());
}

TEST_F(clsCalendarItemPropertiesTest, TheStartAloneLeavesTheDuration)
{
    item.TimeFrom(Date::timeOf(7));
    EXPECT_EQ(item.timeduration(), 1.0F);
}

TEST_F(clsCalendarItemPropertiesTest, NotesSetTheirFlag)
{
    item.Notes_RichText("{\\rtf1 a}");
    EXPECT_TRUE(item.NotesFlag());
    item.Notes_RichText("");
    EXPECT_FALSE(item.NotesFlag());
}

TEST_F(clsCalendarItemPropertiesTest, WithoutTheUtilityServiceNotesAreStoredAndTheirFlagIsPassedOver)
{
    serviceRegistry().utility.reset();
    item.Notes_RichText("{\\rtf1 a}");
    EXPECT_EQ(item.Notes_RichText(), "{\\rtf1 a}");
    EXPECT_FALSE(item.NotesFlag());
    EXPECT_TRUE(item.IsDirty());
}

TEST_F(clsCalendarItemPropertiesTest, TheNotifyTypeSetsTheNotifiedFlag)
{
    item.notifyType(4);
    EXPECT_TRUE(item.ClientNotifiedFlag());
    item.notifyType(0);
    EXPECT_FALSE(item.ClientNotifiedFlag());
}

TEST_F(clsCalendarItemPropertiesTest, EachNotificationChannelChangesItsBitAlone)
{
    using Setter = void (clsCalendarItem::*)(bool);
    const std::pair<Setter, int> channels[] = {
        {&clsCalendarItem::Notified_ByEmail, 1},
        {&clsCalendarItem::Notified_ByFax, 2},
        {&clsCalendarItem::Notified_ByPhone, 4},
        {&clsCalendarItem::Notified_ByLetter, 8},
    };
    for (const auto& [set, bit] : channels) {
        item.resetAllInformation();
        (item.*set)(true);
        (item.*set)(true);
        EXPECT_EQ(item.notifyType(), bit);
        EXPECT_FALSE(item.ClientNotifiedFlag());
        EXPECT_FALSE(item.IsDirty());
        item.notifyType(15);
        (item.*set)(false);
        (item.*set)(false);
        EXPECT_EQ(item.notifyType(), 15 - bit);
        EXPECT_TRUE(item.ClientNotifiedFlag());
    }
}

TEST_F(clsCalendarItemPropertiesTest, TheColourSchemeBringsItsColours)
{
    const std::int32_t scheme = addRow("ColourSchemes", {{"SchemeName", "Sea"},
                                                         {"TitleBackColour", "1"},
                                                         {"TitleForeColour", "2"},
                                                         {"BackColour", "3"},
                                                         {"ForeColour", "4"}});
    item.ColourSchemeID(scheme);
    EXPECT_EQ(item.TitleBackColour(), 1);
    EXPECT_EQ(item.TitleForeColour(), 2);
    EXPECT_EQ(item.BackColour(), 3);
    EXPECT_EQ(item.ForeColour(), 4);
    EXPECT_EQ(item.ColourSchemeName(), "Sea");
    EXPECT_TRUE(item.IsDirty());
}

TEST_F(clsCalendarItemPropertiesTest, AnEmptyColourOfTheSchemeLeavesTheItems)
{
    const std::int32_t scheme = addRow("ColourSchemes", {{"BackColour", "3"}});
    item.ColourSchemeID(scheme);
    EXPECT_EQ(item.BackColour(), 3);
    EXPECT_EQ(item.TitleBackColour(), 10649190);
}

TEST_F(clsCalendarItemPropertiesTest, TheSameColourSchemeIsNotReadAgain)
{
    const auto recording = std::make_shared<test::RecordingDatabase>(database);
    serviceRegistry().database = recording;
    item.ColourSchemeID(4);
    item.ColourSchemeID(4);
    EXPECT_EQ(recording->openedSql(),
              std::vector<std::string>{"SELECT ColourSchemes.* FROM ColourSchemes WHERE ColourSchemeID=4;"});
}

TEST_F(clsCalendarItemPropertiesTest, WithoutASchemeTheNameIsNotSpecified)
{
    EXPECT_EQ(item.ColourSchemeName(), "<Not specified>");
    item.ColourSchemeID(0);
    EXPECT_EQ(item.ColourSchemeName(), "<Not specified>");
    item.ColourSchemeID(99);
    EXPECT_EQ(item.ColourSchemeName(), "");
}

TEST_F(clsCalendarItemPropertiesTest, TheKindGoesToTheKindObjectAndDoesNotMarkDirty)
{
    item.calendarItemType(enumLocalCalendarDocketItem);
    EXPECT_EQ(item.calendarItemType(), enumLocalCalendarDocketItem);
    EXPECT_EQ(item.CalendarItemTypeClassRef()->tableName(), "Dockets");
    EXPECT_FALSE(item.IsDirty());
}

TEST_F(clsCalendarItemPropertiesTest, AnEmptyTemplateTakesTheKindsAndKeepsIt)
{
    const std::int32_t settings =
        addRow("UserCalendarSettings", {{"UserIDNum", "-1"}, {"ApptTitleBarText", "title"}, {"ApptTemplate", "body"}});
    item.calendarItemType(enumLocalCalendarAppointmentItem);
    EXPECT_EQ(item.TitleBarTextDefaultTemplate(), "title");
    EXPECT_EQ(item.DisplayTextDefaultTemplate(), "body");
    EXPECT_EQ(item.TitleBarTextTemplate(), "title");
    EXPECT_EQ(item.DisplayTextTemplate(), "body");
    setCell("UserCalendarSettings", settings, "ApptTemplate", "later");
    item.calendarItemType(enumLocalCalendarTaskItem);
    EXPECT_EQ(item.DisplayTextTemplate(), "body");
    EXPECT_FALSE(item.IsDirty());
}

TEST_F(clsCalendarItemPropertiesTest, ATemplateOfTheItemsOwnStaysUntilReset)
{
    item.calendarItemType(enumLocalCalendarAppointmentItem);
    item.TitleBarTextTemplate("mine");
    item.DisplayTextTemplate("mine too");
    EXPECT_EQ(item.TitleBarTextTemplate(), "mine");
    EXPECT_EQ(item.DisplayTextTemplate(), "mine too");
    item.resetAllInformation();
    EXPECT_EQ(item.TitleBarTextTemplate(), "");
    EXPECT_EQ(item.DisplayTextTemplate(), item.DisplayTextDefaultTemplate());
}

} // namespace
} // namespace qncal
