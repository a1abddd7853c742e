#pragma once

#include "core/ClientDropDownService.h"
#include "core/DatabaseService.h"

#include <optional>
#include <unordered_map>

namespace qncal::host {

/// The lists of users, companies and contacts, read from the database, and the registry of open windows.
///
/// Users are the rows of `AccountantEmployeeInfo`, by name. Names are remembered: whoever changes a client or a
/// user calls `invalidate`. An id without a row gives an empty name and is asked for anew the next time.
class ClientDropDown : public ClientDropDownService {
public:
    explicit ClientDropDown(std::shared_ptr<DatabaseService> database);

    /// Forgets every remembered name.
    void invalidate();
    /// The user of a name, without regard to case, or of an id in digits; nothing when there is none.
    std::optional<UserEntry> findUser(std::string_view nameOrID);

    std::shared_ptr<FormRegistry> getFormRegistry() override { return windows_; }
    std::vector<UserEntry> getUsers() override { return users(); }
    std::string getUserName(std::int32_t userID) override;
    std::string getCompanyName(std::int32_t companyID) override;
    std::string getContactName(std::int32_t contactID) override;
    std::string getContactAndSpouseName(std::int32_t contactID) override;
    Variant getClientListField(ClientKind kind, std::int32_t id, std::string_view fieldName) override;

private:
    const std::vector<UserEntry>& users();

    using Names = std::unordered_map<std::int32_t, std::string>;
    std::string rememberedName(Names& names, ClientKind kind, std::int32_t id, std::string_view fieldName);
    std::string clientText(ClientKind kind, std::int32_t id, std::string_view fieldName);

    std::shared_ptr<DatabaseService> database_;
    std::shared_ptr<FormRegistry> windows_;
    std::optional<std::vector<UserEntry>> users_;
    Names companyNames_;
    Names contactNames_;
};

} // namespace qncal::host
