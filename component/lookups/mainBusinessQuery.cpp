#include "lookups/mainBusinessQuery.h"

#include "core/LocaleService.h"
#include "core/ServiceRegistry.h"
#include "core/routineScope.h"

#include <string_view>

namespace qncal::modFormatAddresses {

namespace {

constexpr std::string_view canadaSelect =
    "SELECT Clients.ClientID, AccountingServices.*, ClientData.*, ClientOptions.*, Companies.*, CorpTaxInfo.*, "
    "LawInfo.*, OtherInfo.*, WSIB_EHTInfo.*, CompaniesNotes.BusinessNotes, CompaniesNotes.ContactNotes ";
constexpr std::string_view canadaFrom =
    "FROM ((((((((ClientData INNER JOIN Companies ON ClientData.CompanyIDNum = Companies.CompanyID) "
    "INNER JOIN AccountingServices ON ClientData.ClientDataID = AccountingServices.ClientDataIDNum) "
    "INNER JOIN ClientOptions ON ClientData.ClientDataID = ClientOptions.ClientDataIDNum) "
    "INNER JOIN CorpTaxInfo ON ClientData.ClientDataID = CorpTaxInfo.ClientDataIDNum) "
    "INNER JOIN LawInfo ON ClientData.ClientDataID = LawInfo.ClientDataIDNum) "
    "INNER JOIN OtherInfo ON ClientData.ClientDataID = OtherInfo.ClientDataIDNum) "
    "INNER JOIN WSIB_EHTInfo ON ClientData.ClientDataID = WSIB_EHTInfo.ClientDataIDNum) "
    "INNER JOIN CompaniesNotes ON Companies.CompanyID = CompaniesNotes.CompanyNum) "
    "INNER JOIN Clients ON Companies.CompanyID = Clients.CompanyIDNum ";

constexpr std::string_view unitedStatesSelect =
    "SELECT Clients.ClientID, AccountingServices.*, ClientData.*, ClientOptions.*, Companies.*, ClientUSInfo.*, "
    "CompaniesNotes.BusinessNotes, CompaniesNotes.ContactNotes ";
constexpr std::string_view unitedStatesFrom =
    "FROM (((((ClientData INNER JOIN Companies ON ClientData.CompanyIDNum = Companies.CompanyID) "
    "INNER JOIN ClientUSInfo ON ClientData.ClientDataID = ClientUSInfo.ClientDataIDNum) "
    "INNER JOIN AccountingServices ON ClientData.ClientDataID = AccountingServices.ClientDataIDNum) "
    "INNER JOIN ClientOptions ON ClientData.ClientDataID = ClientOptions.ClientDataIDNum) "
    "INNER JOIN CompaniesNotes ON Companies.CompanyID = CompaniesNotes.CompanyNum) "
    "INNER JOIN Clients ON Companies.CompanyID = Clients.CompanyIDNum ";

constexpr std::int16_t activeClients = 1;
constexpr std::int16_t inactiveClients = 2;
constexpr std::int32_t sortByCorporateName = 2;
constexpr std::int32_t sortByClientID = 3;

std::string selectFrom()
{
    const std::int32_t country = statement([] { return localeService().getCountryCode(); });
    const bool canada = country == LocaleService::canada;
    return std::string(canada ? canadaSelect : unitedStatesSelect).append(canada ? canadaFrom : unitedStatesFrom);
}

void addCondition(std::string& where, std::string_view condition)
{
    where.append(where.empty() ? "WHERE " : "AND ").append(condition).append(" ");
}

std::string_view orderBy(std::int32_t sortOrder)
{
    switch (sortOrder) {
    case sortByCorporateName:
        return "ORDER BY Companies.CorporateName;";
    case sortByClientID:
        return "ORDER BY Companies.ClientID, Companies.CompanyName;";
    default:
        return "ORDER BY Companies.CompanyName;";
    }
}

} // namespace

std::string getMainBusinessSQLString(bool filterClients, std::int16_t activeFilter, std::int32_t sortOrder,
                                     std::int32_t clientDataID)
{
    return routine("Vestrel.exe-modFormatAddresses-getMainBusinessSQLString", std::string(), [&] {
        std::string where;
        if (filterClients)
            addCondition(where, "ClientData.ShowThisClient = True");
        if (activeFilter == activeClients)
            addCondition(where, "ClientData.ActiveStatus=1");
        else if (activeFilter == inactiveClients)
            addCondition(where, "NOT ClientData.ActiveStatus=1");
        if (clientDataID >= 0)
            addCondition(where, "ClientData.ClientDataID=" + std::to_string(clientDataID));
        return selectFrom().append(where).append(orderBy(sortOrder));
    });
}

std::string getMainBusinessSQLStringForCompany(std::int32_t companyID)
{
    return routine("Vestrel.exe-modFormatAddresses-getMainBusinessSQLString", std::string(), [&] {
        return selectFrom().append("WHERE ClientData.CompanyIDNum=").append(std::to_string(companyID)).append(";");
    });
}

} // namespace qncal::modFormatAddresses
