#pragma once

#include "controls/Form.h"
#include "qt/Subscription.h"
#include "qt/formControls.h"

#include <QDialog>

#include <initializer_list>
#include <string_view>

class QHBoxLayout;

namespace qncal::host {

/// The window of a form. A class for a form lays its widgets out and ties each to the control of that name; this
/// one does what all windows do: caption, pointer, focus both ways, the tab order of the form, the box in the
/// corner, Enter and Escape.
class FormWindow : public QDialog {
public:
    explicit FormWindow(Form& form, QWidget* parent = nullptr);

    /// None once the form has gone.
    Form* form() const { return form_; }

protected:
    // As in formControls.h, in this window and of its form.
    template <class ControlType>
    ControlType& control(std::string_view path) const
    {
        return controlOf<ControlType>(*form_, path);
    }
    template <class WidgetType, class ControlType>
    WidgetType* add(std::string_view path)
    {
        return newWidget<WidgetType, ControlType>(*form_, path, *this);
    }
    QLabel* addLabelFor(QWidget* buddy, std::string_view path) { return newLabelFor(*buddy, *form_, path, *this); }
    /// Buttons at the right end of a row, in that order.
    QHBoxLayout* addButtons(std::initializer_list<std::string_view> paths);
    /// To be called when everything is laid out: the Tab key walks the controls in the form's order.
    void finish();

    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    /// What the Escape key does: presses the form's cancel button, if it has one.
    void reject() override;

private:
    void showGeneral();
    void focusControl();
    /// The first widget in the form's order that takes the focus now.
    QWidget* firstWidget() const;

    Form* form_;
    Subscription updated_;
    Subscription focusMoved_;
    Subscription destroyed_;
};

} // namespace qncal::host
