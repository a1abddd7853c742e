#pragma once

#include <cstdint>
#include <string>

namespace qncal {

/// Host contract: the region, the product's name and the signed-in user.
class LocaleService {
public:
    static constexpr std::int32_t canada = 1;
    static constexpr std::int32_t unitedStates = 2;

    virtual ~LocaleService() = default;
    /// 1 Canada, 2 United States; the component treats every other code as the United States.
    virtual std::int32_t getCountryCode() = 0;
    /// 0 Alberta, 1 British Columbia, 2 Manitoba, 3 Ontario, 4 Saskatchewan, 8 Quebec, 9 Nova Scotia,
    /// 10 New Brunswick, 11 Newfoundland, 12 Prince Edward Island.
    virtual std::int32_t getProvinceCode() = 0;
    /// The host application's name, as it stands in messages.
    virtual std::string getProductName() = 0;
    /// 5 may edit the items of every user.
    virtual std::int32_t getRightsLevel() = 0;
    /// The signed-in user's id, -1 when nobody is.
    virtual std::int32_t getSignedInUserID() = 0;
};

} // namespace qncal
