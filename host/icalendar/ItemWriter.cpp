#include "icalendar/ItemWriter.h"

#include "icalendar/itemFields.h"
#include "icalendar/notesBlock.h"
#include "services/Rows.h"
#include "services/saveItem.h"
#include "utilities/Clock.h"
#include "utilities/RunTimeError.h"
#include "utilities/numberText.h"
#include "utilities/text.h"

#include <utility>

namespace qncal::host::icalendar {

void ItemWriter::write(const Row& row)
{
    clsCalendarItem item;
    item.calendarItemType(row.bundle.kind);
    item.addNewItem();
    if (row.existing) {
        item.itemID(row.existing->id);
        item.loadCalendarItem();
    }
    fill(item, row);
    if (row.existing && !item.IsDirty()) {
        ++counts_.unchanged;
        return;
    }
    if (!dryRun_)
        save(item);
    if (!row.existing && !dryRun_)
        added_.emplace_back(row.bundle.kind, item.itemID());
    ++(row.existing ? counts_.updated : counts_.added);
}

ItemWriter::Counts ItemWriter::finish()
{
    added_.clear();
    return std::exchange(counts_, {});
}

void ItemWriter::undo()
{
    for (const auto& [kind, id] : added_) {
        clsCalendarItem item;
        item.calendarItemType(kind);
        item.itemID(id);
        item.deleteCalendarItem();
    }
    finish();
}

void ItemWriter::fill(clsCalendarItem& item, const Row& row)
{
    const CalendarComponent& component = *row.planned.component;
    const DayTimes& times = row.planned.times;
    item.userIDNum(row.userID);
    // A to-do without a date stays where it was put first.
    if (!row.planned.isUndated || !row.existing) {
        item.DateFrom(times.day);
        item.TimeFrom(times.from);
        item.TimeTo(times.to);
    }
    item.Subject(component.textOf("SUMMARY"));
    const std::string classification = component.textOf("CLASS");
    item.PrivateItem(equalsNoCase(classification, "PRIVATE") || equalsNoCase(classification, "CONFIDENTIAL"));
    item.RepeatNum(row.series);
    item.UserGroupNum(row.group);
    fillFields(item, component);
    fillReminder(item, row);
    fillNotes(item, row);
    notifyTheDayBefore(item);
}

void ItemWriter::fillFields(clsCalendarItem& item, const CalendarComponent& component)
{
    for (const auto& [kind, property] :
         {std::pair(ClientKind::company, companyProperty), std::pair(ClientKind::contact, contactProperty)}) {
        const ContentLine* line = component.find(property);
        const auto client = line ? people_.clientOf(kind, *line) : std::nullopt;
        if (client && kind == ClientKind::company)
            item.companyIDNum(*client);
        else if (client)
            item.contactIDNum(*client);
    }
    // An export leaves out what is as in a new item; a file of another program knows nothing of these fields.
    const bool isOwn = component.find(userProperty) != nullptr;
    clsCalendarItem blank;
    for (const ItemField& field : itemFields()) {
        if (const ContentLine* line = component.find(field.property))
            field.set(item, fromExactText(line->value()));
        else if (isOwn)
            field.set(item, field.get(blank));
    }
}

void ItemWriter::fillReminder(clsCalendarItem& item, const Row& row)
{
    const CalendarComponent& component = *row.planned.component;
    const ContentLine* period = component.find(periodProperty);
    if (row.alarm && !row.planned.isLaterDay) {
        item.Remind(true);
        item.reminderPeriod(row.alarm->period);
    } else if (component.find(userProperty)) {
        item.Remind(false);
    }
    if (period)
        item.reminderPeriod(period->textValue());
}

void ItemWriter::fillNotes(clsCalendarItem& item, const Row& row)
{
    const CalendarComponent& component = *row.planned.component;
    const ItemNotes before = readNotes(item.Notes_RichText());
    ItemNotes notes;
    if (const ContentLine* richText = component.find(richTextProperty))
        notes.formatted = fromExactText(richText->value());
    const std::string description = component.textOf("DESCRIPTION");
    // Another program may have changed the text since, and knows nothing of its form.
    if (!notes.formatted.empty() && readNotes(notes.formatted).text != description)
        notes.formatted.clear();
    if (notes.formatted.empty() && before.description() == description)
        notes = before;
    else if (notes.formatted.empty()) {
        notes.text = description;
        notes.below = before.below;
    }
    notes.kept.clear();
    if (!row.existing || !row.existing->isMadeUp)
        notes.kept.push_back("UID:" + row.bundle.uid);
    if (!row.planned.occurrence.empty())
        notes.kept.push_back(row.planned.occurrence);
    notes.kept.insert(notes.kept.end(), row.kept.begin(), row.kept.end());
    item.Notes_RichText(notesRichText(notes));
}

/// The component keeps its errors to itself; the error control has them.
void ItemWriter::save(clsCalendarItem& item)
{
    const std::size_t errorsBefore = host_.errors().reportCount();
    const bool saved = saveItem(item);
    if (host_.errors().reportCount() != errorsBefore) {
        const ErrorState& error = host_.errors().reports().back().error;
        throw RunTimeError(error.number, error.text);
    }
    if (!saved)
        throw RunTimeError(errorNumber::invalidProcedureCall, "the item was not saved");
    completePastReminder(item);
}

void ItemWriter::completePastReminder(const clsCalendarItem& item)
{
    if (!item.Remind() || item.calendarItemType() == enumLocalCalendarDocketItem)
        return;
    const bool isTask = item.calendarItemType() == enumLocalCalendarTaskItem;
    const std::string column = isTask ? "TaskIDNum" : "AppointmentIDNum";
    DatabaseService& database = host_.database();
    for (Rows rows = Rows::change(database, "SELECT Reminders.* FROM Reminders WHERE Reminders." + column + "="
                                                + std::to_string(item.itemID()) + " AND Reminders.ReminderDate<#"
                                                + database.getSQLDate(today()) + "#;");
         !rows.atEnd(); rows.moveNext())
        rows.set("Completed", booleanText(true));
}

} // namespace qncal::host::icalendar
