#include "host/store/StoreContract.h"

#include "utilities/RunTimeError.h"

namespace qncal::host {
namespace {

/// Adding, changing and deleting records.
class StoreWriting : public StoreContract {};

INSTANTIATE_TEST_SUITE_P(Stores, StoreWriting, testing::ValuesIn(storeFactories()), storeName);

TEST_P(StoreWriting, TheNewKeyIsKnownBeforeTheRecordIsStored)
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

TEST_P(StoreWriting, KeysAreNeverGivenTwice)
{
    const auto first = addAppointment("One");
    const auto handle = openUpdatable(byKey(first));
    store().deleteRecord(handle);
    store().closeRecordset(handle);
    step();
    EXPECT_GT(addAppointment("Two"), first);
}

TEST_P(StoreWriting, AnAbandonedRecordIsNotStored)
{
    const auto handle = openUpdatable(allAppointments);
    store().addNew(handle);
    store().setNewField(handle, "Subject", "Lost");
    store().closeRecordset(handle);
    step();
    EXPECT_EQ(subjects(allAppointments), Texts{});
}

TEST_P(StoreWriting, ASetOfSomeColumnsCanAddAndDelete)
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

TEST_P(StoreWriting, AKeyThatComesFromAnotherTableIsKept)
{
    EXPECT_EQ(add("archiveTasks", "oldTaskID", {{"oldTaskID", "4711"}, {"Subject", "Old"}}), 4711);
    step();
    EXPECT_EQ(column("SELECT archiveTasks.* FROM archiveTasks WHERE oldTaskID=4711;", "Subject"),
              std::vector<Variant>{"Old"});
}

TEST_P(StoreWriting, AWriteTakesEffectAtOnceForEveryHandle)
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

TEST_P(StoreWriting, TwoWritersOfOneRecordDoNotUndoEachOther)
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

TEST_P(StoreWriting, AWriteLeavesOtherRecordsAlone)
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

TEST_P(StoreWriting, DeletingInALoopTakesEveryOtherRecord)
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

TEST_P(StoreWriting, ADeletedCurrentRecordCannotBeReadOrWritten)
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

TEST_P(StoreWriting, AReadOnlySetRefusesEveryWrite)
{
    addAppointment("A");
    const auto handle = openReadOnly(allAppointments);
    EXPECT_THROW(set(handle, "Subject", "B"), RunTimeError);
    EXPECT_THROW(store().addNew(handle), RunTimeError);
    EXPECT_THROW(store().deleteRecord(handle), RunTimeError);
    EXPECT_EQ(store().getField(handle, "Subject"), Variant("A"));
}

} // namespace
} // namespace qncal::host
