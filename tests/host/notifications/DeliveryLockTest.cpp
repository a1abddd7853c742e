#include "notifications/DeliveryLock.h"

#include "host/store/StoreFactory.h"

#include <memory>

namespace qncal::host {
namespace {

TEST(DeliveryLockTest, IsHeldByOneAtATime)
{
    const TemporaryFolder folder;
    auto first = std::make_unique<DeliveryLock>(folder.file("lock"));
    EXPECT_TRUE(first->isHeld());
    EXPECT_FALSE(DeliveryLock(folder.file("lock")).isHeld());
    EXPECT_TRUE(DeliveryLock(folder.file("other")).isHeld());
    first.reset();
    EXPECT_TRUE(DeliveryLock(folder.file("lock")).isHeld());
}

TEST(DeliveryLockTest, IsNotHeldWhereNoFileCanBe)
{
    const TemporaryFolder folder;
    EXPECT_FALSE(DeliveryLock(folder.file("none/lock")).isHeld());
}

} // namespace
} // namespace qncal::host
