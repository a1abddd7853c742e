#include "store/SqliteDatabase.h"

#include <gtest/gtest.h>

namespace qncal::host {
namespace {

using schema::Column;
using schema::ColumnType;
constexpr Column appointmentColumns[] = {{"AppointmentID", ColumnType::key}, {"UserIDNum", ColumnType::id},
                                         {"Subject", ColumnType::text},      {"DateFrom", ColumnType::date},
                                         {"TimeFrom", ColumnType::time},     {"Remind", ColumnType::boolean, "0"}};
constexpr schema::Table testTables[] = {{"Appointments", appointmentColumns, ""}};

TEST(Smoke, AddsReadsChangesDeletes)
{
    auto db = SqliteDatabase::openInMemory({.tables = testTables});
    auto h = db->openRecordset("SELECT Appointments.* FROM Appointments;", 1, 3, true, "", true);
    EXPECT_FALSE(db->hasRecords(h));
    EXPECT_TRUE(db->isEOF(h));
    for (int i = 0; i < 3; ++i) {
        db->addNew(h);
        db->setNewField(h, "Subject", "Row " + std::to_string(i));
        db->setFieldValue(h, "DateFrom", "2026-03-31", false, false, false);
        db->setNewField(h, "TimeFrom", "09:30:00");
        db->setNewField(h, "UserIDNum", std::to_string(10 - i));
        EXPECT_EQ(db->getField(h, "AppointmentID"), Variant(i + 1));
        db->update(h);
    }
    EXPECT_EQ(db->getField(h, "subject"), Variant("Row 2"));
    EXPECT_EQ(db->getPosition(h), 3);
    db->closeRecordset(h);
    h = db->openRecordset("SELECT Appointments.* FROM Appointments WHERE DateFrom=#3/31/2026# AND TimeFrom>=#9:30:00 "
                          "AM# AND Subject LIKE '%row%' ORDER BY Appointments.UserIDNum;",
                          1, 3, true, "", true);
    EXPECT_EQ(db->getRecordCount(h), 3);
    EXPECT_EQ(db->getField(h, "AppointmentID"), Variant(3));
    db->setFieldValue(h, "Remind", "True", false, false, false);
    EXPECT_EQ(db->getField(h, "Remind"), Variant(true));
    db->moveNext(h);
    EXPECT_EQ(db->getField(h, "AppointmentID"), Variant(2));
    EXPECT_EQ(db->getField(h, "Remind"), Variant(false));
    db->deleteRecord(h);
    db->moveNext(h);
    EXPECT_EQ(db->getField(h, "AppointmentID"), Variant(1));
    EXPECT_EQ(db->getRecordCount(h), 2);
    db->closeRecordset(h);
}

} // namespace
} // namespace qncal::host
