#include "support/TestServices.h"

#include "controls/Form.h"
#include "utilities/RunTimeError.h"

#include <algorithm>

namespace qncal::test {

void TestFormRegistry::Entry::initialize()
{
    ++initialized;
    form_->Form_Load();
}

void TestFormRegistry::Entry::show(bool modal)
{
    ++(modal ? shownModal : shownModeless);
    if (modal)
        form_->showModal();
    else
        form_->show();
}

bool TestFormRegistry::isRegistered(std::int32_t key)
{
    const auto found = entries.find(key);
    if (found == entries.end())
        return false;
    current_ = &found->second;
    return true;
}

void TestFormRegistry::addKey(std::int32_t key) { current_ = &entries[key]; }

FormRegistryEntry& TestFormRegistry::currentEntry()
{
    if (!current_)
        throw RunTimeError(errorNumber::objectNotSet, "no window is registered");
    return *current_;
}

std::string TestClientDropDown::getUserName(std::int32_t userID)
{
    const auto user = std::ranges::find(users, userID, &UserEntry::id);
    return user == users.end() ? std::string() : user->name;
}

std::string TestClientDropDown::getCompanyName(std::int32_t companyID)
{
    const Variant name = getClientListField(ClientKind::company, companyID, "CompanyName");
    return name.isNull() ? std::string() : name.toText();
}

std::string TestClientDropDown::getContactName(std::int32_t contactID)
{
    const Variant name = getClientListField(ClientKind::contact, contactID, "DisplayName");
    return name.isNull() ? std::string() : name.toText();
}

std::string TestClientDropDown::getContactAndSpouseName(std::int32_t contactID)
{
    const Variant spouse = getClientListField(ClientKind::contact, contactID, "SpouseName");
    const std::string name = getContactName(contactID);
    return spouse.isNull() ? name : name + " and " + spouse.toText();
}

Variant TestClientDropDown::getClientListField(ClientKind kind, std::int32_t id, std::string_view fieldName)
{
    const auto& list = kind == ClientKind::company ? companies : contacts;
    const auto client = list.find(id);
    if (client == list.end())
        return {};
    const auto field = client->second.find(fieldName);
    return field == client->second.end() ? Variant() : field->second;
}

std::int32_t TestAutoNotify::getNotificationID(std::int16_t kind, std::int32_t itemID, std::uint8_t channel)
{
    const auto found = std::ranges::find_if(notifications, [&](const Notification& entry) {
        return entry.kind == kind && entry.itemID == itemID && entry.channel == channel;
    });
    return found == notifications.end() ? -1 : found->id;
}

bool TestAutoNotify::notificationExists(std::int16_t kind, std::int32_t itemID, std::uint8_t channel)
{
    return getNotificationID(kind, itemID, channel) >= 0;
}

std::int32_t TestAutoNotify::create(const char* operation, std::uint8_t channel, std::int16_t kind, std::int32_t itemID,
                                    Date date)
{
    notifications.push_back({++lastID_, kind, itemID, channel, date});
    calls.push_back(std::string(operation) + " " + std::to_string(kind) + " " + std::to_string(itemID) + " "
                    + defaultDateText(date));
    return lastID_;
}

std::int32_t TestAutoNotify::createEmailNotification(std::int16_t kind, std::int32_t itemID, Date date, std::int32_t,
                                                     std::int32_t, std::int32_t)
{
    return create("createEmailNotification", email, kind, itemID, date);
}

std::int32_t TestAutoNotify::createFaxNotification(std::int16_t kind, std::int32_t itemID, Date date, std::int32_t,
                                                   std::int32_t, std::int32_t)
{
    return create("createFaxNotification", fax, kind, itemID, date);
}

std::int32_t TestAutoNotify::createPhoneNotification(std::int16_t kind, std::int32_t itemID, Date date, std::int32_t,
                                                     std::int32_t, std::int32_t)
{
    return create("createPhoneNotification", phone, kind, itemID, date);
}

std::int32_t TestAutoNotify::createLetterNotification(std::int16_t kind, std::int32_t itemID, Date date, std::int32_t,
                                                      std::int32_t, std::int32_t)
{
    return create("createLetterNotification", letter, kind, itemID, date);
}

void TestAutoNotify::linkNotification(std::int16_t kind, std::int32_t notificationID, std::int32_t itemID)
{
    calls.push_back("linkNotification " + std::to_string(kind) + " " + std::to_string(notificationID) + " "
                    + std::to_string(itemID));
}

void TestAutoNotify::moveTo(const char* operation, std::int16_t kind, std::int16_t itemCode, std::int32_t id, Date date)
{
    for (Notification& entry : notifications)
        if (entry.id == id)
            entry.date = date;
    calls.push_back(std::string(operation) + " " + std::to_string(kind) + " " + std::to_string(itemCode) + " "
                    + std::to_string(id) + " " + defaultDateText(date));
}

void TestAutoNotify::setEmailNotificationDate(std::int16_t kind, std::int16_t itemCode, std::int32_t notificationID,
                                              Date date, std::int32_t)
{
    moveTo("setEmailNotificationDate", kind, itemCode, notificationID, date);
}

void TestAutoNotify::setFaxNotificationDate(std::int16_t kind, std::int16_t itemCode, std::int32_t notificationID,
                                            Date date, std::int32_t)
{
    moveTo("setFaxNotificationDate", kind, itemCode, notificationID, date);
}

void TestAutoNotify::setPhoneNotificationDate(std::int16_t kind, std::int16_t itemCode, std::int32_t notificationID,
                                              Date date, std::int32_t)
{
    moveTo("setPhoneNotificationDate", kind, itemCode, notificationID, date);
}

void TestAutoNotify::setLetterNotificationDate(std::int16_t kind, std::int16_t itemCode, std::int32_t notificationID,
                                               Date date, std::int32_t)
{
    moveTo("setLetterNotificationDate", kind, itemCode, notificationID, date);
}

void TestAutoNotify::refreshNotification(std::int16_t kind)
{
    calls.push_back("refreshNotification " + std::to_string(kind));
}

void TestAutoNotify::deleteNotification(std::int32_t notificationID)
{
    std::erase_if(notifications, [&](const Notification& entry) { return entry.id == notificationID; });
    calls.push_back("deleteNotification " + std::to_string(notificationID));
}

} // namespace qncal::test
