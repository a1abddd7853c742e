#pragma once

class QMenu;

namespace qncal::desktop {

class MainWindow;

/// Each opens a dialog of the component for the kind of item that the window shows.

void openStatusFields(MainWindow& window);
/// `number` is 1 to 5.
void openStatusOptions(MainWindow& window, int number);
void openCustomFields(MainWindow& window);
void openColourSchemes(MainWindow& window);

/// Fills a menu with an entry for each status, under its present name, whenever it comes up.
void fillWithStatuses(QMenu& menu, MainWindow& window);

} // namespace qncal::desktop
