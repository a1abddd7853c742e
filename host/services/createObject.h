#pragma once

#include <memory>
#include <string_view>

namespace qncal::host {

/// A new object of a registered class of the calendar component, by the class's name: found in the user's
/// registration file, its library loaded at run time. The library stays loaded to the end of the process.
/// Throws `std::runtime_error` saying what is missing: the registration, the library, its entry point or the class.
std::shared_ptr<void> createObject(std::string_view className);

/// The same as an object of that class: `createObject<clsCalendarItem>("clsCalendarItem")`.
template <class Class>
std::shared_ptr<Class> createObject(std::string_view className)
{
    return std::static_pointer_cast<Class>(createObject(className));
}

} // namespace qncal::host
