#include "firmcal-desktop/ColourSchemesForm.h"

#include "settings/kindWords.h"

namespace qncal::desktop {

namespace {

constexpr TextsByKind titles{"Appointment Colour Schemes", "Task Colour Schemes", "Time Entry Colour Schemes"};

} // namespace

ColourSchemesForm::ColourSchemesForm() : Form("frmColourSchemes")
{
    cmdClose.caption("Close");
    cmdClose.isCancel(true);
    cmdClose.Click = [this] { unload(); };
}

void ColourSchemesForm::open(enumLocalCalendarItemType kind)
{
    caption(std::string(textOfKind(titles, kind)));
    page.setup(kind);
    showModal();
}

void ColourSchemesForm::Form_Unload()
{
    bool saved = false;
    page.saveSchemeChanges(saved);
}

} // namespace qncal::desktop
