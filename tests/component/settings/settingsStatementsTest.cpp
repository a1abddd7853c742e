#include "core/ServiceRegistry.h"
#include "settings/ColourSchemePage.h"
#include "settings/frmApptCustomFields.h"
#include "settings/frmApptStatusOptions.h"
#include "settings/frmChangeApptStatusFields.h"
#include "support/ComponentTest.h"
#include "support/RecordingDatabase.h"
#include "support/rowName.h"

#include <gtest/gtest.h>

// The statements of the settings dialogs as the database gets them, the order of their writes, and their labels.

namespace qncal {
namespace {

using Texts = std::vector<std::string>;
using Opened = std::vector<std::pair<std::string, std::int32_t>>;
constexpr auto readOnly = DatabaseService::readOnly;
constexpr auto updatable = DatabaseService::updatable;

struct KindRow {
    const char* name;
    enumLocalCalendarItemType kind;
    const char* number;
    const char* prefix;
};
const KindRow kinds[] = {
    {"Appointment", enumLocalCalendarAppointmentItem, "0", "Appt"},
    {"Task", enumLocalCalendarTaskItem, "1", "Task"},
    {"TimeEntry", enumLocalCalendarDocketItem, "2", "Docket"},
};

class SettingsStatementsTest : public test::ComponentTestWith<KindRow> {
protected:
    void record() { serviceRegistry().database = recording; }
    Opened opened() { return std::exchange(recording->opened, {}); }
    std::string column(const std::string& rest) const { return GetParam().prefix + rest; }
    std::string fiveColumns(const std::string& stem) const
    {
        std::string columns;
        for (const char* number : {"1", "2", "3", "4", "5"})
            columns += (columns.empty() ? "CustomFields." : ", CustomFields.") + column(stem) + number;
        return "SELECT " + columns + " FROM CustomFields;";
    }
    std::shared_ptr<test::RecordingDatabase> recording = std::make_shared<test::RecordingDatabase>(database);
};

TEST_P(SettingsStatementsTest, ColourSchemes)
{
    const std::string number = GetParam().number;
    const auto id = addRow("ColourSchemes", {{"SchemeName", "Blue"}, {"SchemeType", number}, {"BackColour", "3"}});
    Form form{"frmDayTimerSettings"};
    ColourSchemePage page{form};
    page.cpBackColour.forEach([](ColourPicker& picker, int index) { picker.colour(10 + index); });
    record();
    const std::string ofTheKind = "SELECT ColourSchemes.* FROM ColourSchemes WHERE ColourSchemes.SchemeType = " + number
                                  + " ORDER BY ColourSchemes.SchemeName;";
    const auto ofTheScheme = [](std::int32_t scheme) {
        return "SELECT ColourSchemes.* FROM ColourSchemes WHERE ColourSchemeID=" + std::to_string(scheme) + ";";
    };
    page.setup(GetParam().kind);
    EXPECT_EQ(opened(), (Opened{{ofTheKind, readOnly}, {ofTheScheme(id), readOnly}}));

    page.cmdSaveScheme_Click();
    EXPECT_EQ(opened(), (Opened{{ofTheScheme(id), updatable}}));
    EXPECT_EQ(recording->written, (Texts{"SchemeName=Blue", "SchemeType=" + number, "TitleBackColour=10",
                                         "TitleForeColour=11", "BackColour=3", "ForeColour=13"}));

    recording->written.clear();
    recording->operations.clear();
    page.cmdAddScheme_Click();
    const auto added = page.currentSchemeID();
    EXPECT_EQ(opened(), (Opened{{ofTheScheme(id), updatable},
                                {"SELECT ColourSchemes.* FROM ColourSchemes;", updatable},
                                {ofTheKind, readOnly},
                                {ofTheScheme(added), readOnly}}));
    ASSERT_EQ(recording->written.size(), 8u);
    EXPECT_EQ(recording->written[6], "SchemeType=" + number);
    EXPECT_EQ(recording->written[7], "SchemeName=New Scheme");
    const auto begun = std::find(recording->operations.begin(), recording->operations.end(), "addNew");
    ASSERT_GE(recording->operations.end() - begun, 6);
    EXPECT_EQ(Texts(begun, begun + 6),
              (Texts{"addNew", "setNewField", "setNewField", "getField", "update", "closeRecordset"}))
        << "the number is read before the record is stored";

    page.cmdDeleteScheme_Click();
    EXPECT_EQ(opened(), (Opened{{ofTheScheme(added), updatable},
                                {"SELECT ColourSchemes.ColourSchemeID FROM ColourSchemes WHERE ColourSchemeID="
                                     + std::to_string(added) + ";",
                                 updatable},
                                {ofTheKind, readOnly},
                                {ofTheScheme(id), readOnly}}));
    EXPECT_TRUE(recording->open.empty());
}

TEST_P(SettingsStatementsTest, StatusNames)
{
    addRow("CustomFields", {});
    frmChangeApptStatusFields form;
    dialogs->whenShown("frmChangeApptStatusFields", [](host::Hand& hand) {
        hand.type("txtField(2)", "b");
        hand.click("cmdOK");
    });
    record();
    form.Initialize(GetParam().kind);
    EXPECT_EQ(opened(), (Opened{{fiveColumns("StatusName"), readOnly}, {fiveColumns("StatusName"), updatable}}));
    EXPECT_EQ(recording->written, (Texts{column("StatusName1="), column("StatusName2=b"), column("StatusName3="),
                                         column("StatusName4="), column("StatusName5=")}));
    EXPECT_TRUE(recording->open.empty());
}

TEST_P(SettingsStatementsTest, CustomNames)
{
    addRow("CustomFields", {});
    frmApptCustomFields form;
    dialogs->whenShown("frmApptCustomFields", [](host::Hand& hand) {
        hand.type("txtField(5)", "e");
        hand.click("cmdApply");
    });
    record();
    form.Initialize(GetParam().kind);
    EXPECT_EQ(opened(), (Opened{{fiveColumns("CustomName"), readOnly}, {fiveColumns("CustomName"), updatable}}));
    EXPECT_EQ(recording->written, (Texts{column("CustomName1="), column("CustomName2="), column("CustomName3="),
                                         column("CustomName4="), column("CustomName5=e")}));
}

TEST_P(SettingsStatementsTest, StatusOptions)
{
    addRow("CustomFields", {});
    frmApptStatusOptions form;
    dialogs->whenShown("frmApptStatusOptions", [](host::Hand& hand) {
        hand.check("chkField(1)", true);
        hand.check("chkSample(7)", true);
        hand.pickColour("cpBackgroundColour", 255);
        hand.click("cmdOK");
    });
    record();
    form.Initialize(GetParam().kind, "Done", 4);
    EXPECT_EQ(opened(), (Opened{{"SELECT CustomFields.* FROM CustomFields;", readOnly},
                                {"SELECT CustomFields.* FROM CustomFields;", updatable}}));
    EXPECT_EQ(recording->written,
              (Texts{column("StatusName4=Done"), column("UseStatusColour4=False"), column("UseStatusIcon4=True"),
                     column("StatusColour4=255"), column("StatusIcon4=7")}));
    EXPECT_TRUE(recording->open.empty());
}

INSTANTIATE_TEST_SUITE_P(Kinds, SettingsStatementsTest, testing::ValuesIn(kinds), test::rowName);

/// A routine and the labels that it pushes after "Vestrel.exe-", its own first.
struct LabelRow {
    const char* name;
    std::vector<std::string> labels;
    std::function<void(ColourSchemePage& page, frmChangeApptStatusFields& names, frmApptStatusOptions& options)> call;
};

class SettingsLabelsTest : public test::ComponentTestWith<LabelRow> {};

TEST_P(SettingsLabelsTest, ARoutinePushesItsLabel)
{
    addRow("ColourSchemes", {{"SchemeName", "Blue"}, {"SchemeType", "0"}});
    addRow("CustomFields", {{"ApptStatusIcon1", "1"}});
    Form form{"frmDayTimerSettings"};
    ColourSchemePage page{form};
    page.setup(enumLocalCalendarAppointmentItem);
    frmChangeApptStatusFields names;
    frmApptStatusOptions options;
    dialogs->whenAnyShown([](host::Hand& hand) { hand.closeByBox(); });
    names.Initialize(enumLocalCalendarAppointmentItem);
    options.Initialize(enumLocalCalendarAppointmentItem, "Done", 1);
    const std::size_t before = errors->labels().size();
    GetParam().call(page, names, options);
    Texts expected;
    for (const std::string& label : GetParam().labels)
        expected.push_back("Vestrel.exe-" + label);
    EXPECT_EQ(Texts(errors->labels().begin() + static_cast<std::ptrdiff_t>(before), errors->labels().end()), expected);
}

#define CALL(expression)                                                                                               \
    [](ColourSchemePage& page, frmChangeApptStatusFields& names, frmApptStatusOptions& options) {                      \
        static_cast<void>(page), static_cast<void>(names), static_cast<void>(options);                                 \
        expression;                                                                                                    \
    }

constexpr const char* populateSchemes = "frmDayTimerSettings-populateColourSchemes";
constexpr const char* populateScheme = "frmDayTimerSettings-populateSchemeInformation";
constexpr const char* saveScheme = "frmDayTimerSettings-saveSchemeChanges";

const LabelRow labels[] = {
    {"PopulateSchemes", {populateSchemes}, CALL(page.populateColourSchemes())},
    {"PopulateScheme", {populateScheme}, CALL(page.populateSchemeInformation())},
    {"SaveScheme", {"frmDayTimerSettings-cmdSaveScheme_Click", saveScheme}, CALL(page.cmdSaveScheme_Click())},
    {"AddScheme",
     {"frmDayTimerSettings-cmdAddScheme_Click", saveScheme, populateSchemes, populateScheme},
     CALL(page.cmdAddScheme_Click())},
    {"DeleteScheme",
     {"frmDayTimerSettings-cmdDeleteScheme_Click", saveScheme, populateSchemes, populateScheme},
     CALL(page.cmdDeleteScheme_Click())},
    {"PickAScheme", {"frmDayTimerSettings-lvSchemes_Click", saveScheme, populateScheme}, CALL(page.lvSchemes_Click())},
    {"NameAScheme",
     {"frmDayTimerSettings-txtSchemeName_Change", saveScheme, populateSchemes},
     CALL(page.txtSchemeName.text("B"))},
    {"OpenTheNames",
     {"frmChangeApptStatusFields-Initialize", "frmChangeApptStatusFields-setupForm",
      "frmChangeApptStatusFields-populateFieldNames", "frmChangeApptStatusFields-Form_Unload"},
     CALL(names.Initialize(enumLocalCalendarAppointmentItem))},
    {"NamesOk",
     {"frmChangeApptStatusFields-cmdOK_Click", "frmChangeApptStatusFields-saveFields",
      "frmChangeApptStatusFields-Form_Unload"},
     CALL(names.cmdOK_Click())},
    {"NamesApply",
     {"frmChangeApptStatusFields-cmdApply_Click", "frmChangeApptStatusFields-saveFields"},
     CALL(names.cmdApply_Click())},
    {"NamesCancel",
     {"frmChangeApptStatusFields-cmdCancel_Click", "frmChangeApptStatusFields-Form_Unload"},
     CALL(names.cmdCancel_Click())},
    {"OpenTheOptions",
     {"frmApptStatusOptions-Initialize", "frmApptStatusOptions-setupForm", "frmApptStatusOptions-setupScrollBars"},
     CALL(options.Initialize(enumLocalCalendarAppointmentItem, "Done", 1))},
    {"OptionsOk", {"frmApptStatusOptions-cmdOK_Click", "frmApptStatusOptions-saveFields"}, CALL(options.cmdOK_Click())},
    {"OptionsCancel", {"frmApptStatusOptions-cmdCancel_Click"}, CALL(options.cmdCancel_Click())},
};
#undef CALL

INSTANTIATE_TEST_SUITE_P(Routines, SettingsLabelsTest, testing::ValuesIn(labels), test::rowName);

} // namespace
} // namespace qncal
