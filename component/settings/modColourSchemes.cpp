#include "settings/modColourSchemes.h"

#include "controls/controlTargets.h"
#include "core/RecordSet.h"
#include "core/fillList.h"

namespace qncal::modColourSchemes {

std::string schemesOfKind(std::string_view columns, std::int32_t schemeType)
{
    return "SELECT " + std::string(columns) + " FROM ColourSchemes WHERE ColourSchemes.SchemeType = "
           + std::to_string(schemeType) + " ORDER BY ColourSchemes.SchemeName;";
}

void populateColourSchemes(RowList& list, std::int32_t schemeType)
{
    routine("Vestrel.exe-modDatabaseFunctions-populateColourSchemes", [&] {
        list.clear();
        list.addItem("<No Scheme Selected>", -1);
        if (!isDatabaseConnected())
            return;
        RowListTarget target(list);
        fillList(target,
                 schemesOfKind("ColourSchemes.ColourSchemeID, ColourSchemes.SchemeName, ColourSchemes.SchemeType",
                               schemeType),
                 "ColourSchemeID", "SchemeName", NullText::skipped);
    });
}

} // namespace qncal::modColourSchemes
