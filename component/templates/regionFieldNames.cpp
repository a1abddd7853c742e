#include "templates/regionFieldNames.h"

#include "core/LocaleService.h"
#include "templates/legacyFieldNames.h"
#include "templates/regionWords.h"

#include <algorithm>
#include <array>
#include <map>
#include <span>
#include <tuple>

namespace qncal {

namespace {

constexpr FieldRenaming line(std::string_view oldName, std::string_view newName)
{
    return {plainField(oldName), plainField(newName)};
}

constexpr FieldRenaming gstToHst = line("GST Number", "HST Number");
constexpr FieldRenaming hstToGst = line("HST Number", "GST Number");

/// Canada's name first, the name of the United States second.
constexpr auto countryNames = std::to_array<FieldRenaming>({
    line("Province", "State"),
    line("Postal Code", "Zip Code"),
    line("Contact Business Province", "Contact Business State"),
    line("Contact Business Postal Code", "Contact Business Zip Code"),
    line("Contact Home Province", "Contact Home State"),
    line("Contact Home Postal Code", "Contact Home Zip Code"),
    line("Spouse Home Province", "Spouse Home State"),
    line("Spouse Home Postal Code", "Spouse Home Zip Code"),
    line("Your Province", "Your State"),
    line("Your Postal Code", "Your Zip Code"),
    line("Contact SIN", "Contact SSN"),
    line("Spouse SIN", "Spouse SSN"),
});

constexpr auto prairieLines = std::to_array<FieldRenaming>({
    line("WSIB Number", "WCB Number"),
    line("NEQ Number", "WCB Number"),
    line("WSIB Premium Rate", "WCB Premium Rate"),
    line("WHSCC Number", "WCB Number"),
    hstToGst,
});

constexpr auto quebecLines = std::to_array<FieldRenaming>({
    line("WSIB Number", "NEQ Number"),
    line("WSIB Premium Rate", "CSST Premium Rate"),
    line("WHSCC Number", "WCB Number"),
    hstToGst,
    line("ON Corp. MCBS Number", "Quebec ID Number"),
});

constexpr auto novaScotiaLines = std::to_array<FieldRenaming>({
    line("WSIB Number", "WCB Number"),
    line("WHSCC Number", "WCB Number"),
    line("NEQ Number", "WCB Number"),
    line("WSIB Premium Rate", "WCB Premium Rate"),
    gstToHst,
});

constexpr auto princeEdwardIslandLines = std::to_array<FieldRenaming>({
    line("WSIB Number", "WCB Number"),
    line("WHSCC Number", "WCB Number"),
    line("NEQ Number", "WCB Number"),
    line("WSIB Premium Rate", "WCB Premium Rate"),
    hstToGst,
});

constexpr auto newBrunswickLines = std::to_array<FieldRenaming>({
    line("WSIB Number", "WHSCC Number"),
    line("WCB Number", "WHSCC Number"),
    line("NEQ Number", "WHSCC Number"),
    line("WSIB Premium Rate", "WHSCC Premium Rate"),
    gstToHst,
});

constexpr auto ontarioLines = std::to_array<FieldRenaming>({
    line("WCB Number", "WSIB Number"),
    line("NEQ Number", "WSIB Number"),
    line("WCB Firm Number", "WSIB Firm Number"),
    line("WCB Premium Rate", "WSIB Premium Rate"),
    line("WHSCC Number", "WSIB Number"),
    hstToGst,
    line("Quebec ID Number", "ON Corp. MCBS Number"),
});

struct ProvinceRules {
    std::int32_t province;
    /// Whether «GST Number» first becomes «HST Number» once the sales tax is harmonised. Where `lines` turn
    /// that back into «GST Number», the field ends so in both provinces that have it: meant.
    bool harmonises;
    std::span<const FieldRenaming> lines;
    /// A province whose corporate tax number is left as it is.
    std::string_view untouchedCorpTax = {};
};

constexpr std::array<ProvinceRules, 9> provinceRules{{
    {provinceCode::alberta, false, prairieLines},
    {provinceCode::britishColumbia, true, prairieLines},
    {provinceCode::manitoba, false, prairieLines},
    {provinceCode::saskatchewan, false, prairieLines},
    {provinceCode::quebec, false, quebecLines, "Sask."},
    {provinceCode::novaScotia, false, novaScotiaLines},
    {provinceCode::newBrunswick, false, newBrunswickLines},
    {provinceCode::newfoundland, false, newBrunswickLines},
    {provinceCode::princeEdwardIsland, false, princeEdwardIslandLines},
}};
constexpr ProvinceRules ontarioAndTheRest{provinceCode::ontario, true, ontarioLines};

struct CorpTaxField {
    std::string_view word;
    ComposedText expression;
};
constexpr CorpTaxField corpTaxField(std::string_view word)
{
    return {word, {plainDelimiters.open, word, " Corp. Tax Number", plainDelimiters.close}};
}
constexpr std::array<CorpTaxField, 10> corpTaxFields{{
    corpTaxField("ON"),
    corpTaxField("BC"),
    corpTaxField("Alberta"),
    corpTaxField("Manitoba"),
    corpTaxField("Sask."),
    corpTaxField("Que."),
    corpTaxField("N.B."),
    corpTaxField("N.S."),
    corpTaxField("Nfld."),
    corpTaxField("P.E.I."),
}};

const ProvinceRules& rulesOf(std::int32_t province)
{
    const auto* found = std::ranges::find(provinceRules, province, &ProvinceRules::province);
    return found == provinceRules.end() ? ontarioAndTheRest : *found;
}

using Lines = std::vector<FieldRenaming>;

void addLines(Lines& lines, std::span<const FieldRenaming> more)
{
    lines.insert(lines.end(), more.begin(), more.end());
}

void addCorpTaxLines(Lines& lines, const ProvinceRules& rules)
{
    const std::string_view ownWord = regionWords(rules.province).corpTax;
    const ComposedText ownExpression = corpTaxField(ownWord).expression;
    for (const CorpTaxField& field : corpTaxFields) {
        if (field.word != ownWord && field.word != rules.untouchedCorpTax)
            lines.push_back({field.expression, ownExpression});
    }
}

void addCanadianLines(Lines& lines, const ProvinceRules& rules, bool harmonised)
{
    if (harmonised)
        lines.push_back(gstToHst);
    addLines(lines, rules.lines);
    addCorpTaxLines(lines, rules);
    for (const FieldRenaming& names : countryNames)
        lines.push_back({names.newText, names.oldText});
}

/// What tells one list of lines from another; the province counts in Canada alone.
struct Region {
    std::int32_t country = 0;
    std::int32_t province = 0;
    bool harmonised = false;
    friend bool operator<(const Region& a, const Region& b)
    {
        return std::tie(a.country, a.province, a.harmonised) < std::tie(b.country, b.province, b.harmonised);
    }
};

FieldRenamer newRenamer(const Region& region)
{
    const auto legacy = legacyFieldNames();
    Lines lines(legacy.begin(), legacy.end());
    if (region.country == LocaleService::unitedStates)
        addLines(lines, countryNames);
    else if (region.country == LocaleService::canada)
        addCanadianLines(lines, rulesOf(region.province), region.harmonised);
    return FieldRenamer(std::move(lines));
}

Region regionOf(std::int32_t country, std::int32_t province)
{
    if (country == LocaleService::unitedStates)
        return {country};
    if (country != LocaleService::canada)
        return {};
    const ProvinceRules& rules = rulesOf(province);
    return {country, rules.province, rules.harmonises && isSalesTaxHarmonised()};
}

} // namespace

const FieldRenamer& fieldRenamer(std::int32_t country, std::int32_t province)
{
    // One for each region that was ever asked for; they hold nothing but the tables above.
    thread_local std::map<Region, FieldRenamer> renamers;
    const Region region = regionOf(country, province);
    auto found = renamers.find(region);
    if (found == renamers.end())
        found = renamers.emplace(region, newRenamer(region)).first;
    return found->second;
}

} // namespace qncal
