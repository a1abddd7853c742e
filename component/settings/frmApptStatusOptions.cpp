#include "settings/frmApptStatusOptions.h"

#include "core/RecordSet.h"
#include "core/ServiceRegistry.h"
#include "core/messages.h"
#include "core/readColour.h"
#include "utilities/readableValue.h"

#include <algorithm>
#include <initializer_list>

namespace qncal {

namespace {

constexpr TextsByKind titles{"Appointment Status Options", "Task Check Box Options", "Time Entry Check Box Options"};
constexpr TextsByKind frameTitles{"Appointment Check Box ", "Task Check Box ", "Time Entry Check Box "};
constexpr std::string_view selectStatement = "SELECT CustomFields.* FROM CustomFields;";

/// The icons stand in six columns of one row each this high.
constexpr std::int32_t iconRowHeight = 40;
constexpr std::int32_t iconColumns = 6;

} // namespace

frmApptStatusOptions::frmApptStatusOptions() : ApptStatusOptionsForm("frmApptStatusOptions")
{
    lblField.caption("&Name:");
    txtField.accessibleName("Name");
    txtField.Change = [this] { txtField_Change(); };
    chkField(0).caption("Display co&lour");
    chkField(1).caption("Display &icon");
    cpBackgroundColour.accessibleName("Status colour");
    chkSample.forEach([this](CheckBox& sample, int index) {
        sample.accessibleName("Icon " + std::to_string(index));
        sample.container(picIconsOptions);
        sample.Click = [this, index] { chkSample_Click(index); };
    });
    for (Control* control : std::initializer_list<Control*>{&lblField, &txtField, &chkField(0), &chkField(1),
                                                            &cpBackgroundColour, &picScrollBarContainer, &vScrollBar})
        control->container(Frame1);
    picIconsOptions.container(picScrollBarContainer);
    picIconsOptions.height(iconRowHeight * ((iconCount + iconColumns - 1) / iconColumns));
    picScrollBarContainer.Resize = [this] { picScrollBarContainer_Resize(); };
    vScrollBar.bounds(0, 0);
    vScrollBar.Change = [this] { VScrollBar_Change(); };
    vScrollBar.Scroll = [this] { VScrollBar_Scroll(); };
    cmdOK.caption("&Ok");
    cmdOK.isDefault(true);
    cmdOK.Click = [this] { cmdOK_Click(); };
    cmdCancel.caption("&Cancel");
    cmdCancel.isCancel(true);
    cmdCancel.causesValidation(false);
    cmdCancel.Click = [this] { cmdCancel_Click(); };
}

void frmApptStatusOptions::Initialize(enumLocalCalendarItemType kind, const std::string& fieldName,
                                      std::int16_t fieldNumber)
{
    routine("Vestrel.exe-frmApptStatusOptions-Initialize", [&] {
        calendarKind_ = kind;
        fieldNumber_ = fieldNumber;
        caption(std::string(textOfKind(titles, kind)));
        Frame1.caption(std::string(textOfKind(frameTitles, kind)) + std::to_string(fieldNumber));
        txtField.text(fieldName);
        setupForm();
        setupScrollBars();
        populateFields();
        showModal();
    });
}

void frmApptStatusOptions::setupForm()
{
    routine("Vestrel.exe-frmApptStatusOptions-setupForm", [&] {
        startUpPosition(StartUpPosition::byMainWindow);
        changed_ = false;
    });
}

std::string frmApptStatusOptions::columnName(std::string_view middle) const
{
    return std::string(kindPrefix()) + std::string(middle) + std::to_string(fieldNumber_);
}

void frmApptStatusOptions::populateFields()
{
    if (!isDatabaseConnected())
        return;
    RecordSet fields = RecordSet::openReadOnly(selectStatement);
    if (fields.hasRecords()) {
        // A cell that another program has spoilt must not keep the dialog from opening: here it can be mended.
        const bool useColour = booleanIn(fields.field(columnName("UseStatusColour"))).value_or(false);
        const bool useIcon = booleanIn(fields.field(columnName("UseStatusIcon"))).value_or(false);
        std::int32_t colour = cpBackgroundColour.colour();
        readColour(fields, columnName("StatusColour"), colour);
        const std::int32_t icon = integerIn(fields.field(columnName("StatusIcon"))).value_or(0);
        chkField(0).value(statement([&] { return utilityService().boolToCheckBox(useColour); }));
        chkField(1).value(statement([&] { return utilityService().boolToCheckBox(useIcon); }));
        cpBackgroundColour.colour(colour);
        if (icon >= chkSample.lowerBound() && icon <= chkSample.upperBound())
            chkSample(icon).value(1);
        else
            chkSample.forEach([](CheckBox& sample, int) { sample.value(0); });
    }
    fields.close();
}

int frmApptStatusOptions::chosenIcon() const
{
    for (int index = chkSample.lowerBound(); index <= chkSample.upperBound(); ++index)
        if (chkSample(index).isChecked())
            return index;
    return 0;
}

void frmApptStatusOptions::saveFields(bool& ok)
{
    ok = false;
    routine("Vestrel.exe-frmApptStatusOptions-saveFields", [&] {
        if (!isDatabaseConnected())
            return;
        bool stored = false;
        RecordSet fields = RecordSet::openUpdatable(selectStatement);
        const int icon = chosenIcon();
        if (txtField.text().empty()) {
            showMessage("You must enter a name in the text field before exiting this window.", this);
            txtField.setFocus();
        } else if (chkField(1).isChecked() && icon == 0) {
            showMessage("You need to select one of the icons if you want to enable the display icon feature.", this);
        } else {
            const bool newRow = fields.isEmpty();
            if (newRow)
                fields.addNew();
            fields.write(columnName("StatusName"), txtField.text());
            fields.write(columnName("UseStatusColour"), chkField(0).isChecked());
            fields.write(columnName("UseStatusIcon"), chkField(1).isChecked());
            fields.write(columnName("StatusColour"), cpBackgroundColour.colour());
            fields.write(columnName("StatusIcon"), icon);
            if (newRow)
                fields.update();
            stored = true;
        }
        fields.close();
        ok = stored;
    });
}

void frmApptStatusOptions::chkSample_Click(int index)
{
    if (settingSample_)
        return;
    routine("Vestrel.exe-frmApptStatusOptions-chkSample_Click", [&] {
        settingSample_ = true;
        if (chkSample(index).isChecked())
            chkSample.forEach([&](CheckBox& sample, int other) {
                if (other != index)
                    sample.value(0);
            });
        settingSample_ = false;
    });
}

void frmApptStatusOptions::cmdOK_Click()
{
    routine("Vestrel.exe-frmApptStatusOptions-cmdOK_Click", [&] {
        bool saved = false;
        saveFields(saved);
        if (saved)
            unload();
    });
}

void frmApptStatusOptions::cmdCancel_Click()
{
    routine("Vestrel.exe-frmApptStatusOptions-cmdCancel_Click", [&] { unload(); });
}

void frmApptStatusOptions::txtField_Change() { changed_ = true; }

void frmApptStatusOptions::setupScrollBars()
{
    routine("Vestrel.exe-frmApptStatusOptions-setupScrollBars", [&] {
        const std::int32_t hidden = std::max(picIconsOptions.height() - picScrollBarContainer.height(), 0);
        vScrollBar.bounds(0, hidden);
        vScrollBar.smallChange(iconRowHeight);
        vScrollBar.largeChange(std::max(picScrollBarContainer.height(), iconRowHeight));
        vScrollBar.enabled(hidden > 0);
        VScrollBar_Change();
    });
}

void frmApptStatusOptions::VScrollBar_Change() { picIconsOptions.top(-vScrollBar.value()); }

void frmApptStatusOptions::VScrollBar_Scroll() { VScrollBar_Change(); }

void frmApptStatusOptions::picScrollBarContainer_Resize() { setupScrollBars(); }

std::shared_ptr<ApptStatusOptionsForm> newApptStatusOptionsForm() { return std::make_shared<frmApptStatusOptions>(); }

} // namespace qncal
