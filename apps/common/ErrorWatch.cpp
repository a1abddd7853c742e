#include "common/ErrorWatch.h"

#include "common/Failure.h"

namespace qncal::firmcal {

void ErrorWatch::throwIfReported()
{
    if (errors_.reportCount() == seen_)
        return;
    markSeen();
    throw Failure(errors_.reports().back().error.text);
}

} // namespace qncal::firmcal
