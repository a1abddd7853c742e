#include "settings/ColourSchemePage.h"

#include "core/RecordSet.h"
#include "core/ServiceRegistry.h"
#include "items/clsCalendarItem.h"
#include "support/ComponentTest.h"
#include "support/RecordingDatabase.h"
#include "support/SpoiltDatabase.h"
#include "support/rowName.h"

#include <gtest/gtest.h>

namespace qncal {
namespace {

class ColourSchemePageTest : public test::ComponentTest {
protected:
    std::int32_t addScheme(const std::string& name, const std::string& titleBack = "1", const std::string& type = "0")
    {
        return addRow("ColourSchemes", {{"SchemeName", name},
                                        {"SchemeType", type},
                                        {"TitleBackColour", titleBack},
                                        {"TitleForeColour", "2"},
                                        {"BackColour", "3"},
                                        {"ForeColour", "4"}});
    }
    std::vector<std::string> names() const
    {
        std::vector<std::string> shown;
        for (const auto& row : page.lvSchemes.rows())
            shown.push_back(row.cells[0]);
        return shown;
    }
    using Names = std::vector<std::string>;

    Form form{"frmDayTimerSettings"};
    ColourSchemePage page{form};
};

TEST_F(ColourSchemePageTest, ShowsTheSchemesOfItsKindByName)
{
    addScheme("Blue");
    addScheme("amber");
    addScheme("Of tasks", "1", "1");
    page.setup(enumLocalCalendarAppointmentItem);
    EXPECT_EQ(names(), (Names{"amber", "Blue"}));
    EXPECT_EQ(page.lvSchemes.selectedRow(), 0);
    EXPECT_EQ(page.txtSchemeName.text(), "amber");
    EXPECT_EQ(page.cpBackColour(3).colour(), 4);
    EXPECT_EQ(page.lblTitleBar(1).backColour(), 1);
    EXPECT_EQ(page.txtApptPreview.foreColour(), 4);
}

TEST_F(ColourSchemePageTest, TwoNewSchemesMayHaveOneName)
{
    page.setup(enumLocalCalendarTaskItem);
    page.cmdAddScheme_Click();
    page.cmdAddScheme_Click();
    EXPECT_EQ(names(), (Names{"New Scheme", "New Scheme"}));
    EXPECT_EQ(cell("ColourSchemes", page.currentSchemeID(), "SchemeType"), "1");
    EXPECT_EQ(cell("ColourSchemes", page.currentSchemeID(), "BackColour"), "Null");
}

TEST_F(ColourSchemePageTest, DeletingTheLastSchemeLeavesNoneAndTheNextSaveSaysSo)
{
    addScheme("Blue");
    page.setup(enumLocalCalendarAppointmentItem);
    page.cmdDeleteScheme_Click();
    EXPECT_TRUE(names().empty());
    EXPECT_EQ(rowCount("ColourSchemes"), 0);
    bool saved = true;
    page.saveSchemeChanges(saved);
    EXPECT_FALSE(saved);
}

TEST_F(ColourSchemePageTest, DeletingSelectsTheFirstOfTheRest)
{
    addScheme("Amber");
    addScheme("Blue");
    addScheme("Coral");
    page.setup(enumLocalCalendarAppointmentItem);
    page.lvSchemes.selectedRow(2);
    page.cmdDeleteScheme_Click();
    EXPECT_EQ(names(), (Names{"Amber", "Blue"}));
    EXPECT_EQ(page.txtSchemeName.text(), "Amber");
    EXPECT_EQ(page.lvSchemes.selectedItemData(), page.currentSchemeID());
}

TEST_F(ColourSchemePageTest, ANameIsStoredAtEveryKeyAndTakesItsPlace)
{
    addScheme("Amber");
    const auto blue = addScheme("Blue");
    page.setup(enumLocalCalendarAppointmentItem);
    page.lvSchemes.selectedRow(1);
    host::Hand(form).type("txtSchemeName", "Aa");
    EXPECT_EQ(cell("ColourSchemes", blue, "SchemeName"), "Aa");
    EXPECT_EQ(names(), (Names{"Aa", "Amber"}));
    EXPECT_EQ(page.lvSchemes.selectedRow(), 0);
    EXPECT_EQ(page.currentSchemeID(), blue);
}

TEST_F(ColourSchemePageTest, AnEmptyNameIsStoredAndTakesTheHead)
{
    addScheme("Amber");
    const auto blue = addScheme("Blue");
    page.setup(enumLocalCalendarAppointmentItem);
    page.lvSchemes.selectedRow(1);
    page.txtSchemeName.text("");
    EXPECT_EQ(cell("ColourSchemes", blue, "SchemeName"), "");
    EXPECT_EQ(names(), (Names{"", "Amber"}));
}

TEST_F(ColourSchemePageTest, EmptyColoursShowTheFormerSchemesAndSavingStoresThem)
{
    addScheme("Amber", "77");
    const auto plain = addRow("ColourSchemes", {{"SchemeName", "Plain"}, {"SchemeType", "0"}});
    page.setup(enumLocalCalendarAppointmentItem);
    page.lvSchemes.selectedRow(1);
    EXPECT_EQ(page.cpBackColour(0).colour(), 77);
    page.cmdSaveScheme_Click();
    EXPECT_EQ(cell("ColourSchemes", plain, "TitleBackColour"), "77");
}

TEST_F(ColourSchemePageTest, AnotherSchemeIsShownOnceTheFormerIsStored)
{
    const auto amber = addScheme("Amber");
    addScheme("Blue", "9");
    page.setup(enumLocalCalendarAppointmentItem);
    host::Hand hand(form);
    hand.pickColour("cpBackColour(1)", 123);
    hand.pickIndex("lvSchemes", 1);
    EXPECT_EQ(cell("ColourSchemes", amber, "TitleForeColour"), "123");
    EXPECT_EQ(page.txtSchemeName.text(), "Blue");
    EXPECT_EQ(page.lblTitleBar(1).backColour(), 9);
}

TEST_F(ColourSchemePageTest, WhenTheFormerSchemeIsGoneTheSelectionReturns)
{
    addScheme("Amber");
    addScheme("Blue");
    page.setup(enumLocalCalendarAppointmentItem);
    {
        RecordSet gone =
            RecordSet::openUpdatable("SELECT ColourSchemes.* FROM ColourSchemes WHERE SchemeName='Amber';");
        gone.deleteRecord();
        gone.close();
    }
    page.lvSchemes.selectedRow(1);
    EXPECT_EQ(page.lvSchemes.selectedRow(), 0);
    EXPECT_EQ(page.txtSchemeName.text(), "Amber");
}

TEST_F(ColourSchemePageTest, AddingAndDeletingStoreTheSchemeOnThePageFirst)
{
    const auto amber = addScheme("Amber");
    page.setup(enumLocalCalendarAppointmentItem);
    page.cpBackColour(1).colour(123);
    page.cmdAddScheme_Click();
    EXPECT_EQ(cell("ColourSchemes", amber, "TitleForeColour"), "123");
    const auto added = page.currentSchemeID();
    EXPECT_NE(added, amber);
    EXPECT_EQ(page.lvSchemes.selectedItemData(), added);
    EXPECT_EQ(page.txtSchemeName.text(), "New Scheme");
    page.cpBackColour(1).colour(124);
    const auto recording = std::make_shared<test::RecordingDatabase>(database);
    serviceRegistry().database = recording;
    page.cmdDeleteScheme_Click();
    EXPECT_EQ(recording->written, (Names{"SchemeName=New Scheme", "SchemeType=0", "TitleBackColour=1",
                                         "TitleForeColour=124", "BackColour=3", "ForeColour=4"}))
        << "even of the scheme that is about to go";
    EXPECT_EQ(names(), Names{"Amber"});
    EXPECT_EQ(page.currentSchemeID(), amber);
}

TEST_F(ColourSchemePageTest, AColourThatIsNoNumberLeavesThePicker)
{
    addScheme("Amber", "77");
    addScheme("Blue", "9");
    page.setup(enumLocalCalendarAppointmentItem);
    const auto spoilt = std::make_shared<test::SpoiltDatabase>(database);
    spoilt->cells = {{"TitleBackColour", "red"}, {"BackColour", 5000000000.0}};
    serviceRegistry().database = spoilt;
    page.lvSchemes.selectedRow(1);
    EXPECT_EQ(page.txtSchemeName.text(), "Blue");
    EXPECT_EQ(page.cpBackColour(0).colour(), 77);
    EXPECT_EQ(page.cpBackColour(2).colour(), 3);
}

TEST_F(ColourSchemePageTest, AnItemKeepsTheNumberOfADeletedScheme)
{
    const auto amber = addScheme("Amber");
    const auto id = addRow("Appointments", {{"Subject", "Call"}, {"SchemeID", std::to_string(amber)}});
    page.setup(enumLocalCalendarAppointmentItem);
    page.cmdDeleteScheme_Click();
    clsCalendarItem item;
    item.calendarItemType(enumLocalCalendarAppointmentItem);
    item.itemID(id);
    ASSERT_TRUE(item.loadCalendarItem());
    EXPECT_EQ(item.ColourSchemeID(), amber);
    EXPECT_EQ(item.ColourSchemeName(), "");
    EXPECT_EQ(cell("Appointments", id, "SchemeID"), std::to_string(amber));
}

TEST_F(ColourSchemePageTest, WithoutASchemeThePageIsBlankAndThePreviewCanBeRead)
{
    page.setup(enumLocalCalendarAppointmentItem);
    EXPECT_NE(page.lblTitleBar(1).backColour(), page.lblTitleBar(1).foreColour());
    EXPECT_NE(page.txtApptPreview.backColour(), page.txtApptPreview.foreColour());
    page.cmdAddScheme_Click();
    page.cmdDeleteScheme_Click();
    EXPECT_EQ(page.currentSchemeID(), -1);
    EXPECT_EQ(page.txtSchemeName.text(), "");
}

TEST_F(ColourSchemePageTest, TheHeadingLeavesTheOrderToTheDatabase)
{
    addScheme("Blue");
    addScheme("Amber");
    page.setup(enumLocalCalendarAppointmentItem);
    page.lvSchemes.clickColumn(0);
    page.lvSchemes.clickColumn(0);
    EXPECT_EQ(names(), (Names{"Amber", "Blue"}));
    EXPECT_EQ(page.lvSchemes.sortColumn(), -1);
}

struct TitleRow {
    const char* name;
    enumLocalCalendarItemType kind;
    const char* title;
};

class ColourSchemePreviewTest : public test::ComponentTestWith<TitleRow> {};

TEST_P(ColourSchemePreviewTest, HasTheKindsTitleAboveASampleText)
{
    Form form{"frmDayTimerSettings"};
    ColourSchemePage page{form};
    page.setup(GetParam().kind);
    EXPECT_EQ(page.lblTitleBar(1).caption(), GetParam().title);
    EXPECT_EQ(page.txtApptPreview.text(), "9:00 AM - 10:30 AM\nThis is some sample text");
}

INSTANTIATE_TEST_SUITE_P(Kinds, ColourSchemePreviewTest,
                         testing::Values(TitleRow{"Appointment", enumLocalCalendarAppointmentItem, "Appointment Title"},
                                         TitleRow{"Task", enumLocalCalendarTaskItem, "Task Title"},
                                         TitleRow{"TimeEntry", enumLocalCalendarDocketItem, "Time Entry Title"}),
                         test::rowName);

struct OperationRow {
    const char* name;
    void (*run)(ColourSchemePage& page);
};

const OperationRow operations[] = {
    {"Add", [](ColourSchemePage& page) { page.cmdAddScheme_Click(); }},
    {"Delete", [](ColourSchemePage& page) { page.cmdDeleteScheme_Click(); }},
    {"Save", [](ColourSchemePage& page) { page.cmdSaveScheme_Click(); }},
    {"EditTheName", [](ColourSchemePage& page) { page.txtSchemeName.text("Other"); }},
    {"PickTheOther", [](ColourSchemePage& page) { page.lvSchemes.selectedRow(1); }},
};

/// Two schemes, the first of them on the page.
class ColourSchemeOperationTest : public ColourSchemePageTest, public testing::WithParamInterface<OperationRow> {
protected:
    ColourSchemeOperationTest()
    {
        amber = addScheme("Amber");
        addScheme("Blue", "9");
        page.setup(enumLocalCalendarAppointmentItem);
    }
    std::int32_t amber = -1;
};

TEST_P(ColourSchemeOperationTest, WithoutAConnectionNothingChanges)
{
    page.cpBackColour(0).colour(55);
    const std::string before = allRows();
    const auto recording = std::make_shared<test::RecordingDatabase>(database);
    recording->connected = false;
    serviceRegistry().database = recording;
    GetParam().run(page);
    EXPECT_TRUE(recording->opened.empty());
    EXPECT_EQ(allRows(), before);
    EXPECT_EQ(names(), (Names{"Amber", "Blue"}));
    EXPECT_EQ(page.lvSchemes.selectedRow(), 0) << "the selection returns";
    EXPECT_EQ(page.currentSchemeID(), amber);
}

INSTANTIATE_TEST_SUITE_P(Operations, ColourSchemeOperationTest, testing::ValuesIn(operations), test::rowName);

} // namespace
} // namespace qncal
