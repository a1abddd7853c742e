#include "icalendar/People.h"

#include "icalendar/itemFields.h"
#include "services/Rows.h"
#include "utilities/text.h"

#include <algorithm>
#include <charconv>

namespace qncal::host::icalendar {

namespace {

constexpr std::string_view mailScheme = "mailto:";

/// The address without its scheme; empty for other addresses.
std::string_view mailAddress(std::string_view uri)
{
    return equalsNoCase(uri.substr(0, mailScheme.size()), mailScheme) ? trimmed(uri.substr(mailScheme.size()))
                                                                      : std::string_view();
}

std::int32_t idOf(const ContentLine& line)
{
    const std::string text = line.parameter(idParameter);
    std::int32_t id = -1;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), id);
    return error == std::errc() && end == text.data() + text.size() ? id : -1;
}

std::string withID(std::string_view property, std::int32_t id, const std::string& name)
{
    return std::string(property) + ";" + std::string(idParameter) + "=" + std::to_string(id) + ":" + escapedText(name);
}

} // namespace

People::People(HostEnvironment& host) : host_(host)
{
    for (const UserEntry& user : host.clients().getUsers())
        users_.push_back({user.id, user.name, {}});
    for (Rows rows = Rows::read(host.database(), "SELECT AccountantEmployeeInfo.ContactID, "
                                                 "AccountantEmployeeInfo.BusinessEmail, "
                                                 "AccountantEmployeeInfo.PersonalEmail FROM AccountantEmployeeInfo;");
         !rows.atEnd(); rows.moveNext()) {
        const auto user = std::ranges::find(users_, rows.integer("ContactID"), &User::id);
        for (const std::string_view column : {"BusinessEmail", "PersonalEmail"}) {
            if (std::string address = rows.text(column); user != users_.end() && !address.empty())
                user->addresses.push_back(std::move(address));
        }
    }
}

const People::User* People::find(std::int32_t id) const
{
    const auto found = std::ranges::find(users_, id, &User::id);
    return found == users_.end() ? nullptr : &*found;
}

std::int32_t People::defaultUser() const
{
    const std::int32_t signedIn = host_.locale().values().signedInUserID;
    if (find(signedIn) || users_.empty())
        return signedIn;
    return users_.front().id;
}

std::optional<std::int32_t> People::userOfAttendee(const ContentLine& line) const
{
    const std::string_view address = mailAddress(line.value());
    const std::string name = line.parameter("CN");
    const auto hasAddress = [&](const User& user) {
        return std::ranges::any_of(user.addresses, [&](const auto& own) { return equalsNoCase(own, address); });
    };
    auto found = address.empty() ? users_.end() : std::ranges::find_if(users_, hasAddress);
    if (found == users_.end() && !name.empty())
        found = std::ranges::find_if(users_, [&](const User& user) { return equalsNoCase(user.name, name); });
    return found == users_.end() ? std::nullopt : std::optional(found->id);
}

std::optional<std::int32_t> People::userOf(const ContentLine& line) const
{
    const std::int32_t id = idOf(line);
    const std::string name = line.textValue();
    if (users_.empty())
        return id;
    if (const User* same = find(id); same && equalsNoCase(same->name, name))
        return id;
    const auto found = std::ranges::find_if(users_, [&](const User& user) { return equalsNoCase(user.name, name); });
    return found == users_.end() ? std::nullopt : std::optional(found->id);
}

std::optional<std::int32_t> People::clientOf(ClientKind kind, const ContentLine& line) const
{
    const bool isCompany = kind == ClientKind::company;
    const std::int32_t id = idOf(line);
    const std::string name = line.textValue();
    const std::string nameOfID = isCompany ? host_.clients().getCompanyName(id) : host_.clients().getContactName(id);
    if (id >= 0 && equalsNoCase(nameOfID, name))
        return id;
    if (!name.empty()) {
        const std::string sql = isCompany
                                    ? "SELECT Companies.CompanyID FROM Companies WHERE Companies.CompanyName LIKE '"
                                    : "SELECT Contacts.ContactID FROM Contacts WHERE Contacts.DisplayName LIKE '";
        const Rows rows = Rows::read(host_.database(), sql + host_.database().getSQLText(name) + "';");
        if (!rows.atEnd())
            return rows.integer(isCompany ? "CompanyID" : "ContactID");
    }
    return id >= 0 && nameOfID.empty() ? std::optional(id) : std::nullopt;
}

std::string People::userLine(std::int32_t userID, std::int32_t series) const
{
    const User* user = find(userID);
    std::string property(userProperty);
    if (series > 0)
        property += ";" + std::string(seriesParameter) + "=" + std::to_string(series);
    return withID(property, userID, user ? user->name : std::string());
}

std::string People::clientLine(ClientKind kind, std::int32_t id) const
{
    return kind == ClientKind::company ? withID(companyProperty, id, host_.clients().getCompanyName(id))
                                       : withID(contactProperty, id, host_.clients().getContactName(id));
}

std::string People::attendeeLine(std::int32_t userID) const
{
    const User* user = find(userID);
    const std::string address = user && !user->addresses.empty()
                                    ? user->addresses.front()
                                    : "user-" + std::to_string(userID) + "@" + domain() + ".invalid";
    return "ATTENDEE;" + (user ? "CN=" + parameterText(user->name) + ";" : std::string()) + std::string(idParameter)
           + "=" + std::to_string(userID) + ":" + std::string(mailScheme) + address;
}

std::string People::domain() const
{
    const Rows firm = Rows::read(host_.database(), "SELECT AccountantFirmInfo.CompanyName FROM AccountantFirmInfo;");
    std::string name;
    if (!firm.atEnd()) {
        for (const char c : lowerAscii(firm.text("CompanyName"))) {
            if ((c >= 'a' && c <= 'z') || (c >= '0' && c <= '9'))
                name += c;
            else if (!name.empty() && !name.ends_with('-'))
                name += '-';
        }
    }
    while (name.ends_with('-'))
        name.pop_back();
    return (name.empty() ? "calendar" : name) + ".firmcal";
}

} // namespace qncal::host::icalendar
