#pragma once

#include "core/AutoNotifyService.h"
#include "core/ClientDropDownService.h"
#include "core/DatabaseService.h"
#include "core/ErrorControlService.h"
#include "core/LocaleService.h"
#include "core/MessageDialogService.h"
#include "utilities/DateTimeService.h"
#include "utilities/FileService.h"
#include "utilities/UtilityService.h"

#include <memory>

namespace qncal {

/// The services of this thread. The host's references stay until the thread ends; the last three are made by
/// the component and are replaced whenever a `clsCalendarSetCtrl` or `clsCalendarItem` is created.
struct ServiceRegistry {
    std::shared_ptr<ErrorControlService> errorControl;
    bool errorControlPresent = false;
    std::shared_ptr<MessageDialogService> messageDialogs;
    bool messageDialogsPresent = false;
    std::shared_ptr<DatabaseService> database;
    std::shared_ptr<AutoNotifyService> autoNotify;
    std::shared_ptr<LocaleService> locale;
    std::shared_ptr<ClientDropDownService> clientDropDown;
    std::shared_ptr<UtilityService> utility;
    std::shared_ptr<DateTimeService> dateTime;
    std::shared_ptr<FileService> file;
};

ServiceRegistry& serviceRegistry();

/// Puts new instances of the component's own three services into the registry.
void createComponentServices();
/// Empties the slots of the component's own three services.
void releaseComponentServices();

/// The service in a slot. An empty slot is run-time error 91.
ErrorControlService& errorControlService();
MessageDialogService& messageDialogService();
DatabaseService& databaseService();
AutoNotifyService& autoNotifyService();
LocaleService& localeService();
ClientDropDownService& clientDropDownService();
UtilityService& utilityService();
DateTimeService& dateTimeService();
FileService& fileService();

} // namespace qncal
