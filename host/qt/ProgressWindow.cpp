#include "qt/ProgressWindow.h"

#include "qt/convert.h"

#include <QApplication>

namespace qncal::host {

ProgressWindow::ProgressWindow(ProgressDialog& dialog)
    : dialog_(&dialog), updated_(dialog.updated, this, [this] { showState(); })
{
    setObjectName("progress");
    setWindowModality(Qt::ApplicationModal);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setAutoClose(false);
    setAutoReset(false);
    setMinimumDuration(0);
    setMaximum(dialog.maximum());
    setLabelText(toQt(dialog.text()));
    connect(this, &QProgressDialog::canceled, this, [this] { dialog_->cancel(); });
}

void ProgressWindow::run()
{
    show();
    QApplication::processEvents();
    dialog_->run();
}

void ProgressWindow::showState()
{
    if (dialog_->isClosed()) {
        hide();
        return;
    }
    setLabelText(toQt(dialog_->text()));
    setMaximum(dialog_->maximum());
    setValue(dialog_->value());
    QApplication::processEvents();
}

} // namespace qncal::host
