#include "templates/templateFault.h"
#include "utilities/RunTimeError.h"

#include <cstdint>

/// Any bytes as a template to be checked: it is clean, has a fault with a message, or is the one known error.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace qncal;
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    for (const DelimiterPair& pair : {plainDelimiters, richDelimiters}) {
        try {
            const auto fault =
                findTemplateFault(text, pair, [](const std::string& name) { return name.size() % 2 == 0; });
            if (fault && templateFaultMessage(*fault, "Product").empty())
                __builtin_trap();
        } catch (const RunTimeError& error) {
            if (error.number() != errorNumber::subscriptOutOfRange)
                __builtin_trap();
        }
    }
    return 0;
}
