#include "controls/captionedControls.h"
#include "qt/bindings/ControlBinding.h"
#include "qt/bindings/bindings.h"
#include "qt/convert.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>

namespace qncal::host {

namespace {

class CommandButtonBinding : public BindingOf<CommandButton, QPushButton> {
public:
    CommandButtonBinding(CommandButton& control, QPushButton& widget) : BindingOf(control, widget)
    {
        // Only the form says which button Enter presses.
        widget.setAutoDefault(false);
        connect(&widget, &QPushButton::clicked, this, [this] { fromUser([this] { model().press(); }); });
        start();
    }

protected:
    void show() override
    {
        view().setText(toQt(model().caption()));
        view().setDefault(model().isDefault());
    }
};

class CheckBoxBinding : public BindingOf<CheckBox, QAbstractButton> {
public:
    CheckBoxBinding(CheckBox& control, QAbstractButton& widget) : BindingOf(control, widget)
    {
        widget.setCheckable(true);
        connect(&widget, &QAbstractButton::clicked, this,
                [this](bool checked) { fromUser([=, this] { model().value(checked ? 1 : 0); }); });
        start();
    }

protected:
    void show() override
    {
        if (!model().caption().empty())
            view().setText(toQt(model().caption()));
        if (auto* box = qobject_cast<QCheckBox*>(&view())) {
            box->setTristate(model().value() == 2);
            box->setCheckState(model().value() == 2 ? Qt::PartiallyChecked
                                                    : (model().value() ? Qt::Checked : Qt::Unchecked));
        } else {
            view().setChecked(model().value() != 0);
        }
    }
};

/// The options of one group share it, wherever in the window they stand.
QButtonGroup& groupOf(const OptionButton& control, QWidget& widget)
{
    const QString name = "group:" + toQt(control.group());
    if (auto* group = widget.window()->findChild<QButtonGroup*>(name))
        return *group;
    auto* group = new QButtonGroup(widget.window());
    group->setObjectName(name);
    return *group;
}

class OptionButtonBinding : public BindingOf<OptionButton, QRadioButton> {
public:
    OptionButtonBinding(OptionButton& control, QRadioButton& widget)
        : BindingOf(control, widget), group_(&groupOf(control, widget))
    {
        group_->addButton(&widget);
        connect(&widget, &QRadioButton::toggled, this, [this](bool on) {
            fromUser([=, this] {
                if (on)
                    model().value(true);
            });
        });
        start();
    }

protected:
    void show() override
    {
        view().setText(toQt(model().caption()));
        if (view().isChecked() == model().value() || !group_)
            return;
        // An exclusive group refuses to have none on.
        group_->setExclusive(false);
        view().setChecked(model().value());
        group_->setExclusive(true);
    }

private:
    QPointer<QButtonGroup> group_;
};

} // namespace

void bind(CommandButton& control, QPushButton& widget) { new CommandButtonBinding(control, widget); }

void bind(CheckBox& control, QAbstractButton& widget) { new CheckBoxBinding(control, widget); }

void bind(OptionButton& control, QRadioButton& widget) { new OptionButtonBinding(control, widget); }

} // namespace qncal::host
