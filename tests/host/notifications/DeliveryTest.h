#pragma once

#include "core/AutoNotifyService.h"
#include "host/services/HostTest.h"
#include "host/store/StoreFactory.h"
#include "items/clsCalendarItem.h"
#include "notifications/NotificationDelivery.h"
#include "services/DeliveryState.h"
#include "utilities/Clock.h"

#include <gmock/gmock.h>

#include <deque>

namespace qncal::host::test {

/// Answers as it is told, and looks at the database while a message is on its way.
class ScriptedTransport : public MailTransport {
public:
    std::deque<MailResult> answers;
    std::vector<MailMessage> messages;
    std::function<void()> whileSending;

    MailResult send(const MailMessage& message) override
    {
        messages.push_back(message);
        if (whileSending)
            whileSending();
        if (answers.empty())
            return {MailResult::Outcome::sent, {}};
        MailResult answer = answers.front();
        answers.pop_front();
        return answer;
    }
};

/// A client with an appointment ahead, the means to tell him, and a clock that is set.
class DeliveryTest : public HostTest {
protected:
    static Date at(int hour, int minute = 0) { return Date::of(2026, 3, 2, hour, minute); }

    void SetUp() override
    {
        addRow(*database, "AccountantFirmInfo", {{"CompanyName", "Reed & Partners"}, {"OfficeNumber", "555-0100"}});
        contact = addRow(*database, "Contacts",
                         {{"DisplayName", "Ann Stone"},
                          {"BusinessEmail", "ann@client.example"},
                          {"BusinessPhone_Fax", "555-0102"},
                          {"HomePhone_Main", "555-0103"},
                          {"HomeAddress1", "1 Hill St"},
                          {"HomeCity", "Elora"}});
    }
    /// An appointment on March 4 at 9:30 of which the client is told on March 2.
    std::int32_t addAppointment(std::uint8_t channels, std::int32_t contactID, Date start = Date::of(2026, 3, 4, 9, 30))
    {
        clsCalendarItem item;
        item.calendarItemType(enumLocalCalendarAppointmentItem);
        item.addNewItem();
        item.Subject("Year end");
        item.contactIDNum(contactID);
        item.DateFrom(start.dateOnly());
        item.TimeFrom(start.timeOnly());
        item.TimeTo(Date::timeOf(17));
        item.notifiedDate(Date::of(2026, 3, 2));
        item.notifyType(channels);
        EXPECT_TRUE(item.saveCalendarItem());
        return item.itemID();
    }
    std::int32_t addAppointment(std::uint8_t channels) { return addAppointment(channels, contact); }
    void deleteAppointment(std::int32_t id)
    {
        clsCalendarItem item;
        item.calendarItemType(enumLocalCalendarAppointmentItem);
        item.itemID(id);
        EXPECT_TRUE(item.deleteCalendarItem());
    }
    Rows rows(const std::string& condition = "ClientNotificationID > 0")
    {
        return Rows::change(*database, "SELECT ClientNotification.* FROM ClientNotification WHERE " + condition + ";");
    }
    DeliveryState state() { return static_cast<DeliveryState>(rows().integer("DeliveryState")); }
    NotificationDelivery delivery()
    {
        return {database, {&mail, {"Reed & Partners", "office@firm.example"}, letters, secureRecord}};
    }
    std::vector<Delivery> deliver() { return delivery().run(lock); }
    std::vector<DeliveryStep> run()
    {
        std::vector<DeliveryStep> steps;
        for (const Delivery& done : deliver())
            steps.push_back(done.step);
        return steps;
    }
    /// The one notification that is due.
    Delivery deliverOne()
    {
        const std::vector<Delivery> all = deliver();
        EXPECT_THAT(all, testing::SizeIs(1));
        return all.empty() ? Delivery{} : all.front();
    }
    /// Changes a column of the only row that the condition finds in a table.
    void change(const std::string& table, const std::string& column, const std::string& value)
    {
        Rows::change(*database, "SELECT " + table + ".* FROM " + table + ";").set(column, value);
    }

    TemporaryFolder folder;
    std::filesystem::path letters = folder.path() / "letters";
    DeliveryLock lock{folder.file("lock")};
    std::function<void()> secureRecord;
    Date present = at(8);
    ClockOverride clock{[this] { return present; }};
    ScriptedTransport mail;
    std::int32_t contact = -1;
};

} // namespace qncal::host::test
