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
    if (!form_)
        throw RunTimeError(errorNumber::objectNotSet, "the window has no form");
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

std::int32_t TestAutoNotify::find(std::int16_t kind, std::int32_t itemID, std::uint8_t channel) const
{
    const auto found = std::ranges::find_if(notifications, [&](const Notification& entry) {
        return entry.kind == kind && entry.itemID == itemID && entry.channel == channel;
    });
    return found == notifications.end() ? -1 : found->id;
}

std::int32_t TestAutoNotify::getNotificationID(std::int16_t kind, std::int32_t itemID, std::uint8_t channel)
{
    record("getNotificationID", kind, itemID, channel);
    return find(kind, itemID, channel);
}

bool TestAutoNotify::notificationExists(std::int16_t kind, std::int32_t itemID, std::uint8_t channel)
{
    record("notificationExists", kind, itemID, channel);
    return find(kind, itemID, channel) >= 0;
}

std::int32_t TestAutoNotify::create(const char* operation, std::uint8_t channel, std::int16_t kind, std::int32_t itemID,
                                    Date date, const Fixed& fixed)
{
    notifications.push_back({nextID, kind, itemID, channel, date});
    record(operation + (" " + std::to_string(kind) + " " + std::to_string(itemID) + " " + defaultDateText(date)),
           fixed.first, fixed.second, fixed.third);
    return nextID++;
}

std::int32_t TestAutoNotify::createEmailNotification(std::int16_t kind, std::int32_t itemID, Date date,
                                                     std::int32_t fixed1, std::int32_t fixed2, std::int32_t fixed3)
{
    return create("createEmailNotification", email, kind, itemID, date, {fixed1, fixed2, fixed3});
}

std::int32_t TestAutoNotify::createFaxNotification(std::int16_t kind, std::int32_t itemID, Date date,
                                                   std::int32_t fixed1, std::int32_t fixed2, std::int32_t fixed3)
{
    return create("createFaxNotification", fax, kind, itemID, date, {fixed1, fixed2, fixed3});
}

std::int32_t TestAutoNotify::createPhoneNotification(std::int16_t kind, std::int32_t itemID, Date date,
                                                     std::int32_t fixed1, std::int32_t fixed2, std::int32_t fixed3)
{
    return create("createPhoneNotification", phone, kind, itemID, date, {fixed1, fixed2, fixed3});
}

std::int32_t TestAutoNotify::createLetterNotification(std::int16_t kind, std::int32_t itemID, Date date,
                                                      std::int32_t fixed1, std::int32_t fixed2, std::int32_t fixed3)
{
    return create("createLetterNotification", letter, kind, itemID, date, {fixed1, fixed2, fixed3});
}

void TestAutoNotify::linkNotification(std::int16_t kind, std::int32_t notificationID, std::int32_t itemID)
{
    record("linkNotification", kind, notificationID, itemID);
}

void TestAutoNotify::moveTo(const char* operation, std::int16_t kind, std::int16_t itemCode, std::int32_t id, Date date,
                            std::int32_t flag)
{
    for (Notification& entry : notifications)
        if (entry.id == id)
            entry.date = date;
    record(operation
               + (" " + std::to_string(kind) + " " + std::to_string(itemCode) + " " + std::to_string(id) + " "
                  + defaultDateText(date)),
           flag);
}

void TestAutoNotify::setEmailNotificationDate(std::int16_t kind, std::int16_t itemCode, std::int32_t notificationID,
                                              Date date, std::int32_t flag)
{
    moveTo("setEmailNotificationDate", kind, itemCode, notificationID, date, flag);
}

void TestAutoNotify::setFaxNotificationDate(std::int16_t kind, std::int16_t itemCode, std::int32_t notificationID,
                                            Date date, std::int32_t flag)
{
    moveTo("setFaxNotificationDate", kind, itemCode, notificationID, date, flag);
}

void TestAutoNotify::setPhoneNotificationDate(std::int16_t kind, std::int16_t itemCode, std::int32_t notificationID,
                                              Date date, std::int32_t flag)
{
    moveTo("setPhoneNotificationDate", kind, itemCode, notificationID, date, flag);
}

void TestAutoNotify::setLetterNotificationDate(std::int16_t kind, std::int16_t itemCode, std::int32_t notificationID,
                                               Date date, std::int32_t flag)
{
    moveTo("setLetterNotificationDate", kind, itemCode, notificationID, date, flag);
}

void TestAutoNotify::refreshNotification(std::int16_t kind) { record("refreshNotification", kind); }

void TestAutoNotify::deleteNotification(std::int32_t notificationID)
{
    std::erase_if(notifications, [&](const Notification& entry) { return entry.id == notificationID; });
    record("deleteNotification", notificationID);
}

} // namespace qncal::test
