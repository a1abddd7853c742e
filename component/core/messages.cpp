#include "core/messages.h"

#include "core/ServiceRegistry.h"
#include "core/routineScope.h"

namespace qncal {

void showMessage(std::string_view text, Form* owner)
{
    statement([&] { messageDialogService().showMessage(text, MessageDialogService::informationStyle, owner); });
}

bool askYesNo(std::string_view text, Form* owner)
{
    return statement([&] {
        return messageDialogService().askQuestion(text, MessageDialogService::informationStyle, owner)
               == MessageDialogService::answerYes;
    });
}

} // namespace qncal
