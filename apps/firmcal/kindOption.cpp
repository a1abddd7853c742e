#include "firmcal/kindOption.h"

#include "common/itemKind.h"
#include "firmcal/UsageError.h"
#include "utilities/text.h"

namespace qncal::firmcal {

CLI::Option* addKindOption(CLI::App& command, std::string& kind)
{
    return command.add_option("-k,--kind", kind, "appointment (the default), task or docket")->type_name("KIND");
}

enumLocalCalendarItemType readKind(std::string_view text)
{
    for (const enumLocalCalendarItemType kind : allKinds) {
        if (equalsNoCase(text, kindWord(kind)) || equalsNoCase(text, kindNoun(kind))
            || equalsNoCase(text, kindWord(kind).substr(0, 1)))
            return kind;
    }
    throw UsageError("no kind '" + std::string(text) + "' (appointment, task, docket)");
}

} // namespace qncal::firmcal
