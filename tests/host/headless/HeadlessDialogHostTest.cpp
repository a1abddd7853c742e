#include "headless/HeadlessDialogHost.h"

#include "controls/ProgressDialog.h"
#include "controls/RichTextBox.h"
#include "controls/TextBox.h"
#include "controls/captionedControls.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>

namespace qncal::host {
namespace {

/// A form that refuses to close while its name is empty.
class NameForm : public Form {
public:
    NameForm() : Form("frmName")
    {
        cmdOK.isDefault(true);
        cmdOK.Click = [this] { unload(); };
        txtName.KeyPress = [](std::int32_t& key) {
            if (key == '#')
                key = 0;
        };
    }

    TextBox txtName{*this, "txtName"};
    CommandButton cmdOK{*this, "cmdOK"};
    int refused = 0;
    int unloaded = 0;

protected:
    void Form_QueryUnload(bool& cancel, bool) override
    {
        cancel = txtName.text().empty();
        refused += cancel ? 1 : 0;
    }
    void Form_Unload() override { ++unloaded; }
};

class HeadlessDialogHostTest : public testing::Test {
protected:
    void SetUp() override { setDialogHost(host); }
    void TearDown() override { setDialogHost(nullptr); }
    std::shared_ptr<HeadlessDialogHost> host = std::make_shared<HeadlessDialogHost>();
    NameForm form;
};

TEST_F(HeadlessDialogHostTest, AScriptActsAsTheHand)
{
    host->whenShown("frmName", [&](Hand& hand) {
        EXPECT_TRUE(form.isModal());
        hand.pressEnter();
        EXPECT_TRUE(form.isVisible()) << "an empty name is refused";
        hand.type("txtName", "A#nn");
        hand.pressEnter();
    });
    form.showModal();
    EXPECT_EQ(form.txtName.text(), "Ann");
    EXPECT_EQ(form.refused, 1);
    EXPECT_EQ(form.unloaded, 1);
    EXPECT_FALSE(form.isVisible());
    EXPECT_TRUE(host->unexpectedForms().empty());
}

TEST_F(HeadlessDialogHostTest, AFormNobodyWaitsForIsClosedAndNoted)
{
    form.txtName.text("Ann");
    form.showModal();
    EXPECT_EQ(host->unexpectedForms(), std::vector<std::string>{"frmName"});
    EXPECT_EQ(form.unloaded, 1);
}

TEST_F(HeadlessDialogHostTest, TheHandCannotReachWhatAUserCannot)
{
    Hand hand(form);
    form.txtName.enabled(false);
    EXPECT_THROW(hand.type("txtName", "x"), std::runtime_error);
    form.txtName.enabled(true);
    form.txtName.readOnly(true);
    EXPECT_THROW(hand.type("txtName", "x"), std::runtime_error);
    EXPECT_THROW(hand.click("cmdNone"), std::runtime_error);
    form.cmdOK.visible(false);
    EXPECT_THROW(hand.click("cmdOK"), std::runtime_error);
}

TEST_F(HeadlessDialogHostTest, TheHandStopsAtTheLongestText)
{
    form.txtName.maxLength(3);
    Hand(form).type("txtName", "äöüß");
    EXPECT_EQ(form.txtName.text(), "äöü");
}

TEST_F(HeadlessDialogHostTest, ListsControlsAndValues)
{
    form.caption("Name");
    form.cmdOK.caption("&Ok");
    form.txtName.text("Ann");
    form.txtName.setFocus();
    form.cmdOK.enabled(false);
    EXPECT_EQ(listControls(form), "frmName  \"Name\"\n"
                                  "  txtName  TextBox  \"Ann\"  (focus)\n"
                                  "  cmdOK  CommandButton  \"&Ok\"  (disabled)\n");
}

TEST_F(HeadlessDialogHostTest, ProgressRunsItsWorkAndCanBeCancelled)
{
    ProgressDialog progress;
    int steps = 0;
    progress.StartProgress = [&] {
        while (steps < 5 && !progress.isCancelled())
            progress.value(++steps);
    };
    progress.show();
    EXPECT_EQ(steps, 5);
    EXPECT_TRUE(progress.isClosed());
    steps = 0;
    host->cancelProgress(true);
    progress.show();
    EXPECT_EQ(steps, 0);
}

TEST_F(HeadlessDialogHostTest, ProgressThatIsCancelledMidwayEndsAtItsNextStep)
{
    ProgressDialog progress;
    int steps = 0;
    progress.StartProgress = [&] {
        while (steps < 5 && !progress.isCancelled()) {
            progress.value(++steps);
            host->doEvents();
        }
    };
    host->onTurn([&] {
        if (steps == 2)
            progress.cancel();
    });
    progress.show();
    EXPECT_EQ(steps, 2);
    EXPECT_TRUE(progress.isClosed());
}

TEST_F(HeadlessDialogHostTest, ModelessFormsStayOpenInTheOrderOfTheScreen)
{
    NameForm other;
    const auto frontName = [&] { return host->openForms().empty() ? nullptr : host->openForms().back(); };
    host->whenAnyShown([](Hand&) {});
    form.show();
    EXPECT_FALSE(form.isModal());
    EXPECT_TRUE(form.isVisible());
    other.show();
    EXPECT_EQ(host->openForms(), (std::vector<Form*>{&form, &other}));
    form.bringToFront();
    EXPECT_EQ(frontName(), &form);
    other.txtName.text("Ann");
    other.unload();
    EXPECT_EQ(host->openForms(), std::vector<Form*>{&form});
    form.hide();
    EXPECT_TRUE(host->openForms().empty());
}

TEST_F(HeadlessDialogHostTest, AModalFormIsOpenWhileItsScriptRuns)
{
    form.txtName.text("Ann");
    host->whenShown("frmName", [&](Hand&) { EXPECT_EQ(host->openForms(), std::vector<Form*>{&form}); });
    form.showModal();
    EXPECT_TRUE(host->openForms().empty());
    EXPECT_EQ(host->waitingScripts(), 0u);
}

TEST_F(HeadlessDialogHostTest, TheBoxInTheCornerIsRefusedAndTheFormTakenAwayInTheEnd)
{
    host->whenShown("frmName", [&](Hand& hand) {
        hand.closeByBox();
        EXPECT_TRUE(form.isVisible());
    });
    form.showModal();
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(form.refused, 2) << "by the script, and when the script had left it open";
    EXPECT_EQ(form.unloaded, 0);
}

TEST_F(HeadlessDialogHostTest, KeysAreHeldDownAndLetGo)
{
    host->holdKey(ModifierKey::control, true);
    EXPECT_TRUE(host->isKeyDown(ModifierKey::control));
    EXPECT_FALSE(host->isKeyDown(ModifierKey::shift));
    host->holdKey(ModifierKey::control, false);
    EXPECT_FALSE(host->isKeyDown(ModifierKey::control));
}

TEST_F(HeadlessDialogHostTest, KeepsWhatWasPrinted)
{
    RichTextBox box(form, "rtbNotes");
    box.textRTF("{\\rtf1 Notes\\par}");
    EXPECT_TRUE(box.print());
    EXPECT_EQ(host->printed(), std::vector<std::string>{"{\\rtf1 Notes\\par}"});
}

TEST_F(HeadlessDialogHostTest, PicksTheColourAndTheFontThatItWasTold)
{
    EXPECT_FALSE(host->pickColour(7)) << "cancelled unless told";
    EXPECT_FALSE(host->pickFont({}));
    host->colourToPick(255);
    host->fontToPick(FontChoice{"Arial", 10, true, false});
    EXPECT_EQ(host->pickColour(7), 255);
    EXPECT_EQ(host->pickFont({}), (FontChoice{"Arial", 10, true, false}));
}

TEST_F(HeadlessDialogHostTest, AnEntryIsChosenFromThePopupMenuThatHasIt)
{
    MenuItem menu(form, "mnuSMEdit");
    MenuItem other(form, "mnuOther");
    MenuItem copy(form, "mnuSMEditCopy");
    copy.parent("mnuSMEdit");
    int chosen = 0;
    copy.Click = [&] { ++chosen; };
    host->entryToChoose("mnuSMEditCopy");
    other.popUp();
    EXPECT_EQ(chosen, 0);
    menu.popUp();
    menu.popUp();
    EXPECT_EQ(chosen, 1) << "the second time nothing was to be chosen";
    EXPECT_EQ(host->shownMenus(), (std::vector<std::string>{"mnuOther", "mnuSMEdit", "mnuSMEdit"}));
}

TEST(DialogHostNone, ADialogReturnsAtOnceAsIfClosedAndProgressStillDoesItsWork)
{
    NameForm form;
    form.txtName.text("Ann");
    form.showModal();
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(form.unloaded, 1);
    form.show();
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(form.unloaded, 2);
    ProgressDialog progress;
    bool ran = false;
    progress.StartProgress = [&] { ran = true; };
    progress.show();
    EXPECT_TRUE(ran);
}

} // namespace
} // namespace qncal::host
