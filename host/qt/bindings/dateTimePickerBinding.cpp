#include "controls/rangeControls.h"
#include "qt/bindings/ControlBinding.h"
#include "qt/bindings/bindings.h"
#include "qt/convert.h"
#include "qt/widgets/DateTimeEdit.h"

#include <QCalendarWidget>
#include <QCheckBox>
#include <QDateTimeEdit>
#include <QEvent>

namespace qncal::host {

namespace {

class DateTimePickerBinding : public BindingOf<DateTimePicker, DateTimeEdit> {
public:
    DateTimePickerBinding(DateTimePicker& control, DateTimeEdit& widget) : BindingOf(control, widget)
    {
        watch(widget.edit());
        watch(widget.check());
        widget.edit().setTimeSpec(Qt::UTC);
        if (control.format() == DateTimePicker::Format::date) {
            widget.edit().setCalendarPopup(true);
            calendar_ = widget.edit().calendarWidget();
            calendar_->installEventFilter(this);
        }
        connect(&widget.edit(), &QDateTimeEdit::dateTimeChanged, this,
                [this](const QDateTime& moment) { fromUser([&, this] { model().value(fromQt(moment)); }); });
        connect(&widget.check(), &QCheckBox::toggled, this, [this](bool on) {
            fromUser([=, this] {
                if (on)
                    model().value(fromQt(view().edit().dateTime()));
                else
                    model().clearValue();
            });
        });
        start();
    }

protected:
    void show() override
    {
        QDateTimeEdit& edit = view().edit();
        // The words of a pattern are the component's; the toolkit's own pattern follows the user's language.
        edit.setLocale(model().customFormat().empty() ? QLocale() : QLocale::c());
        edit.setDisplayFormat(pattern());
        edit.setDateTime(toQt(model().value()));
        edit.setEnabled(model().hasValue());
        edit.setAccessibleName(withoutAccessKey(model().accessibleName()));
        view().check().setVisible(model().hasCheckBox());
        view().check().setChecked(model().hasValue());
        view().check().setAccessibleName(withoutAccessKey(model().accessibleName()));
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const QPointer<DateTimePickerBinding> alive(this);
        if (watched == calendar_ && control() && event->type() == QEvent::Show)
            droppedDown();
        if (watched == calendar_ && control() && event->type() == QEvent::Hide && model().CloseUp)
            model().CloseUp();
        if (!alive)
            return true;
        return ControlBinding::eventFilter(watched, event);
    }

private:
    void droppedDown()
    {
        const QPointer<DateTimePickerBinding> alive(this);
        if (model().DropDown)
            model().DropDown();
        // The calendar shows what the handler put into the picker.
        if (alive)
            calendar_->setSelectedDate(view().edit().date());
    }

    QString pattern() const
    {
        if (!model().customFormat().empty())
            return toQtDatePattern(model().customFormat());
        const QLocale locale;
        return model().format() == DateTimePicker::Format::date ? locale.dateFormat(QLocale::ShortFormat)
                                                                : locale.timeFormat(QLocale::ShortFormat);
    }

    /// None for a time.
    QCalendarWidget* calendar_ = nullptr;
};

} // namespace

void bind(DateTimePicker& control, DateTimeEdit& widget) { new DateTimePickerBinding(control, widget); }

} // namespace qncal::host
