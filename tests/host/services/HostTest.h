#pragma once

#include "services/HostEnvironment.h"
#include "services/Rows.h"
#include "store/SqliteDatabase.h"

#include <gtest/gtest.h>

namespace qncal::host::test {

/// A host over a database in memory. At its end the component must have reported no error that was not cleared.
class HostTest : public testing::Test {
protected:
    void TearDown() override
    {
        for (const ErrorReport& report : host.errors().reports())
            ADD_FAILURE() << "unexpected error " << report.error.number << ": " << report.error.text;
    }

    std::shared_ptr<SqliteDatabase> database = SqliteDatabase::openInMemory();
    HostEnvironment host{HostServices{.database = database}};
};

} // namespace qncal::host::test
