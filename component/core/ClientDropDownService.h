#pragma once

#include "utilities/Variant.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace qncal {

class FormRegistry;

/// What an item hangs on, by the numbers of `clsCalendarItem::clientType`.
enum class ClientKind : std::int32_t { none = 0, contact = 1, company = 2 };

/// One user of the host application.
struct UserEntry {
    std::int32_t id = -1;
    std::string name;
};

/// Host contract: the registry of open windows, and the lists of users, companies and contacts.
/// An id that a list lacks gives an empty text or a null.
class ClientDropDownService {
public:
    virtual ~ClientDropDownService() = default;
    virtual std::shared_ptr<FormRegistry> getFormRegistry() = 0;

    /// All users, in the order of the host's lists.
    virtual std::vector<UserEntry> getUsers() = 0;
    virtual std::string getUserName(std::int32_t userID) = 0;
    virtual std::string getCompanyName(std::int32_t companyID) = 0;
    virtual std::string getContactName(std::int32_t contactID) = 0;
    /// "Ann and Bob Reed": the contact with the spouse, or the contact alone.
    virtual std::string getContactAndSpouseName(std::int32_t contactID) = 0;
    /// A column of a client's row in the host's contact or company list, by database field name.
    virtual Variant getClientListField(ClientKind kind, std::int32_t id, std::string_view fieldName) = 0;
};

} // namespace qncal
