#include "reminders/modPopUpReminders.h"
#include "support/ComponentTest.h"
#include "support/rowName.h"

#include <ostream>

// The label of each routine, which hosts show in their error reports.

namespace qncal::test {

namespace {

using namespace modPopUpReminders;

struct LabelRow {
    const char* name;
    const char* label;
    void (*call)();

    friend void PrintTo(const LabelRow& row, std::ostream* out) { *out << row.label; }
};

class modPopUpRemindersLabelTest : public ComponentTestWith<LabelRow> {};

TEST_P(modPopUpRemindersLabelTest, IsPushedFirst)
{
    GetParam().call();
    ASSERT_FALSE(errors->labels().empty());
    EXPECT_EQ(errors->labels().front(), GetParam().label);
}

constexpr LabelRow rows[] = {
    {"createPopUpReminder", "Vestrel.exe-modPopUpReminders-createPopUpReminder",
     [] {
         std::int32_t type = reminderType::newRow;
         ReminderIDs ids;
         createPopUpReminder(type, 1, noDate, noDate, "words", ids);
     }},
    {"deletePopUpReminder", "Vestrel.exe-modPopUpReminders-deletePopUpReminder",
     [] {
         std::int32_t type = reminderType::newRow;
         ReminderIDs ids;
         deletePopUpReminder(type, 1, ids);
     }},
    {"getPopUpReminderTime", "Vestrel.exe-modPopUpReminders-getPopUpReminderTime",
     [] {
         Date date = Date::of(2026, 3, 31);
         Date time = Date::timeOf(9);
         getPopUpReminderTime("5 Min", date, time);
     }},
    {"getPopUpReminderText", "Vestrel.exe-modPopUpReminders-getPopUpReminderText",
     [] { getPopUpReminderText(reminderType::appointment, 1); }},
};

INSTANTIATE_TEST_SUITE_P(Routines, modPopUpRemindersLabelTest, testing::ValuesIn(rows), rowName);

} // namespace

} // namespace qncal::test
