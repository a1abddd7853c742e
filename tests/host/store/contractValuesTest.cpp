#include "host/store/StoreContract.h"

#include "utilities/RunTimeError.h"

namespace qncal::host {
namespace {

/// Values on their way into columns and into SQL text.
class StoreValues : public StoreContract {};

INSTANTIATE_TEST_SUITE_P(Stores, StoreValues, testing::ValuesIn(storeFactories()), storeName);

TEST_P(StoreValues, ATextWithAnyCharactersIsStoredAsItIs)
{
    const std::string text = "O'Brien said \"50%\" [a_b] #1; \xC3\xA9\xE2\x82\xAC\r\nline two";
    const auto id = addAppointment(text);
    EXPECT_EQ(read(id, "Subject"), Variant(text));
    const std::string quoted = store().getSQLText(text);
    EXPECT_EQ(subjects("SELECT Appointments.* FROM Appointments WHERE Subject LIKE '%" + quoted + "%';"), Texts{text});
}

TEST_P(StoreValues, AQuotedTextMatchesItselfAndNothingElse)
{
    for (const char* subject : {"100%", "100x", "a_b", "axb", "a*b", "a[b", "a?b", "a]b", "O'Brien"})
        addAppointment(subject);
    for (const char* subject : {"100%", "a_b", "a*b", "a[b", "a?b", "a]b", "O'Brien"})
        EXPECT_EQ(subjects("SELECT Appointments.* FROM Appointments WHERE Subject LIKE '%" + store().getSQLText(subject)
                           + "%';"),
                  Texts{subject});
}

TEST_P(StoreValues, ASqlDateFindsItsDate)
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

TEST_P(StoreValues, TextsAreConvertedToTheColumnsType)
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

TEST_P(StoreValues, ATextThatDoesNotConvertIsRefusedAtOnce)
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

TEST_P(StoreValues, ColumnsThatNobodySetHoldTheirDefault)
{
    const auto id = addAppointment("A");
    EXPECT_TRUE(read(id, "TextBody").isNull());
    EXPECT_TRUE(read(id, "DateFrom").isNull());
    EXPECT_EQ(read(id, "Remind"), Variant(false));
}

} // namespace
} // namespace qncal::host
