#include "component/templates/MergeDataTest.h"
#include "support/rowName.h"
#include "utilities/RunTimeError.h"

// The list that a merge works with: which one it builds itself, and how long it lasts.

namespace qncal::test {

TEST_F(MergeEngineTest, FirstMergeOfAFreshInstanceOnlyNormalises)
{
    engine.TestComment(true);
    engine.appointmentID(1);
    engine.TemplateText("<<Appointment Name>> «Nobody»");
    EXPECT_EQ(engine.parseRTBComment(), "«Appointment Name» «Nobody»");
    EXPECT_EQ(engine.ListType(), 5);
    EXPECT_EQ(engine.parseRTBComment(), "Year end meeting ");
}

namespace {

using SetID = void (clsInsertFieldsInRTB::*)(std::int32_t);

struct ListRow {
    const char* name;
    std::vector<SetID> ids;
    std::int32_t listType;
};

class ListChoiceTest : public MergeEngineTestWith<ListRow> {};

constexpr SetID appointment = &clsInsertFieldsInRTB::appointmentID;
constexpr SetID task = &clsInsertFieldsInRTB::TaskID;
constexpr SetID timeEntry = &clsInsertFieldsInRTB::docketId;
constexpr SetID company = &clsInsertFieldsInRTB::companyID;
constexpr SetID contact = &clsInsertFieldsInRTB::contactID;

} // namespace

TEST_P(ListChoiceTest, FollowsTheIDs)
{
    for (const SetID id : GetParam().ids)
        (engine.*id)(0);
    EXPECT_FALSE(engine.verifyFieldListIsPopulated());
    EXPECT_EQ(engine.ListType(), GetParam().listType);
    EXPECT_GT(engine.FieldList()->getCount(), 0);
    EXPECT_TRUE(engine.verifyFieldListIsPopulated());
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ListChoiceTest,
    testing::Values(ListRow{"Appointment", {appointment}, 5}, ListRow{"Task", {task}, 8},
                    ListRow{"TimeEntry", {timeEntry}, 6}, ListRow{"Company", {company}, 2},
                    ListRow{"Contact", {contact}, 2},
                    ListRow{"AppointmentBeforeAll", {contact, company, timeEntry, task, appointment}, 5},
                    ListRow{"TaskBeforeTimeEntry", {timeEntry, task}, 8},
                    ListRow{"TaskBeforeItsClient", {company, contact, task}, 8},
                    ListRow{"TimeEntryBeforeItsClient", {company, contact, timeEntry}, 6},
                    ListRow{"CompanyAndContact", {company, contact}, 2}),
    rowName);

TEST_F(MergeEngineTest, WithoutIDsEveryMergeOnlyNormalises)
{
    for (int merge = 0; merge < 2; ++merge) {
        engine.TemplateText("«Contact Full Name» «Nobody»");
        EXPECT_EQ(engine.parseRTBComment(), "«Contact Display Name» «Nobody»");
    }
}

TEST_F(MergeEngineTest, AfterTheEndNothingIsMerged)
{
    engine.TemplateText("«City»");
    engine.Terminate();
    EXPECT_EQ(engine.parseRTBComment(), "«City»");
    EXPECT_FALSE(errors->takeErrors().empty());
}

namespace {

/// A host with an event waiting that ends the engine.
class EndsTheEngine : public host::HeadlessDialogHost {
public:
    explicit EndsTheEngine(clsInsertFieldsInRTB& engine) : engine_(engine) {}
    void doEvents() override { engine_.Terminate(); }

private:
    clsInsertFieldsInRTB& engine_;
};

void expectObjectNotSet(const std::vector<ErrorState>& reported)
{
    EXPECT_FALSE(reported.empty());
    for (const ErrorState& error : reported)
        EXPECT_EQ(error.number, errorNumber::objectNotSet) << error.text;
}

} // namespace

TEST_F(MergeDataTest, EngineThatEndsDuringAMergeFinishesItWithoutValues)
{
    addCompany({{"CompanyName", "Maple Leaf"}, {"City", "Guelph"}});
    build(1);
    setDialogHost(std::make_shared<EndsTheEngine>(engine));
    engine.TemplateText("for «Company Name» in «City»");
    EXPECT_EQ(engine.parseRTBComment(), "for  in «City»");
    EXPECT_EQ(engine.FieldList(), nullptr);
    expectObjectNotSet(errors->takeErrors());
}

TEST_F(MergeEngineTest, EngineThatEndsWhileItsListIsBuiltGetsNoOtherList)
{
    useListBoxes();
    setDialogHost(std::make_shared<EndsTheEngine>(engine));
    build(1);
    EXPECT_EQ(engine.FieldList(), nullptr);
}

} // namespace qncal::test
