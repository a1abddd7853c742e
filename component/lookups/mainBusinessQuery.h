#pragma once

#include <cstdint>
#include <string>

namespace qncal::modFormatAddresses {

/// The one query that joins a client's whole record; its SELECT list and joins depend on the firm's country.
/// All joins are inner ones: a client that lacks a row in one of the side tables is not in the result.
/// The text ends with a semicolon. After a failure it is empty.

/// `filterClients` leaves out clients that are not to be shown. `activeFilter`: 1 active clients, 2 inactive
/// ones, any other all. `sortOrder`: 2 by corporate name, 3 by the client's number and then the company name,
/// any other by company name. A `clientDataID` of at least 0 selects that client alone.
std::string getMainBusinessSQLString(bool filterClients, std::int16_t activeFilter, std::int32_t sortOrder,
                                     std::int32_t clientDataID = -1);
/// The same record for the client of one company, whatever its state.
std::string getMainBusinessSQLStringForCompany(std::int32_t companyID);

} // namespace qncal::modFormatAddresses
