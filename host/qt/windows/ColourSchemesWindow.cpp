#include "qt/windows/ColourSchemesWindow.h"

#include "qt/windows/CellBackgroundPageWidget.h"
#include "qt/windows/ColourSchemePageWidget.h"

#include <QHBoxLayout>
#include <QTabWidget>

namespace qncal::host {

ColourSchemesWindow::ColourSchemesWindow(Form& form, QWidget* parent) : FormWindow(form, parent)
{
    auto* layout = new QVBoxLayout(this);
    auto* schemes = new ColourSchemePageWidget(form, this);
    if (form.findControl("cpDayViewBackColour(0)")) {
        auto* pages = new QTabWidget(this);
        pages->addTab(new CellBackgroundPageWidget(form, pages), tr("Cell &Background"));
        pages->addTab(schemes, tr("Colour S&chemes"));
        for (int page = 0; page < pages->count(); ++page)
            pages->widget(page)->layout()->setContentsMargins(layout->contentsMargins());
        layout->addWidget(pages);
    } else {
        layout->addWidget(schemes);
    }
    if (form.findControl("cmdClose"))
        layout->addLayout(addButtons({"cmdClose"}));
    finish();
}

} // namespace qncal::host
