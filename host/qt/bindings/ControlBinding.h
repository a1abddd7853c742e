#pragma once

#include "controls/Control.h"
#include "qt/Subscription.h"

#include <QObject>
#include <QPointer>
#include <QScopedValueRollback>
#include <QWidget>

namespace qncal::host {

/// Ties a control model to the widget that shows it: what every kind of control has. It is a child of the widget
/// and ends with it; when the control ends first the widget stays, disabled, without it.
///
/// A kind of control derives from this, hands its values on in `show` and connects the widget's signals to the
/// model. `show` runs once at `start`, so that a widget made late shows the present state, and after every change.
class ControlBinding : public QObject {
public:
    ControlBinding(Control& control, QWidget& widget);
    /// Finds the widget that shows a control of a window, none when there is none.
    static QWidget* widgetOf(const QWidget& window, const Control& control);

    Control* control() const { return control_; }
    QWidget& widget() const { return *widget_; }

protected:
    /// Shows the present state, and every change from now on. A control whose changes come by the thousand is
    /// shown once for each turn of the event loop.
    enum class When { atOnce, nextTurn };
    void start(When when = When::atOnce);
    /// Takes keys and focus of this widget, too, for the control: a part of the widget.
    void watch(QWidget& part);
    /// Brings the widget's value in line with the model's.
    virtual void show() = 0;
    /// Colours the widget; the default sets every role of a background and a text.
    virtual void showColours();
    virtual void doubleClicked() {}

    /// True while `show` changes the widget, whose signals then are not the user's.
    bool isShowing() const { return showing_; }
    /// Runs a change that the user made in the widget unless it is the model's own.
    template <class Function>
    void fromUser(Function function)
    {
        if (!showing_ && control_)
            function();
    }

    /// Takes several values of the widget over into the model, which is shown again only by what comes after.
    template <class Function>
    void takeOver(Function function)
    {
        const QScopedValueRollback mark(takingOver_, true);
        function();
    }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void showEverything();
    void showLater();
    void showGeneral();
    bool hear(QObject* watched, QEvent& event);
    bool focusRefused();
    bool keyPressed(QObject* watched, const QEvent& event);
    void mouseReleased(const QEvent& event);

    Control* control_;
    QWidget* widget_;
    Subscription updated_;
    Subscription destroyed_;
    std::string shownToolTip_;
    std::string shownName_;
    std::optional<Colour> shownBack_;
    std::optional<Colour> shownFore_;
    bool showing_ = false;
    bool takingOver_ = false;
    bool passingOn_ = false;
    bool waiting_ = false;
    bool refused_ = false;
};

/// A binding that knows its control's and its widget's kind.
template <class ControlType, class WidgetType>
class BindingOf : public ControlBinding {
public:
    BindingOf(ControlType& control, WidgetType& widget) : ControlBinding(control, widget), view_(&widget) {}

protected:
    ControlType& model() const { return static_cast<ControlType&>(*control()); }
    WidgetType& view() const { return *view_; }

private:
    WidgetType* view_;
};

} // namespace qncal::host
