#include "services/createObject.h"

#include "items/clsCalendarItem.h"
#include "server/classRegistration.h"
#include "server/entryPoints.h"
#include "support/DataHome.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace qncal::host {
namespace {

class createObjectTest : public testing::Test {
protected:
    /// What the error says.
    static std::string failure(std::string_view className)
    {
        try {
            createObject(className);
        } catch (const std::runtime_error& error) {
            return error.what();
        }
        return "no error";
    }

    test::DataHome dataHome;
};

TEST_F(createObjectTest, MakesAnItemOfTheRegisteredLibrary)
{
    ASSERT_EQ(DllRegisterServer(), hresult::ok);
    const auto item = createObject<clsCalendarItem>("clsCalendarItem");
    item->Subject("made by name");
    EXPECT_EQ(item->Subject(), "made by name");
    EXPECT_EQ(DllCanUnloadNow(), hresult::no);
}

TEST_F(createObjectTest, AClassThatIsNotRegisteredIsNamed)
{
    EXPECT_NE(failure("clsCalendarItem").find("clsCalendarItem: it is not registered"), std::string::npos);
}

TEST_F(createObjectTest, ALibraryThatIsNotThereIsNamed)
{
    writeRegistrations(registrationFile(), {{"clsCalendarItem", "4c1cfba7-e047-4bbf-b50e-516f69e0cb1b", "/no/lib.so"}});
    EXPECT_NE(failure("clsCalendarItem").find("/no/lib.so"), std::string::npos);
}

TEST_F(createObjectTest, AnIdThatTheLibraryLacksIsNamed)
{
    ASSERT_EQ(DllRegisterServer(), hresult::ok);
    auto registered = readRegistrations(registrationFile());
    for (const char* id : {"01234567-89ab-cdef-0123-456789abcdef", "no id"}) {
        registered.front().id = id;
        writeRegistrations(registrationFile(), registered);
        EXPECT_NE(failure(registered.front().name).find(id), std::string::npos);
    }
}

} // namespace
} // namespace qncal::host
