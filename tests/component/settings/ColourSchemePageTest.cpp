#include "settings/ColourSchemePage.h"

#include "core/forwarding/ForwardingDatabaseService.h"
#include "items/clsCalendarItem.h"
#include "settings/colourSchemes.h"
#include "support/ComponentTest.h"

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

/// A database into whose colour columns another program has written words.
class WordsForColours : public ForwardingDatabaseService {
public:
    using ForwardingDatabaseService::ForwardingDatabaseService;
    Variant getField(std::int32_t handle, std::string_view fieldName) override
    {
        return fieldName == "TitleBackColour" ? Variant(std::string("red"))
                                              : ForwardingDatabaseService::getField(handle, fieldName);
    }
};

TEST_F(ColourSchemePageTest, AColourColumnWithTextLeavesThePickerAsItWas)
{
    addScheme("Amber");
    page.cpBackColour(0).colour(99);
    serviceRegistry().database = std::make_shared<WordsForColours>(database);
    page.setup(enumLocalCalendarAppointmentItem);
    EXPECT_EQ(page.cpBackColour(0).colour(), 99);
    EXPECT_EQ(page.cpBackColour(1).colour(), 2) << "the others are shown";
}

TEST_F(ColourSchemePageTest, AnItemKeepsTheNumberAndTheColoursOfADeletedScheme)
{
    const auto scheme = addScheme("Amber");
    clsCalendarItem item;
    item.calendarItemType(enumLocalCalendarAppointmentItem);
    item.addNewItem();
    item.ColourSchemeID(scheme);
    ASSERT_TRUE(item.saveCalendarItem());
    page.setup(enumLocalCalendarAppointmentItem);
    page.cmdDeleteScheme_Click();
    ASSERT_EQ(rowCount("ColourSchemes"), 0);

    ASSERT_TRUE(item.loadCalendarItem());
    EXPECT_EQ(item.ColourSchemeID(), scheme);
    EXPECT_EQ(item.ColourSchemeName(), "");
    EXPECT_EQ(item.ForeColour(), 4);
    EXPECT_TRUE(item.saveCalendarItem());
    EXPECT_EQ(cell("Appointments", item.itemID(), "SchemeID"), std::to_string(scheme));
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

TEST_F(ColourSchemePageTest, WithoutAConnectionNothingChanges)
{
    addScheme("Amber");
    page.setup(enumLocalCalendarAppointmentItem);
    database->close();
    page.cmdAddScheme_Click();
    page.cmdDeleteScheme_Click();
    EXPECT_EQ(names(), Names{"Amber"});
}

TEST_F(ColourSchemePageTest, ListsOfOtherDialogsStartWithNoScheme)
{
    const auto blue = addScheme("Blue");
    addRow("ColourSchemes", {{"SchemeType", "0"}});
    ComboBox combo(form, "cboScheme");
    combo.addItem("left over");
    modColourSchemes::populateColourSchemes(combo, 0);
    ASSERT_EQ(combo.listCount(), 2) << "a scheme without a name is left out";
    EXPECT_EQ(combo.list(0), "<No Scheme Selected>");
    EXPECT_EQ(combo.itemData(0), -1);
    EXPECT_EQ(combo.list(1), "Blue");
    EXPECT_EQ(combo.itemData(1), blue);
}

} // namespace
} // namespace qncal
