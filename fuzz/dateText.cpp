#include "utilities/dateText.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

/// Any text as a date: what is read reads the same again from the text in which dates go to the database.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const auto date = qncal::parseDate({reinterpret_cast<const char*>(data), size});
    if (date && qncal::parseDate(qncal::defaultDateText(*date)) != date)
        std::abort();
    return 0;
}
