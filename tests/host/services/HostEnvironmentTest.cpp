#include "services/HostEnvironment.h"

#include "items/clsCalendarItem.h"
#include "services/Rows.h"
#include "store/SqliteDatabase.h"
#include "utilities/RunTimeError.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace qncal::host {
namespace {

std::shared_ptr<SqliteDatabase> memory() { return SqliteDatabase::openInMemory(); }

TEST(HostEnvironment, WiresEveryServiceIntoTheComponent)
{
    const HostEnvironment host(HostServices{.database = memory()});
    const ServiceRegistry& registry = serviceRegistry();
    EXPECT_EQ(registry.database.get(), &host.database());
    EXPECT_EQ(registry.errorControl.get(), &host.errors());
    EXPECT_EQ(registry.messageDialogs.get(), &host.messages());
    EXPECT_EQ(registry.locale.get(), &host.locale());
    EXPECT_EQ(registry.clientDropDown.get(), &host.clients());
    EXPECT_EQ(registry.autoNotify.get(), &host.notifications());
    EXPECT_TRUE(registry.errorControlPresent);
    EXPECT_TRUE(registry.messageDialogsPresent);
    ASSERT_TRUE(registry.utility);
    EXPECT_EQ(registry.utility->errorControl(), registry.errorControl);
}

TEST(HostEnvironment, TakesTheServicesItIsGiven)
{
    const auto locale = std::make_shared<Locale>(Locale::Values{LocaleService::unitedStates, 0, "Ledger", 3, 4});
    const HostEnvironment host(HostServices{.database = memory(), .locale = locale});
    EXPECT_EQ(&host.locale(), locale.get());
    EXPECT_EQ(serviceRegistry().locale, locale);
}

TEST(HostEnvironment, AtItsEndTheComponentHasWhatItHadBefore)
{
    {
        const HostEnvironment outer(HostServices{.database = memory()});
        {
            const HostEnvironment inner(HostServices{.database = memory()});
            EXPECT_EQ(serviceRegistry().database.get(), &inner.database());
        }
        EXPECT_EQ(serviceRegistry().database.get(), &outer.database());
    }
    EXPECT_FALSE(serviceRegistry().database);
    EXPECT_FALSE(serviceRegistry().errorControl);
}

TEST(HostEnvironment, NeedsADatabase)
{
    EXPECT_THROW(HostEnvironment(HostServices{}), RunTimeError);
    EXPECT_THROW(HostEnvironment("/nonexistent/firm.db"), RunTimeError);
    EXPECT_FALSE(serviceRegistry().errorControl);
}

TEST(HostEnvironment, AnItemGoesToItsDatabaseAndBack)
{
    const std::filesystem::path file = std::filesystem::path(testing::TempDir()) / "hostEnvironmentTest.db";
    std::filesystem::remove(file);
    SqliteDatabase::create(file)->close();
    std::int32_t id = -1;
    {
        const HostEnvironment host(file.string());
        clsCalendarItem item;
        item.calendarItemType(enumLocalCalendarAppointmentItem);
        item.Subject("Year end");
        EXPECT_TRUE(item.saveCalendarItem());
        id = item.itemID();
        EXPECT_TRUE(host.errors().reports().empty());
    }
    const HostEnvironment host(file.string());
    clsCalendarItem item;
    item.calendarItemType(enumLocalCalendarAppointmentItem);
    item.itemID(id);
    EXPECT_TRUE(item.loadCalendarItem());
    EXPECT_EQ(item.Subject(), "Year end");
    std::filesystem::remove(file);
}

} // namespace
} // namespace qncal::host
