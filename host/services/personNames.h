#pragma once

#include <string>

namespace qncal::host {

/// What a contact's row tells about names. Any part may be empty.
struct PersonNames {
    std::string display; ///< "Ann Reed"
    std::string first;
    std::string last;
    std::string spouse; ///< "Bob Reed", or "Bob" alone
};

/// "Ann and Bob Reed" for one family name, "Ann Reed and Bob Stone" for two, "Ann Reed" without a spouse.
/// A spouse's name of one word takes the contact's family name. Without `first` and `last` the display name is
/// split before its last word, unless it reads "Reed, Ann".
std::string contactAndSpouseName(PersonNames names);

} // namespace qncal::host
