#include "MergeEngineTest.h"

#include "utilities/RunTimeError.h"

namespace qncal::test {
namespace {

class PickListTest : public MergeEngineTest {
protected:
    std::vector<std::string> headerLines() const
    {
        std::vector<std::string> headers;
        for (const RecordingList::Line& line : listBox->lines) {
            if (line.itemData == -1)
                headers.push_back(line.text);
        }
        return headers;
    }
};

TEST_F(PickListTest, WithoutAListBoxItSaysSo)
{
    bool noListBox = false;
    engine.createDefaultFieldListStructure(noListBox, true);
    EXPECT_TRUE(noListBox);
    engine.ListBox(listBox);
    engine.createDefaultFieldListStructure(noListBox, true);
    EXPECT_FALSE(noListBox);
}

TEST_F(PickListTest, TheListBoxIsRefreshedAndNeverCleared)
{
    useListBoxes();
    build(1);
    EXPECT_EQ(listBox->clears, 0);
    EXPECT_EQ(listBox->refreshes, 1);
    EXPECT_EQ(listBox2->refreshes, 0);
    const std::size_t lines = listBox->lines.size();
    build(1);
    EXPECT_EQ(listBox->lines.size(), lines * 2);
}

TEST_F(PickListTest, TheEmployerNumberHasTwoBlanksInTheListBoxAlone)
{
    useListBoxes();
    region(LocaleService::unitedStates, 0);
    build(2);
    const std::int32_t key = keyOf("Federal Employer Identification Number");
    const RecordingList::Line line{"Federal Employer Identification  Number", key};
    EXPECT_NE(std::ranges::find(listBox->lines, line), listBox->lines.end());
}

TEST_F(PickListTest, TheSingleFieldListBeginsWithNotAssignedWhateverTheHeaders)
{
    useListBoxes();
    for (const bool headers : {false, true}) {
        listBox->lines.clear();
        engine.ListType(1);
        engine.MergeFieldListUse(3);
        engine.ShowListCategoryHeaders(headers);
        build();
        EXPECT_EQ(listBox->lines.front(), (RecordingList::Line{"Not Assigned", -1}));
        EXPECT_EQ(headerLines().size(), headers ? 10u : 1u);
    }
}

TEST_F(PickListTest, UsesThreeAndFiveTurnTheHeadersOff)
{
    EXPECT_TRUE(engine.ShowListCategoryHeaders());
    engine.MergeFieldListUse(5);
    EXPECT_FALSE(engine.ShowListCategoryHeaders());
    engine.ShowListCategoryHeaders(true);
    engine.MergeFieldListUse(1);
    EXPECT_TRUE(engine.ShowListCategoryHeaders());
    engine.MergeFieldListUse(3);
    EXPECT_FALSE(engine.ShowListCategoryHeaders());
    engine.MergeFieldListUse(1);
    EXPECT_FALSE(engine.ShowListCategoryHeaders());
}

struct HeaderCase {
    const char* name;
    std::int32_t listType;
    std::vector<std::string> headers;
};

class ListHeadersTest : public MergeEngineTestWith<HeaderCase> {};

TEST_P(ListHeadersTest, StandBeforeTheBlocks)
{
    useListBoxes();
    engine.companyID(1);
    build(GetParam().listType);
    std::vector<std::string> headers;
    for (const RecordingList::Line& line : listBox->lines) {
        if (line.itemData == -1)
            headers.push_back(line.text);
    }
    EXPECT_EQ(headers, GetParam().headers);
    EXPECT_EQ(listBox2->lines.front(), (RecordingList::Line{"Insert your Letterhead", -1}));
}

INSTANTIATE_TEST_SUITE_P(
    Lists, ListHeadersTest,
    testing::Values(
        HeaderCase{"Company",
                   1,
                   {"[Company Address Info]", "", "[Default Contact Name]", "", "[Company Accounting Info]", "",
                    "[Company Software Info]", "", "[More Contact Info]"}},
        HeaderCase{"Contact",
                   2,
                   {"", "[Contact Name]", "", "[Company Accounting Info]", "", "[Company Software Info]", "",
                    "[More Contact Info]"}},
        HeaderCase{"ContactAddress", 3, {"", "[Contact Name]", "", "[More Contact Info]", "", "[Company Info]"}},
        HeaderCase{"Appointment",
                   5,
                   {"[Appointment Info]", "", "[Company Address Info]", "", "[Default Contact Name]", "",
                    "[Company Accounting Info]", "", "[Company Software Info]", "", "[More Contact Info]"}},
        HeaderCase{"TimeEntry",
                   6,
                   {"[Time Entry Info]", "[Company Address Info]", "", "[Default Contact Name]", "",
                    "[Company Accounting Info]", "", "[Company Software Info]", "", "[More Contact Info]"}},
        HeaderCase{"Task",
                   8,
                   {"[Task Info]", "", "[Company Address Info]", "", "[Default Contact Name]", "",
                    "[Company Accounting Info]", "", "[Company Software Info]", "", "[More Contact Info]"}}),
    rowName);

class CountingDialogHost : public host::HeadlessDialogHost {
public:
    int turns = 0;
    void doEvents() override { ++turns; }
};

TEST_F(PickListTest, OtherEventsRunTwiceWhenThereIsAListBox)
{
    const auto host = std::make_shared<CountingDialogHost>();
    setDialogHost(host);
    build(1);
    EXPECT_EQ(host->turns, 0);
    useListBoxes();
    build(1);
    EXPECT_EQ(host->turns, 2);
}

class BrokenList : public RecordingList {
public:
    void addLine(std::string_view, std::int32_t) override { throw RunTimeError(errorNumber::internalError, "broken"); }
};

TEST_F(PickListTest, AFailedListBoxCallIsLeftToTheRoutineThatMadeIt)
{
    engine.ListBox(std::make_shared<BrokenList>());
    engine.ShowListCategoryHeaders(false);
    engine.ListType(5);
    build();
    // One for each block's routine: the rows before the call that failed stay, the routines after it run.
    EXPECT_EQ(errors->takeErrors().size(), 3u);
    EXPECT_TRUE(hasField("Appointment Name"));
    EXPECT_FALSE(hasField("Appointment Date"));
    EXPECT_TRUE(hasField("Company Name"));
    EXPECT_FALSE(hasField("Your Company Name"));
}

} // namespace
} // namespace qncal::test
