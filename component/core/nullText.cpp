#include "core/nullText.h"

#include "core/ServiceRegistry.h"
#include "core/routineScope.h"

namespace qncal {

bool isNullText(const std::string& text)
{
    return statement([&] { return utilityService().isNullValue(text); });
}

} // namespace qncal
