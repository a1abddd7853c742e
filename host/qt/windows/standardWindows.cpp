#include "qt/WindowClasses.h"
#include "qt/windows/ColourSchemesWindow.h"
#include "qt/windows/FieldNamesWindow.h"
#include "qt/windows/SelectTimeWindow.h"
#include "qt/windows/StatusOptionsWindow.h"
#include "qt/windows/TestCommentWindow.h"

namespace qncal::host {

WindowClasses standardWindows()
{
    WindowClasses windows;
    windows.add<FieldNamesWindow>("frmChangeApptStatusFields");
    windows.add<FieldNamesWindow>("frmApptCustomFields");
    windows.add<StatusOptionsWindow>("frmApptStatusOptions");
    windows.add<ColourSchemesWindow>("frmColourSchemes");
    windows.add<SelectTimeWindow>("frmSelectStartTime");
    windows.add<TestCommentWindow>("frmTestComment");
    return windows;
}

} // namespace qncal::host
