#pragma once

#include "utilities/Date.h"

#include <cstdint>
#include <string_view>

namespace qncal {

/// The province codes that have rules of their own.
namespace provinceCode {
inline constexpr std::int32_t alberta = 0;
inline constexpr std::int32_t britishColumbia = 1;
inline constexpr std::int32_t manitoba = 2;
inline constexpr std::int32_t ontario = 3;
inline constexpr std::int32_t saskatchewan = 4;
inline constexpr std::int32_t quebec = 8;
inline constexpr std::int32_t novaScotia = 9;
inline constexpr std::int32_t newBrunswick = 10;
inline constexpr std::int32_t newfoundland = 11;
inline constexpr std::int32_t princeEdwardIsland = 12;
} // namespace provinceCode

/// The words in which the names of tax and workers' board fields differ from province to province.
struct RegionWords {
    std::int32_t province;
    std::string_view corpTax;
    std::string_view workersBoard;
    std::string_view salesTax;
    /// Where the harmonised sales tax came on 1 July 2010, the sales tax word from then on; else the same word.
    std::string_view salesTaxFromHarmonisation;
    std::string_view secondSalesTax;
};

/// 1 July 2010, when British Columbia and Ontario harmonised their sales tax.
inline constexpr Date salesTaxHarmonisation{40360.0};

/// True from that day on, by the clock.
bool isSalesTaxHarmonised();
/// The words of a province; an unknown code gives those of most provinces without one of their own.
const RegionWords& regionWords(std::int32_t province);
/// The sales tax word of today.
std::string_view salesTaxWord(const RegionWords& words);

/// The firm's country and province as the host tells them at this moment.
std::int32_t currentCountry();
std::int32_t currentProvince();

} // namespace qncal
