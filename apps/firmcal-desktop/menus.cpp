#include "firmcal-desktop/menus.h"

#include "firmcal-desktop/MainWindow.h"
#include "firmcal-desktop/commands.h"
#include "firmcal-desktop/settingsCommands.h"

#include <QMenu>
#include <QMenuBar>

namespace qncal::desktop {

namespace {

void addCommand(QMenu& menu, MainWindow& window, const Command& command)
{
    if (!command.name) {
        menu.addSeparator();
        return;
    }
    if (!command.run) {
        QMenu* statuses = menu.addMenu(QObject::tr(command.text));
        statuses->setObjectName(command.name);
        fillWithStatuses(*statuses, window);
        return;
    }
    QAction* action = menu.addAction(QObject::tr(command.text));
    action->setObjectName(command.name);
    if (command.shortcut)
        action->setShortcut(QKeySequence::fromString(command.shortcut, QKeySequence::PortableText));
    action->setProperty("needsItem", command.needsItem);
    QObject::connect(action, &QAction::triggered, &window,
                     [&window, run = command.run] { window.perform([&window, run] { run(window); }); });
}

} // namespace

void addMenus(MainWindow& window)
{
    for (const CommandMenu& entries : commandMenus()) {
        QMenu* menu = window.menuBar()->addMenu(QObject::tr(entries.text));
        menu->setObjectName(entries.name);
        for (const Command& command : entries.commands)
            addCommand(*menu, window, command);
    }
}

} // namespace qncal::desktop
