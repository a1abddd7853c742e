#include "items/frmSelectStartTime.h"

#include "support/ComponentTest.h"
#include "support/rowName.h"
#include "utilities/RunTimeError.h"

#include <gtest/gtest.h>

namespace qncal {
namespace {

struct FieldRow {
    const char* name;
    int hour;
    int minute;
    const char* text;
};

class SelectStartTimeTextTest : public test::ComponentTestWith<FieldRow> {};

TEST_P(SelectStartTimeTextTest, ShowsTheQuarterHour)
{
    frmSelectStartTime form;
    dialogs->whenShown("frmSelectStartTime", [&](host::Hand&) { EXPECT_EQ(form.cboField.text(), GetParam().text); });
    form.TimeSelected(Date::timeOf(GetParam().hour, GetParam().minute));
    form.Initialize();
}

INSTANTIATE_TEST_SUITE_P(Times, SelectStartTimeTextTest,
                         testing::Values(FieldRow{"FullHour", 9, 0, "9:00 AM"}, FieldRow{"Quarter", 9, 15, "9:15 AM"},
                                         FieldRow{"CutToTheQuarter", 9, 44, "9:30 AM"},
                                         FieldRow{"Noon", 12, 5, "12:00 PM"}, FieldRow{"Afternoon", 17, 45, "5:45 PM"},
                                         FieldRow{"Midnight", 0, 10, "0:00 AM"}),
                         test::rowName);

class SelectStartTimeTest : public test::ComponentTest {
protected:
    void show(const host::HeadlessDialogHost::Script& script)
    {
        dialogs->whenShown("frmSelectStartTime", script);
        form.Initialize();
    }
    frmSelectStartTime form;
};

TEST_F(SelectStartTimeTest, TitlesFollowTheTimeType)
{
    const auto titles = [&] {
        std::string shown;
        show([&](host::Hand& hand) {
            EXPECT_TRUE(hand.form().isModal());
            shown = hand.form().caption() + ", " + hand.as<Label>("Label0").caption();
        });
        return shown;
    };
    EXPECT_EQ(titles(), "Select End Time, Select End Time") << "a type that nobody has set";
    form.TimeType(1);
    EXPECT_EQ(titles(), "Select Start Time, Select Start Time");
    form.TimeType(2);
    EXPECT_EQ(titles(), "Select End Time, Select End Time");
}

TEST_F(SelectStartTimeTest, TheDateComesBackWithTheTime)
{
    const Date moment = Date::of(2026, 4, 2, 9, 44);
    form.TimeSelected(moment);
    show([&](host::Hand& hand) {
        EXPECT_EQ(form.dtpTime.value(), moment);
        EXPECT_EQ(form.cboField.text(), "9:30 AM");
        hand.click("cmdOpts(0)");
    });
    EXPECT_EQ(form.TimeSelected(), moment);
}

TEST_F(SelectStartTimeTest, TheFieldIsNotTakenWhileItIsFilled)
{
    // As with a list that clicks by itself whenever its text changes.
    form.cboField.Change = [&] { form.cboField_Click(); };
    form.TimeSelected(Date::timeOf(9, 44));
    show([&](host::Hand& hand) {
        EXPECT_EQ(form.cboField.text(), "9:30 AM");
        EXPECT_EQ(form.dtpTime.value(), Date::timeOf(9, 44));
        hand.pickDate("dtpTime", Date::timeOf(10, 50));
        hand.tabAway();
        EXPECT_EQ(form.cboField.text(), "10:45 AM");
        EXPECT_EQ(form.dtpTime.value(), Date::timeOf(10, 50));
    });
}

TEST_F(SelectStartTimeTest, ATextThatIsNoTimeIsReportedAndNotTaken)
{
    form.TimeSelected(Date::timeOf(9));
    show([&](host::Hand&) {
        form.cboField.text("soon");
        form.cboField_Click();
        EXPECT_EQ(form.dtpTime.value(), Date::timeOf(9));
    });
    const auto reported = errors->takeErrors();
    ASSERT_EQ(reported.size(), 1u);
    EXPECT_EQ(reported[0].number, errorNumber::typeMismatch);
}

TEST_F(SelectStartTimeTest, AQuarterHourPickedGoesIntoThePicker)
{
    show([&](host::Hand& hand) {
        hand.pick("cboField", "2:45 PM");
        EXPECT_EQ(form.dtpTime.value(), Date::timeOf(14, 45));
        hand.pick("cboField", "0:00 AM");
        EXPECT_EQ(form.dtpTime.value(), Date::timeOf(0));
        hand.pressEnter();
    });
    EXPECT_FALSE(form.cancelFlag());
    EXPECT_EQ(form.TimeSelected(), Date::timeOf(0));
}

TEST_F(SelectStartTimeTest, LeavingThePickerFillsTheField)
{
    show([&](host::Hand& hand) {
        hand.pickDate("dtpTime", Date::timeOf(10, 50));
        hand.tabAway();
        EXPECT_EQ(form.cboField.text(), "10:45 AM");
        EXPECT_EQ(form.dtpTime.value(), Date::timeOf(10, 50)) << "the picker keeps its minutes";
    });
}

TEST_F(SelectStartTimeTest, AQuarterHourCanBePickedAgainAfterThePickerWasChanged)
{
    show([&](host::Hand& hand) {
        hand.pick("cboField", "9:15 AM");
        hand.pickDate("dtpTime", Date::timeOf(10, 50));
        hand.tabAway();
        hand.pick("cboField", "9:15 AM");
        EXPECT_EQ(form.dtpTime.value(), Date::timeOf(9, 15));
        hand.pickDate("dtpTime", Date::timeOf(9, 20));
        hand.tabAway();
        hand.pick("cboField", "9:15 AM");
        EXPECT_EQ(form.dtpTime.value(), Date::timeOf(9, 15)) << "the row that stood in the field already";
        hand.pressEnter();
    });
    EXPECT_EQ(form.TimeSelected(), Date::timeOf(9, 15));
}

TEST_F(SelectStartTimeTest, TypingCompletesFromTheList)
{
    show([&](host::Hand& hand) {
        hand.type("cboField", "3:4");
        EXPECT_EQ(form.cboField.text(), "3:45 AM");
        EXPECT_EQ(form.dtpTime.value(), Date::timeOf(3, 45)) << "the completed row counts";
        hand.type("cboField", "3:45 PM");
        EXPECT_EQ(form.dtpTime.value(), Date::timeOf(15, 45));
    });
}

TEST_F(SelectStartTimeTest, CancelTakesTheTimeAndSaysSo)
{
    form.TimeSelected(Date::timeOf(9));
    show([&](host::Hand& hand) {
        hand.pickDate("dtpTime", Date::timeOf(11));
        hand.click("cmdOpts(1)");
        EXPECT_FALSE(form.isVisible());
    });
    EXPECT_TRUE(form.cancelFlag());
    EXPECT_EQ(form.TimeSelected(), Date::timeOf(11));
    show([](host::Hand& hand) { hand.click("cmdOpts(0)"); });
    EXPECT_FALSE(form.cancelFlag()) << "cleared at each showing";
}

} // namespace
} // namespace qncal
