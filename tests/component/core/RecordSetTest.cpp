#include "core/RecordSet.h"

#include "items/clsCalendarItem.h"
#include "support/ComponentTest.h"
#include "support/RecordingDatabase.h"

namespace qncal {
namespace {

class RecordSetTest : public test::ComponentTest {
protected:
    RecordSetTest() { serviceRegistry().database = recording; }

    std::shared_ptr<test::RecordingDatabase> recording = std::make_shared<test::RecordingDatabase>(database);
};

TEST_F(RecordSetTest, OpensWithTheFixedArguments)
{
    class Arguments : public ForwardingDatabaseService {
    public:
        using ForwardingDatabaseService::ForwardingDatabaseService;
        std::int32_t cursor = 0;
        bool showError = false;
        std::string errorText = "?";
        bool keep = false;
        std::int32_t openRecordset(std::string_view sql, std::int32_t cursorGiven, std::int32_t lock, bool show,
                                   std::string_view text, bool kept) override
        {
            cursor = cursorGiven;
            showError = show;
            errorText = text;
            keep = kept;
            return ForwardingDatabaseService::openRecordset(sql, cursorGiven, lock, show, text, kept);
        }
    };
    const auto arguments = std::make_shared<Arguments>(database);
    serviceRegistry().database = arguments;
    RecordSet::openReadOnly("SELECT Holidays.* FROM Holidays;").close();
    EXPECT_EQ(arguments->cursor, 1);
    EXPECT_TRUE(arguments->showError);
    EXPECT_EQ(arguments->errorText, "");
    EXPECT_TRUE(arguments->keep);
}

TEST_F(RecordSetTest, LocksForReadingWithOneAndForWritingWithThree)
{
    RecordSet::openReadOnly("SELECT Holidays.* FROM Holidays;").close();
    RecordSet::openUpdatable("SELECT Holidays.* FROM Holidays;").close();
    EXPECT_EQ(recording->opened[0].second, 1);
    EXPECT_EQ(recording->opened[1].second, 3);
}

TEST_F(RecordSetTest, ANullLeavesTheTargetAsItWas)
{
    addRow("Reminders", {{"TextBody", "call"}});
    auto rst = RecordSet::openReadOnly("SELECT Reminders.* FROM Reminders;");
    std::int32_t userID = 77;
    EXPECT_FALSE(rst.read("UserIDNum", userID));
    EXPECT_EQ(userID, 77);
    std::string text = "before";
    EXPECT_TRUE(rst.read("TextBody", text));
    EXPECT_EQ(text, "call");
    rst.close();
}

TEST_F(RecordSetTest, AnEmptyTextCountsAsNull)
{
    addRow("Reminders", {{"TextBody", ""}});
    auto rst = RecordSet::openReadOnly("SELECT Reminders.* FROM Reminders;");
    std::string text = "before";
    EXPECT_FALSE(rst.read("TextBody", text));
    EXPECT_EQ(text, "before");
    rst.close();
}

TEST_F(RecordSetTest, WritesEveryTypeAsText)
{
    auto rst = RecordSet::openUpdatable("SELECT Reminders.* FROM Reminders;");
    rst.addNew();
    rst.writeNew("Completed", true);
    rst.writeNew("UserIDNum", 12);
    rst.writeNew("ReminderDate", Date::of(2026, 3, 31));
    rst.writeNew("ReminderTime", Date::timeOf(9, 30));
    rst.writeNew("TextBody", std::string("O'Neil"));
    rst.update();
    rst.close();
    EXPECT_EQ(recording->written, (std::vector<std::string>{"Completed=True", "UserIDNum=12", "ReminderDate=2026-03-31",
                                                            "ReminderTime=09:30:00", "TextBody=O'Neil"}));
    EXPECT_EQ(cell("Reminders", 1, "TextBody"), "O'Neil");
}

TEST_F(RecordSetTest, TheNewKeyCanBeReadBeforeUpdate)
{
    auto rst = RecordSet::openUpdatable("SELECT Reminders.* FROM Reminders;");
    rst.addNew();
    std::int32_t id = -1;
    rst.read("ReminderID", id);
    EXPECT_GT(id, 0);
    rst.update();
    rst.close();
    EXPECT_EQ(rowCount("Reminders"), 1);
}

TEST_F(RecordSetTest, AFieldThatTheRecordSetLacksIsAnError)
{
    addRow("Reminders", {});
    routine("label", [] {
        auto rst = RecordSet::openReadOnly("SELECT Reminders.* FROM Reminders;");
        std::string text;
        rst.read("NoSuchColumn", text);
    });
    EXPECT_EQ(errors->takeErrors().size(), 1u);
    EXPECT_TRUE(recording->open.empty()) << "the handle is closed when a failure cuts the path short";
}

TEST_F(RecordSetTest, ABadStatementIsAnError)
{
    bool opened = false;
    routine("label", [&] {
        RecordSet::openReadOnly("SELECT FROM WHERE;");
        opened = true;
    });
    EXPECT_FALSE(opened);
    EXPECT_EQ(errors->takeErrors().size(), 1u);
}

TEST_F(RecordSetTest, ABorrowedHandleIsNotClosed)
{
    addRow("Reminders", {});
    auto owner = RecordSet::openReadOnly("SELECT Reminders.* FROM Reminders;");
    {
        auto borrowed = RecordSet::borrow(owner.handle());
        EXPECT_TRUE(borrowed.hasRecords());
        borrowed.close();
    }
    EXPECT_TRUE(database->isRecordsetOpen(owner.handle()));
    owner.close();
}

TEST_F(RecordSetTest, AnIdOfMinusOneIsValidAndFindsNothing)
{
    addRow("Reminders", {});
    auto rst = RecordSet::openReadOnly("SELECT Reminders.* FROM Reminders WHERE ReminderID=-1;");
    EXPECT_FALSE(rst.hasRecords());
    EXPECT_TRUE(rst.isEmpty());
    rst.close();
    EXPECT_TRUE(recording->open.empty());
}

TEST_F(RecordSetTest, AWriteThroughOneHandleIsSeenThroughAnother)
{
    const std::int32_t id = addRow("Reminders", {{"TextBody", "old"}});
    auto writer = RecordSet::openUpdatable("SELECT Reminders.* FROM Reminders;");
    auto reader =
        RecordSet::openReadOnly("SELECT Reminders.* FROM Reminders WHERE ReminderID=" + std::to_string(id) + ";");
    writer.write("TextBody", std::string("new"));
    std::string text;
    reader.read("TextBody", text);
    EXPECT_EQ(text, "new");
    writer.close();
    reader.close();
}

TEST_F(RecordSetTest, AnUnescapedQuoteInALikePatternFailsThroughTheErrorHandler)
{
    const bool found = routine("label", false, [] {
        return RecordSet::openReadOnly("SELECT Appointments.* FROM Appointments WHERE Subject LIKE '%O'Neil%';")
            .hasRecords();
    });
    EXPECT_FALSE(found);
    EXPECT_EQ(errors->takeErrors().size(), 1u);
}

TEST_F(RecordSetTest, GetSqlDateRoundTripsWithTheDateLiteral)
{
    addRow("Appointments", {{"DateFrom", "2026-03-31"}});
    auto rst = RecordSet::openReadOnly(
        "SELECT Appointments.* FROM Appointments WHERE Appointments.DateFrom=" + sqlDate(Date::of(2026, 3, 31)) + ";");
    EXPECT_TRUE(rst.hasRecords());
    rst.close();
}

} // namespace
} // namespace qncal
