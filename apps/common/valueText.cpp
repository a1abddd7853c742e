#include "common/valueText.h"

#include "utilities/dateText.h"

namespace qncal::firmcal {

std::string dayText(Date date) { return formatDate(date, "yyyy-mm-dd"); }

std::string timeText(Date time) { return formatDate(time, "hh:nn"); }

std::string readableDay(Date date) { return formatDate(date, "ddd, mmm d, yyyy"); }

std::string subjectText(std::string_view subject) { return std::string(subject.empty() ? "(no subject)" : subject); }

} // namespace qncal::firmcal
