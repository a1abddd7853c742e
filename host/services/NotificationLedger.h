#pragma once

#include "core/AutoNotifyService.h"
#include "core/DatabaseService.h"
#include "utilities/Event.h"

#include <memory>
#include <string>

namespace qncal::host {

/// Keeps the clients' notifications as rows of `ClientNotification`: one for each item, channel and client, with
/// its date and what delivery made of it (see `NotificationDelivery`). An id without a row changes nothing.
///
/// A row that was sent, or may have been, is the proof of it and stays: `deleteNotification` leaves it, moving its
/// date does not send it again, and an item that passes to another client gets a new row. Rows leave with their item.
class NotificationLedger : public AutoNotifyService {
public:
    explicit NotificationLedger(std::shared_ptr<DatabaseService> database) : database_(std::move(database)) {}

    /// Raised with the item's kind when the notifications of that kind are to be shown anew.
    Event<std::int16_t> refreshed;

    bool notificationExists(std::int16_t kind, std::int32_t itemID, std::uint8_t channel) override;
    std::int32_t getNotificationID(std::int16_t kind, std::int32_t itemID, std::uint8_t channel) override;
    std::int32_t createEmailNotification(std::int16_t kind, std::int32_t itemID, Date date, std::int32_t fixed1,
                                         std::int32_t fixed2, std::int32_t fixed3) override;
    std::int32_t createFaxNotification(std::int16_t kind, std::int32_t itemID, Date date, std::int32_t fixed1,
                                       std::int32_t fixed2, std::int32_t fixed3) override;
    std::int32_t createPhoneNotification(std::int16_t kind, std::int32_t itemID, Date date, std::int32_t fixed1,
                                         std::int32_t fixed2, std::int32_t fixed3) override;
    std::int32_t createLetterNotification(std::int16_t kind, std::int32_t itemID, Date date, std::int32_t fixed1,
                                          std::int32_t fixed2, std::int32_t fixed3) override;
    void linkNotification(std::int16_t kind, std::int32_t notificationID, std::int32_t itemID) override;
    void setEmailNotificationDate(std::int16_t kind, std::int16_t itemCode, std::int32_t notificationID, Date date,
                                  std::int32_t flag) override;
    void setFaxNotificationDate(std::int16_t kind, std::int16_t itemCode, std::int32_t notificationID, Date date,
                                std::int32_t flag) override;
    void setPhoneNotificationDate(std::int16_t kind, std::int16_t itemCode, std::int32_t notificationID, Date date,
                                  std::int32_t flag) override;
    void setLetterNotificationDate(std::int16_t kind, std::int16_t itemCode, std::int32_t notificationID, Date date,
                                   std::int32_t flag) override;
    void refreshNotification(std::int16_t kind) override { refreshed.raise(kind); }
    void deleteNotification(std::int32_t notificationID) override;

private:
    std::int32_t create(std::int16_t kind, std::int32_t itemID, std::uint8_t channel, Date date);
    void setDate(std::int32_t notificationID, Date date);

    std::shared_ptr<DatabaseService> database_;
};

} // namespace qncal::host
