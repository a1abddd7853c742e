#pragma once

#include "core/HostReferences.h"
#include "core/clsCalendarItemType.h"
#include "core/routineScope.h"
#include "items/CalendarItemRecord.h"
#include "utilities/Date.h"
#include "utilities/Event.h"
#include "utilities/text.h"

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace qncal {

class RecordSet;
class clsInsertFieldsInRTB;
enum class ItemTextField : std::uint8_t;

/// One appointment, task or time entry in memory: loads, saves and deletes its row, keeps its times in step and
/// renders its texts.
///
/// Ids are -1 for none, colours have red in the low byte, times are the day fraction alone. A setter that gets a
/// new value marks the item dirty unless it says otherwise; a set to an equal value changes nothing. No routine
/// lets an error out: a failure goes to the error control and the routine's result is False, 0 or empty.
class clsCalendarItem : public HostReferences {
public:
    /// A new item of unknown kind. Renews the component's own services.
    clsCalendarItem();
    ~clsCalendarItem();
    clsCalendarItem(const clsCalendarItem&) = delete;
    clsCalendarItem& operator=(const clsCalendarItem&) = delete;

    Event<std::int32_t&> colourSelectionChanged;
    Event<std::string&> refreshedAppointmentText;
    Event<std::string&> refreshedTitleBarText;

    bool isApptOverlapMode = false;
    /// Ids of the users chosen in overlap mode, by key.
    std::map<std::string, std::int32_t, LessNoCase> overlapApptUsersCollection;

    // Kind and identity.

    /// The item's own kind object; none after `Terminate`.
    std::shared_ptr<clsCalendarItemType> CalendarItemTypeClassRef() const { return kind_; }
    enumLocalCalendarItemType calendarItemType() const;
    /// Does not mark the item dirty.
    void calendarItemType(enumLocalCalendarItemType kind);
    std::int32_t itemID() const { return itemID_; }
    void itemID(std::int32_t id) { change(itemID_, id); }

    // Client and links.

    /// 0 none, 1 contact, 2 company.
    std::int32_t clientType() const { return record_.clientType; }
    std::int32_t companyIDNum() const { return record_.companyIDNum; }
    /// A company takes the place of a contact; below 0 means none.
    void companyIDNum(std::int32_t id);
    std::int32_t contactIDNum() const { return record_.contactIDNum; }
    /// A contact takes the place of a company; below 0 means none.
    void contactIDNum(std::int32_t id);
    std::int32_t userIDNum() const { return record_.userIDNum; }
    void userIDNum(std::int32_t id) { change(record_.userIDNum, id); }
    std::int32_t ScheduleTypeIDNum() const { return record_.scheduleTypeIDNum; }
    void ScheduleTypeIDNum(std::int32_t id) { change(record_.scheduleTypeIDNum, id); }
    std::int32_t ScheduleIDNum() const { return record_.scheduleIDNum; }
    void ScheduleIDNum(std::int32_t id) { change(record_.scheduleIDNum, id); }
    std::int32_t ProjectStepIDNum() const { return record_.projectStepIDNum; }
    void ProjectStepIDNum(std::int32_t id) { change(record_.projectStepIDNum, id); }
    std::int32_t CommunicationLogIDNum() const { return record_.communicationLogIDNum; }
    void CommunicationLogIDNum(std::int32_t id) { change(record_.communicationLogIDNum, id); }
    /// The number of a task within its series; held only for tasks.
    std::int32_t SeriesNum() const { return record_.seriesNum; }
    void SeriesNum(std::int32_t number) { change(record_.seriesNum, number); }
    const std::string& Subject() const { return record_.subject; }
    void Subject(std::string text) { change(record_.subject, std::move(text)); }

    // Date and times.

    Date DateFrom() const { return record_.dateFrom; }
    void DateFrom(Date date) { change(record_.dateFrom, date); }
    /// Hours.
    float timeduration() const { return record_.timeduration; }
    /// From 0 up to a minute counts as one minute; a negative value stays. `TimeTo` is not moved.
    void timeduration(float hours);
    Date TimeFrom() const { return record_.timeFrom; }
    void TimeFrom(Date time) { change(record_.timeFrom, time); }
    Date TimeTo() const { return record_.timeTo; }
    /// Also recalculates `timeduration`.
    void TimeTo(Date time);

    // Texts.

    const std::string& TitleText() const { return record_.titleText; }
    void TitleText(std::string text) { change(record_.titleText, std::move(text)); }
    const std::string& appointmentText() const { return record_.appointmentText; }
    void appointmentText(std::string text) { change(record_.appointmentText, std::move(text)); }
    const std::string& AfterAppointmentText() const { return record_.afterAppointmentText; }
    void AfterAppointmentText(std::string text) { change(record_.afterAppointmentText, std::move(text)); }
    const std::string& BeforeAppointmentText() const { return record_.beforeAppointmentText; }
    void BeforeAppointmentText(std::string text) { change(record_.beforeAppointmentText, std::move(text)); }
    bool NotesFlag() const { return record_.notesFlag; }
    void NotesFlag(bool flag) { change(record_.notesFlag, flag); }
    const std::string& Notes_RichText() const { return record_.notesRichText; }
    /// Also sets `NotesFlag`: whether there are notes.
    void Notes_RichText(std::string richText);

    // Series, group and flags.

    bool RecurAnnually() const { return record_.recurAnnually; }
    void RecurAnnually(bool flag) { change(record_.recurAnnually, flag); }
    bool hideInTasks() const { return record_.hideInTasks; }
    void hideInTasks(bool flag) { change(record_.hideInTasks, flag); }
    std::int32_t RepeatNum() const { return record_.repeatNum; }
    void RepeatNum(std::int32_t number) { change(record_.repeatNum, number); }
    std::int32_t UserGroupNum() const { return record_.userGroupNum; }
    void UserGroupNum(std::int32_t number) { change(record_.userGroupNum, number); }
    bool PrivateItem() const { return record_.privateItem; }
    void PrivateItem(bool flag) { change(record_.privateItem, flag); }

    // Reminder and client notification.

    /// How long ahead, in the words of the period list ("15 Min").
    const std::string& reminderPeriod() const { return record_.reminderPeriod; }
    void reminderPeriod(std::string period) { change(record_.reminderPeriod, std::move(period)); }
    bool Remind() const { return record_.remind; }
    void Remind(bool flag) { change(record_.remind, flag); }
    bool ClientNotifiedFlag() const { return record_.clientNotifiedFlag; }
    void ClientNotifiedFlag(bool flag) { change(record_.clientNotifiedFlag, flag); }
    /// Channel bits of `AutoNotifyService`.
    std::uint8_t notifyType() const { return record_.notifyType; }
    /// Also sets `ClientNotifiedFlag`: whether any bit is set.
    void notifyType(std::uint8_t bits);
    Date notifiedDate() const { return record_.notifiedDate; }
    /// Does not mark the item dirty; nor do the next five.
    void notifiedDate(Date date) { record_.notifiedDate = date; }
    /// These change their bit of `notifyType` and nothing else.
    void Notified_ByEmail(bool on);
    void Notified_ByFax(bool on);
    void Notified_ByPhone(bool on);
    void Notified_ByLetter(bool on);
    bool ShowNotificationWindow() const { return showNotificationWindow_; }
    void ShowNotificationWindow(bool show) { showNotificationWindow_ = show; }

    // Colours.

    std::int32_t ForeColour() const { return record_.foreColour; }
    void ForeColour(std::int32_t colour) { change(record_.foreColour, colour); }
    std::int32_t BackColour() const { return record_.backColour; }
    void BackColour(std::int32_t colour) { change(record_.backColour, colour); }
    std::int32_t TitleForeColour() const { return record_.titleForeColour; }
    void TitleForeColour(std::int32_t colour) { change(record_.titleForeColour, colour); }
    std::int32_t TitleBackColour() const { return record_.titleBackColour; }
    void TitleBackColour(std::int32_t colour) { change(record_.titleBackColour, colour); }
    std::int32_t ColourSchemeID() const { return record_.colourSchemeID; }
    /// Also takes over the scheme's four colours.
    void ColourSchemeID(std::int32_t id);
    /// "<Not specified>" without a scheme.
    std::string ColourSchemeName();

    // User-defined fields; their labels are in `CustomFields`.

    bool Status1() const { return record_.status1; }
    void Status1(bool flag) { change(record_.status1, flag); }
    bool Status2() const { return record_.status2; }
    void Status2(bool flag) { change(record_.status2, flag); }
    bool Status3() const { return record_.status3; }
    void Status3(bool flag) { change(record_.status3, flag); }
    bool Status4() const { return record_.status4; }
    void Status4(bool flag) { change(record_.status4, flag); }
    bool Status5() const { return record_.status5; }
    void Status5(bool flag) { change(record_.status5, flag); }
    const std::string& Custom1() const { return record_.custom1; }
    void Custom1(std::string text) { change(record_.custom1, std::move(text)); }
    const std::string& Custom2() const { return record_.custom2; }
    void Custom2(std::string text) { change(record_.custom2, std::move(text)); }
    const std::string& Custom3() const { return record_.custom3; }
    void Custom3(std::string text) { change(record_.custom3, std::move(text)); }
    const std::string& Custom4() const { return record_.custom4; }
    void Custom4(std::string text) { change(record_.custom4, std::move(text)); }
    const std::string& Custom5() const { return record_.custom5; }
    void Custom5(std::string text) { change(record_.custom5, std::move(text)); }

    // State and templates.

    enumCalendarItemArchiveStatus CalendarItemArchiveStatus() const { return record_.archiveStatus; }
    void CalendarItemArchiveStatus(enumCalendarItemArchiveStatus status) { change(record_.archiveStatus, status); }
    /// The kind's templates.
    std::string TitleBarTextDefaultTemplate();
    std::string DisplayTextDefaultTemplate();
    /// The item's own templates; an empty one takes the kind's when it is read, and keeps it. Setting one does not
    /// mark the item dirty.
    const std::string& TitleBarTextTemplate();
    void TitleBarTextTemplate(std::string text) { record_.titleBarTextTemplate = std::move(text); }
    const std::string& DisplayTextTemplate();
    void DisplayTextTemplate(std::string text) { record_.displayTextTemplate = std::move(text); }
    /// True after a load that found the row, or after a save.
    bool IsSaved() const { return isSaved_; }
    bool IsDirty() const { return isDirty_; }
    /// Carried for the host; the item does not read it, and setting it does not mark the item dirty.
    bool IsSecondaryConnectionForTaskClass() const { return isSecondaryConnectionForTaskClass_; }
    void IsSecondaryConnectionForTaskClass(bool flag) { isSecondaryConnectionForTaskClass_ = flag; }

    // Life.

    /// Drops the item's kind object, nothing else.
    void Terminate();
    /// Gives every field its default; `itemID`, the kind, the overlap mode and the two carried flags stay.
    void resetAllInformation();
    /// Starts a new item: no id, and every field at its default.
    void addNewItem();

    // The item's row.

    /// `tempRST` above 0 is the caller's record set: its current record when the item has no id yet, else the record
    /// with the item's id. In every other case, and when that finds nothing, the row is opened here by `itemID`.
    bool loadCalendarItem(std::int32_t tempRST = -1);
    /// `tempRST` at or above 0 is the caller's record set with the target record current; it is neither updated nor
    /// closed here. Below 0 the row is opened by `itemID`, and a new row is added when there is none.
    bool saveCalendarItem(std::int32_t tempRST = -1);
    /// Also deletes the item's popup reminders and client notifications.
    bool deleteCalendarItem();
    /// For a task: takes over the id and archive status of the task on a schedule row. False when there is none.
    bool getTaskIDFromScheduleID(std::int32_t scheduleID);
    /// The schedule row that this item hangs on, -1 for none.
    std::int32_t getScheduleIDFromTaskID();

    // Dialogs.

    /// True when the editor was left by Ok.
    bool openApptForm(bool showTaskNotes = false);
    void openApptCustomFieldsForm();
    /// The users of overlap mode, their ids as decimal text.
    std::vector<std::string> getOverlapModeUsersList();

    // Placement: items/clsCalendarItemPlacement.cpp.

    void getBestStartTime(Date startTimeRange, Date endTimeRange);
    void getBestTimeInCalendarForSpecificDayAndUser();
    void moveCalendarItemToNewDateAndHourSlot(Date newDate, Date newStartHourTime);
    void moveCalendarItemToNewDateAndBestTimeInCalendar(Date newDate);
    bool promptFormToChangeStartTime();
    bool promptFormToChangeEndTime();

    // Texts: items/clsCalendarItemText.cpp.

    /// Renders `TitleText`, and raises `refreshedTitleBarText` with it.
    std::string createTitleBarTextByID();
    /// Renders `appointmentText`, and raises `refreshedAppointmentText` with it.
    std::string createDisplayTextByID();
    std::string buildDisplayText(const std::string& templateResult);
    std::string parseCalendarItemComment(const std::string& newText);

    /// The value of one merge field from the item itself or from the host's client lists, by its display name and
    /// category; empty for a name that neither has. An empty `format` writes a date as "mmm d, yyyy".
    std::string getApptDataFieldInfo(const std::string& displayName, const std::string& category, std::string format);

    // Reminders and notifications: reminders/clsCalendarItemReminders.cpp.

    void schedulePopupReminderForItem();
    std::string getPopupReminderCurrentStatusText(bool checkRemindersTableForRealStatus = true);

    // Inside the component:

    void raiseColourSelectionChanged(std::int32_t& ColourSchemeID)
    {
        callHost([&] { colourSelectionChanged.raise(ColourSchemeID); });
    }
    void raiseRefreshedAppointmentText(std::string& text)
    {
        callHost([&] { refreshedAppointmentText.raise(text); });
    }
    void raiseRefreshedTitleBarText(std::string& text)
    {
        callHost([&] { refreshedTitleBarText.raise(text); });
    }

    /// Whether the item may be saved; always True, there is no condition so far.
    bool checkOKToSave();
    /// Sets `timeduration` to the time between start and end, at least a minute, without marking the item dirty.
    void calculateTimeDuration();
    /// Sets `TimeTo` to the start plus `timeduration`, without marking the item dirty.
    void determineEndTimeFromTimeDuration();
    /// Exchanges start and end when the start is the later one.
    void verifyStartAndEndTime();
    /// Takes over the four colours of the item's scheme; a colour that the scheme lacks stays.
    void populateColourSchemeColours();
    /// The name of the item's colour scheme, empty when there is none.
    std::string getColourSchemeNameFromColourSchemeID();
    void getPopUpReminderTime();
    std::string getPopUpReminderPopupText();
    /// Deletes the item's popup reminders, with `keepCompleted` all but the completed ones.
    void checkToCancelPopups(bool keepCompleted);
    void scheduleAutoNotifications();
    /// Deletes the item's client notifications, with `keepSent` all but those already sent.
    void checkToCancelAutoNotifications(bool keepSent);

private:
    template <class Value>
    bool change(Value& field, Value value)
    {
        if (field == value)
            return false;
        field = std::move(value);
        isDirty_ = true;
        return true;
    }
    /// The kind object; it is an error to ask after `Terminate`.
    clsCalendarItemType& kind() const;
    void setClient(ClientKind client, std::int32_t& own, std::int32_t& other, std::int32_t id);
    void setNotifyBit(std::uint8_t bit, bool on);
    const std::string& templateOrDefault(std::string& own, std::string (clsCalendarItem::*defaultTemplate)());

    /// A place for the item in its day as it stands in the database; none on a day without any.
    std::optional<Date> findGapInDay();

    /// None until a text needs it. Its list of fields costs more than a merge, so that it serves both stages of a
    /// merge, and both texts of a save.
    using MergeEngine = std::unique_ptr<clsInsertFieldsInRTB>;
    void renderBothTexts();
    std::string renderDisplayText(MergeEngine& engine);
    std::string renderTitleBarText(MergeEngine& engine);
    std::string mergeItemTemplate(std::string text, std::string (clsCalendarItem::*defaultTemplate)(), bool withCompany,
                                  MergeEngine& engine);
    MergeEngine newMergeEngine() const;
    std::string mergeFromItem(const std::string& text, MergeEngine& engine);
    std::string itemFieldText(ItemTextField field, const std::string& dateFormat) const;

    std::optional<RecordSet> findRowToLoad(std::int32_t tempRST);
    std::optional<RecordSet> openRowToLoad();
    RecordSet openRowToSave(bool& isNewRow);
    void readColumns(const RecordSet& row);
    void writeColumns(RecordSet& row);
    void updateRemindersAndNotifications();
    std::string storedReminderStatus() const;
    std::string plannedReminderStatus();

    std::shared_ptr<clsCalendarItemType> kind_ = std::make_shared<clsCalendarItemType>();
    std::int32_t itemID_ = -1;
    CalendarItemRecord record_;
    bool showNotificationWindow_ = false;
    bool isSecondaryConnectionForTaskClass_ = false;
    bool isSaved_ = false;
    bool isDirty_ = false;
};

} // namespace qncal
