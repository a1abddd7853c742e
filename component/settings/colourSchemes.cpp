#include "settings/colourSchemes.h"

namespace qncal::modColourSchemes {

void populateColourSchemes(RowList& list, std::int32_t schemeType)
{
    routine("Vestrel.exe-modDatabaseFunctions-populateColourSchemes", [&] {
        list.clear();
        list.addItem("<No Scheme Selected>", -1);
        if (!isDatabaseConnected())
            return;
        RecordSet schemes = RecordSet::openReadOnly(
            "SELECT ColourSchemes.ColourSchemeID, ColourSchemes.SchemeName, ColourSchemes.SchemeType "
            "FROM ColourSchemes WHERE ColourSchemes.SchemeType = "
            + std::to_string(schemeType) + " ORDER BY ColourSchemes.SchemeName;");
        for (; !schemes.isEOF(); schemes.moveNext()) {
            std::string name;
            std::int32_t id = -1;
            if (schemes.read("SchemeName", name) && schemes.read("ColourSchemeID", id))
                list.addItem(name, id);
        }
        schemes.close();
    });
}

void readColour(const RecordSet& scheme, std::string_view column, std::int32_t& target)
{
    const Variant value = scheme.field(column);
    if (value.isNumeric())
        target = value.toInteger();
}

} // namespace qncal::modColourSchemes
