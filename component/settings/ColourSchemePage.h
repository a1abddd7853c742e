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

    /// The kind whose schemes the page shows; fills the list and shows its first scheme.
    void setup(enumLocalCalendarItemType kind);

    void populateColourSchemes();
    /// Shows the current scheme. What cannot be read leaves the page as it was.
    void populateSchemeInformation();
    void showColourPreview();
    /// `saved` is False when the current scheme has no row any more; nothing is stored then.
    void saveSchemeChanges(bool& saved);

    void cmdAddScheme_Click();
    void cmdDeleteScheme_Click();
    void cmdSaveScheme_Click();
    void lvSchemes_Click();
    void txtSchemeName_Change();

    /// The scheme whose values stand on the page; -1 for none.
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
    /// False when reading failed.
    bool showCurrentScheme();
    /// Makes a scheme the current one and shows it. When that fails another takes its place: the page still shows
    /// the former one's values, which must not be stored in this one's row.
    void makeCurrent(std::int32_t schemeID, std::int32_t orElse);
    void makeFirstCurrent();
    /// Selects the row of the current scheme without its click event.
    void selectCurrentRow();

    enumLocalCalendarItemType calendarKind_ = enumLocalCalendarUnknownItem;
    std::int32_t currentSchemeID_ = -1;
    bool populatingSchemes_ = false;
};

} // namespace qncal
