#include "qt/QtMessages.h"

#include "qt/convert.h"
#include "qt/runWindow.h"

#include <QApplication>
#include <QMessageBox>

namespace qncal::host {

namespace {

QMessageBox::Icon iconOf(std::int16_t style, QMessageBox::Icon icon)
{
    return style == MessageDialogService::informationStyle ? icon : QMessageBox::NoIcon;
}

} // namespace

void QtMessages::showMessage(std::string_view text, std::int16_t style, Form* owner, std::int32_t, std::int32_t,
                             std::int32_t, std::int32_t, std::string_view caption, std::int32_t)
{
    if (!qApp)
        return;
    runWindow(new QMessageBox(windowFor(owner)), [&](QMessageBox& box) {
        prepare(box, text, caption);
        box.setIcon(iconOf(style, QMessageBox::Information));
        box.setStandardButtons(QMessageBox::Ok);
        box.exec();
    });
}

std::int16_t QtMessages::askQuestion(std::string_view text, std::int16_t style, Form* owner, std::int32_t, std::int32_t,
                                     std::int32_t, std::int32_t, std::string_view caption, std::int32_t)
{
    if (!qApp)
        return answerNo;
    return runWindow(new QMessageBox(windowFor(owner)), [&](QMessageBox& box) {
        prepare(box, text, caption);
        box.setIcon(iconOf(style, QMessageBox::Question));
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        box.setDefaultButton(QMessageBox::No);
        box.setEscapeButton(QMessageBox::No);
        return box.exec() == QMessageBox::Yes ? answerYes : answerNo;
    });
}

QWidget* QtMessages::windowFor(const Form* owner) const
{
    FormWindow* window = owner ? dialogs_->windowOf(*owner) : nullptr;
    return window ? window : dialogs_->windowInFront();
}

void QtMessages::prepare(QMessageBox& box, std::string_view text, std::string_view caption) const
{
    box.setObjectName("message");
    box.setWindowTitle(toQt(caption.empty() ? std::string_view(caption_) : caption));
    // What users type may look like a mark-up.
    box.setTextFormat(Qt::PlainText);
    box.setText(toQt(text).remove('\r'));
}

} // namespace qncal::host
