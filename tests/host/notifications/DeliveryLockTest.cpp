#include "notifications/DeliveryLock.h"

#include "host/store/StoreFactory.h"

#include <filesystem>
#include <fstream>
#include <memory>

namespace qncal::host {
namespace {

TEST(DeliveryLockTest, IsHeldByOneAtATime)
{
    const TemporaryFolder folder;
    auto first = std::make_unique<DeliveryLock>(folder.file("lock"));
    EXPECT_TRUE(first->isHeld());
    const DeliveryLock second(folder.file("lock"));
    EXPECT_FALSE(second.isHeld());
    EXPECT_EQ(second.error(), "") << "that another has it is no error";
    EXPECT_TRUE(DeliveryLock(folder.file("other")).isHeld());
    first.reset();
    EXPECT_TRUE(DeliveryLock(folder.file("lock")).isHeld());
}

TEST(DeliveryLockTest, SaysWhyNoFileCanBe)
{
    const TemporaryFolder folder;
    const std::string file = folder.file("none/lock");
    const DeliveryLock lock(file);
    EXPECT_FALSE(lock.isHeld());
    EXPECT_EQ(lock.error(), file + ": No such file or directory");
}

TEST(DeliveryLockTest, OfADatabaseIsTheSameByWhateverPath)
{
    const TemporaryFolder folder;
    std::ofstream(folder.file("firm.db")) << "";
    std::filesystem::create_symlink(folder.file("firm.db"), folder.file("link.db"));
    const auto lock = DeliveryLock::ofDatabase(folder.file("firm.db"));
    EXPECT_TRUE(lock.isHeld());
    EXPECT_FALSE(DeliveryLock::ofDatabase(folder.file("link.db")).isHeld());
    EXPECT_FALSE(DeliveryLock::ofDatabase(std::filesystem::relative(folder.file("firm.db")).string()).isHeld());
    EXPECT_TRUE(std::filesystem::exists(folder.file("firm.db-notify")));
}

} // namespace
} // namespace qncal::host
