#include "host/store/SqliteDatabaseTest.h"
#include "host/store/programsAtOnce.h"

#include <unistd.h>

#include <set>
#include <string>

namespace qncal::host {
namespace {

/// Several processes on one file.
class SharedFileTest : public SqliteDatabaseTest {};

TEST_F(SharedFileTest, TwoProcessesThatAddAtOnceLoseNothingAndShareNoKey)
{
    constexpr int processes = 2;
    constexpr int records = 300;
    SqliteDatabase::create(path_)->close();
    runInProgramsAtOnce(processes, [this] {
        auto store = SqliteDatabase::open(path_);
        for (int i = 0; i < records; ++i)
            addAppointment(*store, std::to_string(getpid()));
        store->close();
    });
    auto store = SqliteDatabase::open(path_);
    std::set<std::int32_t> keys;
    const auto handle = openUpdatable(*store, allAppointments);
    for (; !store->isEOF(handle); store->moveNext(handle))
        keys.insert(store->getField(handle, "AppointmentID").toInteger());
    EXPECT_EQ(keys.size(), static_cast<std::size_t>(processes * records));
}

TEST_F(SharedFileTest, TheNextProgramGoesOnWithTheNextKey)
{
    addAppointment(*SqliteDatabase::create(path_), "One");
    auto store = SqliteDatabase::open(path_);
    const auto handle = openUpdatable(*store, allAppointments);
    store->addNew(handle);
    EXPECT_EQ(store->getField(handle, "AppointmentID"), Variant(2));
}

TEST_F(SharedFileTest, ARecordThatAnSqlToolAddsTakesNoKeyThatWasGiven)
{
    auto store = SqliteDatabase::create(path_);
    const auto handle = openUpdatable(*store, allAppointments);
    store->addNew(handle);
    runElsewhere(path_, "INSERT INTO Appointments (Subject) VALUES ('theirs')");
    store->update(handle);
    addAppointment(*store, "Mine");
    EXPECT_EQ(appointmentCount(*store), 3);
}

TEST_F(SharedFileTest, AKeyThatTheCallerChoseIsNotGivenAgain)
{
    auto store = SqliteDatabase::create(path_);
    const auto handle = openUpdatable(*store, "SELECT archiveTasks.* FROM archiveTasks;");
    store->addNew(handle);
    store->setNewField(handle, "oldTaskID", "3");
    store->update(handle);
    for (int i = 0; i < 5; ++i) {
        store->addNew(handle);
        store->update(handle);
    }
    EXPECT_EQ(store->getRecordCount(handle), 6);
}

TEST_F(SharedFileTest, AMoveSeesWhatAnotherProcessWrote)
{
    auto mine = SqliteDatabase::create(path_);
    for (const char* subject : {"A", "B", "C"})
        addAppointment(*mine, subject);
    const auto handle = openUpdatable(*mine, "SELECT Appointments.* FROM Appointments ORDER BY Appointments.Subject;");
    EXPECT_EQ(mine->getField(handle, "Subject"), Variant("A"));
    runElsewhere(path_, "UPDATE Appointments SET TitleText = 'new' WHERE Subject = 'C'; DELETE FROM Appointments WHERE "
                        "Subject = 'B'");
    mine->moveNext(handle);
    EXPECT_EQ(mine->getField(handle, "TitleText"), Variant("new"));
    EXPECT_EQ(mine->getField(handle, "Subject"), Variant("C"));
}

} // namespace
} // namespace qncal::host
