#include "items/clsCalendarItem.h"

#include "core/FormRegistry.h"
#include "core/forms.h"
#include "core/registeredForm.h"
#include "core/routineScope.h"
#include "utilities/RunTimeError.h"

namespace qncal {

namespace {

/// Lets the editor see an item while it is open, and no longer: the form outlives the call in the registry. A call
/// inside another gives the form its former item back.
class PassedItem {
public:
    PassedItem(ApptForm& form, clsCalendarItem& item) : form_(form), former_(form.PassedClassRef())
    {
        form_.PassedClassRef(&item);
    }
    ~PassedItem() { form_.PassedClassRef(former_); }
    PassedItem(const PassedItem&) = delete;
    PassedItem& operator=(const PassedItem&) = delete;

private:
    ApptForm& form_;
    clsCalendarItem* former_;
};

} // namespace

clsCalendarItem::clsCalendarItem()
{
    skipOnError([] { createComponentServices(); });
    resetAllInformation();
}

clsCalendarItem::~clsCalendarItem() { Terminate(); }

void clsCalendarItem::Terminate()
{
    routine("Vestrel.exe-clsCalendarItem-Terminate", [this] { kind_.reset(); });
    // Without an error control no routine runs; the kind is to go all the same.
    kind_.reset();
}

void clsCalendarItem::resetAllInformation()
{
    routine("Vestrel.exe-clsCalendarItem-resetAllInformation", [this] {
        record_ = {};
        isDirty_ = false;
        isSaved_ = false;
    });
}

void clsCalendarItem::addNewItem()
{
    routine("Vestrel.exe-clsCalendarItem-addNewItem", [this] {
        itemID_ = -1;
        resetAllInformation();
    });
}

bool clsCalendarItem::openApptForm(bool showTaskNotes)
{
    return routine("Vestrel.exe-clsCalendarItem-openApptForm", false, [&] {
        FormRegistryEntry& entry = registeredForm(FormRegistry::editorKey, newApptForm);
        const auto form = std::dynamic_pointer_cast<ApptForm>(statement([&] { return entry.form(); }));
        if (!form)
            throw RunTimeError(errorNumber::objectNotSet, "Object variable not set: frmAppt");
        const PassedItem passed(*form, *this);
        form->showTaskNotes(showTaskNotes);
        form->setupForm();
        statement([&] { entry.confirmed(false); });
        statement([&] { entry.show(true); });
        if (form->itemSaved())
            statement([&] { entry.confirmed(true); });
        return statement([&] { return entry.confirmed(); });
    });
}

void clsCalendarItem::openApptCustomFieldsForm()
{
    routine("Vestrel.exe-clsCalendarItem-openApptCustomFieldsForm",
            [this] { newApptCustomFieldsForm()->Initialize(kind().calendarItemType()); });
}

std::vector<std::string> clsCalendarItem::getOverlapModeUsersList()
{
    return routine("Vestrel.exe-clsCalendarItem-getOverlapModeUsersList", std::vector<std::string>{}, [this] {
        std::vector<std::string> users;
        for (const auto& [key, userID] : overlapApptUsersCollection)
            users.push_back(std::to_string(userID));
        return users;
    });
}

} // namespace qncal
