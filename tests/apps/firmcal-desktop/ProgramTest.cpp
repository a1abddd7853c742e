#include "firmcal-desktop/Program.h"

#include "store/SqliteDatabase.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QMainWindow>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <map>
#include <sstream>

namespace qncal::desktop {
namespace {

struct ProgramTest : testing::Test {
    int show(const Options& options) { return showDesktop(options, err); }
    QTemporaryDir folder;
    std::string file = folder.filePath("firm.db").toStdString();
    std::ostringstream err;
};

TEST_F(ProgramTest, WithoutADatabaseItEndsWithOneLine)
{
    EXPECT_EQ(show({}), 1);
    EXPECT_EQ(err.str(), "firmcal-desktop: no database given; use --database FILE or set FIRMCAL_DATABASE\n");
}

TEST_F(ProgramTest, AFileThatIsNoDatabaseIsToldInOneLine)
{
    EXPECT_EQ(show({.database = __FILE__}), 1);
    EXPECT_EQ(err.str().find("firmcal-desktop: "), 0u);
    EXPECT_EQ(std::ranges::count(err.str(), '\n'), 1);
}

TEST_F(ProgramTest, AnUnknownUserIsToldInOneLine)
{
    host::SqliteDatabase::create(file);
    EXPECT_EQ(show({.database = file, .user = "Nobody"}), 1);
    EXPECT_EQ(err.str(), "firmcal-desktop: no user 'Nobody'; 'firmcal user list' shows them\n");
}

TEST_F(ProgramTest, EndsWhenTheWindowIsClosed)
{
    host::SqliteDatabase::create(file);
    QTimer closer;
    QObject::connect(&closer, &QTimer::timeout, &closer, [] {
        for (QWidget* window : QApplication::topLevelWidgets())
            if (qobject_cast<QMainWindow*>(window) && window->isVisible())
                window->close();
    });
    closer.start(1);
    EXPECT_EQ(show({.database = file}), 0);
    EXPECT_EQ(err.str(), "");
}

TEST(HasDisplayTest, AsksTheEnvironment)
{
    constexpr const char* variables[] = {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"};
    std::map<const char*, QByteArray> before;
    for (const char* variable : variables) {
        before[variable] = qgetenv(variable);
        qunsetenv(variable);
    }
    EXPECT_FALSE(hasDisplay());
    for (const char* variable : variables) {
        qputenv(variable, "something");
        EXPECT_TRUE(hasDisplay()) << variable;
        qunsetenv(variable);
    }
    for (const char* variable : variables)
        if (!before[variable].isEmpty())
            qputenv(variable, before[variable]);
}

} // namespace
} // namespace qncal::desktop
