#include "utilities/FileService.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include <unistd.h>

namespace qncal {
namespace {

class FileServiceTest : public testing::Test {
protected:
    void SetUp() override
    {
        folder = std::filesystem::path(testing::TempDir()) / ("fileService" + std::to_string(::getpid()));
        std::filesystem::create_directories(folder);
        std::ofstream(folder / "database.db") << "x";
    }

    void TearDown() override
    {
        setApplicationFolder({});
        std::filesystem::remove_all(folder);
    }

    FileService service;
    std::filesystem::path folder;
};

TEST_F(FileServiceTest, TellsFilesFromFolders)
{
    const std::string file = (folder / "database.db").string();
    EXPECT_TRUE(service.fileExists(file));
    EXPECT_FALSE(service.folderExists(file));
    EXPECT_FALSE(service.fileExists(folder.string()));
    EXPECT_TRUE(service.folderExists(folder.string()));
    for (const std::string& missing :
         {(folder / "missing.db").string(), file + "/below", std::string(), std::string(10000, 'x')}) {
        EXPECT_FALSE(service.fileExists(missing));
        EXPECT_FALSE(service.folderExists(missing));
    }
}

TEST_F(FileServiceTest, JoinsWithOneSeparator)
{
    EXPECT_EQ(service.joinPath("/data", "calendar.db"), "/data/calendar.db");
    EXPECT_EQ(service.joinPath("/data/", "calendar.db"), "/data/calendar.db");
    EXPECT_EQ(service.joinPath("", "calendar.db"), "calendar.db");
    EXPECT_EQ(service.joinPath("/", "calendar.db"), "/calendar.db");
    EXPECT_EQ(service.joinPath("/data", "sub/calendar.db"), "/data/sub/calendar.db");
    EXPECT_EQ(service.joinPath("/data", "/elsewhere/calendar.db"), "/elsewhere/calendar.db");
}

TEST_F(FileServiceTest, ApplicationFolderIsTheProgramsUntilItIsSet)
{
    EXPECT_TRUE(service.fileExists(service.joinPath(service.getApplicationFolder(), "componentTests")));
    setApplicationFolder(folder.string() + "//");
    EXPECT_EQ(service.getApplicationFolder(), folder.string());
    EXPECT_EQ(FileService().getApplicationFolder(), folder.string()) << "it outlives the service object";
    setApplicationFolder("/");
    EXPECT_EQ(service.getApplicationFolder(), "/");
    setApplicationFolder({});
    EXPECT_TRUE(service.fileExists(service.joinPath(service.getApplicationFolder(), "componentTests")));
}

} // namespace
} // namespace qncal
