#pragma once

#include "utilities/text.h"

#include <string_view>

namespace qncal {

/// A field that a contact shares with its company.
struct InheritedField {
    std::string_view contactColumn;
    std::string_view companyColumn;
    /// Which of the two is shown where both are set: phones prefer the contact, the address the company.
    bool companyFirst;
};

inline constexpr InheritedField inheritedFields[] = {
    {"BusinessPhone_Main", "OfficeNumber", false}, {"BusinessPhone_Fax", "FaxNumber", false},
    {"BusinessAddress", "Address", true},          {"BusinessCity", "City", true},
    {"BusinessProvince", "Province", true},        {"BusinessPostalCode", "PostalCode", true},
    {"BusinessCountry", "Country", true},
};

inline const InheritedField* findInheritedField(std::string_view contactColumn)
{
    for (const InheritedField& field : inheritedFields) {
        if (equalsNoCase(field.contactColumn, contactColumn))
            return &field;
    }
    return nullptr;
}

} // namespace qncal
