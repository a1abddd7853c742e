#pragma once

#include "host/qt/WindowHand.h"
#include "qt/QtDialogHost.h"
#include "support/ComponentTest.h"

#include <memory>

namespace qncal::test {

/// A world whose dialogs come up as real windows. A script acts on each modal window by real keys and clicks.
class QtDialogTest : public ComponentTest, protected WindowHand {
protected:
    QtDialogTest() { setDialogHost(qt); }
    ~QtDialogTest() override { setDialogHost(dialogs); }

    std::shared_ptr<host::QtDialogHost> qt = std::make_shared<host::QtDialogHost>();
};

} // namespace qncal::test
