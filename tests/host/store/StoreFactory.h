#pragma once

#include "core/DatabaseService.h"
#include "store/SqliteDatabase.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>

namespace qncal::host {

inline const std::string allAppointments = "SELECT Appointments.* FROM Appointments;";

using qncal::test::TemporaryFolder;

/// A store as the contract suite sees it: where it comes from, and what happens to it between two steps.
struct StoreFactory {
    std::string name;
    std::function<std::unique_ptr<DatabaseService>(const TemporaryFolder&)> open;
    /// Called between the steps of a test while no record set is open.
    std::function<void(std::unique_ptr<DatabaseService>&, const TemporaryFolder&)> betweenSteps;

    friend void PrintTo(const StoreFactory& factory, std::ostream* out) { *out << factory.name; }
};

/// Every store that answers `DatabaseService`; a further engine adds its line here.
const std::vector<StoreFactory>& storeFactories();

/// Record sets of a store without the arguments that never change.
class StoreTest : public ::testing::TestWithParam<StoreFactory> {
protected:
    void SetUp() override { store_ = GetParam().open(folder_); }

    DatabaseService& store() { return *store_; }
    void step() { GetParam().betweenSteps(store_, folder_); }
    std::int32_t openReadOnly(std::string_view sql) { return store_->openRecordset(sql, 1, 1, true, {}, true); }
    std::int32_t openUpdatable(std::string_view sql) { return store_->openRecordset(sql, 1, 3, true, {}, true); }
    bool set(std::int32_t handle, std::string_view field, std::string_view value)
    {
        return store_->setFieldValue(handle, field, value, false, false, false);
    }
    bool find(std::int32_t handle, std::string_view field, std::string_view value)
    {
        std::string reserved[4];
        return store_->findRecord(handle, field, value, reserved[0], reserved[1], reserved[2], reserved[3]);
    }

    using Fields = std::vector<std::pair<std::string, std::string>>;
    /// Adds a record and gives its key.
    std::int32_t add(const std::string& table, const std::string& key, const Fields& fields);
    /// One field of all records of a statement.
    std::vector<Variant> column(std::string_view sql, std::string_view field);

private:
    TemporaryFolder folder_;
    std::unique_ptr<DatabaseService> store_;
};

} // namespace qncal::host
