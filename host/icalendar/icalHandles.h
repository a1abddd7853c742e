#pragma once

#include <libical/ical.h>

#include <memory>

namespace qncal::host::icalendar {

/// Owners of what the iCalendar library hands out.
template <auto release>
struct Release {
    template <class Object>
    void operator()(Object* object) const
    {
        release(object);
    }
};

using PropertyHandle = std::unique_ptr<icalproperty, Release<icalproperty_free>>;
using ComponentHandle = std::unique_ptr<icalcomponent, Release<icalcomponent_free>>;
using RecurrenceHandle = std::unique_ptr<icalrecur_iterator, Release<icalrecur_iterator_free>>;

} // namespace qncal::host::icalendar
