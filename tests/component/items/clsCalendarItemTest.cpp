#include "items/clsCalendarItem.h"

#include "editor/frmAppt.h"
#include "support/ComponentTest.h"

namespace qncal {
namespace {

class clsCalendarItemTest : public test::ComponentTest {
protected:
    clsCalendarItem item;
};

TEST_F(clsCalendarItemTest, ResetKeepsIdKindAndOverlapMode)
{
    item.itemID(17);
    item.calendarItemType(enumLocalCalendarTaskItem);
    item.isApptOverlapMode = true;
    item.overlapApptUsersCollection["a"] = 3;
    item.resetAllInformation();
    EXPECT_EQ(item.itemID(), 17);
    EXPECT_EQ(item.calendarItemType(), enumLocalCalendarTaskItem);
    EXPECT_TRUE(item.isApptOverlapMode);
    EXPECT_EQ(item.overlapApptUsersCollection.size(), 1u);
}

TEST_F(clsCalendarItemTest, ANewItemHasNoId)
{
    item.itemID(17);
    item.Subject("x");
    item.addNewItem();
    EXPECT_EQ(item.itemID(), -1);
    EXPECT_EQ(item.Subject(), "");
    EXPECT_FALSE(item.IsDirty());
    EXPECT_FALSE(item.IsSaved());
}

TEST_F(clsCalendarItemTest, TerminateDropsTheKindObjectAlone)
{
    item.Subject("kept");
    item.Terminate();
    EXPECT_EQ(item.CalendarItemTypeClassRef(), nullptr);
    EXPECT_EQ(item.calendarItemType(), enumLocalCalendarUnknownItem);
    EXPECT_EQ(item.Subject(), "kept");
    item.calendarItemType(enumLocalCalendarTaskItem); // passed over
    EXPECT_EQ(item.calendarItemType(), enumLocalCalendarUnknownItem);
    EXPECT_EQ(item.TitleBarTextDefaultTemplate(), "");
    EXPECT_EQ(item.DisplayTextTemplate(), "");
    EXPECT_FALSE(item.loadCalendarItem());
    EXPECT_TRUE(errors->takeErrors().empty());
    EXPECT_FALSE(item.saveCalendarItem());
    const auto reported = errors->takeErrors();
    ASSERT_EQ(reported.size(), 1u);
    EXPECT_EQ(reported[0].number, 91);
}

TEST_F(clsCalendarItemTest, TerminateWorksWithoutAnErrorControl)
{
    serviceRegistry().errorControl.reset();
    item.Terminate();
    EXPECT_EQ(item.CalendarItemTypeClassRef(), nullptr);
}

TEST_F(clsCalendarItemTest, OpensTheEditorWithTheItemAndGivesItsAnswer)
{
    bool modal = false;
    bool showTaskNotes = false;
    clsCalendarItem* passed = nullptr;
    dialogs->whenShown("frmAppt", [&](host::Hand& hand) {
        auto& form = dynamic_cast<frmAppt&>(hand.form());
        modal = form.isModal();
        passed = form.PassedClassRef();
        showTaskNotes = form.showTaskNotes();
        form.itemSaved(true);
    });
    EXPECT_TRUE(item.openApptForm(true));
    EXPECT_TRUE(modal);
    EXPECT_EQ(passed, &item);
    EXPECT_TRUE(showTaskNotes);

    const auto& entry = clientDropDown->formRegistry->entries.at(13);
    EXPECT_EQ(entry.initialized, 1);
    EXPECT_EQ(dynamic_cast<frmAppt&>(*entry.form()).PassedClassRef(), nullptr) << "the form outlives the call";
}

TEST_F(clsCalendarItemTest, TheEditorIsMadeOnceAndTakesTheNextItem)
{
    clsCalendarItem other;
    std::vector<clsCalendarItem*> passed;
    std::vector<bool> notes;
    dialogs->whenAnyShown([&](host::Hand& hand) {
        auto& form = dynamic_cast<frmAppt&>(hand.form());
        passed.push_back(form.PassedClassRef());
        notes.push_back(form.showTaskNotes());
    });
    EXPECT_FALSE(item.openApptForm());
    EXPECT_FALSE(other.openApptForm());
    EXPECT_EQ(passed, (std::vector<clsCalendarItem*>{&item, &other}));
    EXPECT_EQ(notes, (std::vector<bool>{false, false}));
    EXPECT_EQ(clientDropDown->formRegistry->entries.at(13).initialized, 1);
}

TEST_F(clsCalendarItemTest, AnEarlierSaveIsNoAnswerToALaterShowing)
{
    dialogs->whenShown("frmAppt", [](host::Hand& hand) { dynamic_cast<frmAppt&>(hand.form()).itemSaved(true); });
    dialogs->whenShown("frmAppt", [](host::Hand&) {});
    EXPECT_TRUE(item.openApptForm());
    EXPECT_FALSE(item.openApptForm());
}

TEST_F(clsCalendarItemTest, WithoutAClientServiceTheEditorIsReportedAndNotOpened)
{
    serviceRegistry().clientDropDown.reset();
    EXPECT_FALSE(item.openApptForm());
    EXPECT_EQ(errors->takeErrors().size(), 1u);
}

TEST_F(clsCalendarItemTest, OpensTheCustomFieldsDialog)
{
    bool modal = false;
    dialogs->whenShown("frmApptCustomFields", [&](host::Hand& hand) { modal = hand.form().isModal(); });
    item.calendarItemType(enumLocalCalendarTaskItem);
    item.openApptCustomFieldsForm();
    EXPECT_TRUE(modal);
}

TEST_F(clsCalendarItemTest, ListsTheOverlapUsersAsTexts)
{
    EXPECT_TRUE(item.getOverlapModeUsersList().empty());
    item.overlapApptUsersCollection["Ann"] = 12;
    item.overlapApptUsersCollection["Bob"] = 3;
    EXPECT_EQ(item.getOverlapModeUsersList(), (std::vector<std::string>{"12", "3"}));
}

TEST_F(clsCalendarItemTest, RaisesItsEventsByReference)
{
    item.colourSelectionChanged.subscribe([](std::int32_t& id) { ++id; });
    item.refreshedAppointmentText.subscribe([](std::string& text) { text += "!"; });
    item.refreshedTitleBarText.subscribe([](std::string& text) { text += "?"; });
    std::int32_t id = 4;
    std::string text = "a";
    item.raiseColourSelectionChanged(id);
    item.raiseRefreshedAppointmentText(text);
    item.raiseRefreshedTitleBarText(text);
    EXPECT_EQ(id, 5);
    EXPECT_EQ(text, "a!?");
}

} // namespace
} // namespace qncal
