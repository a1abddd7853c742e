#include "services/Locale.h"

#include "services/Rows.h"
#include "utilities/text.h"

#include <algorithm>
#include <array>

namespace qncal::host {

namespace {

constexpr std::array provinces{
    Province{0, "AB", "Alberta"},       Province{1, "BC", "British Columbia"},
    Province{2, "MB", "Manitoba"},      Province{3, "ON", "Ontario"},
    Province{4, "SK", "Saskatchewan"},  Province{8, "QC", "Quebec"},
    Province{9, "NS", "Nova Scotia"},   Province{10, "NB", "New Brunswick"},
    Province{11, "NL", "Newfoundland"}, Province{12, "PE", "Prince Edward Island"},
};

template <class Matches>
std::optional<Province> findProvince(const Matches& matches)
{
    const auto found = std::ranges::find_if(provinces, matches);
    return found == provinces.end() ? std::nullopt : std::optional(*found);
}

constexpr std::string_view settingsRow = "SELECT GlobalGeneralSettings.* FROM GlobalGeneralSettings;";

} // namespace

std::optional<std::int32_t> countryFromText(std::string_view text)
{
    for (const std::string_view name : {"CA", "Canada", "1"}) {
        if (equalsNoCase(text, name))
            return LocaleService::canada;
    }
    for (const std::string_view name : {"US", "USA", "United States", "2"}) {
        if (equalsNoCase(text, name))
            return LocaleService::unitedStates;
    }
    return std::nullopt;
}

std::optional<Province> provinceFromText(std::string_view text)
{
    return findProvince([&](const Province& province) {
        return equalsNoCase(text, province.letters) || equalsNoCase(text, province.name)
               || text == std::to_string(province.code);
    });
}

std::optional<Province> provinceFromCode(std::int32_t code)
{
    return findProvince([&](const Province& province) { return province.code == code; });
}

void readRegion(DatabaseService& database, Locale::Values& values)
{
    const Rows rows = Rows::read(database, settingsRow);
    if (rows.isEmpty())
        return;
    values.country = rows.integer("CountryCode", values.country);
    values.province = rows.integer("ProvinceCode", values.province);
}

void storeRegion(DatabaseService& database, const Locale::Values& values)
{
    // A new row keeps the defaults of the date stamp, which hold as long as there is none.
    if (Rows::read(database, settingsRow).isEmpty())
        addRow(database, "GlobalGeneralSettings",
               {{"DateStampShowTime", booleanText(true)},
                {"DateStampShowName", booleanText(true)},
                {"DateStampShowNameOptions", "1"}});
    Rows rows = Rows::change(database, settingsRow);
    rows.set("CountryCode", std::to_string(values.country));
    rows.set("ProvinceCode", std::to_string(values.province));
    rows.close();
}

} // namespace qncal::host
