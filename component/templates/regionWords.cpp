#include "templates/regionWords.h"

#include "core/ServiceRegistry.h"
#include "core/routineScope.h"
#include "utilities/Clock.h"

#include <algorithm>
#include <array>

namespace qncal {

namespace {

constexpr std::array<RegionWords, 10> provinces{{
    {provinceCode::alberta, "Alberta", "WCB", "GST", "GST", "PST"},
    {provinceCode::britishColumbia, "BC", "WCB", "GST", "HST", "PST"},
    {provinceCode::manitoba, "Manitoba", "WCB", "GST", "GST", "PST"},
    {provinceCode::ontario, "ON", "WSIB", "GST", "HST", "PST"},
    {provinceCode::saskatchewan, "Sask.", "WCB", "GST", "GST", "PST"},
    {provinceCode::quebec, "Que.", "CSST", "GST", "GST", "QST"},
    {provinceCode::novaScotia, "N.S.", "WCB", "HST", "HST", "PST"},
    {provinceCode::newBrunswick, "N.B.", "WHSCC", "HST", "HST", "PST"},
    {provinceCode::newfoundland, "Nfld.", "WHSCC", "HST", "HST", "PST"},
    {provinceCode::princeEdwardIsland, "P.E.I.", "WCB", "GST", "GST", "PST"},
}};

constexpr RegionWords otherProvince{-1, "ON", "WSIB", "GST", "GST", "PST"};

} // namespace

bool isSalesTaxHarmonised() { return today() >= salesTaxHarmonisation; }

const RegionWords& regionWords(std::int32_t province)
{
    const auto* found = std::ranges::find(provinces, province, &RegionWords::province);
    return found == provinces.end() ? otherProvince : *found;
}

std::string_view salesTaxWord(const RegionWords& words)
{
    return isSalesTaxHarmonised() ? words.salesTaxFromHarmonisation : words.salesTax;
}

std::int32_t currentCountry()
{
    return statement([] { return localeService().getCountryCode(); });
}

std::int32_t currentProvince()
{
    return statement([] { return localeService().getProvinceCode(); });
}

} // namespace qncal
