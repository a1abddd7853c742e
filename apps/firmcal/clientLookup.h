#pragma once

#include "core/ClientDropDownService.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace qncal {
class DatabaseService;
}

namespace qncal::firmcal {

class CommandContext;

/// A client as it stands in a list.
struct ClientRow {
    ClientKind kind = ClientKind::none;
    std::int32_t id = -1;
    std::string name;
    std::string number;
    std::string phone;
    std::string email;
};

/// The clients of a kind whose name contains the text, by name; all for an empty text.
std::vector<ClientRow> findClients(DatabaseService& database, ClientKind kind, std::string_view text = {});

/// A client by its number, its name, or a part of a name that only one client has. Throws `Failure` otherwise.
std::int32_t clientID(CommandContext& context, ClientKind kind, const std::string& nameOrID);

/// "company", "contact"
std::string_view clientNoun(ClientKind kind);
/// "Companies", "Contacts"
std::string_view clientTable(ClientKind kind);

} // namespace qncal::firmcal
