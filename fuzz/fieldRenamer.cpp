#include "templates/FieldRenamer.h"
#include "templates/legacyFieldNames.h"
#include "utilities/replaceText.h"

#include <cstdint>
#include <string>

/// Any bytes as a template to be brought up to date: the walk gives what one line after the other gives.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace qncal;
    static const FieldRenamer renamer({legacyFieldNames().begin(), legacyFieldNames().end()});
    std::string text(reinterpret_cast<const char*>(data), size);
    std::string expected = text;
    for (const FieldRenaming& line : legacyFieldNames())
        replaceNoCase(expected, line.oldText.view(), line.newText.view());
    renamer.apply(text);
    if (text != expected)
        __builtin_trap();
    return 0;
}
