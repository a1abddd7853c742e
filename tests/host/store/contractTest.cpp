#include "host/store/StoreFactory.h"

#include "utilities/RunTimeError.h"

#include <string>
#include <vector>

namespace qncal::host {
namespace {

const std::string allAppointments = "SELECT Appointments.* FROM Appointments;";

/// What any store must do that answers the contract.
class StoreContract : public StoreTest {
protected:
    std::int32_t addAppointment(const std::string& subject, const Fields& more = {})
    {
        Fields fields{{"Subject", subject}};
        fields.insert(fields.end(), more.begin(), more.end());
        const std::int32_t id = add("Appointments", "AppointmentID", fields);
        step();
        return id;
    }
    std::string byKey(std::int32_t id) const
    {
        return "SELECT Appointments.* FROM Appointments WHERE Appointments.AppointmentID=" + std::to_string(id) + ";";
    }
    std::vector<std::string> subjects(const std::string& sql)
    {
        std::vector<std::string> texts;
        for (const Variant& value : column(sql, "Subject"))
            texts.push_back(value.toText());
        return texts;
    }
    Variant read(std::int32_t id, const std::string& field)
    {
        const auto handle = openReadOnly(byKey(id));
        const Variant value = store().getField(handle, field);
        store().closeRecordset(handle);
        return value;
    }
};

INSTANTIATE_TEST_SUITE_P(Stores, StoreContract, ::testing::ValuesIn(storeFactories()),
                         [](const auto& store) { return store.param.name; });

using Texts = std::vector<std::string>;

TEST_P(StoreContract, IsConnectedFromTheStart) { EXPECT_TRUE(store().isConnected()); }

TEST_P(StoreContract, AnEmptySetHasNoRecordsAndStandsAtItsEnd)
{
    const auto handle = openReadOnly(allAppointments);
    EXPECT_GT(handle, 0);
    EXPECT_FALSE(store().hasRecords(handle));
    EXPECT_TRUE(store().isRecordsetEmpty(handle));
    EXPECT_TRUE(store().isEOF(handle));
    EXPECT_EQ(store().getRecordCount(handle), 0);
    EXPECT_EQ(store().getPosition(handle), 1);
    EXPECT_THROW(store().getField(handle, "Subject"), RunTimeError);
}

TEST_P(StoreContract, AHandleLivesUntilItIsClosed)
{
    const auto first = openReadOnly(allAppointments);
    const auto second = openReadOnly(allAppointments);
    EXPECT_NE(first, second);
    store().closeRecordset(first);
    EXPECT_FALSE(store().isRecordsetOpen(first));
    EXPECT_TRUE(store().isRecordsetOpen(second));
    EXPECT_THROW(store().hasRecords(first), RunTimeError);
    const auto third = openReadOnly(allAppointments);
    EXPECT_NE(first, third) << "the closed handle must not come to life again";
    for (const std::int32_t wrong : {0, -1, 999999})
        EXPECT_FALSE(store().isRecordsetOpen(wrong)) << wrong;
}

TEST_P(StoreContract, TheNewKeyIsKnownBeforeTheRecordIsStored)
{
    const auto handle = openUpdatable(allAppointments);
    store().addNew(handle);
    const auto id = store().getField(handle, "AppointmentID").toInteger();
    EXPECT_GT(id, 0);
    store().setNewField(handle, "Subject", "Visit");
    EXPECT_EQ(store().getField(handle, "Subject"), Variant("Visit"));
    EXPECT_TRUE(store().update(handle));
    EXPECT_EQ(store().getField(handle, "AppointmentID"), Variant(id)) << "the stored record becomes current";
    store().closeRecordset(handle);
    step();
    EXPECT_EQ(read(id, "Subject"), Variant("Visit"));
}

TEST_P(StoreContract, KeysAreNeverGivenTwice)
{
    const auto first = addAppointment("One");
    const auto handle = openUpdatable(byKey(first));
    store().deleteRecord(handle);
    store().closeRecordset(handle);
    step();
    EXPECT_GT(addAppointment("Two"), first);
}

TEST_P(StoreContract, AnAbandonedRecordIsNotStored)
{
    const auto handle = openUpdatable(allAppointments);
    store().addNew(handle);
    store().setNewField(handle, "Subject", "Lost");
    store().closeRecordset(handle);
    step();
    EXPECT_EQ(subjects(allAppointments), Texts{});
}

TEST_P(StoreContract, ASetOfSomeColumnsCanAddAndDelete)
{
    auto handle = openUpdatable("SELECT Appointments.AppointmentID, Appointments.Subject FROM Appointments;");
    store().addNew(handle);
    set(handle, "Subject", "Some columns");
    const auto id = store().getField(handle, "AppointmentID").toInteger();
    store().update(handle);
    store().closeRecordset(handle);
    step();
    EXPECT_EQ(read(id, "Subject"), Variant("Some columns"));
    handle = openUpdatable("SELECT Appointments.Subject FROM Appointments;");
    EXPECT_TRUE(store().deleteRecord(handle));
    store().closeRecordset(handle);
    step();
    EXPECT_EQ(subjects(allAppointments), Texts{});
}

TEST_P(StoreContract, AKeyThatComesFromAnotherTableIsKept)
{
    EXPECT_EQ(add("archiveTasks", "oldTaskID", {{"oldTaskID", "4711"}, {"Subject", "Old"}}), 4711);
    step();
    EXPECT_EQ(column("SELECT archiveTasks.* FROM archiveTasks WHERE oldTaskID=4711;", "Subject"),
              std::vector<Variant>{"Old"});
}

TEST_P(StoreContract, AWriteTakesEffectAtOnceForEveryHandle)
{
    const auto id = addAppointment("Before");
    const auto reader = openReadOnly(byKey(id));
    EXPECT_EQ(store().getField(reader, "Subject"), Variant("Before"));
    const auto writer = openUpdatable(byKey(id));
    EXPECT_TRUE(set(writer, "Subject", "After"));
    EXPECT_TRUE(set(writer, "Remind", "True"));
    EXPECT_EQ(store().getField(writer, "Subject"), Variant("After"));
    EXPECT_EQ(store().getField(reader, "Subject"), Variant("After"));
    EXPECT_EQ(store().getField(reader, "Remind"), Variant(true));
    EXPECT_EQ(subjects("SELECT Appointments.* FROM Appointments WHERE Subject='after';"), Texts{"After"});
    store().closeRecordset(reader);
    store().closeRecordset(writer);
    step();
    EXPECT_EQ(read(id, "Subject"), Variant("After"));
}

TEST_P(StoreContract, TwoWritersOfOneRecordDoNotUndoEachOther)
{
    const auto id = addAppointment("Subject");
    const auto first = openUpdatable(byKey(id));
    const auto second = openUpdatable(byKey(id));
    set(first, "Subject", "First");
    set(second, "TitleText", "Second");
    set(first, "Custom1", "First again");
    EXPECT_EQ(store().getField(second, "Subject"), Variant("First"));
    EXPECT_EQ(store().getField(first, "TitleText"), Variant("Second"));
    EXPECT_EQ(store().getField(second, "Custom1"), Variant("First again"));
}

TEST_P(StoreContract, AWriteLeavesOtherRecordsAlone)
{
    addAppointment("One");
    const auto id = addAppointment("Two");
    addAppointment("Three");
    const auto handle = openUpdatable(byKey(id));
    set(handle, "Subject", "Changed");
    store().closeRecordset(handle);
    step();
    EXPECT_EQ(subjects(allAppointments), (Texts{"One", "Changed", "Three"}));
}

TEST_P(StoreContract, MovesGoBothWaysAndStopAtTheEnds)
{
    for (const char* subject : {"A", "B", "C"})
        addAppointment(subject);
    const auto handle = openReadOnly(allAppointments);
    EXPECT_FALSE(store().isEOF(handle));
    EXPECT_EQ(store().getField(handle, "Subject"), Variant("A")) << "the first record is current";
    store().moveNext(handle);
    store().moveNext(handle);
    EXPECT_EQ(store().getField(handle, "Subject"), Variant("C"));
    store().moveNext(handle);
    EXPECT_TRUE(store().isEOF(handle));
    EXPECT_EQ(store().getPosition(handle), 4);
    store().moveNext(handle);
    EXPECT_TRUE(store().isEOF(handle));
    EXPECT_THROW(store().getField(handle, "Subject"), RunTimeError);
    store().movePrevious(handle);
    EXPECT_FALSE(store().isEOF(handle));
    EXPECT_EQ(store().getField(handle, "Subject"), Variant("C"));
    store().movePrevious(handle);
    store().movePrevious(handle);
    EXPECT_EQ(store().getField(handle, "Subject"), Variant("A"));
    store().movePrevious(handle);
    EXPECT_FALSE(store().isEOF(handle));
    EXPECT_THROW(store().getField(handle, "Subject"), RunTimeError) << "before the first record";
    store().moveNext(handle);
    EXPECT_EQ(store().getField(handle, "Subject"), Variant("A"));
}

TEST_P(StoreContract, APositionIsRestored)
{
    for (const char* subject : {"A", "B", "C"})
        addAppointment(subject);
    const auto handle = openReadOnly(allAppointments);
    store().moveNext(handle);
    const auto position = store().getPosition(handle);
    EXPECT_EQ(position, 2);
    store().moveNext(handle);
    EXPECT_TRUE(store().setPosition(handle, position));
    EXPECT_EQ(store().getField(handle, "Subject"), Variant("B"));
    EXPECT_TRUE(store().setPosition(handle, 4));
    EXPECT_TRUE(store().isEOF(handle));
    EXPECT_FALSE(store().setPosition(handle, 9));
    EXPECT_TRUE(store().isEOF(handle));
}

TEST_P(StoreContract, FindGoesToTheFirstEqualRecordOrStays)
{
    addAppointment("A", {{"UserIDNum", "7"}});
    addAppointment("B", {{"UserIDNum", "8"}});
    addAppointment("C", {{"UserIDNum", "8"}});
    const auto handle = openReadOnly("SELECT Appointments.* FROM Appointments ORDER BY Appointments.Subject DESC;");
    EXPECT_TRUE(find(handle, "UserIDNum", "8"));
    EXPECT_EQ(store().getField(handle, "Subject"), Variant("C")) << "first in the order of the set";
    EXPECT_FALSE(find(handle, "UserIDNum", "9"));
    EXPECT_FALSE(find(handle, "NoSuchField", "8"));
    EXPECT_FALSE(find(handle, "UserIDNum", "no number"));
    EXPECT_EQ(store().getField(handle, "Subject"), Variant("C"));
    EXPECT_EQ(store().getPosition(handle), 1);
    EXPECT_TRUE(find(handle, "useridnum", "7"));
    EXPECT_EQ(store().getPosition(handle), 3);
    store().moveNext(handle);
    EXPECT_TRUE(store().isEOF(handle));
}

TEST_P(StoreContract, FindInAGroupedSetTellsWhichNumbersAreTaken)
{
    for (const char* number : {"0", "1", "3", "1"})
        addAppointment("Series", {{"RepeatNum", number}});
    const auto handle =
        openReadOnly("SELECT Appointments.RepeatNum From Appointments GROUP BY Appointments.RepeatNum ORDER BY "
                     "Appointments.RepeatNum;");
    EXPECT_EQ(store().getRecordCount(handle), 3);
    EXPECT_TRUE(find(handle, "RepeatNum", "0"));
    EXPECT_TRUE(find(handle, "RepeatNum", "1"));
    EXPECT_FALSE(find(handle, "RepeatNum", "2"));
    EXPECT_EQ(store().getField(handle, "RepeatNum"), Variant(1));
    EXPECT_TRUE(find(handle, "RepeatNum", "3"));
    EXPECT_EQ(store().getPosition(handle), 3);
}

TEST_P(StoreContract, DeletingInALoopTakesEveryOtherRecord)
{
    for (const char* subject : {"A", "B", "C", "D"})
        addAppointment(subject);
    const auto handle = openUpdatable(allAppointments);
    for (int i = 0; !store().isEOF(handle); store().moveNext(handle), ++i) {
        if (i % 2 == 0) {
            EXPECT_TRUE(store().deleteRecord(handle));
        }
    }
    EXPECT_EQ(store().getRecordCount(handle), 2);
    EXPECT_EQ(store().getPosition(handle), 3) << "past the end is the count plus 1";
    store().movePrevious(handle);
    EXPECT_EQ(store().getField(handle, "Subject"), Variant("D"));
    store().closeRecordset(handle);
    step();
    EXPECT_EQ(subjects(allAppointments), (Texts{"B", "D"}));
}

TEST_P(StoreContract, ADeletedCurrentRecordCannotBeReadOrWritten)
{
    const auto id = addAppointment("A");
    const auto handle = openUpdatable(allAppointments);
    ASSERT_TRUE(store().hasRecords(handle));
    const auto other = openUpdatable(byKey(id));
    store().deleteRecord(other);
    EXPECT_THROW(store().getField(other, "Subject"), RunTimeError);
    EXPECT_THROW(store().getField(handle, "Subject"), RunTimeError);
    EXPECT_THROW(set(handle, "Subject", "B"), RunTimeError);
    EXPECT_THROW(store().deleteRecord(handle), RunTimeError);
    EXPECT_FALSE(store().hasRecords(handle));
    EXPECT_EQ(store().getRecordCount(handle), 0);
}

TEST_P(StoreContract, MovesStepOverRecordsThatAnotherHandleDeleted)
{
    std::vector<std::int32_t> ids;
    for (const char* subject : {"A", "B", "C", "D"})
        ids.push_back(addAppointment(subject));
    const auto walker = openReadOnly(allAppointments);
    EXPECT_EQ(store().getRecordCount(walker), 4);
    EXPECT_TRUE(store().hasRecords(walker));
    for (const std::size_t gone : {1, 3}) {
        const auto other = openUpdatable(byKey(ids[gone]));
        store().deleteRecord(other);
        store().closeRecordset(other);
    }
    store().moveNext(walker);
    EXPECT_EQ(store().getField(walker, "Subject"), Variant("C"));
    store().moveNext(walker);
    EXPECT_TRUE(store().isEOF(walker));
    store().movePrevious(walker);
    store().movePrevious(walker);
    EXPECT_EQ(store().getField(walker, "Subject"), Variant("A"));
    EXPECT_EQ(store().getRecordCount(walker), 2);
}

TEST_P(StoreContract, ASavedPositionSurvivesTheDeletionOfItsRecordByAnother)
{
    std::vector<std::int32_t> ids;
    for (const char* subject : {"A", "B", "C"})
        ids.push_back(addAppointment(subject));
    const auto walker = openReadOnly("SELECT Appointments.* FROM Appointments ORDER BY Appointments.Subject;");
    store().moveNext(walker);
    const auto position = store().getPosition(walker);
    const auto other = openUpdatable(byKey(ids[1]));
    store().deleteRecord(other);
    EXPECT_TRUE(store().setPosition(walker, position));
    store().moveNext(walker);
    EXPECT_EQ(store().getField(walker, "Subject"), Variant("C")) << "none may be passed over";
}

TEST_P(StoreContract, AReadOnlySetRefusesEveryWrite)
{
    addAppointment("A");
    const auto handle = openReadOnly(allAppointments);
    EXPECT_THROW(set(handle, "Subject", "B"), RunTimeError);
    EXPECT_THROW(store().addNew(handle), RunTimeError);
    EXPECT_THROW(store().deleteRecord(handle), RunTimeError);
    EXPECT_EQ(store().getField(handle, "Subject"), Variant("A"));
}

TEST_P(StoreContract, AnUnknownFieldIsAnErrorAndTheNextCallWorks)
{
    const auto id = addAppointment("A");
    const auto handle = openUpdatable(byKey(id));
    EXPECT_THROW(store().getField(handle, "NoSuchField"), RunTimeError);
    EXPECT_THROW(set(handle, "NoSuchField", "1"), RunTimeError);
    EXPECT_EQ(store().getField(handle, "SUBJECT"), Variant("A"));
}

TEST_P(StoreContract, ATextWithAnyCharactersIsStoredAsItIs)
{
    const std::string text = "O'Brien said \"50%\" [a_b] #1; \xC3\xA9\xE2\x82\xAC\r\nline two";
    const auto id = addAppointment(text);
    EXPECT_EQ(read(id, "Subject"), Variant(text));
    const std::string quoted = store().getSQLText(text);
    EXPECT_EQ(subjects("SELECT Appointments.* FROM Appointments WHERE Subject LIKE '%" + quoted + "%';"), Texts{text});
}

TEST_P(StoreContract, AQuotedTextMatchesItselfAndNothingElse)
{
    for (const char* subject : {"100%", "100x", "a_b", "axb", "a*b", "a[b", "a?b", "a]b", "O'Brien"})
        addAppointment(subject);
    for (const char* subject : {"100%", "a_b", "a*b", "a[b", "a?b", "a]b", "O'Brien"})
        EXPECT_EQ(subjects("SELECT Appointments.* FROM Appointments WHERE Subject LIKE '%" + store().getSQLText(subject)
                           + "%';"),
                  Texts{subject});
}

TEST_P(StoreContract, ASqlDateFindsItsDate)
{
    const Date day = Date::of(2026, 3, 31);
    const auto id = addAppointment("Day", {{"DateFrom", defaultDateText(day)}});
    addAppointment("Next day", {{"DateFrom", defaultDateText(day.addDays(1))}});
    EXPECT_EQ(read(id, "DateFrom"), Variant(day));
    EXPECT_EQ(subjects("SELECT Appointments.* FROM Appointments WHERE DateFrom = #" + store().getSQLDate(day) + "#;"),
              Texts{"Day"});
}

struct Conversion {
    std::string name, column, text;
    Variant expected;
};

TEST_P(StoreContract, TextsAreConvertedToTheColumnsType)
{
    const Conversion rows[] = {
        {"number", "UserIDNum", "42", 42},
        {"negative number", "UserIDNum", "-1", -1},
        {"number with a point", "UserIDNum", "3.0", 3},
        {"empty number is Null", "UserIDNum", "", {}},
        {"colour", "BackColour", "16777215", 16777215},
        {"empty colour is Null", "BackColour", "", {}},
        {"true", "Remind", "True", true},
        {"false", "Remind", "False", false},
        {"true in lower case", "Remind", "true", true},
        {"date", "DateFrom", "2026-03-31", Date::of(2026, 3, 31)},
        {"date before 1900", "DateFrom", "1899-01-01", noDate},
        {"date with time", "DateFrom", "2026-03-31 09:30:00", Date::of(2026, 3, 31, 9, 30)},
        {"empty date is Null", "DateFrom", "", {}},
        {"time", "TimeFrom", "09:30:00", Date::timeOf(9, 30)},
        {"midnight", "TimeFrom", "00:00:00", Date::timeOf(0)},
        {"empty time is Null", "TimeFrom", "", {}},
        {"text", "Subject", "Visit", "Visit"},
        {"empty text stays a text", "Subject", "", ""},
        {"text that looks like a number", "Custom1", "007", "007"},
    };
    for (const Conversion& row : rows) {
        const auto id = addAppointment("Row", {{row.column, row.text}});
        EXPECT_EQ(read(id, row.column), row.expected) << row.name << " of a new record";
        const auto other = addAppointment("Row");
        const auto handle = openUpdatable(byKey(other));
        set(handle, row.column, row.text);
        EXPECT_EQ(store().getField(handle, row.column), row.expected) << row.name << " before it is stored";
        store().closeRecordset(handle);
        step();
        EXPECT_EQ(read(other, row.column), row.expected) << row.name << " of an existing record";
    }
}

TEST_P(StoreContract, ATextThatDoesNotConvertIsRefusedAtOnce)
{
    const auto id = addAppointment("A", {{"UserIDNum", "5"}});
    const auto handle = openUpdatable(byKey(id));
    const std::pair<const char*, const char*> rows[] = {
        {"UserIDNum", "abc"},     {"UserIDNum", "99999999999"}, {"DateFrom", "not a day"}, {"DateFrom", "2026-02-30"},
        {"TimeFrom", "25:00:00"}, {"Remind", "maybe"},          {"BackColour", "red"}};
    for (const auto& [field, text] : rows) {
        try {
            set(handle, field, text);
            ADD_FAILURE() << field << " took " << text;
        } catch (const RunTimeError& error) {
            EXPECT_NE(std::string(error.what()).find(std::string("Appointments.") + field), std::string::npos)
                << error.what();
            EXPECT_NE(std::string(error.what()).find(text), std::string::npos) << error.what();
        }
    }
    set(handle, "UserIDNum", "6");
    EXPECT_EQ(store().getField(handle, "UserIDNum"), Variant(6));
}

TEST_P(StoreContract, ColumnsThatNobodySetHoldTheirDefault)
{
    const auto id = addAppointment("A");
    EXPECT_TRUE(read(id, "TextBody").isNull());
    EXPECT_TRUE(read(id, "DateFrom").isNull());
    EXPECT_EQ(read(id, "Remind"), Variant(false));
}

} // namespace
} // namespace qncal::host
