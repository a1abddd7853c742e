#include "controls/captionedControls.h"
#include "duplicates/frmDuplicateAppointments.h"
#include "editor/frmAppt.h"
#include "items/frmSelectStartTime.h"
#include "settings/ColourSchemePage.h"
#include "settings/frmApptCustomFields.h"
#include "settings/frmApptStatusOptions.h"
#include "settings/frmChangeApptStatusFields.h"
#include "settings/frmDayTimerSettings.h"
#include "support/ComponentTest.h"
#include "support/rowName.h"
#include "templates/frmTestComment.h"
#include "utilities/text.h"

#include <gtest/gtest.h>

#include <map>

namespace qncal {
namespace {

struct FormRow {
    const char* name;
    std::shared_ptr<Form> (*make)();
};

template <class FormType>
std::shared_ptr<Form> make()
{
    return std::make_shared<FormType>();
}

struct FormWithSchemes : Form {
    ColourSchemePage page{*this};
};

class AccessKeysTest : public test::ComponentTestWith<FormRow> {};

TEST_P(AccessKeysTest, NoTwoControlsOfADialogAnswerToOne)
{
    const auto form = GetParam().make();
    std::map<char, std::string> taken;
    for (const Control* control : form->controls()) {
        const auto* captioned = dynamic_cast<const CaptionedControl*>(control);
        // The entries of a menu answer while their menu is open.
        if (!captioned || dynamic_cast<const MenuItem*>(control))
            continue;
        const std::string& caption = captioned->caption();
        const std::size_t mark = caption.find('&');
        if (mark == std::string::npos || mark + 1 == caption.size() || caption[mark + 1] == '&')
            continue;
        const auto [first, isNew] = taken.try_emplace(lowerAscii(caption.substr(mark + 1, 1)).front(), control->path());
        EXPECT_TRUE(isNew) << first->second << " and " << control->path() << " share Alt+" << first->first;
    }
}

INSTANTIATE_TEST_SUITE_P(Forms, AccessKeysTest,
                         testing::Values(FormRow{"frmSelectStartTime", make<frmSelectStartTime>},
                                         FormRow{"frmTestComment", make<frmTestComment>},
                                         FormRow{"frmApptStatusOptions", make<frmApptStatusOptions>},
                                         FormRow{"frmChangeApptStatusFields", make<frmChangeApptStatusFields>},
                                         FormRow{"frmApptCustomFields", make<frmApptCustomFields>},
                                         FormRow{"frmDayTimerSettings", make<frmDayTimerSettings>},
                                         FormRow{"ColourSchemes", make<FormWithSchemes>},
                                         FormRow{"frmAppt", make<frmAppt>},
                                         FormRow{"frmDuplicateAppointments", make<frmDuplicateAppointments>}),
                         test::rowName);

} // namespace
} // namespace qncal
