#include "notifications/DeliveryLock.h"

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <system_error>
#include <unistd.h>

namespace qncal::host {

DeliveryLock::DeliveryLock(const std::string& file)
{
    constexpr int forOwnerAndGroup = 0660;
    const int descriptor = open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, forOwnerAndGroup);
    if (descriptor >= 0 && flock(descriptor, LOCK_EX | LOCK_NB) == 0) {
        descriptor_ = descriptor;
        return;
    }
    if (errno != EWOULDBLOCK)
        error_ = file + ": " + std::generic_category().message(errno);
    if (descriptor >= 0)
        close(descriptor);
}

DeliveryLock DeliveryLock::ofDatabase(const std::string& databaseFile)
{
    std::error_code ignored;
    const std::filesystem::path file = std::filesystem::weakly_canonical(databaseFile, ignored);
    return DeliveryLock((file.empty() ? databaseFile : file.string()) + "-notify");
}

DeliveryLock::~DeliveryLock()
{
    if (descriptor_ >= 0)
        close(descriptor_);
}

} // namespace qncal::host
