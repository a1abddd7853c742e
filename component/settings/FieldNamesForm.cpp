#include "settings/FieldNamesForm.h"

#include "core/RecordSet.h"

namespace qncal {

FieldNamesForm::FieldNamesForm(const Texts& texts) : ItemKindForm(std::string(texts.formName)), texts_(texts)
{
    lblCaption.forEach([&](Label& caption, int index) {
        caption.caption(std::string(texts_.fieldCaption) + std::to_string(index) + ":");
    });
    txtField.forEach([&](TextBox& field, int index) {
        field.accessibleName(std::string(texts_.fieldCaption) + std::to_string(index));
        field.Change = [this] { txtField_Change(); };
    });
    cmdAdvancedOptions.forEach([&](CommandButton& button, int index) {
        button.caption("View Advanced Options");
        button.accessibleName("View Advanced Options, " + std::string(texts_.fieldCaption) + std::to_string(index));
        button.Click = [this, index] { cmdAdvancedOptions_Click(index); };
    });
    cmdOK.caption("&Ok");
    cmdOK.isDefault(true);
    cmdOK.Click = [this] { cmdOK_Click(); };
    cmdApply.caption("&Apply");
    cmdApply.Click = [this] { cmdApply_Click(); };
    cmdCancel.caption("&Cancel");
    cmdCancel.isCancel(true);
    cmdCancel.causesValidation(false);
    cmdCancel.Click = [this] { cmdCancel_Click(); };
}

std::string FieldNamesForm::label(std::string_view routineName) const
{
    return "Vestrel.exe-" + std::string(texts_.formName) + "-" + std::string(routineName);
}

void FieldNamesForm::Initialize(enumLocalCalendarItemType kind)
{
    routine(label("Initialize"), [&] {
        calendarKind_ = kind;
        setupForm();
        populateFieldNames();
        showModal();
    });
}

void FieldNamesForm::setupForm()
{
    routine(label("setupForm"), [&] {
        startUpPosition(StartUpPosition::byMainWindow);
        caption(std::string(textOfKind(texts_.titles, calendarKind_)));
        lblIntroduction.caption(std::string(textOfKind(texts_.introductions, calendarKind_)));
    });
}

std::string FieldNamesForm::columnName(int index) const
{
    return std::string(kindPrefix()) + std::string(texts_.column) + std::to_string(index);
}

std::string FieldNamesForm::selectStatement() const
{
    std::string sql = "SELECT ";
    for (int index = txtField.lowerBound(); index <= txtField.upperBound(); ++index) {
        if (index > txtField.lowerBound())
            sql += ", ";
        sql += "CustomFields." + columnName(index);
    }
    return sql + " FROM CustomFields;";
}

void FieldNamesForm::populateFieldNames()
{
    routine(label("populateFieldNames"), [&] {
        if (!isDatabaseConnected())
            return;
        RecordSet names = RecordSet::openReadOnly(selectStatement());
        if (names.hasRecords())
            txtField.forEach([&](TextBox& field, int index) {
                std::string name;
                names.read(columnName(index), name);
                field.text(name);
            });
        names.close();
    });
}

void FieldNamesForm::saveFields()
{
    routine(label("saveFields"), [&] {
        if (!isDatabaseConnected())
            return;
        RecordSet names = RecordSet::openUpdatable(selectStatement());
        // A database that never held a name has no row to write to.
        const bool newRow = names.isEmpty();
        if (newRow)
            names.addNew();
        txtField.forEach([&](TextBox& field, int index) { names.write(columnName(index), field.text()); });
        if (newRow)
            names.update();
        names.close();
    });
}

void FieldNamesForm::cmdOK_Click()
{
    routine(label("cmdOK_Click"), [&] {
        saveFields();
        unload();
    });
}

void FieldNamesForm::cmdApply_Click()
{
    routine(label("cmdApply_Click"), [&] { saveFields(); });
}

void FieldNamesForm::cmdCancel_Click()
{
    routine(label("cmdCancel_Click"), [&] { unload(); });
}

void FieldNamesForm::txtField_Change() { changed_ = true; }

void FieldNamesForm::Form_Unload()
{
    routine(label("Form_Unload"), [&] { changed_ = false; });
}

} // namespace qncal
