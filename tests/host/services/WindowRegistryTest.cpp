#include "services/WindowRegistry.h"

#include "controls/Form.h"
#include "headless/HeadlessDialogHost.h"
#include "utilities/RunTimeError.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace qncal::host {
namespace {

/// Records what it is asked to do with forms.
class RecordingDialogHost : public HeadlessDialogHost {
public:
    void showModal(Form&) override { calls.emplace_back("showModal"); }
    void show(Form&) override { calls.emplace_back("show"); }
    void hide(Form&) override { calls.emplace_back("hide"); }
    void bringToFront(Form&) override { calls.emplace_back("bringToFront"); }

    std::vector<std::string> calls;
};

class WindowRegistryTest : public testing::Test {
protected:
    void SetUp() override { setDialogHost(dialogs); }
    void TearDown() override { setDialogHost(nullptr); }

    std::shared_ptr<RecordingDialogHost> dialogs = std::make_shared<RecordingDialogHost>();
    WindowRegistry windows;
};

TEST_F(WindowRegistryTest, KnowsAKeyAfterItWasAdded)
{
    EXPECT_FALSE(windows.isRegistered(13));
    windows.addKey(13);
    EXPECT_TRUE(windows.isRegistered(13));
    EXPECT_EQ(windows.currentEntry().key(), 13);
}

TEST_F(WindowRegistryTest, TheCurrentEntryIsTheOneLastFoundOrAdded)
{
    windows.addKey(13);
    windows.addKey(29);
    EXPECT_EQ(windows.currentEntry().key(), 29);
    windows.isRegistered(13);
    EXPECT_EQ(windows.currentEntry().key(), 13);
    windows.isRegistered(5);
    EXPECT_EQ(windows.currentEntry().key(), 13) << "a key that is not there changes nothing";
}

TEST_F(WindowRegistryTest, AddingAKeyAgainKeepsItsForm)
{
    const auto form = std::make_shared<Form>();
    windows.addKey(13);
    windows.currentEntry().form(form);
    windows.addKey(13);
    EXPECT_EQ(windows.currentEntry().form(), form);
}

TEST_F(WindowRegistryTest, AskingForTheCurrentEntryOfAnEmptyRegistryIsAnError)
{
    EXPECT_THROW(windows.currentEntry(), RunTimeError);
    windows.addKey(13);
    windows.remove(13);
    EXPECT_THROW(windows.currentEntry(), RunTimeError);
    EXPECT_FALSE(windows.isRegistered(13));
}

TEST_F(WindowRegistryTest, AnEntryShowsItsFormThroughTheDialogHost)
{
    windows.addKey(29);
    FormRegistryEntry& entry = windows.currentEntry();
    entry.form(std::make_shared<Form>());
    entry.confirmed(true);
    entry.initialize();
    EXPECT_FALSE(entry.confirmed());
    entry.show(false);
    entry.bringToFront();
    entry.hide();
    entry.show(true);
    EXPECT_EQ(dialogs->calls, (std::vector<std::string>{"show", "bringToFront", "hide", "showModal"}));
}

TEST_F(WindowRegistryTest, AnEntryWithoutAFormCannotBeShown)
{
    windows.addKey(29);
    EXPECT_THROW(windows.currentEntry().show(false), RunTimeError);
}

} // namespace
} // namespace qncal::host
