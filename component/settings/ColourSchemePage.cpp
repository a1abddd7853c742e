#include "settings/ColourSchemePage.h"

#include "core/RecordSet.h"
#include "settings/colourSchemes.h"
#include "settings/kindWords.h"

namespace qncal {

namespace {

constexpr TextsByKind previewTitles{"Sample Appointment", "Sample Task", "Sample Time Entry"};

/// Silences the change handlers while code fills the page.
class PopulatingMark {
public:
    explicit PopulatingMark(bool& mark) : mark_(mark), before_(std::exchange(mark, true)) {}
    ~PopulatingMark() { mark_ = before_; }
    PopulatingMark(const PopulatingMark&) = delete;
    PopulatingMark& operator=(const PopulatingMark&) = delete;

private:
    bool& mark_;
    bool before_;
};

std::string schemeByID(std::string_view columns, std::int32_t id)
{
    return "SELECT " + std::string(columns) + " FROM ColourSchemes WHERE ColourSchemeID=" + std::to_string(id) + ";";
}

} // namespace

ColourSchemePage::ColourSchemePage(Form& form)
    : lvSchemes(form, "lvSchemes"), txtSchemeName(form, "txtSchemeName"), lblColour(form, "lblColour", 0, 3),
      cpBackColour(form, "cpBackColour", 0, 3), cmdAddScheme(form, "cmdAddScheme"),
      cmdDeleteScheme(form, "cmdDeleteScheme"), cmdSaveScheme(form, "cmdSaveScheme"),
      lblTitleBar(form, "lblTitleBar", 0, 1), txtApptPreview(form, "txtApptPreview")
{
    lvSchemes.addColumn("Colour Schemes", 3000);
    lvSchemes.accessibleName("Colour Schemes");
    lvSchemes.Click = [this] { lvSchemes_Click(); };
    txtSchemeName.accessibleName("Scheme name");
    txtSchemeName.Change = [this] { txtSchemeName_Change(); };
    constexpr std::string_view colourTitles[] = {
        "Title Bar Background:", "Title Bar Foreground:", "Body Background:", "Body Foreground:"};
    cpBackColour.forEach([&](ColourPicker& picker, int index) {
        lblColour(index).caption(std::string(colourTitles[index]));
        picker.accessibleName(std::string(colourTitles[index]));
        picker.Change = [this] { showColourPreview(); };
    });
    cmdAddScheme.caption("&Add New Scheme");
    cmdAddScheme.Click = [this] { cmdAddScheme_Click(); };
    cmdDeleteScheme.caption("&Delete Scheme");
    cmdDeleteScheme.Click = [this] { cmdDeleteScheme_Click(); };
    cmdSaveScheme.caption("&Save");
    cmdSaveScheme.Click = [this] { cmdSaveScheme_Click(); };
    lblTitleBar(0).caption("Preview");
    txtApptPreview.multiLine(true);
    txtApptPreview.readOnly(true);
    txtApptPreview.accessibleName("Preview");
    txtApptPreview.text("9:00 AM - 10:30 AM\nThis is some sample text");
}

void ColourSchemePage::setup(enumLocalCalendarItemType kind)
{
    calendarKind_ = kind;
    lblTitleBar(1).caption(std::string(textOfKind(previewTitles, kind)));
    populateColourSchemes();
    selectFirstRow();
    populateSchemeInformation();
}

void ColourSchemePage::populateColourSchemes()
{
    routine("Vestrel.exe-frmDayTimerSettings-populateColourSchemes", [&] {
        if (!isDatabaseConnected())
            return;
        const PopulatingMark mark(populatingSchemes_);
        lvSchemes.clear();
        RecordSet schemes =
            RecordSet::openReadOnly("SELECT ColourSchemes.* FROM ColourSchemes "
                                    "WHERE ColourSchemes.SchemeType = "
                                    + std::to_string(calendarKind_) + " ORDER BY ColourSchemes.SchemeName;");
        for (; !schemes.isEOF(); schemes.moveNext()) {
            std::string name;
            std::int32_t id = -1;
            schemes.read("SchemeName", name);
            schemes.read("ColourSchemeID", id);
            lvSchemes.addRow({{name}, id, false});
        }
        schemes.close();
        selectCurrentRow();
    });
}

void ColourSchemePage::populateSchemeInformation()
{
    routine("Vestrel.exe-frmDayTimerSettings-populateSchemeInformation", [&] {
        if (!isDatabaseConnected())
            return;
        RecordSet scheme = RecordSet::openReadOnly(schemeByID("ColourSchemes.*", currentSchemeID_));
        if (scheme.hasRecords()) {
            const PopulatingMark mark(populatingSchemes_);
            std::string name;
            scheme.read("SchemeName", name);
            txtSchemeName.text(name);
            cpBackColour.forEach([&](ColourPicker& picker, int index) {
                std::int32_t colour = picker.colour();
                modColourSchemes::readColour(scheme, modColourSchemes::colourColumns[static_cast<std::size_t>(index)],
                                             colour);
                picker.colour(colour);
            });
        }
        scheme.close();
        showColourPreview();
    });
}

void ColourSchemePage::showColourPreview()
{
    lblTitleBar(1).backColour(cpBackColour(0).colour());
    lblTitleBar(1).foreColour(cpBackColour(1).colour());
    txtApptPreview.backColour(cpBackColour(2).colour());
    txtApptPreview.foreColour(cpBackColour(3).colour());
}

void ColourSchemePage::saveSchemeChanges(bool& saved)
{
    saved = false;
    routine("Vestrel.exe-frmDayTimerSettings-saveSchemeChanges", [&] {
        if (!isDatabaseConnected())
            return;
        RecordSet scheme = RecordSet::openUpdatable(schemeByID("ColourSchemes.*", currentSchemeID_));
        const bool found = scheme.hasRecords();
        if (found) {
            scheme.write("SchemeName", txtSchemeName.text());
            scheme.write("SchemeType", static_cast<std::int32_t>(calendarKind_));
            cpBackColour.forEach([&](ColourPicker& picker, int index) {
                scheme.write(modColourSchemes::colourColumns[static_cast<std::size_t>(index)], picker.colour());
            });
        }
        scheme.close();
        saved = found;
    });
}

void ColourSchemePage::cmdAddScheme_Click()
{
    routine("Vestrel.exe-frmDayTimerSettings-cmdAddScheme_Click", [&] {
        bool saved = false;
        saveSchemeChanges(saved);
        if (!isDatabaseConnected())
            return;
        RecordSet schemes = RecordSet::openUpdatable("SELECT ColourSchemes.* FROM ColourSchemes;");
        schemes.addNew();
        schemes.writeNew("SchemeType", static_cast<std::int32_t>(calendarKind_));
        schemes.writeNew("SchemeName", std::string_view("New Scheme"));
        schemes.read("ColourSchemeID", currentSchemeID_);
        schemes.update();
        schemes.close();
        populateColourSchemes();
        populateSchemeInformation();
    });
}

void ColourSchemePage::cmdDeleteScheme_Click()
{
    routine("Vestrel.exe-frmDayTimerSettings-cmdDeleteScheme_Click", [&] {
        bool saved = false;
        saveSchemeChanges(saved);
        if (!isDatabaseConnected())
            return;
        RecordSet scheme = RecordSet::openUpdatable(schemeByID("ColourSchemes.ColourSchemeID", currentSchemeID_));
        const bool deleted = scheme.hasRecords() && scheme.deleteRecord();
        scheme.close();
        if (!deleted)
            return;
        populateColourSchemes();
        selectFirstRow();
        populateSchemeInformation();
    });
}

void ColourSchemePage::cmdSaveScheme_Click()
{
    routine("Vestrel.exe-frmDayTimerSettings-cmdSaveScheme_Click", [&] {
        bool saved = false;
        saveSchemeChanges(saved);
    });
}

void ColourSchemePage::lvSchemes_Click()
{
    if (populatingSchemes_)
        return;
    routine("Vestrel.exe-frmDayTimerSettings-lvSchemes_Click", [&] {
        bool saved = false;
        saveSchemeChanges(saved);
        if (saved) {
            currentSchemeID_ = lvSchemes.selectedItemData();
            populateSchemeInformation();
        } else {
            selectCurrentRow();
        }
    });
}

void ColourSchemePage::txtSchemeName_Change()
{
    if (populatingSchemes_)
        return;
    routine("Vestrel.exe-frmDayTimerSettings-txtSchemeName_Change", [&] {
        bool saved = false;
        saveSchemeChanges(saved);
        populateColourSchemes();
    });
}

void ColourSchemePage::selectCurrentRow()
{
    const PopulatingMark mark(populatingSchemes_);
    lvSchemes.selectedRow(lvSchemes.findItemData(currentSchemeID_));
}

void ColourSchemePage::selectFirstRow()
{
    const PopulatingMark mark(populatingSchemes_);
    lvSchemes.selectedRow(0);
    currentSchemeID_ = lvSchemes.selectedItemData();
}

} // namespace qncal
