#pragma once

#include "notifications/Correspondent.h"
#include "services/notifiedItem.h"

#include <string>
#include <vector>

namespace qncal::host {

/// What a client is told of an item.
struct NotificationText {
    std::string subject; ///< "Appointment on Tuesday, March 31, 2026"
    std::string greeting;
    std::vector<std::string> paragraphs;
    std::vector<std::string> signature;
};

NotificationText notificationText(const NotifiedItem& item, const Correspondent& client, const Correspondent& firm);

/// As the body of an e-mail, lines ended by "\n".
std::string plainText(const NotificationText& text);

/// As a letter to print: an HTML document of one page, `date` in its head.
std::string letterDocument(const NotificationText& text, const Correspondent& client, const Correspondent& firm,
                           Date date);

} // namespace qncal::host
