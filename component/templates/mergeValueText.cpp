#include "templates/mergeValueText.h"

#include "core/ServiceRegistry.h"
#include "core/routineScope.h"
#include "utilities/Variant.h"
#include "utilities/dateText.h"
#include "utilities/numberText.h"

namespace qncal {

std::string hoursText(double hours)
{
    const std::int32_t minutes = Variant(hours * 60).toInteger();
    return statement([&] { return dateTimeService().getDurationText(minutes); });
}

std::string mergeValueText(std::string value, MergeDataType type, const std::string& dateFormat)
{
    switch (type) {
    case MergeDataType::text:
        break;
    case MergeDataType::date: {
        const Date date = Variant(std::move(value)).toDate();
        if (date.civilDate().year < 1900)
            return {};
        return formatDate(date, dateFormat.empty() ? mergeDateFormat : dateFormat);
    }
    case MergeDataType::time:
        return formatDate(Variant(std::move(value)).toDate(), mergeTimeFormat);
    case MergeDataType::currency:
        return formatNumber(Variant(std::move(value)).toReal(), "$#,##0.00;$-#,##0.00");
    case MergeDataType::yesNo:
        return Variant(std::move(value)).toBoolean() ? "Yes" : "No";
    case MergeDataType::hours:
        return hoursText(Variant(std::move(value)).toReal());
    }
    return value;
}

} // namespace qncal
