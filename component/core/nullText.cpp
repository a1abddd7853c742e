#include "core/nullText.h"

#include "core/routineScope.h"
#include "core/ServiceRegistry.h"

namespace qncal {

bool isNullText(const std::string& text)
{
    return statement([&] { return utilityService().isNullValue(text); });
}

} // namespace qncal
