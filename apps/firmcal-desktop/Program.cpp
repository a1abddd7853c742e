#include "firmcal-desktop/Program.h"

#include "common/openDatabase.h"
#include "firmcal-desktop/MainWindow.h"
#include "firmcal-desktop/ReminderTimer.h"

#include <QApplication>

#include <ostream>

namespace qncal::desktop {

int showDesktop(const Options& options, std::ostream& err)
{
    try {
        const auto database = firmcal::openDatabase(options.database);
        int status = 0;
        {
            DesktopHost host(database, options.user);
            MainWindow window(host);
            window.show();
            window.reminders().start();
            status = QApplication::exec();
        }
        database->close();
        return status;
    } catch (const std::exception& error) {
        err << "firmcal-desktop: " << error.what() << '\n';
        return 1;
    }
}

bool hasDisplay()
{
    for (const char* variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        if (!qEnvironmentVariableIsEmpty(variable))
            return true;
    return false;
}

} // namespace qncal::desktop
