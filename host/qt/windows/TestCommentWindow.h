#pragma once

#include "qt/FormWindow.h"

namespace qncal::host {

/// `frmTestComment`: a merged text to read.
class TestCommentWindow : public FormWindow {
public:
    explicit TestCommentWindow(Form& form, QWidget* parent = nullptr);
};

} // namespace qncal::host
