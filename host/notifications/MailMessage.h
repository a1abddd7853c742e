#pragma once

#include "utilities/Date.h"

#include <string>
#include <string_view>

namespace qncal::host {

struct MailAddress {
    std::string name; ///< UTF-8, may be empty
    std::string address;
};

/// A plain text message to one recipient. All texts are UTF-8.
struct MailMessage {
    MailAddress from;
    MailAddress to;
    std::string subject;
    std::string body;
    /// Without its angle brackets.
    std::string messageID;
    /// In local time.
    Date date;
};

/// True for an address that is safe in a header and in the dialogue with a server: one @ between parts of
/// printable ASCII without blanks, brackets, quotes and separators.
bool isMailAddress(std::string_view text);

/// The message as it travels: headers of RFC 5322 with encoded words of RFC 2047, the body in base64, line ends CR LF.
/// Line breaks in names and subjects become blanks. Throws `RunTimeError` 5 for an address or message id that
/// `isMailAddress` refuses.
std::string mailText(const MailMessage& message);

} // namespace qncal::host
