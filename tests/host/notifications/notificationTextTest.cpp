#include "notifications/notificationText.h"

#include <gmock/gmock.h>

namespace qncal::host {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

NotifiedItem itemOf(enumLocalCalendarItemType kind) { return {kind, 12, "Year end", Date::of(2026, 3, 31, 9, 30), {}}; }

TEST(NotificationTextTest, HasTheWordsOfTheKind)
{
    const auto words = [](enumLocalCalendarItemType kind) {
        const NotificationText text = notificationText(itemOf(kind), {}, {});
        return text.subject + " | " + text.paragraphs.front();
    };
    EXPECT_EQ(words(enumLocalCalendarAppointmentItem),
              "Appointment on Tuesday, March 31, 2026 | This is to remind you of your appointment with us on Tuesday, "
              "March 31, 2026 at 9:30 am:");
    EXPECT_EQ(words(enumLocalCalendarTaskItem),
              "Task on Tuesday, March 31, 2026 | This is to remind you of the following work that is due on Tuesday, "
              "March 31, 2026 at 9:30 am:");
    EXPECT_EQ(words(enumLocalCalendarDocketItem),
              "Work on Tuesday, March 31, 2026 | This is to tell you of the following work on Tuesday, March 31, 2026 "
              "at 9:30 am:");
}

TEST(NotificationTextTest, GreetsThePersonBeforeTheCompany)
{
    const NotifiedItem item = itemOf(enumLocalCalendarAppointmentItem);
    const auto greeting = [&](const Correspondent& client) { return notificationText(item, client, {}).greeting; };
    EXPECT_EQ(greeting({"Granite Ltd.", "Ann Stone"}), "Dear Ann Stone,");
    EXPECT_EQ(greeting({"Granite Ltd."}), "Dear Granite Ltd.,");
    EXPECT_EQ(greeting({}), "Dear client,");
}

TEST(NotificationTextTest, LeavesOutWhatIsNotThere)
{
    NotifiedItem item = itemOf(enumLocalCalendarAppointmentItem);
    item.subject.clear();
    item.start = Date::of(2026, 3, 31);
    const NotificationText text = notificationText(item, {}, {});
    EXPECT_EQ(text.paragraphs.front(), "This is to remind you of your appointment with us on Tuesday, March 31, 2026.");
    EXPECT_THAT(text.signature, ElementsAre("Yours sincerely,"));
}

TEST(NotificationTextTest, ALetterShowsMarkupAsText)
{
    NotifiedItem item = itemOf(enumLocalCalendarAppointmentItem);
    item.subject = "<script>alert(1)</script> & more";
    const Correspondent client{"A <b>", {}, {}, {}, {}, {"1 & 2 St"}};
    const std::string letter =
        letterDocument(notificationText(item, client, {}), client, {"Firm"}, Date::of(2026, 3, 2));
    EXPECT_THAT(letter, HasSubstr("&lt;script&gt;alert(1)&lt;/script&gt; &amp; more"));
    EXPECT_THAT(letter, HasSubstr("<p class=\"client\">A &lt;b&gt;<br>\n1 &amp; 2 St</p>"));
    EXPECT_THAT(letter, HasSubstr("<p class=\"date\">March 2, 2026</p>"));
    EXPECT_THAT(letter, HasSubstr("<p class=\"firm\">Firm</p>"));
    EXPECT_THAT(letter, Not(HasSubstr("<script>")));
}

} // namespace
} // namespace qncal::host
