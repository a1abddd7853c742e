#include "settings/ColourSchemePage.h"

#include "controls/controlTargets.h"
#include "core/RecordSet.h"
#include "core/fillList.h"
#include "core/readColour.h"
#include "items/CalendarItemRecord.h"
#include "settings/kindWords.h"
#include "settings/modColourSchemes.h"

namespace qncal {

namespace {

constexpr TextsByKind previewTitles{"Appointment Title", "Task Title", "Time Entry Title"};

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
    lvSchemes.headingsSort(false);
    lvSchemes.Click = [this] { lvSchemes_Click(); };
    txtSchemeName.accessibleName("Scheme name");
    txtSchemeName.Change = [this] { txtSchemeName_Change(); };
    constexpr std::string_view colourTitles[] = {
        "Title Bar Background:", "Title Bar Foreground:", "Body Background:", "Body Foreground:"};
    // A list without a scheme shows a preview that can be read.
    const CalendarItemRecord newItem;
    const Colour coloursOfNewItem[] = {newItem.titleBackColour, newItem.titleForeColour, newItem.backColour,
                                       newItem.foreColour};
    cpBackColour.forEach([&](ColourPicker& picker, int index) {
        picker.colour(coloursOfNewItem[index]);
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
    makeFirstCurrent();
}

void ColourSchemePage::populateColourSchemes()
{
    routine("Vestrel.exe-frmDayTimerSettings-populateColourSchemes", [&] {
        if (!isDatabaseConnected())
            return;
        const PopulatingMark mark(populatingSchemes_);
        lvSchemes.clear();
        ListViewTarget target(lvSchemes);
        fillList(target, modColourSchemes::schemesOfKind("ColourSchemes.*", calendarKind_), "ColourSchemeID",
                 "SchemeName", NullText::blank);
        selectCurrentRow();
    });
}

void ColourSchemePage::populateSchemeInformation() { showCurrentScheme(); }

bool ColourSchemePage::showCurrentScheme()
{
    return routine("Vestrel.exe-frmDayTimerSettings-populateSchemeInformation", false, [&] {
        if (!isDatabaseConnected())
            return true;
        RecordSet scheme = RecordSet::openReadOnly(schemeByID("ColourSchemes.*", currentSchemeID_));
        const bool found = scheme.hasRecords();
        // Everything is read before anything is shown: the page never holds half of a scheme.
        std::string name;
        std::array<std::int32_t, modColourSchemes::colourColumns.size()> colours;
        cpBackColour.forEach(
            [&](const ColourPicker& picker, int index) { colours[static_cast<std::size_t>(index)] = picker.colour(); });
        if (found) {
            scheme.read("SchemeName", name);
            for (std::size_t index = 0; index < colours.size(); ++index)
                readColour(scheme, modColourSchemes::colourColumns[index], colours[index]);
        }
        scheme.close();
        if (found || currentSchemeID_ < 0) {
            const PopulatingMark mark(populatingSchemes_);
            txtSchemeName.text(name);
            cpBackColour.forEach(
                [&](ColourPicker& picker, int index) { picker.colour(colours[static_cast<std::size_t>(index)]); });
        }
        showColourPreview();
        return true;
    });
}

void ColourSchemePage::makeCurrent(std::int32_t schemeID, std::int32_t orElse)
{
    currentSchemeID_ = schemeID;
    if (!showCurrentScheme())
        currentSchemeID_ = orElse;
    selectCurrentRow();
}

void ColourSchemePage::makeFirstCurrent()
{
    makeCurrent(lvSchemes.rows().empty() ? -1 : lvSchemes.rows().front().itemData, -1);
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
        std::int32_t added = -1;
        schemes.read("ColourSchemeID", added);
        schemes.update();
        schemes.close();
        populateColourSchemes();
        makeCurrent(added, currentSchemeID_);
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
        makeFirstCurrent();
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
        if (saved)
            makeCurrent(lvSchemes.selectedItemData(), currentSchemeID_);
        else
            selectCurrentRow();
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

} // namespace qncal
