#include "core/nullText.h"
#include "core/routineScope.h"
#include "items/clsCalendarItem.h"
#include "utilities/RunTimeError.h"

// The properties that do more than store. They have no label, and a failing statement in them is passed over.

namespace qncal {

namespace {

constexpr float oneMinute = 1.0F / 60.0F;

} // namespace

clsCalendarItemType& clsCalendarItem::kind() const
{
    if (!kind_)
        throw RunTimeError(errorNumber::objectNotSet, "Object variable not set: clsCalendarItemType");
    return *kind_;
}

enumLocalCalendarItemType clsCalendarItem::calendarItemType() const
{
    return kind_ ? kind_->calendarItemType() : enumLocalCalendarUnknownItem;
}

void clsCalendarItem::calendarItemType(enumLocalCalendarItemType type)
{
    skipOnError([&] { kind().calendarItemType(type); });
}

void clsCalendarItem::setClient(ClientKind client, std::int32_t& own, std::int32_t& other, std::int32_t id)
{
    const auto type = static_cast<std::int32_t>(client);
    if (!change(own, id))
        return;
    if (id >= 0) {
        record_.clientType = type;
        other = -1;
        return;
    }
    own = -1;
    if (record_.clientType == type)
        record_.clientType = static_cast<std::int32_t>(ClientKind::none);
}

void clsCalendarItem::companyIDNum(std::int32_t id)
{
    setClient(ClientKind::company, record_.companyIDNum, record_.contactIDNum, id);
}

void clsCalendarItem::contactIDNum(std::int32_t id)
{
    setClient(ClientKind::contact, record_.contactIDNum, record_.companyIDNum, id);
}

void clsCalendarItem::timeduration(float hours)
{
    if (!change(record_.timeduration, hours))
        return;
    if (hours >= 0 && hours < oneMinute)
        record_.timeduration = oneMinute;
}

void clsCalendarItem::TimeTo(Date time)
{
    if (change(record_.timeTo, time))
        calculateTimeDuration();
}

void clsCalendarItem::Notes_RichText(std::string richText)
{
    if (change(record_.notesRichText, std::move(richText)))
        skipOnError([this] { record_.notesFlag = !isNullText(record_.notesRichText); });
}

void clsCalendarItem::notifyType(std::uint8_t bits)
{
    if (change(record_.notifyType, bits))
        record_.clientNotifiedFlag = bits != 0;
}

void clsCalendarItem::setNotifyBit(std::uint8_t bit, bool on)
{
    record_.notifyType = static_cast<std::uint8_t>(on ? record_.notifyType | bit : record_.notifyType & ~bit);
}

void clsCalendarItem::Notified_ByEmail(bool on) { setNotifyBit(AutoNotifyService::email, on); }
void clsCalendarItem::Notified_ByFax(bool on) { setNotifyBit(AutoNotifyService::fax, on); }
void clsCalendarItem::Notified_ByPhone(bool on) { setNotifyBit(AutoNotifyService::phone, on); }
void clsCalendarItem::Notified_ByLetter(bool on) { setNotifyBit(AutoNotifyService::letter, on); }

void clsCalendarItem::ColourSchemeID(std::int32_t id)
{
    if (change(record_.colourSchemeID, id))
        populateColourSchemeColours();
}

std::string clsCalendarItem::ColourSchemeName()
{
    return record_.colourSchemeID >= 1 ? getColourSchemeNameFromColourSchemeID() : "<Not specified>";
}

std::string clsCalendarItem::TitleBarTextDefaultTemplate()
{
    return kind_ ? kind_->CalendarItemTitleBarTemplateText() : std::string();
}

std::string clsCalendarItem::DisplayTextDefaultTemplate()
{
    return kind_ ? kind_->CalendarItemDisplayTemplateText() : std::string();
}

const std::string& clsCalendarItem::templateOrDefault(std::string& own,
                                                      std::string (clsCalendarItem::*defaultTemplate)())
{
    accessor([&] {
        if (isNullText(own))
            own = (this->*defaultTemplate)();
    });
    return own;
}

const std::string& clsCalendarItem::TitleBarTextTemplate()
{
    return templateOrDefault(record_.titleBarTextTemplate, &clsCalendarItem::TitleBarTextDefaultTemplate);
}

const std::string& clsCalendarItem::DisplayTextTemplate()
{
    return templateOrDefault(record_.displayTextTemplate, &clsCalendarItem::DisplayTextDefaultTemplate);
}

} // namespace qncal
