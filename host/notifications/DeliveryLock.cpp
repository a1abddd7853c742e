#include "notifications/DeliveryLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace qncal::host {

DeliveryLock::DeliveryLock(const std::string& file)
{
    constexpr int forOwnerAndGroup = 0660;
    const int descriptor = open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, forOwnerAndGroup);
    if (descriptor < 0)
        return;
    if (flock(descriptor, LOCK_EX | LOCK_NB) == 0)
        descriptor_ = descriptor;
    else
        close(descriptor);
}

DeliveryLock::~DeliveryLock()
{
    if (descriptor_ >= 0)
        close(descriptor_);
}

} // namespace qncal::host
