#pragma once

#include "controls/Form.h"
#include "controls/RichTextBox.h"
#include "controls/captionedControls.h"

#include <string>

namespace qncal {

/// Shows the text of a test merge.
class frmTestComment : public Form {
public:
    frmTestComment();

    Label lblHeading{*this, "lblHeading"};
    RichTextBox rtbClientNotes{*this, "rtbClientNotes"};
    CommandButton cmdOk{*this, "cmdOk"};

    /// Shows the dialog modally with a rich text and returns when it is closed.
    void Initialize(const std::string& text);

private:
    void cmdOK_Click();
};

} // namespace qncal
