#pragma once

#include "core/DatabaseService.h"
#include "core/routineScope.h"
#include "utilities/Date.h"

#include <cstdint>
#include <limits>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>

namespace qncal {

/// True when a database is connected: what every routine that touches data asks first.
bool isDatabaseConnected();
/// A date between # and #, ready for SQL text.
std::string sqlDate(const Date& date);
/// A time of day between # and #, ready for SQL text.
std::string sqlTime(const Date& time);

/// One record set of the host's database. Every call is a statement of the routine it stands in (see
/// `routineScope.h`): a failure is reported there and then, and can be retried alone.
///
/// A record set that was opened here is closed by `close` on the normal path; when a failure cuts the path short
/// the handle is closed in silence at the end of the object's life. A borrowed one is never closed.
class RecordSet {
public:
    static RecordSet openReadOnly(std::string_view sql) { return {sql, DatabaseService::readOnly}; }
    static RecordSet openUpdatable(std::string_view sql) { return {sql, DatabaseService::updatable}; }
    /// A record set that a caller opened and keeps.
    static RecordSet borrow(std::int32_t handle);

    ~RecordSet();
    RecordSet(RecordSet&& other) noexcept;
    RecordSet& operator=(RecordSet&& other) noexcept;

    std::int32_t handle() const { return handle_; }
    void close();

    bool hasRecords() const;
    bool isEmpty() const;
    bool isEOF() const;
    void moveNext();
    void movePrevious();
    std::int32_t recordCount() const;
    std::int32_t position() const;
    void setPosition(std::int32_t position);
    bool findRecord(std::string_view field, std::int32_t value);

    /// The field's value, null included.
    Variant field(std::string_view field) const;
    /// The idiom of every reader: a null leaves the target as it was. True when the target was written.
    template <class Value>
    bool read(std::string_view field, Value& target) const
    {
        Variant value = this->field(field);
        if (isNull(value))
            return false;
        statement([&] { convert(std::move(value), target); });
        return true;
    }

    /// The idiom of every writer: booleans as True and False, dates as date text, numbers as decimal text.
    template <class Value>
    void write(std::string_view field, const Value& value)
    {
        writeText(field, asText(value));
    }

    void addNew();
    template <class Value>
    void writeNew(std::string_view field, const Value& value)
    {
        writeNewText(field, asText(value));
    }
    void update();
    bool deleteRecord();

private:
    RecordSet() = default;
    RecordSet(std::string_view sql, std::int32_t lock);

    static bool isNull(const Variant& value);
    static void convert(Variant&& value, std::string& target) { target = std::move(value).toText(); }
    static void convert(Variant&& value, Date& target) { target = value.toDate(); }
    static void convert(Variant&& value, bool& target) { target = value.toBoolean(); }
    static void convert(Variant&& value, double& target) { target = value.toReal(); }
    static void convert(Variant&& value, float& target) { target = static_cast<float>(value.toReal()); }
    template <class Integer>
        requires std::is_integral_v<Integer>
    static void convert(Variant&& value, Integer& target)
    {
        target = static_cast<Integer>(toIntegerIn<Integer>(value));
    }
    template <class Integer>
    static std::int32_t toIntegerIn(const Variant& value)
    {
        return checkedInteger(value, std::numeric_limits<Integer>::min(), std::numeric_limits<Integer>::max());
    }
    static std::int32_t checkedInteger(const Variant& value, std::int64_t lowest, std::int64_t highest);

    static std::string_view asText(std::string_view value) { return value; }
    static std::string asText(bool value) { return booleanText(value); }
    static std::string asText(const Date& value) { return defaultDateText(value); }
    template <class Number>
        requires(std::is_arithmetic_v<Number> && !std::is_same_v<Number, bool>)
    static std::string asText(Number value) { return numberText(static_cast<double>(value)); }

    void writeText(std::string_view field, std::string_view value);
    void writeNewText(std::string_view field, std::string_view value);

    std::shared_ptr<DatabaseService> service_;
    std::int32_t handle_ = 0;
    bool owned_ = false;
};

} // namespace qncal
