#include "core/clsCalendarItemType.h"

#include "core/RecordSet.h"
#include "core/calendarItemKinds.h"
#include "core/nullText.h"
#include "core/routineScope.h"

#include <utility>

// The labels name the item's class, from which these routines were taken.

namespace qncal {

namespace {

/// What damaged data of old holds in place of a template.
bool isZeroText(const std::string& text) { return text == " 0 " || text == "0"; }

} // namespace

void clsCalendarItemType::calendarItemType(enumLocalCalendarItemType kind)
{
    if (kind == kind_)
        return;
    const CalendarItemKind& names = calendarItemKind(kind);
    kind_ = kind;
    tableName_ = names.tableName;
    fieldName_ = names.fieldName;
    typeName_ = names.typeName;
    tableText_ = names.tableText;
    skipOnError([this] { getCalendarItemTextTemplates(); });
}

const std::string& clsCalendarItemType::CalendarItemTitleBarTemplateText()
{
    loadAndVerifyTemplates();
    return titleBarTemplate_;
}

const std::string& clsCalendarItemType::CalendarItemDisplayTemplateText()
{
    loadAndVerifyTemplates();
    return displayTemplate_;
}

void clsCalendarItemType::loadAndVerifyTemplates()
{
    if (!templatesLoaded_)
        getCalendarItemTextTemplates();
    // Meant for both reads: the title bar's own verification is not part of this path.
    verifyCalendarItemDisplayTemplateText();
}

void clsCalendarItemType::getCalendarItemTextTemplates()
{
    routine("Vestrel.exe-clsCalendarItem-getCalendarItemTextTemplates", [this] {
        titleBarTemplate_.clear();
        displayTemplate_.clear();
        if (isDatabaseConnected()) {
            const std::string titleBarColumn = tableText_ + "TitleBarText";
            const std::string displayColumn = tableText_ + "Template";
            auto rst = RecordSet::openUpdatable(
                "SELECT UserCalendarSettings.* FROM UserCalendarSettings WHERE UserIDNum = -1;");
            if (rst.hasRecords()) {
                std::string titleBar;
                std::string display;
                rst.read(titleBarColumn, titleBar);
                rst.read(displayColumn, display);
                titleBarTemplate_ = std::move(titleBar); // together, so that a failed read leaves both empty
                displayTemplate_ = std::move(display);
            } else {
                setDefaultCalendarItemDisplayTextTemplates();
                rst.addNew();
                // UserIDNum is left to the store on purpose.
                rst.writeNew(titleBarColumn, titleBarTemplate_);
                rst.writeNew(displayColumn, displayTemplate_);
                rst.update();
            }
            rst.close();
        }
        templatesLoaded_ = true;
    });
}

void clsCalendarItemType::setDefaultCalendarItemDisplayTextTemplates()
{
    routine("Vestrel.exe-clsCalendarItem-setDefaultCalendarItemDisplayTextTemplates", [this] {
        displayTemplate_ = calendarItemKind(kind_).defaultDisplayTemplate;
        templatesLoaded_ = true;
    });
}

void clsCalendarItemType::verifyCalendarItemDisplayTemplateText()
{
    routine("Vestrel.exe-clsCalendarItem-verifyCalendarItemDisplayTemplateText", [this] {
        if (isZeroText(displayTemplate_) || isNullText(displayTemplate_) || displayTemplate_ == "Text Constant")
            setDefaultCalendarItemDisplayTextTemplates();
    });
}

void clsCalendarItemType::verifyCalendarItemTitleBarTemplateText()
{
    routine("Vestrel.exe-clsCalendarItem-verifyCalendarItemTitleBarTemplateText", [this] {
        if (isZeroText(titleBarTemplate_))
            titleBarTemplate_.clear();
        const bool isTemplate =
            titleBarTemplate_.find("«") != std::string::npos || titleBarTemplate_.find("\\'ab") != std::string::npos;
        if (!isNullText(titleBarTemplate_) && !isTemplate)
            titleBarTemplate_ = "«" + titleBarTemplate_ + "»";
    });
}

} // namespace qncal
