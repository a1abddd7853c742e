#pragma once

#include "utilities/Date.h"

#include <cstdint>

namespace qncal {

/// Host contract: keeps and delivers the notifications that clients get ahead of an item.
/// `kind` is the item's kind (0 appointment, 1 task, 2 time entry), `channel` a bit of the item's notifyType
/// (1 e-mail, 2 fax, 4 phone, 8 letter). Any call may throw `RunTimeError`.
class AutoNotifyService {
public:
    static constexpr std::uint8_t email = 1;
    static constexpr std::uint8_t fax = 2;
    static constexpr std::uint8_t phone = 4;
    static constexpr std::uint8_t letter = 8;

    virtual ~AutoNotifyService() = default;
    virtual bool notificationExists(std::int16_t kind, std::int32_t itemID, std::uint8_t channel) = 0;
    /// Below 0 when there is none.
    virtual std::int32_t getNotificationID(std::int16_t kind, std::int32_t itemID, std::uint8_t channel) = 0;
    /// Each gives the new notification's id. The last three arguments are always -1.
    virtual std::int32_t createEmailNotification(std::int16_t kind, std::int32_t itemID, Date date, std::int32_t fixed1,
                                                 std::int32_t fixed2, std::int32_t fixed3) = 0;
    virtual std::int32_t createFaxNotification(std::int16_t kind, std::int32_t itemID, Date date, std::int32_t fixed1,
                                               std::int32_t fixed2, std::int32_t fixed3) = 0;
    virtual std::int32_t createPhoneNotification(std::int16_t kind, std::int32_t itemID, Date date, std::int32_t fixed1,
                                                 std::int32_t fixed2, std::int32_t fixed3) = 0;
    virtual std::int32_t createLetterNotification(std::int16_t kind, std::int32_t itemID, Date date,
                                                  std::int32_t fixed1, std::int32_t fixed2, std::int32_t fixed3) = 0;
    virtual void linkNotification(std::int16_t kind, std::int32_t notificationID, std::int32_t itemID) = 0;
    /// `itemCode` is 1 for an appointment, 2 for a task; `flag` is always -1.
    virtual void setEmailNotificationDate(std::int16_t kind, std::int16_t itemCode, std::int32_t notificationID,
                                          Date date, std::int32_t flag) = 0;
    virtual void setFaxNotificationDate(std::int16_t kind, std::int16_t itemCode, std::int32_t notificationID,
                                        Date date, std::int32_t flag) = 0;
    virtual void setPhoneNotificationDate(std::int16_t kind, std::int16_t itemCode, std::int32_t notificationID,
                                          Date date, std::int32_t flag) = 0;
    virtual void setLetterNotificationDate(std::int16_t kind, std::int16_t itemCode, std::int32_t notificationID,
                                           Date date, std::int32_t flag) = 0;
    virtual void refreshNotification(std::int16_t kind) = 0;
    virtual void deleteNotification(std::int32_t notificationID) = 0;
};

} // namespace qncal
