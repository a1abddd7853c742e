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
            widget.edit().calendarWidget()->installEventFilter(this);
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
        if (event->type() == QEvent::Show && control() && watched == view().edit().calendarWidget()) {
            if (model().DropDown)
                model().DropDown();
            // The calendar shows what the handler put into the picker.
            view().edit().calendarWidget()->setSelectedDate(view().edit().date());
            return false;
        }
        if (event->type() == QEvent::Hide && control() && watched != &view() && watched != &view().edit()
            && watched != &view().check()) {
            if (model().CloseUp)
                model().CloseUp();
            return false;
        }
        return ControlBinding::eventFilter(watched, event);
    }

private:
    QString pattern() const
    {
        if (!model().customFormat().empty())
            return toQtDatePattern(model().customFormat());
        const QLocale locale;
        return model().format() == DateTimePicker::Format::date ? locale.dateFormat(QLocale::ShortFormat)
                                                                : locale.timeFormat(QLocale::ShortFormat);
    }
};

} // namespace

void bind(DateTimePicker& control, DateTimeEdit& widget) { new DateTimePickerBinding(control, widget); }

} // namespace qncal::host
