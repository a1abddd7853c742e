#include "services/ClientDropDown.h"

#include "services/Rows.h"
#include "services/WindowRegistry.h"
#include "services/personNames.h"
#include "utilities/text.h"

#include <algorithm>

namespace qncal::host {

namespace {

std::vector<UserEntry> readUsers(DatabaseService& database)
{
    std::vector<UserEntry> users;
    for (Rows rows = Rows::read(database, "SELECT AccountantEmployeeInfo.ContactID, AccountantEmployeeInfo.DisplayName "
                                          "FROM AccountantEmployeeInfo ORDER BY AccountantEmployeeInfo.DisplayName;");
         !rows.atEnd(); rows.moveNext())
        users.push_back({rows.integer("ContactID"), rows.text("DisplayName")});
    return users;
}

} // namespace

ClientDropDown::ClientDropDown(std::shared_ptr<DatabaseService> database)
    : database_(std::move(database)), windows_(std::make_shared<WindowRegistry>())
{
}

void ClientDropDown::invalidate()
{
    users_.reset();
    companyNames_.clear();
    contactNames_.clear();
}

const std::vector<UserEntry>& ClientDropDown::users()
{
    static const std::vector<UserEntry> nobody;
    if (!users_ && database_->isConnected())
        users_ = readUsers(*database_);
    return users_ ? *users_ : nobody;
}

std::optional<UserEntry> ClientDropDown::findUser(std::string_view nameOrID)
{
    const auto found = std::ranges::find_if(users(), [&](const UserEntry& user) {
        return equalsNoCase(user.name, nameOrID) || std::to_string(user.id) == nameOrID;
    });
    return found == users().end() ? std::nullopt : std::optional(*found);
}

std::string ClientDropDown::getUserName(std::int32_t userID)
{
    const auto found = std::ranges::find(users(), userID, &UserEntry::id);
    return found == users().end() ? std::string() : found->name;
}

std::string ClientDropDown::getCompanyName(std::int32_t companyID)
{
    return rememberedName(companyNames_, ClientKind::company, companyID, "CompanyName");
}

std::string ClientDropDown::getContactName(std::int32_t contactID)
{
    return rememberedName(contactNames_, ClientKind::contact, contactID, "DisplayName");
}

std::string ClientDropDown::getContactAndSpouseName(std::int32_t contactID)
{
    return contactAndSpouseName({clientText(ClientKind::contact, contactID, "DisplayName"),
                                 clientText(ClientKind::contact, contactID, "FirstName"),
                                 clientText(ClientKind::contact, contactID, "LastName"),
                                 clientText(ClientKind::contact, contactID, "SpouseName")});
}

Variant ClientDropDown::getClientListField(ClientKind kind, std::int32_t id, std::string_view fieldName)
{
    if (kind == ClientKind::none || id < 0 || !database_->isConnected())
        return {};
    const std::string condition = kind == ClientKind::company ? "SELECT Companies.* FROM Companies WHERE CompanyID="
                                                              : "SELECT Contacts.* FROM Contacts WHERE ContactID=";
    const Rows rows = Rows::read(*database_, condition + std::to_string(id) + ";");
    return rows.isEmpty() ? Variant() : rows.field(fieldName);
}

std::string ClientDropDown::rememberedName(Names& names, ClientKind kind, std::int32_t id, std::string_view fieldName)
{
    if (const auto found = names.find(id); found != names.end())
        return found->second;
    std::string name = clientText(kind, id, fieldName);
    if (!name.empty())
        names.emplace(id, name);
    return name;
}

std::string ClientDropDown::clientText(ClientKind kind, std::int32_t id, std::string_view fieldName)
{
    Variant value = getClientListField(kind, id, fieldName);
    return value.isNull() ? std::string() : std::move(value).toText();
}

} // namespace qncal::host
