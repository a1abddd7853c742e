#pragma once

#include "controls/ControlArray.h"
#include "controls/Form.h"
#include "controls/ListView.h"
#include "controls/TextBox.h"
#include "controls/captionedControls.h"
#include "controls/rangeControls.h"
#include "core/enumerations.h"

namespace qncal {

/// The page "Colour Schemes" of the settings dialog: creates, edits and deletes the colour schemes of one kind of
/// item. Every operation stores the scheme on the page first, so there is never a question about unsaved edits.
/// Its controls belong to the dialog that hosts it.
class ColourSchemePage {
public:
    explicit ColourSchemePage(Form& form);

    /// The kind whose schemes the page shows; fills the list.
    void setup(enumLocalCalendarItemType kind);

    void populateColourSchemes();
    void populateSchemeInformation();
    void showColourPreview();
    /// `saved` is False when the current scheme has no row any more; nothing is stored then.
    void saveSchemeChanges(bool& saved);

    void cmdAddScheme_Click();
    void cmdDeleteScheme_Click();
    void cmdSaveScheme_Click();
    void lvSchemes_Click();
    void txtSchemeName_Change();

    std::int32_t currentSchemeID() const { return currentSchemeID_; }

    ListView lvSchemes;
    TextBox txtSchemeName;
    /// Title bar background and foreground, body background and foreground, with their labels.
    ControlArray<Label> lblColour;
    ControlArray<ColourPicker> cpBackColour;
    CommandButton cmdAddScheme;
    CommandButton cmdDeleteScheme;
    CommandButton cmdSaveScheme;
    /// 0 is the heading of the preview, 1 the sample's title bar.
    ControlArray<Label> lblTitleBar;
    TextBox txtApptPreview;

private:
    /// Selects the row of the current scheme without its click event.
    void selectCurrentRow();
    void selectFirstRow();

    enumLocalCalendarItemType calendarKind_ = enumLocalCalendarUnknownItem;
    std::int32_t currentSchemeID_ = -1;
    bool populatingSchemes_ = false;
};

} // namespace qncal
