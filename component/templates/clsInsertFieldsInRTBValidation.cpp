// clsInsertFieldsInRTB: the check of a template that a user has typed.

#include "templates/clsInsertFieldsInRTB.h"

#include "core/ServiceRegistry.h"
#include "core/routineScope.h"
#include "templates/templateFault.h"
#include "utilities/text.h"

namespace qncal {

bool clsInsertFieldsInRTB::testRTBComment(const std::string& text, bool isRichText, bool showErrorMessages,
                                          bool skipFieldNameCheck)
{
    // A template that cannot even be checked is not clean: the result after a failure is True.
    return routine("Vestrel.exe-clsInsertFieldsInRTB-testRTBComment", true, [&] {
        const FieldNameTest isFieldName = [this](const std::string& name) { return testStr(name); };
        const auto fault = findTemplateFault(convertProvinceFields(text), isRichText ? richDelimiters : plainDelimiters,
                                             skipFieldNameCheck ? FieldNameTest() : isFieldName);
        if (fault && showErrorMessages) {
            const bool namesProduct = fault->kind == TemplateFault::Kind::fieldNameUnknown;
            const std::string product =
                namesProduct ? statement([] { return localeService().getProductName(); }) : std::string();
            testErrorComment.raise(templateFaultMessage(*fault, product));
        }
        return fault.has_value();
    });
}

bool clsInsertFieldsInRTB::testStr(const std::string& fieldName)
{
    return routine("Vestrel.exe-clsInsertFieldsInRTB-testStr", false, [&] {
        return equalsNoCase(fieldName, "TODAYS DATE")
               || fieldList().findInColumn(FieldListCollection::displayName, fieldName) >= 0;
    });
}

} // namespace qncal
