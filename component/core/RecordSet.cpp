#include "core/RecordSet.h"

#include "core/ServiceRegistry.h"
#include "utilities/RunTimeError.h"
#include "utilities/dateText.h"

#include <utility>

namespace qncal {

namespace {

std::shared_ptr<DatabaseService> currentDatabase()
{
    databaseService(); // an empty slot is an error
    return serviceRegistry().database;
}

} // namespace

bool isDatabaseConnected()
{
    return statement([] { return databaseService().isConnected(); });
}

std::string sqlDate(const Date& date)
{
    return statement([&] { return "#" + databaseService().getSQLDate(date) + "#"; });
}

std::string sqlTime(const Date& time) { return "#" + formatDate(time, "h:mm:ss ampm") + "#"; }

RecordSet::RecordSet(std::string_view sql, std::int32_t lock)
{
    statement([&] {
        service_ = currentDatabase();
        handle_ = service_->openRecordset(sql, DatabaseService::cursorType, lock, true, {}, true);
    });
    owned_ = true;
}

RecordSet RecordSet::borrow(std::int32_t handle)
{
    RecordSet borrowed;
    statement([&] { borrowed.service_ = currentDatabase(); });
    borrowed.handle_ = handle;
    return borrowed;
}

RecordSet::~RecordSet()
{
    if (owned_)
        skipOnError([this] { service_->closeRecordset(handle_); });
}

RecordSet::RecordSet(RecordSet&& other) noexcept
    : service_(std::move(other.service_)), handle_(std::exchange(other.handle_, 0)),
      owned_(std::exchange(other.owned_, false))
{
}

RecordSet& RecordSet::operator=(RecordSet&& other) noexcept
{
    RecordSet taken(std::move(other));
    std::swap(service_, taken.service_);
    std::swap(handle_, taken.handle_);
    std::swap(owned_, taken.owned_);
    return *this;
}

void RecordSet::close()
{
    if (!owned_)
        return;
    statement([&] { service_->closeRecordset(handle_); });
    owned_ = false;
}

bool RecordSet::hasRecords() const
{
    return statement([&] { return service_->hasRecords(handle_); });
}

bool RecordSet::isEmpty() const
{
    return statement([&] { return service_->isRecordsetEmpty(handle_); });
}

bool RecordSet::isEOF() const
{
    return statement([&] { return service_->isEOF(handle_); });
}

void RecordSet::moveNext()
{
    statement([&] { service_->moveNext(handle_); });
}

void RecordSet::movePrevious()
{
    statement([&] { service_->movePrevious(handle_); });
}

std::int32_t RecordSet::recordCount() const
{
    return statement([&] { return service_->getRecordCount(handle_); });
}

std::int32_t RecordSet::position() const
{
    return statement([&] { return service_->getPosition(handle_); });
}

void RecordSet::setPosition(std::int32_t position)
{
    statement([&] { service_->setPosition(handle_, position); });
}

bool RecordSet::findRecord(std::string_view field, std::int32_t value)
{
    const std::string text = std::to_string(value);
    std::string reserved[4];
    return statement(
        [&] { return service_->findRecord(handle_, field, text, reserved[0], reserved[1], reserved[2], reserved[3]); });
}

Variant RecordSet::field(std::string_view field) const
{
    return statement([&] { return service_->getField(handle_, field); });
}

void RecordSet::addNew()
{
    statement([&] { service_->addNew(handle_); });
}

void RecordSet::update()
{
    statement([&] { service_->update(handle_); });
}

bool RecordSet::deleteRecord()
{
    return statement([&] { return service_->deleteRecord(handle_); });
}

bool RecordSet::isNull(const Variant& value)
{
    return statement([&] { return utilityService().isNullValue(value); });
}

std::int32_t RecordSet::checkedInteger(const Variant& value, std::int64_t lowest, std::int64_t highest)
{
    const std::int32_t number = value.toInteger();
    if (number < lowest || number > highest)
        throw RunTimeError(errorNumber::overflow, "Overflow: " + std::to_string(number));
    return number;
}

void RecordSet::writeText(std::string_view field, std::string_view value)
{
    statement([&] { service_->setFieldValue(handle_, field, value, false, false, false); });
}

void RecordSet::writeNewText(std::string_view field, std::string_view value)
{
    statement([&] { service_->setNewField(handle_, field, value); });
}

} // namespace qncal
