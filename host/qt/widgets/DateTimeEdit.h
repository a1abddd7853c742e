#pragma once

#include <QWidget>

class QCheckBox;
class QDateTimeEdit;

namespace qncal::host {

/// A date or time edit with a check box before it that says whether there is a value; the box may be hidden.
class DateTimeEdit : public QWidget {
public:
    explicit DateTimeEdit(QWidget* parent = nullptr);

    QDateTimeEdit& edit() const { return *edit_; }
    QCheckBox& check() const { return *check_; }

private:
    QCheckBox* check_;
    QDateTimeEdit* edit_;
};

} // namespace qncal::host
