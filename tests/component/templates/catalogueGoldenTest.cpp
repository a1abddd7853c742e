#include "MergeEngineTest.h"

#include "core/LocaleService.h"
#include "support/GoldenFile.h"

#include <algorithm>

namespace qncal::test {
namespace {

constexpr std::int32_t canada = LocaleService::canada;
constexpr std::int32_t unitedStates = LocaleService::unitedStates;
constexpr std::int32_t ontario = 3;
constexpr std::int32_t quebec = 8;

std::string goldenFile(std::string_view name)
{
    return std::string(QNCAL_TEST_DATA "/component/templates/golden/").append(name).append(".txt");
}

std::string rowText(const FieldListRow& row)
{
    return row.displayName.str() + " | " + row.databaseField.str() + " | " + row.category.str() + " | "
           + std::to_string(static_cast<int>(row.dataType)) + " | " + row.sampleText.str() + " | "
           + std::to_string(row.maximumLength);
}

struct ListCase {
    std::int32_t listType;
    std::int32_t companyID;
    const char* name;
};

/// Every list, row by row as the pick lists show it: for the normal use in Canada in full, for the other uses and the
/// United States and Quebec by what differs from that. A row is display name, database field, category, type, sample
/// and maximum length; a line of the list that is not the display name comes after it; # begins a header line.
class CatalogueGoldenTest : public MergeEngineTestWith<ListCase> {
protected:
    std::string listText(std::int32_t country, std::int32_t use, std::int32_t province = ontario)
    {
        region(country, province);
        listBox->lines.clear();
        listBox2->lines.clear();
        engine.ShowListCategoryHeaders(true);
        build(GetParam().listType, use);
        std::int32_t lastKey = 0;
        std::string text = linesText(*listBox, lastKey);
        text += "(second list)\n" + linesText(*listBox2, lastKey);
        EXPECT_EQ(lastKey, engine.FieldList()->getCount()) << "every row has its line";
        return text;
    }

private:
    std::string linesText(const RecordingList& list, std::int32_t& lastKey)
    {
        std::string text;
        for (const RecordingList::Line& line : list.lines) {
            if (line.itemData == -1) {
                text += line.text.empty() ? "#\n" : "# " + line.text + "\n";
                continue;
            }
            EXPECT_EQ(line.itemData, ++lastKey);
            EXPECT_TRUE(engine.FieldList()->moveToKey(line.itemData));
            const FieldListRow& row = engine.FieldList()->current();
            text += rowText(row) + (line.text == row.displayName.view() ? "" : " | " + line.text) + "\n";
        }
        return text;
    }
};

TEST_P(CatalogueGoldenTest, IsAsWrittenDown)
{
    useListBoxes();
    engine.companyID(GetParam().companyID);
    const std::string normal = listText(canada, 1);
    std::string text = "== Canada, use 1\n" + normal;
    text += "== Canada, use 3\n" + lineDifference(normal, listText(canada, 3));
    text += "== Canada, use 5\n" + lineDifference(normal, listText(canada, 5));
    text += "== Quebec, use 1\n" + lineDifference(normal, listText(canada, 1, quebec));
    const std::string american = listText(unitedStates, 1);
    text += "== United States, use 1\n" + lineDifference(normal, american);
    text += "== United States, use 3, from use 1\n" + lineDifference(american, listText(unitedStates, 3));
    text += "== United States, use 5, from use 1\n" + lineDifference(american, listText(unitedStates, 5));
    expectGolden(goldenFile(GetParam().name), text);
}

INSTANTIATE_TEST_SUITE_P(Lists, CatalogueGoldenTest,
                         testing::Values(ListCase{1, 1, "company"}, ListCase{2, -1, "contact"},
                                         ListCase{3, -1, "contactAddress"}, ListCase{3, 0, "contactAddressAndCompany"},
                                         ListCase{5, -1, "appointment"}, ListCase{6, -1, "timeEntry"},
                                         ListCase{8, -1, "task"}, ListCase{4, -1, "unknownType"}),
                         rowName);

class ProvinceGoldenTest : public MergeEngineTest {
protected:
    /// The names of the fields that differ from province to province.
    std::string provinceNames()
    {
        const std::vector<std::string_view> fields{"GSTNumber", "GSTFilingMethod", "PSTNumber",      "ONCorpNumber",
                                                   "MCBS",      "WSIBNumber",      "WSIBFirmNumber", "WSIBPremiumRate",
                                                   "Coverage"};
        std::string names;
        for (const FieldListRow& row : engine.FieldList()->rows()) {
            if (std::ranges::find(fields, row.databaseField.view()) != fields.end())
                names += (names.empty() ? "" : ", ") + row.displayName.str();
        }
        return names;
    }
};

TEST_F(ProvinceGoldenTest, TheFieldsOfEachProvinceOnBothSidesOfHarmonisation)
{
    std::string text;
    for (int province = 0; province <= 13; ++province) {
        region(canada, province);
        moveClockTo(lastMomentBeforeHarmonisation);
        build(2);
        text += std::to_string(province) + " before: " + provinceNames() + "\n";
        moveClockTo(firstMomentOfHarmonisation);
        build(2);
        text += std::to_string(province) + " after:  " + provinceNames() + "\n";
    }
    expectGolden(goldenFile("provinces"), text);
}

} // namespace
} // namespace qncal::test
