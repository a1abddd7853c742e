#pragma once

#include "core/enumerations.h"

#include <string>

namespace qncal {

/// The kind of a calendar item with its table, field and template names. Setting the kind fills the names and
/// loads the firm-wide text templates of that kind; no routine lets an error out.
class clsCalendarItemType {
public:
    enumLocalCalendarItemType calendarItemType() const { return kind_; }
    /// Does nothing when the kind stays the same: the templates are then not loaded again.
    void calendarItemType(enumLocalCalendarItemType kind);

    const std::string& tableName() const { return tableName_; }
    void tableName(std::string name) { tableName_ = std::move(name); }
    /// The table's autonumber key column.
    const std::string& fieldName() const { return fieldName_; }
    void fieldName(std::string name) { fieldName_ = std::move(name); }
    /// The kind's word in sentences.
    const std::string& TypeName() const { return typeName_; }
    void TypeName(std::string name) { typeName_ = std::move(name); }
    /// Prefix of the kind's template columns and merge-field words.
    const std::string& TableText() const { return tableText_; }
    void TableText(std::string text) { tableText_ = std::move(text); }

    /// The templates, in the « » language. A read loads them first if that has not happened, and puts the default
    /// display template in the place of an empty or damaged one. A write does not count as a load.
    const std::string& CalendarItemTitleBarTemplateText();
    void CalendarItemTitleBarTemplateText(std::string text) { titleBarTemplate_ = std::move(text); }
    const std::string& CalendarItemDisplayTemplateText();
    void CalendarItemDisplayTemplateText(std::string text) { displayTemplate_ = std::move(text); }

    /// Puts the kind's default display template in place; the title bar template stays.
    void setDefaultCalendarItemDisplayTextTemplates();

    // Inside the component:

    /// Loads both templates from the firm-wide settings row, and creates that row if there is none.
    void getCalendarItemTextTemplates();
    void verifyCalendarItemTitleBarTemplateText();
    void verifyCalendarItemDisplayTemplateText();

private:
    void loadAndVerifyTemplates();

    enumLocalCalendarItemType kind_ = enumLocalCalendarUnknownItem;
    std::string tableName_;
    std::string fieldName_;
    std::string typeName_;
    std::string tableText_;
    std::string titleBarTemplate_;
    std::string displayTemplate_;
    bool templatesLoaded_ = false;
};

} // namespace qncal
