#pragma once

#include "core/DatabaseService.h"
#include "services/notifiedItem.h"

#include <optional>
#include <string>
#include <vector>

namespace qncal::host {

/// Whom a notification goes to, or the firm that it comes from. What the database lacks is empty.
struct Correspondent {
    std::string name;
    /// The person of a company, for faxes and calls; a contact's own name.
    std::string person;
    std::string email;
    std::string fax;
    std::string phone;
    /// Street, town, country.
    std::vector<std::string> address;
};

/// The client's default address of each channel: of a company that of its default contact, where it has one, before
/// the company's own. Nothing when the client has been deleted, or there is none.
std::optional<Correspondent> readClient(DatabaseService& database, const ItemClient& client);

/// The accounting firm itself.
Correspondent readFirm(DatabaseService& database);

} // namespace qncal::host
