#pragma once

#include "core/calendarItemKinds.h"

namespace qncal {

/// Views and kinds share their numbers.
constexpr enumLocalCalendarItemType kindOfView(enumFormDayTimerType view)
{
    return static_cast<enumLocalCalendarItemType>(view);
}
constexpr enumFormDayTimerType viewOfKind(enumLocalCalendarItemType kind)
{
    return static_cast<enumFormDayTimerType>(kind);
}

/// Creates a dialog and, for a view that has a kind, hands it to `initialise`, which shows it. For any other view the
/// dialog is created all the same, and goes without having been initialised.
template <class CreateForm, class Initialise>
void openForKind(enumFormDayTimerType view, CreateForm createForm, Initialise initialise)
{
    const auto form = createForm();
    if (isKnownKind(kindOfView(view)))
        initialise(*form, kindOfView(view));
}

} // namespace qncal
