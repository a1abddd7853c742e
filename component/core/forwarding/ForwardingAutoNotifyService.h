#pragma once

#include "core/AutoNotifyService.h"

#include <memory>
#include <string_view>
#include <utility>

namespace qncal {

/// Hands every call on to another notification service. Override an operation to change it, or `beforeCall` to see or
/// refuse them all: what it throws goes to the caller in place of the call.
class ForwardingAutoNotifyService : public AutoNotifyService {
public:
    explicit ForwardingAutoNotifyService(std::shared_ptr<AutoNotifyService> target) : target_(std::move(target)) {}
    const std::shared_ptr<AutoNotifyService>& target() const { return target_; }

    bool notificationExists(std::int16_t kind, std::int32_t itemID, std::uint8_t channel) override
    {
        beforeCall("notificationExists");
        return target_->notificationExists(kind, itemID, channel);
    }
    std::int32_t getNotificationID(std::int16_t kind, std::int32_t itemID, std::uint8_t channel) override
    {
        beforeCall("getNotificationID");
        return target_->getNotificationID(kind, itemID, channel);
    }
    std::int32_t createEmailNotification(std::int16_t kind, std::int32_t itemID, Date date, std::int32_t fixed1,
                                         std::int32_t fixed2, std::int32_t fixed3) override
    {
        beforeCall("createEmailNotification");
        return target_->createEmailNotification(kind, itemID, date, fixed1, fixed2, fixed3);
    }
    std::int32_t createFaxNotification(std::int16_t kind, std::int32_t itemID, Date date, std::int32_t fixed1,
                                       std::int32_t fixed2, std::int32_t fixed3) override
    {
        beforeCall("createFaxNotification");
        return target_->createFaxNotification(kind, itemID, date, fixed1, fixed2, fixed3);
    }
    std::int32_t createPhoneNotification(std::int16_t kind, std::int32_t itemID, Date date, std::int32_t fixed1,
                                         std::int32_t fixed2, std::int32_t fixed3) override
    {
        beforeCall("createPhoneNotification");
        return target_->createPhoneNotification(kind, itemID, date, fixed1, fixed2, fixed3);
    }
    std::int32_t createLetterNotification(std::int16_t kind, std::int32_t itemID, Date date, std::int32_t fixed1,
                                          std::int32_t fixed2, std::int32_t fixed3) override
    {
        beforeCall("createLetterNotification");
        return target_->createLetterNotification(kind, itemID, date, fixed1, fixed2, fixed3);
    }
    void linkNotification(std::int16_t kind, std::int32_t notificationID, std::int32_t itemID) override
    {
        beforeCall("linkNotification");
        target_->linkNotification(kind, notificationID, itemID);
    }
    void setEmailNotificationDate(std::int16_t kind, std::int16_t itemCode, std::int32_t notificationID, Date date,
                                  std::int32_t flag) override
    {
        beforeCall("setEmailNotificationDate");
        target_->setEmailNotificationDate(kind, itemCode, notificationID, date, flag);
    }
    void setFaxNotificationDate(std::int16_t kind, std::int16_t itemCode, std::int32_t notificationID, Date date,
                                std::int32_t flag) override
    {
        beforeCall("setFaxNotificationDate");
        target_->setFaxNotificationDate(kind, itemCode, notificationID, date, flag);
    }
    void setPhoneNotificationDate(std::int16_t kind, std::int16_t itemCode, std::int32_t notificationID, Date date,
                                  std::int32_t flag) override
    {
        beforeCall("setPhoneNotificationDate");
        target_->setPhoneNotificationDate(kind, itemCode, notificationID, date, flag);
    }
    void setLetterNotificationDate(std::int16_t kind, std::int16_t itemCode, std::int32_t notificationID, Date date,
                                   std::int32_t flag) override
    {
        beforeCall("setLetterNotificationDate");
        target_->setLetterNotificationDate(kind, itemCode, notificationID, date, flag);
    }
    void refreshNotification(std::int16_t kind) override
    {
        beforeCall("refreshNotification");
        target_->refreshNotification(kind);
    }
    void deleteNotification(std::int32_t notificationID) override
    {
        beforeCall("deleteNotification");
        target_->deleteNotification(notificationID);
    }

protected:
    virtual void beforeCall(std::string_view /*operation*/) {}

private:
    std::shared_ptr<AutoNotifyService> target_;
};

} // namespace qncal
