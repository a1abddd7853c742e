#pragma once

#include "core/ClientDropDownService.h"
#include "icalendar/contentLines.h"
#include "services/HostEnvironment.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace qncal::host::icalendar {

/// Who is meant by the people of a calendar file, and how users and clients of the database are written there.
class People {
public:
    explicit People(HostEnvironment& host);

    /// Whose items are those without a known attendee: the signed-in user, or else the first; -1 without users.
    std::int32_t defaultUser() const;

    /// The user of an attendee or organizer, by address or by name.
    std::optional<std::int32_t> userOfAttendee(const ContentLine& line) const;
    /// The user of `userProperty`, by name. A database without users takes any number.
    std::optional<std::int32_t> userOf(const ContentLine& line) const;
    /// The client of `companyProperty` or `contactProperty`: by number where the name is the same, by name, or by a
    /// number that nobody has. Never a client of another name.
    std::optional<std::int32_t> clientOf(ClientKind kind, const ContentLine& line) const;

    /// With the number of the user's series, where it is above 0.
    std::string userLine(std::int32_t userID, std::int32_t series) const;
    std::string clientLine(ClientKind kind, std::int32_t id) const;
    /// An ATTENDEE for a user.
    std::string attendeeLine(std::int32_t userID) const;

    /// Whose calendar the file is of: ends the UIDs of items that have none yet. Tells firms apart by their name.
    std::string domain() const;

private:
    struct User {
        std::int32_t id = -1;
        std::string name;
        std::vector<std::string> addresses;
    };
    const User* find(std::int32_t id) const;

    HostEnvironment& host_;
    std::vector<User> users_;
};

} // namespace qncal::host::icalendar
