#include "qt/windows/ColourSchemesForm.h"

#include "settings/kindWords.h"

namespace qncal::host {

namespace {

constexpr TextsByKind titles{"Appointment Colour Schemes", "Task Colour Schemes", "Time Entry Colour Schemes"};

} // namespace

ColourSchemesForm::ColourSchemesForm() : Form("frmColourSchemes")
{
    cmdClose.caption("C&lose"); // C is the key of the tab, where the window has two pages
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

} // namespace qncal::host
