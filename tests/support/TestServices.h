#pragma once

#include "core/AutoNotifyService.h"
#include "core/ClientDropDownService.h"
#include "core/FormRegistry.h"
#include "core/LocaleService.h"

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace qncal::test {

/// Host services whose answers a test sets.

class TestLocale : public LocaleService {
public:
    std::int32_t country = canada;
    std::int32_t province = 3; // Ontario
    std::string product = "FirmCal";
    std::int32_t rightsLevel = 5;
    std::int32_t signedInUser = 1;

    std::int32_t getCountryCode() override { return country; }
    std::int32_t getProvinceCode() override { return province; }
    std::string getProductName() override { return product; }
    std::int32_t getRightsLevel() override { return rightsLevel; }
    std::int32_t getSignedInUserID() override { return signedInUser; }
};

/// A registry of windows that keeps what it was told. Showing a form shows it through the dialog host.
class TestFormRegistry : public FormRegistry {
public:
    class Entry : public FormRegistryEntry {
    public:
        int initialized = 0;
        int shownModal = 0;
        int shownModeless = 0;
        int hidden = 0;
        int broughtToFront = 0;

        std::int32_t key() const override { return key_; }
        void key(std::int32_t key) override { key_ = key; }
        std::shared_ptr<Form> form() const override { return form_; }
        void form(std::shared_ptr<Form> form) override { form_ = std::move(form); }
        void initialize() override;
        void show(bool modal) override;
        void hide() override { ++hidden; }
        void bringToFront() override { ++broughtToFront; }
        bool confirmed() const override { return confirmed_; }
        void confirmed(bool confirmed) override { confirmed_ = confirmed; }

    private:
        std::int32_t key_ = 0;
        std::shared_ptr<Form> form_;
        bool confirmed_ = false;
    };

    std::map<std::int32_t, Entry> entries;

    bool isRegistered(std::int32_t key) override;
    void addKey(std::int32_t key) override;
    FormRegistryEntry& currentEntry() override;

private:
    Entry* current_ = nullptr;
};

class TestClientDropDown : public ClientDropDownService {
public:
    std::shared_ptr<TestFormRegistry> formRegistry = std::make_shared<TestFormRegistry>();
    std::vector<UserEntry> users{{1, "Ann Archer"}, {2, "Bob Baker"}};
    /// The rows of the host's lists, by id and field name.
    std::map<std::int32_t, std::map<std::string, Variant, std::less<>>> companies;
    std::map<std::int32_t, std::map<std::string, Variant, std::less<>>> contacts;

    std::shared_ptr<FormRegistry> getFormRegistry() override { return formRegistry; }
    std::vector<UserEntry> getUsers() override { return users; }
    std::string getUserName(std::int32_t userID) override;
    std::string getCompanyName(std::int32_t companyID) override;
    std::string getContactName(std::int32_t contactID) override;
    std::string getContactAndSpouseName(std::int32_t contactID) override;
    Variant getClientListField(ClientKind kind, std::int32_t id, std::string_view fieldName) override;
};

/// Keeps the notifications that it was asked for, and writes down every call.
class TestAutoNotify : public AutoNotifyService {
public:
    struct Notification {
        std::int32_t id;
        std::int16_t kind;
        std::int32_t itemID;
        std::uint8_t channel;
        Date date;
    };
    std::vector<Notification> notifications;
    /// Each call with all its arguments, in order: "createEmailNotification 0 17 2026-03-30 -1 -1 -1".
    std::vector<std::string> calls;
    /// The id of the next notification.
    std::int32_t nextID = 1;

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
    void refreshNotification(std::int16_t kind) override;
    void deleteNotification(std::int32_t notificationID) override;

private:
    struct Fixed {
        std::int32_t first;
        std::int32_t second;
        std::int32_t third;
    };
    std::int32_t create(const char* operation, std::uint8_t channel, std::int16_t kind, std::int32_t itemID, Date date,
                        const Fixed& fixed);
    void moveTo(const char* operation, std::int16_t kind, std::int16_t itemCode, std::int32_t id, Date date,
                std::int32_t flag);
    std::int32_t find(std::int16_t kind, std::int32_t itemID, std::uint8_t channel) const;
    template <class... Numbers>
    void record(std::string call, Numbers... numbers)
    {
        ((call += ' ', call += std::to_string(numbers)), ...);
        calls.push_back(std::move(call));
    }
};

} // namespace qncal::test
