#include "templates/provinceNames.h"

#include "utilities/text.h"

#include <algorithm>
#include <array>
#include <string>

namespace qncal {

namespace {

struct Province {
    std::array<std::string_view, 5> spellings;
    ProvinceName name;
};

// Spellings are compared with an upper-cased text, so that the two with lower-case letters match nothing: meant.
constexpr std::array<Province, 13> provinces{{
    {{"ALBERTA", "ALTA.", "ALTA", "AB"}, {"AB", "Alberta"}},
    {{"BRITISHCOLUMBIA", "BRITISH COLUMBIA", "B.C.", "BC"}, {"BC", "British Columbia"}},
    {{"MANITOBA", "MAN.", "MAN", "MB"}, {"MB", "Manitoba"}},
    {{"ONTARIO", "ONT.", "ONT", "ON"}, {"ON", "Ontario"}},
    {{"SASKATCHEWAN", "SASK.", "SASK", "SK"}, {"SK", "Saskatchewan"}},
    {{"QUEBEC", "QUE.", "QUE", "QC"}, {"QC", "Quebec"}},
    {{"NOVASCOTIA", "NOVA SCOTIA", "N.S.", "NS"}, {"NS", "Nova Scotia"}},
    {{"NEWBRUNSWICK", "NEW BRUNSWICK", "N.B.", "NB"}, {"NB", "New Brunswick"}},
    {{"NEWFOUNDLAND", "NEWFOUNDLAND And LABRADOR", "NEWFOUNDLAND & LABRADOR", "Nfld.", "NL"}, {"NL", "Newfoundland"}},
    {{"PRINCE EDWARD ISLAND", "PEI", "P.E.I."}, {"PEI", "Prince Edward Island"}},
    {{"NORTHWEST TERRITORIES", "N.W.T.", "NWT", "NT"}, {"NT", "Northwest Territories"}},
    {{"NUNAVUT", "NU"}, {"NU", "Nunavut"}},
    {{"YUKON", "YT"}, {"YT", "Yukon"}},
}};

} // namespace

const ProvinceName* findProvince(std::string_view province)
{
    if (province.empty())
        return nullptr;
    std::string upper(province);
    std::ranges::transform(upper, upper.begin(), upperAscii);
    for (const Province& candidate : provinces) {
        if (std::ranges::find(candidate.spellings, upper) != candidate.spellings.end())
            return &candidate.name;
    }
    return nullptr;
}

} // namespace qncal
