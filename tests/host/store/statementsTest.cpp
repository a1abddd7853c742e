#include "host/store/smallFirm.h"
#include "host/store/statementRows.h"

#include "core/ServiceRegistry.h"
#include "lookups/mainBusinessQuery.h"
#include "store/SqliteDatabase.h"
#include "support/TestServices.h"
#include "utilities/RunTimeError.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace qncal::host {
namespace {

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

struct BusinessRow {
    std::string name;
    bool onlyShown;
    std::int16_t active;
    std::int32_t order;
    std::int32_t clientDataID;
    std::vector<std::string> companies;
};

class BusinessStatementTest : public testing::TestWithParam<std::tuple<std::int32_t, BusinessRow>> {
protected:
    BusinessStatementTest()
    {
        locale_->country = std::get<0>(GetParam());
        serviceRegistry().locale = locale_;
    }
    ~BusinessStatementTest() override { serviceRegistry() = {}; }

    std::vector<std::string> companies(const std::string& sql)
    {
        std::vector<std::string> names;
        const auto handle = store_->openRecordset(sql, 1, DatabaseService::readOnly, true, {}, true);
        for (; !store_->isEOF(handle); store_->moveNext(handle))
            names.push_back(store_->getField(handle, "CompanyName").toText());
        store_->closeRecordset(handle);
        return names;
    }

    std::shared_ptr<test::TestLocale> locale_ = std::make_shared<test::TestLocale>();
    std::unique_ptr<SqliteDatabase> store_ = storeOfSmallFirm();
};

TEST_P(BusinessStatementTest, FindsItsClients)
{
    const BusinessRow& row = std::get<1>(GetParam());
    EXPECT_EQ(companies(modFormatAddresses::getMainBusinessSQLString(row.onlyShown, row.active, row.order,
                                                                     row.clientDataID)),
              row.companies);
}

TEST_P(BusinessStatementTest, FindsTheClientOfACompany)
{
    EXPECT_EQ(companies(modFormatAddresses::getMainBusinessSQLStringForCompany(1)),
              std::vector<std::string>{"North Ltd"});
    EXPECT_EQ(companies(modFormatAddresses::getMainBusinessSQLStringForCompany(2)), std::vector<std::string>{});
}

const BusinessRow businessRows[] = {
    {"all", false, 3, 1, -1, {"North Ltd"}},          {"shown", true, 3, 2, -1, {"North Ltd"}},
    {"active", false, 1, 3, -1, {"North Ltd"}},       {"inactive", false, 2, 1, -1, {}},
    {"shownAndActive", true, 1, 3, -1, {"North Ltd"}}, {"shownAndInactive", true, 2, 2, -1, {}},
    {"one", false, 3, 1, 1, {"North Ltd"}},           {"oneOfTheActive", true, 1, 3, 1, {"North Ltd"}},
    {"none", false, 3, 1, 2, {}},
};

INSTANTIATE_TEST_SUITE_P(Countries, BusinessStatementTest,
                         testing::Combine(testing::Values(LocaleService::canada, LocaleService::unitedStates),
                                          testing::ValuesIn(businessRows)),
                         [](const auto& row) {
                             return (std::get<0>(row.param) == LocaleService::canada ? "canada" : "unitedStates")
                                    + std::string("_") + std::get<1>(row.param).name;
                         });

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
