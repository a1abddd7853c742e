#pragma once

#include "core/DatabaseService.h"
#include "core/LocaleService.h"

#include <optional>
#include <string_view>

namespace qncal::host {

/// The firm's region, the product's name and the signed-in user, all settable.
class Locale : public LocaleService {
public:
    struct Values {
        std::int32_t country = canada;
        std::int32_t province = 3;
        std::string productName = "Calendar";
        std::int32_t rightsLevel = 5;
        std::int32_t signedInUserID = -1;
    };

    Locale() = default;
    explicit Locale(Values values) : values_(std::move(values)) {}

    const Values& values() const { return values_; }
    Values& values() { return values_; }

    std::int32_t getCountryCode() override { return values_.country; }
    std::int32_t getProvinceCode() override { return values_.province; }
    std::string getProductName() override { return values_.productName; }
    std::int32_t getRightsLevel() override { return values_.rightsLevel; }
    std::int32_t getSignedInUserID() override { return values_.signedInUserID; }

private:
    Values values_;
};

/// A Canadian province by code: its number, its two letters and its name.
struct Province {
    std::int32_t code;
    std::string_view letters;
    std::string_view name;
};

/// "CA", "Canada", "US", "United States", "1" or "2", without regard to case; nothing for anything else.
std::optional<std::int32_t> countryFromText(std::string_view text);
/// A province's letters ("ON"), its name or its number, without regard to case; nothing for anything else.
std::optional<Province> provinceFromText(std::string_view text);
/// The province of a code; nothing for a code without one.
std::optional<Province> provinceFromCode(std::int32_t code);

/// Takes country and province from the row of `GlobalGeneralSettings`; what is null there stays as it was.
void readRegion(DatabaseService& database, Locale::Values& values);
/// Keeps country and province in that row, which is added when the table is empty.
void storeRegion(DatabaseService& database, const Locale::Values& values);

} // namespace qncal::host
