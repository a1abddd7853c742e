#pragma once

namespace qncal::desktop {

class MainWindow;

/// Gives the window its menus, each entry a `QAction` under its command's name.
void addMenus(MainWindow& window);

} // namespace qncal::desktop
