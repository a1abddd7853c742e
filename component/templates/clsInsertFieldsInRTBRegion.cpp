// clsInsertFieldsInRTB: field names and provinces by region.

#include "templates/clsInsertFieldsInRTB.h"

#include "core/LocaleService.h"
#include "core/routineScope.h"
#include "templates/provinceNames.h"
#include "templates/regionFieldNames.h"
#include "templates/regionWords.h"

namespace qncal {

std::string clsInsertFieldsInRTB::convertProvinceFields(const std::string& text)
{
    return routine("Vestrel.exe-clsInsertFieldsInRTB-convertProvinceFields", std::string(), [&] {
        const std::int32_t country = currentCountry();
        const FieldRenamer& renamer = fieldRenamer(country, country == LocaleService::canada ? currentProvince() : 0);
        // One template is converted again and again: to be checked, to be merged, and merged for the next item.
        if (lastConversion_.renamer != &renamer || lastConversion_.text != text) {
            lastConversion_ = {&renamer, text, text};
            renamer.apply(lastConversion_.converted);
        }
        return lastConversion_.converted;
    });
}

std::string clsInsertFieldsInRTB::getAbbreviatedProvince(const std::string& province)
{
    return routine("Vestrel.exe-clsInsertFieldsInRTB-getAbbreviatedProvince", std::string(), [&] {
        const ProvinceName* name = findProvince(province);
        return name ? std::string(name->abbreviated) : province;
    });
}

std::string clsInsertFieldsInRTB::getFullProvinceString(const std::string& province)
{
    return routine("Vestrel.exe-clsInsertFieldsInRTB-getFullProvinceString", std::string(), [&] {
        const ProvinceName* name = findProvince(province);
        return name ? std::string(name->full) : province;
    });
}

} // namespace qncal
