#include "templates/fieldSubstitution.h"
#include "templates/unfoundFields.h"

#include <cstdint>
#include <string>

/// Any bytes as a template: whatever stands in it, the merge comes to an end, and no complete expression is left.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace qncal;
    FieldListCollection list;
    const auto addField = [&](const char* name, MergeDataType type) {
        FieldListRow row;
        row.displayName = FieldText::fixed(name);
        row.dataType = type;
        list.addRow(std::move(row));
    };
    addField("Company Name", MergeDataType::text);
    addField("Due", MergeDataType::date);
    addField("A»«B", MergeDataType::text);
    addField("City", MergeDataType::text);
    std::string text(reinterpret_cast<const char*>(data), size);
    // The first value is an expression itself, the last none at all.
    const auto valueOf = [](std::int32_t position, const std::string& format) -> std::optional<std::string> {
        if (position == 3)
            return std::nullopt;
        return position == 0 ? "«A»«B» «City" : format;
    };
    substituteFields(text, plainDelimiters, list, true, valueOf);
    substituteFields(text, richDelimiters, list, false, valueOf);
    for (const DelimiterPair& pair : {plainDelimiters, richDelimiters}) {
        removeExpressions(text, pair);
        const auto open = text.find(pair.open);
        if (open != std::string::npos && text.find(pair.close, open) != std::string::npos)
            __builtin_trap();
    }
    return 0;
}
