#include "qt/widgets/DateTimeEdit.h"

#include <QCheckBox>
#include <QDateTimeEdit>
#include <QHBoxLayout>

namespace qncal::host {

DateTimeEdit::DateTimeEdit(QWidget* parent)
    : QWidget(parent), check_(new QCheckBox(this)), edit_(new QDateTimeEdit(this))
{
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(check_);
    layout->addWidget(edit_, 1);
    // Whoever gives the whole the focus means its text.
    setFocusProxy(edit_);
}

} // namespace qncal::host
