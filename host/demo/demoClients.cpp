#include "demo/demoClients.h"

#include "demo/DemoRandom.h"
#include "demo/demoFirm.h"
#include "demo/demoWords.h"
#include "services/HostEnvironment.h"
#include "services/Rows.h"
#include "utilities/text.h"

#include <algorithm>
#include <set>
#include <utility>

namespace qncal::host {

namespace {

using namespace demo;

/// One contact in five has a spouse, and one in three of them a name of their own.
constexpr int spousePercent = 20;
constexpr int ownNamePercent = 33;

struct Place {
    std::int32_t provinceCode;
    std::string_view city;
    std::string_view province;
    std::string_view postalCode;
    std::string_view areaCode;
};

constexpr Place canadianPlaces[]{
    {0, "Calgary", "Alberta", "T2P 1J9", "403"},
    {1, "Victoria", "British Columbia", "V8W 1P6", "250"},
    {2, "Winnipeg", "Manitoba", "R3C 1S5", "204"},
    {3, "Ottawa", "Ontario", "K1P 5M7", "613"},
    {4, "Regina", "Saskatchewan", "S4P 3Y2", "306"},
    {8, "Québec", "Quebec", "G1R 4P5", "418"},
    {9, "Halifax", "Nova Scotia", "B3J 1S9", "902"},
    {10, "Moncton", "New Brunswick", "E1C 1A1", "506"},
    {11, "St. John's", "Newfoundland", "A1C 1A1", "709"},
    {12, "Charlottetown", "Prince Edward Island", "C1A 1A1", "902"},
};
constexpr Place americanPlace{-1, "Springfield", "Illinois", "62701", "217"};

const Place& placeOf(const Locale& locale)
{
    if (locale.values().country == LocaleService::unitedStates)
        return americanPlace;
    const auto* found = std::ranges::find(canadianPlaces, locale.values().province, &Place::provinceCode);
    return found == std::end(canadianPlaces) ? canadianPlaces[3] : *found;
}

struct Person {
    std::string first;
    std::string last;
    std::string name() const { return first + " " + last; }
};

/// Makes people, places and numbers up.
class Inventor {
public:
    Inventor(HostEnvironment& host, DemoRandom& random)
        : place_(placeOf(host.locale())),
          country_(host.locale().values().country == LocaleService::unitedStates ? "United States" : "Canada"),
          random_(random)
    {
    }

    /// No two people have the same name.
    Person person()
    {
        for (;;) {
            const bool woman = random_.chance(50);
            Person person{std::string(woman ? random_.pick(womensNames) : random_.pick(mensNames)),
                          std::string(random_.pick(familyNames))};
            if (used_.insert(person.name()).second)
                return person;
        }
    }

    std::string companyName()
    {
        for (;;) {
            std::string name = std::string(random_.pick(companyFirstWords)) + " "
                               + std::string(random_.pick(companyTrades)) + " "
                               + std::string(random_.pick(companyForms));
            if (used_.insert(name).second)
                return name;
        }
    }

    /// The numbers 555-0100 to 555-0199 belong to nobody.
    std::string phone()
    {
        return "(" + std::string(place_.areaCode) + ") 555-01" + std::to_string(random_.between(10, 99));
    }
    std::string street() { return std::to_string(random_.between(1, 990)) + " " + std::string(random_.pick(streets)); }
    void addAddress(std::vector<FieldText>& fields, std::string_view addressField, std::string_view cityField,
                    std::string_view provinceField, std::string_view postalCodeField, std::string_view countryField)
    {
        fields.insert(fields.end(), {{addressField, street()},
                                     {cityField, std::string(place_.city)},
                                     {provinceField, std::string(place_.province)},
                                     {postalCodeField, std::string(place_.postalCode)},
                                     {countryField, country_}});
    }

    DemoRandom& random() { return random_; }

private:
    const Place& place_;
    std::string country_;
    DemoRandom& random_;
    std::set<std::string> used_;
};

/// Letters and digits without accents, as the name of a mailbox or domain.
std::string mailName(std::string_view text)
{
    constexpr std::pair<std::string_view, char> accented[] = {{"É", 'e'}, {"é", 'e'}, {"ø", 'o'}, {"ó", 'o'}};
    std::string plain(text);
    for (const auto& [letter, replacement] : accented) {
        for (std::size_t place = plain.find(letter); place != std::string::npos; place = plain.find(letter))
            plain.replace(place, letter.size(), 1, replacement);
    }
    std::string name;
    for (const char c : lowerAscii(plain)) {
        if ((c >= 'a' && c <= 'z') || (c >= '0' && c <= '9'))
            name += c;
    }
    return name;
}

std::vector<FieldText> personFields(Inventor& inventor, const Person& person)
{
    std::vector<FieldText> fields{
        {"DisplayName", person.name()},
        {"FirstName", person.first},
        {"LastName", person.last},
        {"BusinessPhone_Main", inventor.phone()},
        {"HomePhone_Main", inventor.phone()},
        {"BusinessEmail", mailName(person.first) + "." + mailName(person.last) + "@example.com"}};
    inventor.addAddress(fields, "HomeAddress", "HomeCity", "HomeProvince", "HomePostalCode", "HomeCountry");
    return fields;
}

std::vector<std::int32_t> addEmployees(DatabaseService& database, Inventor& inventor, int count)
{
    std::vector<std::int32_t> users;
    for (int i = 0; i < count; ++i) {
        std::vector<FieldText> fields = personFields(inventor, inventor.person());
        fields.emplace_back("BusinessJobTitle", firmTitles[static_cast<std::size_t>(i) % std::size(firmTitles)]);
        users.push_back(addRow(database, "AccountantEmployeeInfo", fields));
    }
    return users;
}

std::vector<FieldText> companyFields(Inventor& inventor, const std::string& name)
{
    std::vector<FieldText> fields{{"CompanyName", name},
                                  {"CorporateName", name},
                                  {"OfficeNumber", inventor.phone()},
                                  {"FaxNumber", inventor.phone()},
                                  {"Email", "info@" + mailName(name) + ".example"}};
    inventor.addAddress(fields, "Address", "City", "Province", "PostalCode", "Country");
    return fields;
}

std::vector<std::int32_t> addCompanies(HostEnvironment& host, Inventor& inventor, const DemoOptions& options,
                                       const std::vector<std::int32_t>& users)
{
    std::vector<std::int32_t> companies;
    for (int i = 0; i < options.companies; ++i) {
        std::vector<FieldText> fields = companyFields(inventor, inventor.companyName());
        fields.emplace_back("ClientID", "C" + std::to_string(1001 + i));
        fields.emplace_back("PartnerName", host.clients().getUserName(users.front()));
        fields.emplace_back("AccountantName", host.clients().getUserName(inventor.random().pick(users)));
        companies.push_back(addRow(host.database(), "Companies", fields));
        const std::string company = std::to_string(companies.back());
        addRow(host.database(), "Clients", {{"CompanyIDNum", company}});
        addRow(host.database(), "ClientData",
               {{"CompanyIDNum", company}, {"ActiveStatus", "1"}, {"ShowThisClient", booleanText(true)}});
    }
    return companies;
}

std::vector<std::int32_t> addContacts(DatabaseService& database, Inventor& inventor, int count)
{
    std::vector<std::int32_t> contacts;
    for (int i = 0; i < count; ++i) {
        const Person person = inventor.person();
        std::vector<FieldText> fields = personFields(inventor, person);
        fields.emplace_back("ClientID", "P" + std::to_string(2001 + i));
        fields.emplace_back("PersonalEmail", mailName(person.last) + std::to_string(i + 1) + "@example.org");
        fields.emplace_back("BusinessJobTitle", inventor.random().pick(jobTitles));
        if (inventor.random().chance(spousePercent)) {
            const Person spouse = inventor.person();
            const std::string last = inventor.random().chance(ownNamePercent) ? spouse.last : person.last;
            fields.emplace_back("SpouseFirstName", spouse.first);
            fields.emplace_back("SpouseLastName", last);
            fields.emplace_back("SpouseName", spouse.first + " " + last);
        }
        contacts.push_back(addRow(database, "Contacts", fields));
    }
    return contacts;
}

/// The company's copy of its default contact, kept as the component's default contact maintenance keeps it.
void copyDefaultContact(DatabaseService& database, std::int32_t companyID, std::int32_t contactID)
{
    const Rows contact = Rows::read(
        database, "SELECT Contacts.* FROM Contacts WHERE Contacts.ContactID=" + std::to_string(contactID) + ";");
    Rows company = Rows::change(
        database, "SELECT Companies.* FROM Companies WHERE Companies.CompanyID=" + std::to_string(companyID) + ";");
    company.set("DefaultContactName", contact.text("DisplayName"));
    company.set("DefaultContactPhoneNumber", contact.text("BusinessPhone_Main"));
    company.set("DefaultContactEmail", contact.text("BusinessEmail"));
}

/// Two contacts in three belong to companies; a company's first one is its default contact.
void linkContacts(DatabaseService& database, const DemoPeople& people)
{
    if (people.companies.empty())
        return;
    const std::size_t linked = people.contacts.size() * 2 / 3;
    for (std::size_t i = 0; i < linked; ++i) {
        const std::int32_t companyID = people.companies[i % people.companies.size()];
        const bool isDefault = i < people.companies.size();
        addRow(database, "ContactLinks",
               {{"ContactIDNum", std::to_string(people.contacts[i])},
                {"CompanyNum", std::to_string(companyID)},
                {"DefaultContact", booleanText(isDefault)}});
        if (isDefault)
            copyDefaultContact(database, companyID, people.contacts[i]);
    }
}

} // namespace

DemoPeople addDemoPeople(HostEnvironment& host, const DemoOptions& options, DemoRandom& random)
{
    Inventor inventor(host, random);
    DatabaseService& database = host.database();
    addRow(database, "AccountantFirmInfo", companyFields(inventor, "Fraser, Novak & Partners LLP"));
    DemoPeople people;
    people.users = addEmployees(database, inventor, options.employees);
    host.clients().invalidate();
    people.companies = addCompanies(host, inventor, options, people.users);
    people.contacts = addContacts(database, inventor, options.contacts);
    linkContacts(database, people);
    host.clients().invalidate();
    return people;
}

} // namespace qncal::host
