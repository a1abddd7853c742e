#include "host/store/smallFirm.h"
#include "host/store/statementRows.h"

#include "lookups/mainBusinessQuery.h"
#include "store/SqliteDatabase.h"
#include "support/ComponentTest.h"
#include "utilities/RunTimeError.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace qncal::host {
namespace {

using Texts = std::vector<std::string>;

std::unique_ptr<SqliteDatabase> storeOfSmallFirm()
{
    auto store = SqliteDatabase::openInMemory();
    for (const Record& record : smallFirm()) {
        const auto handle = store->openRecordset("SELECT * FROM " + record.table, 1, 3, true, {}, true);
        store->addNew(handle);
        for (const auto& [field, value] : record.fields)
            store->setNewField(handle, field, value);
        store->update(handle);
        store->closeRecordset(handle);
    }
    return store;
}

class StatementTest : public ::testing::TestWithParam<Statement> {
protected:
    static void SetUpTestSuite() { store_ = storeOfSmallFirm(); }
    static void TearDownTestSuite() { store_.reset(); }

    static std::unique_ptr<SqliteDatabase> store_;
};
std::unique_ptr<SqliteDatabase> StatementTest::store_;

TEST_P(StatementTest, FindsItsRecords)
{
    const Statement& row = GetParam();
    for (const std::int32_t lock : {DatabaseService::readOnly, DatabaseService::updatable}) {
        const auto handle = store_->openRecordset(row.sql, 1, lock, true, {}, true);
        std::vector<std::string> values;
        for (; !store_->isEOF(handle); store_->moveNext(handle)) {
            const Variant value = store_->getField(handle, row.field);
            values.push_back(value.isNull() ? "" : value.toText());
        }
        EXPECT_EQ(values, row.values);
        EXPECT_EQ(store_->getRecordCount(handle), static_cast<std::int32_t>(row.values.size()));
        store_->closeRecordset(handle);
        const auto counted = store_->openRecordset(row.sql, 1, lock, true, {}, true);
        EXPECT_EQ(store_->getRecordCount(counted), static_cast<std::int32_t>(row.values.size()));
        store_->closeRecordset(counted);
    }
}

std::string statementName(const testing::TestParamInfo<Statement>& row) { return row.param.name; }

INSTANTIATE_TEST_SUITE_P(Dialect, StatementTest, testing::ValuesIn(dialectStatements()), statementName);
INSTANTIATE_TEST_SUITE_P(Items, StatementTest, testing::ValuesIn(itemStatements()), statementName);
INSTANTIATE_TEST_SUITE_P(Clients, StatementTest, testing::ValuesIn(clientStatements()), statementName);

// The whole record of a business client depends on the country, so the component composes the statement here.

class BusinessStatementTest : public test::ComponentTestWith<std::int32_t> {
protected:
    BusinessStatementTest() { locale->country = GetParam(); }

    Texts companies(const std::string& sql)
    {
        Texts names;
        const auto handle = store_->openRecordset(sql, 1, DatabaseService::readOnly, true, {}, true);
        for (; !store_->isEOF(handle); store_->moveNext(handle))
            names.push_back(store_->getField(handle, "CompanyName").toText());
        store_->closeRecordset(handle);
        return names;
    }

    const Texts found_{"North Ltd"};
    const Texts none_;
    std::unique_ptr<SqliteDatabase> store_ = storeOfSmallFirm();
};

INSTANTIATE_TEST_SUITE_P(Countries, BusinessStatementTest,
                         testing::Values(LocaleService::canada, LocaleService::unitedStates), [](const auto& country) {
                             return country.param == LocaleService::canada ? "canada" : "unitedStates";
                         });

TEST_P(BusinessStatementTest, FindsItsClients)
{
    struct Row {
        const char* name;
        bool onlyShown;
        std::int16_t active;
        std::int32_t order;
        std::int32_t clientDataID;
        const Texts& companies;
    };
    const Row rows[] = {
        {"all", false, 3, 1, -1, found_},
        {"shown", true, 3, 2, -1, found_},
        {"active", false, 1, 3, -1, found_},
        {"inactive", false, 2, 1, -1, none_},
        {"shown and active", true, 1, 3, -1, found_},
        {"shown and inactive", true, 2, 2, -1, none_},
        {"one", false, 3, 1, 1, found_},
        {"one of the active", true, 1, 3, 1, found_},
        {"one that is not there", false, 3, 1, 2, none_},
    };
    for (const Row& row : rows)
        EXPECT_EQ(companies(modFormatAddresses::getMainBusinessSQLString(row.onlyShown, row.active, row.order,
                                                                         row.clientDataID)),
                  row.companies)
            << row.name;
}

TEST_P(BusinessStatementTest, FindsTheClientOfACompany)
{
    EXPECT_EQ(companies(modFormatAddresses::getMainBusinessSQLStringForCompany(1)), found_);
    EXPECT_EQ(companies(modFormatAddresses::getMainBusinessSQLStringForCompany(2)), none_);
}

TEST(BadStatements, AreRefusedWhenTheyAreOpenedAndTheNextOneWorks)
{
    const auto store = SqliteDatabase::openInMemory();
    const std::pair<const char*, const char*> rows[] = {
        {"", "only SELECT statements"},
        {"DELETE FROM Tasks", "only SELECT statements"},
        {"SELECT Tasks.* FROM Tasks; DELETE FROM Tasks", "should end here"},
        {"SELECT Tasks.* FROM Taskss", "there is no table Taskss"},
        {"SELECT Tasks.Nothing FROM Tasks", "there is no column Tasks.Nothing"},
        {"SELECT Dockets.* FROM Tasks", "the table Dockets is not in the FROM clause"},
        {"SELECT Subject FROM Tasks, Dockets", "in more than one table"},
        {"SELECT Tasks.* FROM Tasks, Tasks", "stands twice"},
        {"SELECT Tasks.* FROM Tasks WHERE AND DateFrom = #2026-03-31# ORDER BY Tasks.TaskID;",
         "a value or a name expected"},
        {"SELECT Tasks.* FROM Tasks WHERE TaskID=1 AND ;", "a value or a name expected"},
        {"SELECT Tasks.* FROM Tasks WHERE Subject LIKE '%O'Brien%'", "unexpected character"},
        {"SELECT Tasks.* FROM Tasks WHERE Subject LIKE '%abc", "no closing '"},
        {"SELECT Tasks.* FROM Tasks WHERE DateFrom=#2026-13-01#", "no such date or time"},
        {"SELECT Tasks.* FROM Tasks WHERE DateFrom=#2026-03-31", "no closing #"},
        {"SELECT Tasks.* FROM Tasks WHERE TaskID=1a", "a number runs into a name"},
        {"SELECT Tasks.* FROM Tasks WHERE TaskID = (1", ") expected"},
        {"SELECT Tasks.* FROM Tasks WHERE Tasks.*", "all columns cannot stand here"},
        {"SELECT Upper(Subject) FROM Tasks", "unknown function"},
        {"SELECT Tasks.* FROM Tasks WHERE TaskID = ?", "unexpected character"},
        {"SELECT Tasks.* FROM Tasks ORDER BY 9", "no such place"},
        {"SELECT Tasks.* FROM Tasks WHERE COUNT(*) > 1", "aggregate"},
    };
    for (const auto& [sql, words] : rows) {
        try {
            store->openRecordset(sql, 1, 1, true, {}, true);
            ADD_FAILURE() << "opened: " << sql;
        } catch (const RunTimeError& error) {
            EXPECT_NE(std::string(error.what()).find(words), std::string::npos) << sql << "\n" << error.what();
        }
        const auto handle = store->openRecordset("SELECT Tasks.* FROM Tasks;", 1, 1, true, {}, true);
        EXPECT_FALSE(store->hasRecords(handle));
        store->closeRecordset(handle);
    }
    const std::string deep(100000, '(');
    EXPECT_THROW(store->openRecordset("SELECT Tasks.* FROM Tasks WHERE " + deep, 1, 1, true, {}, true), RunTimeError);
}

TEST(BadStatements, TellLineColumnAndText)
{
    const auto store = SqliteDatabase::openInMemory();
    try {
        store->openRecordset("SELECT Tasks.*\nFROM Tasks WHERE Subjekt='a'", 1, 1, true, {}, true);
        ADD_FAILURE();
    } catch (const RunTimeError& error) {
        EXPECT_STREQ(error.what(), "SQL error in line 2, column 18: there is no column Subjekt, near \"Subjekt='a'\"");
    }
}

} // namespace
} // namespace qncal::host
