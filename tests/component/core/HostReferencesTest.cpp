#include "core/HostReferences.h"

#include "core/clsCalendarSetCtrl.h"
#include "items/clsCalendarItem.h"
#include "items/modDatabaseFunctions.h"
#include "support/RecordingDatabase.h"
#include "support/TestWorld.h"

#include <gtest/gtest.h>

namespace qncal {
namespace {

using test::RecordingErrorControl;

/// The registry starts empty, as in a host that has just loaded the component.
class HostReferencesTest : public testing::Test {
protected:
    HostReferencesTest() { serviceRegistry() = {}; }
    ~HostReferencesTest() override { serviceRegistry() = {}; }

    std::shared_ptr<DatabaseService> newDatabase() { return host::SqliteDatabase::openInMemory(); }
};

TEST_F(HostReferencesTest, TheSecondErrorControlIsIgnored)
{
    clsCalendarSetCtrl control;
    const auto first = std::make_shared<RecordingErrorControl>();
    const auto second = std::make_shared<RecordingErrorControl>();
    EXPECT_FALSE(serviceRegistry().errorControlPresent);
    control.errorClass(first);
    control.errorClass(second);
    EXPECT_EQ(serviceRegistry().errorControl, first);
    EXPECT_TRUE(serviceRegistry().errorControlPresent);
    EXPECT_EQ(utilityService().errorControl(), first);
    EXPECT_EQ(dateTimeService().errorControl(), first);
}

TEST_F(HostReferencesTest, ReplacedComponentServicesDoNotGetTheErrorControl)
{
    clsCalendarSetCtrl control;
    control.errorClass(std::make_shared<RecordingErrorControl>());
    const clsCalendarItem item;
    EXPECT_EQ(utilityService().errorControl(), nullptr);
    EXPECT_EQ(dateTimeService().errorControl(), nullptr);
    EXPECT_NE(serviceRegistry().errorControl, nullptr);
}

TEST_F(HostReferencesTest, TheErrorControlIsKeptWhenTheComponentServicesAreGone)
{
    clsCalendarSetCtrl control;
    control.Terminate();
    control.errorClass(std::make_shared<RecordingErrorControl>());
    EXPECT_TRUE(serviceRegistry().errorControlPresent);
}

TEST_F(HostReferencesTest, TheSecondMessageServiceIsIgnored)
{
    clsCalendarSetCtrl control;
    const auto first = std::make_shared<test::ScriptedMessages>();
    EXPECT_FALSE(serviceRegistry().messageDialogsPresent);
    control.MsgboxClass(first);
    control.MsgboxClass(std::make_shared<test::ScriptedMessages>());
    EXPECT_EQ(serviceRegistry().messageDialogs, first);
    EXPECT_TRUE(serviceRegistry().messageDialogsPresent);
}

TEST_F(HostReferencesTest, TheDatabaseOfTheFirstClassStaysForBoth)
{
    clsCalendarSetCtrl control;
    clsCalendarItem item;
    const auto first = newDatabase();
    control.DatabaseReference(first);
    item.DatabaseReference(newDatabase());
    EXPECT_EQ(control.DatabaseReference(), first);
    EXPECT_EQ(item.DatabaseReference(), first);
}

TEST_F(HostReferencesTest, TheDatabaseReadsAsNoneBeforeItIsSet)
{
    const clsCalendarSetCtrl control;
    EXPECT_EQ(control.DatabaseReference(), nullptr);
    const clsCalendarItem item;
    EXPECT_EQ(item.DatabaseReference(), nullptr);
}

TEST_F(HostReferencesTest, LocaleAndNotificationAreSetOnce)
{
    clsCalendarItem item;
    const auto locale = std::make_shared<test::TestLocale>();
    const auto autoNotify = std::make_shared<test::TestAutoNotify>();
    item.LocaleReference(locale);
    item.LocaleReference(std::make_shared<test::TestLocale>());
    item.autoNotifyCtrlReference(autoNotify);
    item.autoNotifyCtrlReference(std::make_shared<test::TestAutoNotify>());
    EXPECT_EQ(serviceRegistry().locale, locale);
    EXPECT_EQ(serviceRegistry().autoNotify, autoNotify);
}

TEST_F(HostReferencesTest, TheLastClientDropDownWins)
{
    clsCalendarSetCtrl control;
    clsCalendarItem item;
    const auto last = std::make_shared<test::TestClientDropDown>();
    control.clientDropDownCtrlReference(std::make_shared<test::TestClientDropDown>());
    item.clientDropDownCtrlReference(last);
    EXPECT_EQ(serviceRegistry().clientDropDown, last);
}

TEST_F(HostReferencesTest, TheRegistryKeepsAServiceAlive)
{
    clsCalendarSetCtrl control;
    auto locale = std::make_shared<test::TestLocale>();
    const std::weak_ptr<test::TestLocale> watch = locale;
    control.LocaleReference(std::move(locale));
    EXPECT_FALSE(watch.expired());
}

TEST_F(HostReferencesTest, CreatingEitherClassRenewsTheComponentServices)
{
    clsCalendarSetCtrl control;
    const auto utility = serviceRegistry().utility;
    const auto dateTime = serviceRegistry().dateTime;
    const auto file = serviceRegistry().file;
    ASSERT_TRUE(utility && dateTime && file);
    const clsCalendarItem item;
    EXPECT_NE(serviceRegistry().utility, utility);
    EXPECT_NE(serviceRegistry().dateTime, dateTime);
    EXPECT_NE(serviceRegistry().file, file);
}

TEST_F(HostReferencesTest, ASetCtrlEmptiesTheComponentServicesAtItsEndAndLeavesTheHosts)
{
    {
        clsCalendarSetCtrl control;
        control.DatabaseReference(newDatabase());
    }
    EXPECT_EQ(serviceRegistry().utility, nullptr);
    EXPECT_EQ(serviceRegistry().dateTime, nullptr);
    EXPECT_EQ(serviceRegistry().file, nullptr);
    EXPECT_NE(serviceRegistry().database, nullptr);
}

TEST_F(HostReferencesTest, EndingAnItemLeavesTheComponentServices)
{
    clsCalendarSetCtrl control;
    {
        clsCalendarItem item;
    }
    EXPECT_NE(serviceRegistry().utility, nullptr);
    EXPECT_NE(serviceRegistry().dateTime, nullptr);
    EXPECT_NE(serviceRegistry().file, nullptr);
}

TEST_F(HostReferencesTest, AfterTerminateARoutineThatNeedsTheUtilityServiceFailsUntilTheNextObject)
{
    const auto errors = std::make_shared<RecordingErrorControl>();
    clsCalendarSetCtrl control;
    control.errorClass(errors);
    control.Terminate();
    EXPECT_FALSE(modDatabaseFunctions::validTaskID("12"));
    const auto reported = errors->takeErrors();
    ASSERT_EQ(reported.size(), 1u);
    EXPECT_EQ(reported[0].number, 91);

    const clsCalendarItem item;
    EXPECT_TRUE(modDatabaseFunctions::validTaskID("12"));
}

/// The enumerations cross the library's border as numbers.
static_assert(enumFormShowAppointments == 0 && enumFormShowTasks == 1 && enumFormShowDockets == 2);
static_assert(enumLocalCalendarAppointmentItem == 0 && enumLocalCalendarTaskItem == 1);
static_assert(enumLocalCalendarDocketItem == 2 && enumLocalCalendarUnknownItem == 3);
static_assert(CalendarItemArchiveStatus_Normal == 1 && CalendarItemArchiveStatus_Archived == 2);
static_assert(enumSearchAppointmentNameOnly == 1 && enumSearchAppointmentDisplaySummaryOnly == 2);
static_assert(enumSearchAppointmentNotesOnly == 3 && enumSearchAppointmentAllText == 4);

/// A class of the component: it may read what the host cannot read back.
class MessageReader : public clsCalendarSetCtrl {
public:
    using clsCalendarSetCtrl::MsgboxClass;
};

TEST_F(HostReferencesTest, TheMessageDialogsAreReadInsideTheComponentOnly)
{
    MessageReader reader;
    EXPECT_EQ(reader.MsgboxClass(), nullptr);
    const auto first = std::make_shared<test::ScriptedMessages>();
    reader.MsgboxClass(first);
    EXPECT_EQ(reader.MsgboxClass(), first);
}

} // namespace
} // namespace qncal
