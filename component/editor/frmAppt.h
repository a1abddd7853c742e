#pragma once

#include "core/forms.h"

namespace qncal {

/// The dialog that adds and edits calendar items of all three kinds.
class frmAppt : public ApptForm {
public:
    frmAppt() : ApptForm("frmAppt") {}

    clsCalendarItem* PassedClassRef() const override { return passedClassRef_; }
    void PassedClassRef(clsCalendarItem* item) override { passedClassRef_ = item; }
    bool showTaskNotes() const { return showTaskNotes_; }
    void showTaskNotes(bool show) override { showTaskNotes_ = show; }
    void setupForm() override { itemSaved_ = false; }
    bool itemSaved() const override { return itemSaved_; }
    void itemSaved(bool saved) { itemSaved_ = saved; }

private:
    clsCalendarItem* passedClassRef_ = nullptr;
    bool showTaskNotes_ = false;
    bool itemSaved_ = false;
};

} // namespace qncal
