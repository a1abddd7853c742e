#include "lookups/modDatabaseClientFunctions.h"

#include "core/RecordSet.h"
#include "core/routineScope.h"

#include <string>

namespace qncal::modDatabaseClientFunctions {

std::int32_t getDefaultContactIDFromCompanyID(std::int32_t companyID)
{
    return routine("Vestrel.exe-modDatabaseClientFunctions-getDefaultContactIDFromCompanyID", -1, [&] {
        std::int32_t contactID = -1;
        if (!isDatabaseConnected())
            return contactID;
        RecordSet links = RecordSet::openReadOnly(
            "SELECT ContactLinks.ContactIDNum, ContactLinks.CompanyNum, ContactLinks.DefaultContact FROM ContactLinks "
            "WHERE ContactLinks.CompanyNum = "
            + std::to_string(companyID) + ";");
        bool isDefault = false;
        for (; !isDefault && !links.isEOF(); links.moveNext()) {
            links.read("DefaultContact", isDefault);
            if (isDefault)
                links.read("ContactIDNum", contactID);
        }
        links.close();
        return contactID;
    });
}

} // namespace qncal::modDatabaseClientFunctions
