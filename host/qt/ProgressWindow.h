#pragma once

#include "controls/ProgressDialog.h"
#include "qt/Subscription.h"

#include <QProgressDialog>

namespace qncal::host {

/// Shows how far a long work is, and lets the user stop it.
class ProgressWindow : public QProgressDialog {
public:
    explicit ProgressWindow(ProgressDialog& dialog);

    /// Shows the window, does the work and takes the window away. Events are handled at each step of the work.
    void run();

private:
    void showState();

    ProgressDialog* dialog_;
    Subscription updated_;
};

} // namespace qncal::host
