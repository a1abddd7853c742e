#pragma once

#include "core/MessageDialogService.h"
#include "qt/QtDialogHost.h"

#include <memory>
#include <string>

class QMessageBox;

namespace qncal::host {

/// Messages and questions as message boxes in front of the form that asks, or of the window in front. Without a
/// `QApplication` a message is passed over and every question is answered No.
class QtMessages : public MessageDialogService {
public:
    /// `caption` stands on boxes whose caller gives none.
    explicit QtMessages(std::shared_ptr<QtDialogHost> dialogs, std::string caption = {})
        : dialogs_(std::move(dialogs)), caption_(std::move(caption))
    {
    }

    /// `informationStyle` has the icon of its kind of box, every other style has none.
    void showMessage(std::string_view text, std::int16_t style, Form* owner, std::int32_t fixed1, std::int32_t fixed2,
                     std::int32_t fixed3, std::int32_t fixed4, std::string_view caption, std::int32_t fixed5) override;
    /// Yes has to be chosen: Enter, Escape and the box in the corner mean No.
    std::int16_t askQuestion(std::string_view text, std::int16_t style, Form* owner, std::int32_t fixed1,
                             std::int32_t fixed2, std::int32_t fixed3, std::int32_t fixed4, std::string_view caption,
                             std::int32_t fixed5) override;

private:
    QWidget* windowFor(const Form* owner) const;
    void prepare(QMessageBox& box, std::string_view text, std::string_view caption) const;

    std::shared_ptr<QtDialogHost> dialogs_;
    std::string caption_;
};

} // namespace qncal::host
