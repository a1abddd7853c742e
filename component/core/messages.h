#pragma once

#include <string_view>

namespace qncal {

class Form;

/// A message in front of a form, through the host's message dialogs; one statement of the routine it stands in.
void showMessage(std::string_view text, Form* owner);
/// A question with Yes and No; True for Yes. One statement of the routine it stands in.
bool askYesNo(std::string_view text, Form* owner);

} // namespace qncal
