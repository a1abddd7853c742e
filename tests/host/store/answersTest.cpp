#include "host/store/StoreFactory.h"

#include "store/storeError.h"
#include "utilities/RunTimeError.h"

#include <gtest/gtest.h>

#include <string>

/// Statements whose stored forms would give another answer than the dialect, and those that are refused.

namespace qncal::host {
namespace {

class AnswersTest : public StoreTest {
protected:
    void SetUp() override
    {
        StoreTest::SetUp();
        const auto row = [this](const char* subject, const char* title, const char* date, const char* remind) {
            add("Appointments", "AppointmentID",
                {{"Subject", subject}, {"TitleText", title}, {"DateFrom", date}, {"Remind", remind}});
        };
        row("b", "X", "2026-03-31", "False");
        row("B", "y", "2026-04-01", "True");
        row("a", "z", "2026-04-02", "False");
    }
    std::string ids(const std::string& rest, const std::string& columns = "AppointmentID")
    {
        std::string found;
        for (const Variant& id : column("SELECT " + columns + " FROM Appointments " + rest + ";", "AppointmentID"))
            found += std::to_string(id.toInteger());
        return found;
    }
    /// The text of the error with which a statement is refused.
    std::string refusal(const std::string& rest, const std::string& columns = "AppointmentID")
    {
        try {
            ids(rest, columns);
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.number(), storeError::badStatement) << error.what();
            return error.what();
        }
        return "none";
    }
};

INSTANTIATE_TEST_SUITE_P(Stores, AnswersTest, testing::Values(storeFactories().front()),
                         [](const auto& store) { return store.param.name; });

TEST_P(AnswersTest, ABooleanSortsTheSameByNamePlaceAndAlias)
{
    const std::string byName = ids("ORDER BY Remind, AppointmentID");
    EXPECT_EQ(byName, "213") << "True comes first";
    EXPECT_EQ(ids("ORDER BY 2, AppointmentID", "AppointmentID, Remind"), byName);
    EXPECT_EQ(ids("ORDER BY R, AppointmentID", "AppointmentID, Remind AS R"), byName);
    EXPECT_EQ(ids("ORDER BY R, AppointmentID", "AppointmentID, NOT Remind AS R"), "132");
}

TEST_P(AnswersTest, TextsCompareWithoutCaseAlsoWhenTheyAreComputed)
{
    const std::string columns = "AppointmentID, Subject & TitleText AS Both";
    EXPECT_EQ(ids("WHERE Both = 'BX'", columns), "1");
    EXPECT_EQ(ids("WHERE 'BX' = Both", columns), "1");
    EXPECT_EQ(ids("WHERE Both IN ('BX', 'AZ')", columns), "13");
    EXPECT_EQ(ids("WHERE Both BETWEEN 'B' AND 'BXX'", columns), "1");
    EXPECT_EQ(ids("WHERE Subject & 'x' = TitleText & 'X'", columns), "");
    EXPECT_EQ(ids("WHERE Subject & 'x' = 'B' & 'X'", columns), "12");
    EXPECT_EQ(ids("ORDER BY Both", columns), "312");
    EXPECT_EQ(ids("ORDER BY 2", columns), "312");
    const auto handle = openReadOnly("SELECT " + columns + " FROM Appointments;");
    EXPECT_TRUE(find(handle, "AppointmentID", "3"));
    EXPECT_EQ(store().getField(handle, "Both"), Variant("az"));
}

TEST_P(AnswersTest, AnAliasOfAColumnComparesAsTheColumn)
{
    EXPECT_EQ(ids("WHERE D > #3/31/2026#", "AppointmentID, DateFrom AS D"), "23");
    EXPECT_EQ(ids("WHERE R = -1", "AppointmentID, Remind AS R"), "2");
}

TEST_P(AnswersTest, WhatWouldGiveAWrongAnswerIsRefusedWithItsPlace)
{
    const std::pair<const char*, const char*> rows[] = {
        {"WHERE DateFrom + 1 > #2026-04-01#", "column 46: there is no arithmetic with a date"},
        {"WHERE #2026-04-01# - 1 < DateFrom", "there is no arithmetic with a date"},
        {"WHERE Subject + 'x' = 'ax'", "there is no arithmetic with a text"},
        {"WHERE Remind + 1 = 0", "there is no arithmetic with a boolean"},
        {"WHERE -Remind = 1", "there is no arithmetic with a boolean"},
        {"WHERE Remind = 'True'", "a boolean is compared with a text"},
        {"WHERE DateFrom = '3/31/2026 10:00 AM'", "column 57: a date is compared with a text"},
        {"WHERE DateFrom BETWEEN '2026' AND '2027'", "a date is compared with a text"},
        {"WHERE DateFrom IN ('2026-03-31')", "a date is compared with a text"},
        {"WHERE AppointmentID = 1 ! 2", "unexpected character"},
        {"WHERE AppointmentID = 1 ^ 2", "unexpected character"},
        {"WHERE AppointmentID = 3 \\ 2", "unexpected character"},
    };
    for (const auto& [rest, words] : rows) {
        const std::string text = refusal(rest);
        EXPECT_NE(text.find(words), std::string::npos) << rest << ": " << text;
        EXPECT_NE(text.find("line 1"), std::string::npos) << text;
    }
    EXPECT_NE(refusal("", "SUM(DateFrom) AS AppointmentID").find("no arithmetic with a date"), std::string::npos);
}

std::string chain(const std::string& link, const std::string& between, int count)
{
    std::string text = link;
    for (int i = 1; i < count; ++i)
        text.append(between).append(link);
    return text;
}

TEST_P(AnswersTest, LongChainsOfOneOperatorWork)
{
    EXPECT_EQ(ids("WHERE " + chain("AppointmentID = 2", " OR ", 700)), "2");
    EXPECT_EQ(ids("WHERE " + chain("AppointmentID = 2", " AND ", 700)), "2");
    EXPECT_EQ(ids("WHERE " + chain("AppointmentID + 0 = 2 AND Remind = True", " OR ", 500)), "2");
    EXPECT_EQ(ids("WHERE AppointmentID = 1" + chain("", " + 1", 700)), "");
    EXPECT_EQ(ids("WHERE 'x' & " + chain("Subject", " & ", 300) + " = 'x'"), "");
    EXPECT_EQ(ids("WHERE AppointmentID = 7 - 2 - 3 AND 12 / 3 / 2 = 2 AND 7 - (2 - 3) = 8"), "2");
}

TEST_P(AnswersTest, ChainsThatAreTooLongAndNestsThatAreTooDeepAreRefusedWithTheirPlace)
{
    EXPECT_NE(refusal("WHERE " + chain("AppointmentID = 2", " OR ", 8000)).find("more than 800 in a row"),
              std::string::npos);
    EXPECT_NE(refusal("WHERE AppointmentID = " + chain("1", " + ", 100000)).find("more than 800 in a row"),
              std::string::npos);
    std::string alternating = "1";
    for (int i = 0; i < 5000; ++i)
        alternating += " + 1 - 1";
    EXPECT_NE(refusal("WHERE AppointmentID = " + alternating).find("nested too deeply"), std::string::npos);
    EXPECT_NE(refusal("WHERE " + chain("AppointmentID", " = ", 9000)).find("nested too deeply"), std::string::npos);
    EXPECT_NE(refusal("WHERE Remind" + chain("", " IS NULL", 9000)).find("nested too deeply"), std::string::npos);
    EXPECT_NE(refusal("WHERE " + std::string(5000, '(') + "1").find("nested too deeply"), std::string::npos);
}

TEST_P(AnswersTest, NestsUpToTheLimitWork)
{
    std::string text = "AppointmentID = 2";
    for (int level = 0; level < 10; ++level)
        text = "Remind = True AND (AppointmentID = 9 OR (" + text + "))";
    EXPECT_EQ(ids("WHERE " + text), "2");
}

} // namespace
} // namespace qncal::host
