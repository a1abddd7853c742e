#include "headless/HeadlessDialogHost.h"

#include "controls/ProgressDialog.h"
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

TEST(DialogHostNone, ADialogReturnsAtOnceAndProgressStillDoesItsWork)
{
    NameForm form;
    form.showModal();
    EXPECT_FALSE(form.isVisible());
    ProgressDialog progress;
    bool ran = false;
    progress.StartProgress = [&] { ran = true; };
    progress.show();
    EXPECT_TRUE(ran);
}

} // namespace
} // namespace qncal::host
