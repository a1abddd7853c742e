#include "templates/frmTestComment.h"

#include "core/routineScope.h"

namespace qncal {

frmTestComment::frmTestComment() : Form("frmTestComment")
{
    caption("Test Notification Comment");
    lblHeading.caption("Test Notification Comments");
    rtbClientNotes.readOnly(true);
    cmdOk.caption("Ok");
    cmdOk.isDefault(true);
    cmdOk.isCancel(true);
    cmdOk.Click = [this] { cmdOK_Click(); };
}

void frmTestComment::Initialize(const std::string& text)
{
    routine("Vestrel.exe-frmTestComments-Initialize", [&] {
        rtbClientNotes.textRTF(text);
        showModal();
    });
}

void frmTestComment::cmdOK_Click()
{
    routine("Vestrel.exe-frmTestComments-cmdOK_Click", [this] { unload(); });
}

} // namespace qncal
