#include "component/templates/MergeDataTest.h"
#include "component/templates/SampleMergeTest.h"
#include "support/rowName.h"
#include "utilities/RunTimeError.h"

namespace qncal::test {

// --- Value by data type ---

struct ValueRow {
    const char* name;
    MergeDataType type;
    const char* value;
    const char* format;
    const char* text;
};

class ValueTest : public SampleMergeTestWith<ValueRow> {};

TEST_P(ValueTest, IsWrittenByItsType)
{
    addField("X", GetParam().value, GetParam().type);
    EXPECT_EQ(engine.getDataFieldInfo(1, GetParam().format), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ValueTest,
    testing::Values(ValueRow{"Text", MergeDataType::text, "as it is ", "d", "as it is "},
                    ValueRow{"DateWithoutAFormat", MergeDataType::date, "2026-03-07", "", "Mar 7, 2026"},
                    ValueRow{"DateWithAFormat", MergeDataType::date, "2026-03-07", "dd/mmm/yy", "07/Mar/26"},
                    ValueRow{"DateOf1900", MergeDataType::date, "1900-01-01", "", "Jan 1, 1900"},
                    ValueRow{"UnsetDate", MergeDataType::date, "1899-12-30", "", ""},
                    ValueRow{"UnsetDateAsATime", MergeDataType::date, "00:00:00", "", ""},
                    ValueRow{"NoDate", MergeDataType::date, "1899-01-01", "d", ""},
                    ValueRow{"EmptyDate", MergeDataType::date, "", "", ""},
                    ValueRow{"Morning", MergeDataType::time, "09:05:00", "", "9:05 am"},
                    ValueRow{"Afternoon", MergeDataType::time, "13:30:00", "", "1:30 pm"},
                    ValueRow{"Midnight", MergeDataType::time, "00:00:00", "", "12:00 am"},
                    ValueRow{"Amount", MergeDataType::currency, "1234567.891", "", "$1,234,567.89"},
                    ValueRow{"ZeroAmount", MergeDataType::currency, "0", "", "$0.00"},
                    ValueRow{"NegativeAmount", MergeDataType::currency, "-12.5", "", "$-12.50"},
                    ValueRow{"Yes", MergeDataType::yesNo, "True", "", "Yes"},
                    ValueRow{"No", MergeDataType::yesNo, "False", "", "No"},
                    ValueRow{"YesByNumber", MergeDataType::yesNo, "-1", "", "Yes"},
                    ValueRow{"NeitherYesNorNo", MergeDataType::yesNo, "", "", ""},
                    ValueRow{"Hours", MergeDataType::hours, "1.5", "", "1 hr 30 min"},
                    ValueRow{"HoursAreRoundedToMinutes", MergeDataType::hours, "0.7583", "", "45 min"},
                    ValueRow{"NoHours", MergeDataType::hours, "0", "", "0 min"}),
    rowName);

TEST_F(SampleMergeTest, ValueThatIsNoneOfItsTypeIsAnErrorAndBlank)
{
    addField("Due", "soon", MergeDataType::date);
    EXPECT_EQ(engine.getDataFieldInfo(1, ""), "");
    const auto reported = errors->takeErrors();
    ASSERT_EQ(reported.size(), 1u);
    EXPECT_EQ(reported[0].number, errorNumber::typeMismatch);
}

// --- Line breaks ---

TEST_F(SampleMergeTest, LineBreaksBecomeParagraphMarks)
{
    EXPECT_EQ(engine.convertToRTF("a\r\nb\r\n"), "a\\par \r\nb\\par \r\n");
    EXPECT_EQ(engine.convertToRTF("a\nb"), "a\nb");
}

TEST_F(SampleMergeTest, LineBreaksBecomeCommasWithoutWordWrap)
{
    engine.UseWordWrap(false);
    EXPECT_EQ(engine.convertToRTF("a\r\nb"), "a, \r\nb");
}

TEST_F(SampleMergeTest, ValuesAreConvertedForRichTextAlone)
{
    addField("Address", "1\r\n2");
    EXPECT_EQ(engine.getDataFieldInfo(1, ""), "1\\par \r\n2");
    engine.ConvertStrToRTF(false);
    EXPECT_EQ(engine.getDataFieldInfo(1, ""), "1\r\n2");
}

// --- Today and durations ---

TEST_F(SampleMergeTest, TodaysDateHasADefaultFormat)
{
    EXPECT_EQ(engine.getTodaysDate(""), "Mar 31, 2026");
    EXPECT_EQ(engine.getTodaysDate("dddd"), "Tuesday");
}

TEST_F(SampleMergeTest, DurationCountsWholeMinutesInEitherDirection)
{
    EXPECT_EQ(engine.getTimeDurationFieldValue(Date::timeOf(9), Date::timeOf(10, 30, 59)), "1 hr 30 min");
    EXPECT_EQ(engine.getTimeDurationFieldValue(Date::timeOf(10), Date::timeOf(9, 15)), "45 min");
}

// --- Write-back ---

struct WriteRow {
    const char* name;
    const char* field;
    Variant value;
    const char* stored;
};

class WriteBackTest : public MergeDataTestWith<WriteRow> {};

TEST_P(WriteBackTest, WritesTheTextOfTheType)
{
    const std::int32_t docket = addRow("Dockets", {});
    engine.docketId(docket);
    build(6, 5);
    engine.initializeDataRecordsetsForSingleDocMerge();
    recorded->written.clear();
    EXPECT_FALSE(engine.writeDataToField(GetParam().field, GetParam().value));
    const std::string line = std::string(GetParam().field) + "=" + GetParam().stored;
    const bool written = std::string_view(GetParam().stored) != "nothing";
    EXPECT_EQ(recorded->written, written ? std::vector<std::string>{line} : std::vector<std::string>{});
}

INSTANTIATE_TEST_SUITE_P(
    Rows, WriteBackTest,
    testing::Values(WriteRow{"Text", "Subject", Variant("Audit"), "Audit"},
                    WriteRow{"NumberIntoText", "DescriptionClient", Variant(12.5), "12.5"},
                    WriteRow{"Date", "DateFrom", Variant(Date::of(2026, 3, 7, 9, 30)), "2026-03-07"},
                    WriteRow{"DateAsText", "DateFrom", Variant("Mar 7, 2026"), "2026-03-07"},
                    WriteRow{"DateBefore1900", "DateFrom", Variant(Date::of(1899, 12, 31)), "nothing"},
                    WriteRow{"Time", "TimeFrom", Variant(Date::of(2026, 3, 7, 9, 30)), "09:30:00"},
                    WriteRow{"Currency", "TotalAmountReal", Variant("12.1"), "12.1"},
                    WriteRow{"CurrencyOfManyDigits", "TotalAmountReal", Variant(100000.0), "100000"},
                    WriteRow{"CurrencyOfAMillion", "TotalAmountReal", Variant(1000000.0), "1000000"},
                    WriteRow{"CurrencyOfAFraction", "TotalAmountReal", Variant(0.00001), "0.00001"},
                    WriteRow{"Hours", "TotalTimeReal", Variant(2.5), "2.5"},
                    WriteRow{"Yes", "Invoiced", Variant(true), "True"},
                    WriteRow{"No", "Invoiced", Variant(0.0), "False"},
                    WriteRow{"UnknownField", "Nothing", Variant("x"), "nothing"},
                    WriteRow{"NoField", "", Variant("x"), "nothing"}),
    rowName);

TEST_F(MergeDataTest, ContactAndSpouseNameIsNotWritten)
{
    addContact({});
    build(2, 1);
    engine.initializeDataRecordsetsForSingleDocMerge();
    recorded->written.clear();
    EXPECT_FALSE(engine.writeDataToField("ContactAndSpouseName", "Ann and Bob"));
    EXPECT_TRUE(recorded->written.empty());
}

TEST_F(MergeDataTest, AbbreviatedProvinceIsWrittenToTheWholeOne)
{
    addContact({});
    build(2, 5);
    engine.initializeDataRecordsetsForSingleDocMerge();
    engine.writeDataToField("HomeAbbreviatedProvince", "MB");
    EXPECT_EQ(cell("Contacts", engine.contactID(), "HomeProvince"), "MB");
}

TEST_F(MergeDataTest, AbbreviatedProvinceOfACompanyIsWrittenToTheWholeOne)
{
    const std::int32_t company = addCompany({{"Province", "Ontario"}, {"AltProvince", "Ontario"}});
    build(1, 5);
    engine.initializeDataRecordsetsForSingleDocMerge();
    engine.writeDataToField("AbbreviatedProvince", "MB");
    EXPECT_EQ(cell("Companies", company, "Province"), "MB");
    EXPECT_EQ(cell("Companies", company, "AltProvince"), "Ontario");
}

TEST_F(MergeDataTest, NotesAreOpenedToBeWritten)
{
    const std::int32_t contact = addContact({});
    const std::int32_t notes = addRow("ContactsNotes", {{"ContactNum", std::to_string(contact)}});
    build(2, 5);
    engine.initializeDataRecordsetsForSingleDocMerge();
    engine.writeDataToField("Notes", "likes tea");
    EXPECT_EQ(cell("ContactsNotes", notes, "Notes"), "likes tea");
}

TEST_F(MergeDataTest, WithoutAConnectionNothingIsWritten)
{
    const std::int32_t contact = addContact({{"DisplayName", "Ann"}});
    build(2, 5);
    engine.initializeDataRecordsetsForSingleDocMerge();
    recorded->connected = false;
    EXPECT_FALSE(engine.writeDataToField("DisplayName", "Bob"));
    EXPECT_EQ(cell("Contacts", contact, "DisplayName"), "Ann");
}

} // namespace qncal::test
