#include "templates/regionFieldNames.h"
#include "utilities/text.h"

#include <cstdint>
#include <string>

/// Any bytes as a template to be brought up to date: no legacy delimiter and no docket is left.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    for (std::int32_t country = 0; country <= 2; ++country) {
        std::string text(reinterpret_cast<const char*>(data), size);
        qncal::fieldRenamer(country, static_cast<std::int32_t>(size % 13)).apply(text);
        if (text.find("<<") != std::string::npos || qncal::lowerAscii(text).find("docket") != std::string::npos)
            __builtin_trap();
    }
    return 0;
}
