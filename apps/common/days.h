#pragma once

#include "core/DatabaseService.h"
#include "utilities/Date.h"

#include <string>

namespace qncal::firmcal {

/// From a day to a day, both included.
struct Span {
    Date from;
    Date to;
};

/// Monday to Sunday.
Span weekOf(Date day);

/// The names of the holidays of a day, joined by commas.
std::string holidaysOn(DatabaseService& database, Date day);

} // namespace qncal::firmcal
