#include "support/FaultInjector.h"

#include "core/forwarding/ForwardingAutoNotifyService.h"
#include "core/forwarding/ForwardingClientDropDownService.h"
#include "core/forwarding/ForwardingDatabaseService.h"
#include "core/forwarding/ForwardingErrorControlService.h"
#include "core/forwarding/ForwardingFormRegistry.h"
#include "core/forwarding/ForwardingLocaleService.h"
#include "core/forwarding/ForwardingMessageDialogService.h"
#include "utilities/RunTimeError.h"

namespace qncal::test {

namespace {

using SharedCount = std::shared_ptr<FaultInjector::Count>;

template <class Forwarding>
class Faulty : public Forwarding {
public:
    template <class Service>
    Faulty(std::shared_ptr<Service> target, SharedCount count) : Forwarding(std::move(target)), count_(std::move(count))
    {
    }

protected:
    void beforeCall(std::string_view operation) override { count_->step(operation); }
    const SharedCount& count() const { return count_; }

private:
    SharedCount count_;
};

/// Its registry of windows fails as well.
class FaultyClientDropDown : public Faulty<ForwardingClientDropDownService> {
public:
    using Faulty::Faulty;

    std::shared_ptr<FormRegistry> getFormRegistry() override
    {
        auto registry = Faulty::getFormRegistry();
        if (!registry)
            return nullptr;
        // Kept, because its entries are used after the registry was let go.
        if (!windows_ || windows_->target() != registry)
            windows_ = std::make_shared<Faulty<ForwardingFormRegistry>>(std::move(registry), count());
        return windows_;
    }

private:
    std::shared_ptr<Faulty<ForwardingFormRegistry>> windows_;
};

/// The routine stack is asked to push and pop; a host that cannot pop has nothing that a test could expect of it,
/// and the other three calls are the report of a failure itself.
class FaultyErrorControl : public Faulty<ForwardingErrorControlService> {
public:
    using Faulty::Faulty;

protected:
    void beforeCall(std::string_view operation) override
    {
        if (operation == "enterRoutine")
            Faulty::beforeCall(operation);
    }
};

class FaultyUtility : public UtilityService {
public:
    explicit FaultyUtility(SharedCount count) : count_(std::move(count)) {}
    bool isNullValue(const Variant& value) override
    {
        count_->step("isNullValue");
        return UtilityService::isNullValue(value);
    }
    bool checkBoxToBool(std::int16_t value) override
    {
        count_->step("checkBoxToBool");
        return UtilityService::checkBoxToBool(value);
    }
    std::int16_t boolToCheckBox(bool value) override
    {
        count_->step("boolToCheckBox");
        return UtilityService::boolToCheckBox(value);
    }
    std::string getOrdinalText(std::int32_t number) override
    {
        count_->step("getOrdinalText");
        return UtilityService::getOrdinalText(number);
    }

private:
    SharedCount count_;
};

class FaultyDateTime : public DateTimeService {
public:
    explicit FaultyDateTime(SharedCount count) : count_(std::move(count)) {}
    bool isWeekend(Date date) override { return (step("isWeekend"), DateTimeService::isWeekend(date)); }
    Date getTimeOnly(Date value) override { return (step("getTimeOnly"), DateTimeService::getTimeOnly(value)); }
    Date getDateOnly(Date value) override { return (step("getDateOnly"), DateTimeService::getDateOnly(value)); }
    Date addHoursToTime(Date time, float hours) override
    {
        return (step("addHoursToTime"), DateTimeService::addHoursToTime(time, hours));
    }
    double hoursBetween(Date from, Date to) override
    {
        return (step("hoursBetween"), DateTimeService::hoursBetween(from, to));
    }
    Date adjustReminderDate(Date date) override
    {
        return (step("adjustReminderDate"), DateTimeService::adjustReminderDate(date));
    }
    int getWeekdayNumber(Date date) override
    {
        return (step("getWeekdayNumber"), DateTimeService::getWeekdayNumber(date));
    }
    std::string getWeekdayName(int weekday) override
    {
        return (step("getWeekdayName"), DateTimeService::getWeekdayName(weekday));
    }
    int getWeekOfMonth(Date date) override { return (step("getWeekOfMonth"), DateTimeService::getWeekOfMonth(date)); }
    std::string getOrdinalWord(int weekNumber) override
    {
        return (step("getOrdinalWord"), DateTimeService::getOrdinalWord(weekNumber));
    }
    int getDaysInMonth(int month, int year) override
    {
        return (step("getDaysInMonth"), DateTimeService::getDaysInMonth(month, year));
    }
    Date makeDate(int year, int month, int day) override
    {
        return (step("makeDate"), DateTimeService::makeDate(year, month, day));
    }
    Date getNthWeekdayOfMonth(int month, int year, int weekNumber, int weekday) override
    {
        return (step("getNthWeekdayOfMonth"), DateTimeService::getNthWeekdayOfMonth(month, year, weekNumber, weekday));
    }
    Date getLastDayOfMonth(Date date) override
    {
        return (step("getLastDayOfMonth"), DateTimeService::getLastDayOfMonth(date));
    }
    std::string getDurationText(std::int32_t minutes) override
    {
        return (step("getDurationText"), DateTimeService::getDurationText(minutes));
    }

private:
    void step(std::string_view operation) { count_->step(operation); }
    SharedCount count_;
};

template <class Forwarding, class Service>
void wrap(std::shared_ptr<Service>& slot, const SharedCount& count)
{
    if (slot)
        slot = std::make_shared<Forwarding>(slot, count);
}

} // namespace

void FaultInjector::Count::step(std::string_view operation)
{
    ++calls;
    if (failing == 0 || calls < failing || (calls > failing && !lasting))
        return;
    if (failed.empty())
        failed = operation;
    throw RunTimeError(errorNumber::invalidProcedureCall, "Fault in " + std::string(operation));
}

FaultInjector::FaultInjector() : original_(serviceRegistry())
{
    ServiceRegistry& registry = serviceRegistry();
    wrap<FaultyErrorControl>(registry.errorControl, count_);
    wrap<Faulty<ForwardingDatabaseService>>(registry.database, count_);
    wrap<Faulty<ForwardingMessageDialogService>>(registry.messageDialogs, count_);
    wrap<Faulty<ForwardingLocaleService>>(registry.locale, count_);
    wrap<FaultyClientDropDown>(registry.clientDropDown, count_);
    wrap<Faulty<ForwardingAutoNotifyService>>(registry.autoNotify, count_);
    if (registry.utility)
        registry.utility = std::make_shared<FaultyUtility>(count_);
    if (registry.dateTime)
        registry.dateTime = std::make_shared<FaultyDateTime>(count_);
}

FaultInjector::~FaultInjector() { serviceRegistry() = original_; }

void FaultInjector::failCall(int n)
{
    *count_ = {};
    count_->failing = n;
}

void FaultInjector::failFromCall(int n)
{
    failCall(n);
    count_->lasting = true;
}

int FaultInjector::calls() const { return count_->calls; }

const std::string& FaultInjector::failedOperation() const { return count_->failed; }

} // namespace qncal::test
