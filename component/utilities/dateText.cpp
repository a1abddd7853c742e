#include "utilities/dateText.h"

namespace qncal {
std::string formatDate(Date value, std::string_view) { return defaultDateText(value); }
std::optional<Date> parseDate(std::string_view) { return std::nullopt; }
}
