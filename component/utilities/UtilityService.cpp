#include "utilities/UtilityService.h"

#include "utilities/numberText.h"

namespace qncal {

bool UtilityService::isNullValue(const Variant& value)
{
    return value.isNull() || (value.isText() && value.text().empty());
}

bool UtilityService::checkBoxToBool(std::int16_t checkBoxValue) { return checkBoxValue == 1; }

std::int16_t UtilityService::boolToCheckBox(bool value) { return value ? 1 : 0; }

std::string UtilityService::getOrdinalText(std::int32_t number) { return ordinalText(number); }

void UtilityService::filterDigitKeys(std::int16_t& keyAscii)
{
    constexpr std::int16_t blank = ' ';
    constexpr std::int16_t deleteWord = 127; // what Ctrl with backspace types
    const bool digit = keyAscii >= '0' && keyAscii <= '9';
    const bool editing = (keyAscii >= 0 && keyAscii < blank) || keyAscii == deleteWord;
    if (!digit && !editing)
        keyAscii = 0;
}

} // namespace qncal
