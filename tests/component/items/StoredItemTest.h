#pragma once

#include "items/clsCalendarItem.h"
#include "support/ComponentTest.h"
#include "support/RecordingDatabase.h"

#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace qncal::test {

/// A row with a value of its own in every column.
inline const TestWorld::Values fullRow = {
    {"UserIDNum", "2"},
    {"CompanyIDNum", "5"},
    {"ScheduleTypeIDNum", "3"},
    {"ScheduleIDNum", "4"},
    {"CompanyProjectStepIDNum", "6"},
    {"CommunicationLogIDNum", "8"},
    {"SeriesNum", "9"},
    {"RecurAnnually", "True"},
    {"RepeatNum", "12"},
    {"UserGroupNum", "13"},
    {"Subject", "Budget"},
    {"DateFrom", "2026-04-02"},
    {"TimeFrom", "11:00:00"},
    {"TimeTo", "12:30:00"},
    {"BeforeAppointmentText", "before"},
    {"AppointmentText", "text"},
    {"AfterAppointmentText", "after"},
    {"TextBody", "{\\rtf1 notes}"},
    {"TitleText", "title"},
    {"SchemeID", "21"},
    {"TitleBackColour", "101"},
    {"TitleForeColour", "102"},
    {"BackColour", "103"},
    {"ForeColour", "104"},
    {"NotesFlag", "True"},
    {"ClientNotifiedFlag", "True"},
    {"Remind", "True"},
    {"ReminderPeriod", "1 Hr"},
    {"Private", "True"},
    {"notifyType", "5"},
    {"hideInTasks", "True"},
    {"Custom1", "c1"},
    {"Custom2", "c2"},
    {"Custom3", "c3"},
    {"Custom4", "c4"},
    {"Custom5", "c5"},
    {"Status1", "True"},
    {"Status2", "False"},
    {"Status3", "True"},
    {"Status4", "False"},
    {"Status5", "True"},
};

/// What every test of an item's row starts with: an item, and a database that records what is done to it.
class StoredItemTest : public ComponentTest {
protected:
    StoredItemTest()
    {
        // Templates without fields: the texts are rendered, but have nothing to merge.
        Values templates{{"UserIDNum", "-1"}};
        for (const char* column : {"ApptTitleBarText", "ApptTemplate", "TaskTitleBarText", "TaskTemplate",
                                   "DocketTitleBarText", "DocketTemplate"})
            templates.emplace_back(column, "text");
        addRow("UserCalendarSettings", templates);
        serviceRegistry().database = recording;
    }

    /// The templates are loaded by then, so that the record holds what the routine under test does.
    void startRecording()
    {
        recording->opened.clear();
        recording->written.clear();
        recording->operations.clear();
        errorsSeen();
    }
    /// The statements on a table and their lock types; rendering the texts opens others before them.
    std::vector<std::pair<std::string, std::int32_t>> openedOn(const std::string& table) const
    {
        auto statements = recording->opened;
        std::erase_if(statements,
                      [&](const auto& statement) { return !statement.first.starts_with("SELECT " + table + "."); });
        return statements;
    }
    std::size_t errorsSeen() { return errors->takeErrors().size(); }
    void useKind(enumLocalCalendarItemType kind)
    {
        item.calendarItemType(kind);
        startRecording();
    }

    std::shared_ptr<RecordingDatabase> recording = std::make_shared<RecordingDatabase>(database);
    clsCalendarItem item;
};

struct KindRow {
    enumLocalCalendarItemType kind;
    std::string table;
    std::string key;
};

/// The same for each kind of item.
class StoredItemKindTest : public StoredItemTest, public testing::WithParamInterface<KindRow> {};

inline const KindRow kindRows[] = {{enumLocalCalendarAppointmentItem, "Appointments", "AppointmentID"},
                                   {enumLocalCalendarTaskItem, "Tasks", "TaskID"},
                                   {enumLocalCalendarDocketItem, "Dockets", "DocketID"}};

} // namespace qncal::test
