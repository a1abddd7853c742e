#include "server/entryPoints.h"

#include "items/clsCalendarItem.h"
#include "server/classRegistration.h"
#include "server/publicClasses.h"
#include "support/DataHome.h"

#include <gtest/gtest.h>

#include <dlfcn.h>
#include <fstream>
#include <iterator>

namespace qncal {
namespace {

/// The entry points as a host finds them: by name, in the library loaded at run time.
class entryPointsTest : public testing::Test {
protected:
    entryPointsTest() : library_(dlopen(QNCAL_COMPONENT_LIBRARY, RTLD_NOW | RTLD_LOCAL))
    {
        EXPECT_NE(library_, nullptr) << dlerror();
        getClassObject = find<decltype(getClassObject)>("DllGetClassObject");
        canUnloadNow = find<decltype(canUnloadNow)>("DllCanUnloadNow");
        registerServer = find<decltype(registerServer)>("DllRegisterServer");
        unregisterServer = find<decltype(unregisterServer)>("DllUnregisterServer");
    }
    ~entryPointsTest() override { dlclose(library_); }

    const ClassFactory* factoryOf(const Guid& classId)
    {
        void* factory = nullptr;
        EXPECT_EQ(getClassObject(&classId, &ClassFactory::interfaceId, &factory), hresult::ok);
        return static_cast<const ClassFactory*>(factory);
    }

    HResult (*getClassObject)(const Guid*, const Guid*, void**) = nullptr;
    HResult (*canUnloadNow)() = nullptr;
    HResult (*registerServer)() = nullptr;
    HResult (*unregisterServer)() = nullptr;
    test::DataHome dataHome;

private:
    template <class Function>
    Function find(const char* name)
    {
        void* const symbol = dlsym(library_, name);
        EXPECT_NE(symbol, nullptr) << name;
        return reinterpret_cast<Function>(symbol);
    }

    void* library_;
};

constexpr Guid itemId = guid("4c1cfba7-e047-4bbf-b50e-516f69e0cb1b");

TEST_F(entryPointsTest, MakeAnItemByItsClassId)
{
    std::shared_ptr<void> object;
    ASSERT_EQ(factoryOf(itemId)->createInstance(object), hresult::ok);
    const auto item = std::static_pointer_cast<clsCalendarItem>(object);
    EXPECT_EQ(item->itemID(), -1);
    EXPECT_NE(item->CalendarItemTypeClassRef(), nullptr);
}

TEST_F(entryPointsTest, EveryPublicClassCanBeMade)
{
    for (const PublicClass& made : publicClasses()) {
        std::shared_ptr<void> object;
        EXPECT_EQ(factoryOf(made.id)->createInstance(object), hresult::ok) << made.name;
        EXPECT_NE(object, nullptr) << made.name;
    }
}

TEST_F(entryPointsTest, TheLibraryMayGoWhenNoObjectAndNoLockIsLeft)
{
    EXPECT_EQ(canUnloadNow(), hresult::ok);
    const ClassFactory* factory = factoryOf(itemId);
    std::shared_ptr<void> first;
    std::shared_ptr<void> second;
    factory->createInstance(first);
    factory->createInstance(second);
    auto copy = first;
    first.reset();
    EXPECT_EQ(canUnloadNow(), hresult::no);
    copy.reset();
    EXPECT_EQ(canUnloadNow(), hresult::no);
    second.reset();
    EXPECT_EQ(canUnloadNow(), hresult::ok);

    factory->lockServer(true);
    EXPECT_EQ(canUnloadNow(), hresult::no);
    factory->lockServer(false);
    EXPECT_EQ(canUnloadNow(), hresult::ok);
}

TEST_F(entryPointsTest, AnUnknownClassIsNotAvailable)
{
    constexpr Guid unknown = guid("01234567-89ab-cdef-0123-456789abcdef");
    void* factory = &factory;
    EXPECT_EQ(getClassObject(&unknown, &ClassFactory::interfaceId, &factory), hresult::classNotAvailable);
    EXPECT_EQ(factory, nullptr);
}

TEST_F(entryPointsTest, AnotherInterfaceIsRefused)
{
    void* factory = &factory;
    EXPECT_EQ(getClassObject(&itemId, &itemId, &factory), hresult::noInterface);
    EXPECT_EQ(factory, nullptr);
}

TEST_F(entryPointsTest, MissingArgumentsAreRefused)
{
    void* factory = nullptr;
    EXPECT_EQ(getClassObject(nullptr, &ClassFactory::interfaceId, &factory), hresult::pointer);
    EXPECT_EQ(getClassObject(&itemId, nullptr, &factory), hresult::pointer);
    EXPECT_EQ(getClassObject(&itemId, &ClassFactory::interfaceId, nullptr), hresult::pointer);
}

TEST_F(entryPointsTest, RegisteringEntersEveryClassWithTheLibrarysPathOnce)
{
    ASSERT_EQ(registerServer(), hresult::ok);
    ASSERT_EQ(registerServer(), hresult::ok);
    const auto registered = readRegistrations(registrationFile());
    ASSERT_EQ(registered.size(), publicClasses().size());
    for (std::size_t i = 0; i < registered.size(); ++i) {
        EXPECT_EQ(registered[i].name, publicClasses()[i].name);
        EXPECT_EQ(registered[i].id, publicClasses()[i].idText);
        EXPECT_EQ(std::filesystem::path(registered[i].library), std::filesystem::canonical(QNCAL_COMPONENT_LIBRARY));
    }
    EXPECT_EQ(registrationFile(), dataHome.folder() / "qncal" / "classes.ini");
    const auto files = std::filesystem::directory_iterator(dataHome.folder() / "qncal");
    EXPECT_EQ(std::distance(begin(files), end(files)), 1) << "no draft is left behind";
}

TEST_F(entryPointsTest, ForeignClassesStayInTheFile)
{
    const ClassRegistration foreign{"theirClass", "01234567-89ab-cdef-0123-456789abcdef", "/opt/their lib.so"};
    writeRegistrations(registrationFile(), {foreign});
    ASSERT_EQ(registerServer(), hresult::ok);
    EXPECT_EQ(readRegistrations(registrationFile()).front(), foreign);
    ASSERT_EQ(unregisterServer(), hresult::ok);
    EXPECT_EQ(readRegistrations(registrationFile()), std::vector<ClassRegistration>{foreign});
}

TEST_F(entryPointsTest, UnregisteringLeavesNoFileAndMayBeRepeated)
{
    ASSERT_EQ(registerServer(), hresult::ok);
    EXPECT_EQ(unregisterServer(), hresult::ok);
    EXPECT_FALSE(std::filesystem::exists(registrationFile()));
    EXPECT_EQ(unregisterServer(), hresult::ok);
}

TEST_F(entryPointsTest, AFolderThatCannotBeMadeIsAFailure)
{
    std::ofstream(dataHome.folder() / "qncal") << "a file stands where the folder should";
    EXPECT_EQ(registerServer(), hresult::registrationFailed);
}

TEST_F(entryPointsTest, LinesThatAreNotKnownArePassedOver)
{
    std::filesystem::create_directories(dataHome.folder() / "qncal");
    std::ofstream(registrationFile()) << "; a comment\nid=lost\n\n[a]\nid=1\nlibrary=/l.so\nnote=x\n[b]\n";
    EXPECT_EQ(readRegistrations(registrationFile()),
              (std::vector<ClassRegistration>{{"a", "1", "/l.so"}, {"b", "", ""}}));
}

TEST(GuidTest, ReadsItsTextAndNothingElse)
{
    constexpr Guid id = guid("01234567-89ab-cdef-0123-456789abcdef");
    EXPECT_EQ(id.data1, 0x01234567u);
    EXPECT_EQ(id.data2, 0x89ab);
    EXPECT_EQ(id.data3, 0xcdef);
    EXPECT_EQ(id.data4, (std::array<std::uint8_t, 8>{0x01, 0x23, 0x45, 0x67, 0x89, 0xab, 0xcd, 0xef}));
    for (const char* text : {"", "01234567", "01234567-89ab-cdef-0123-456789abcdeg",
                             "01234567+89ab-cdef-0123-456789abcdef", "{01234567-89ab-cdef-0123-456789abcdef}"})
        EXPECT_FALSE(parseGuid(text)) << text;
}

} // namespace
} // namespace qncal
