#include "core/clsCalendarSetCtrl.h"
#include "qt/QtDialogHost.h"
#include "qt/QtMessages.h"
#include "services/HostEnvironment.h"
#include "store/SqliteDatabase.h"

#include <QApplication>
#include <QTimer>

#include <iostream>

int main(int argumentCount, char** arguments)
{
    const QApplication application(argumentCount, arguments);
    const auto dialogs = std::make_shared<qncal::host::QtDialogHost>();
    const qncal::host::HostEnvironment host({.database = qncal::host::SqliteDatabase::openInMemory(),
                                             .messages = std::make_shared<qncal::host::QtMessages>(dialogs)});
    dialogs->onTurn(host.turnAction());
    qncal::setDialogHost(dialogs);

    // Plays the user, who closes the dialog.
    QTimer::singleShot(0, [] {
        QWidget* dialog = QApplication::activeModalWidget();
        std::cout << dialog->windowTitle().toStdString() << '\n';
        dialog->close();
    });
    qncal::clsCalendarSetCtrl settings;
    settings.openChangeApptStatusFieldsForm(qncal::enumFormShowAppointments);
    qncal::setDialogHost(nullptr);
}
