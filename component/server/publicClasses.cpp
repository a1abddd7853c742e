#include "server/publicClasses.h"

#include "core/clsCalendarItemType.h"
#include "core/clsCalendarSetCtrl.h"
#include "items/clsCalendarItem.h"

namespace qncal {

namespace {

template <class Class>
consteval PublicClass publicClass(std::string_view name, std::string_view idText)
{
    return {name, idText, guid(idText), []() -> std::shared_ptr<void> { return std::make_shared<Class>(); }};
}

constexpr PublicClass classes[] = {
    publicClass<clsCalendarSetCtrl>("clsCalendarSetCtrl", "a0798898-8c5e-4ab0-aa46-ca6002e13d0e"),
    publicClass<clsCalendarItem>("clsCalendarItem", "4c1cfba7-e047-4bbf-b50e-516f69e0cb1b"),
    publicClass<clsCalendarItemType>("clsCalendarItemType", "7c32365c-2fb2-4553-89ca-debb650110b5"),
};

} // namespace

std::span<const PublicClass> publicClasses() { return classes; }

} // namespace qncal
