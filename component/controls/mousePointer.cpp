#include "controls/mousePointer.h"

namespace qncal {

MousePointer mousePointer()
{
    const auto host = dialogHost();
    return host ? host->mousePointer() : MousePointer::standard;
}

void mousePointer(MousePointer pointer)
{
    if (const auto host = dialogHost())
        host->mousePointer(pointer);
}

} // namespace qncal
