#include "host/store/StoreContract.h"

#include "utilities/RunTimeError.h"

namespace qncal::host {
namespace {

/// Record sets: opening, moving, finding.
class StoreReading : public StoreContract {};

INSTANTIATE_TEST_SUITE_P(Stores, StoreReading, testing::ValuesIn(storeFactories()), storeName);

TEST_P(StoreReading, IsConnectedFromTheStart) { EXPECT_TRUE(store().isConnected()); }

TEST_P(StoreReading, AnEmptySetHasNoRecordsAndStandsAtItsEnd)
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

TEST_P(StoreReading, AHandleLivesUntilItIsClosed)
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

TEST_P(StoreReading, MovesGoBothWaysAndStopAtTheEnds)
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

TEST_P(StoreReading, APositionIsRestored)
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

TEST_P(StoreReading, FindGoesToTheFirstEqualRecordOrStays)
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

TEST_P(StoreReading, FindInAGroupedSetTellsWhichNumbersAreTaken)
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

TEST_P(StoreReading, MovesStepOverRecordsThatAnotherHandleDeleted)
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

TEST_P(StoreReading, ASavedPositionSurvivesTheDeletionOfItsRecordByAnother)
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

TEST_P(StoreReading, AnUnknownFieldIsAnErrorAndTheNextCallWorks)
{
    const auto id = addAppointment("A");
    const auto handle = openUpdatable(byKey(id));
    EXPECT_THROW(store().getField(handle, "NoSuchField"), RunTimeError);
    EXPECT_THROW(set(handle, "NoSuchField", "1"), RunTimeError);
    EXPECT_EQ(store().getField(handle, "SUBJECT"), Variant("A"));
}

} // namespace
} // namespace qncal::host
