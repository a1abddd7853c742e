#pragma once

namespace qncal::desktop {

class MainWindow;

/// Each acts on the item that the cursor is on, which must be there, and throws `Failure` when it cannot be done.

/// The display text as the calendar shows it.
void showItemText(MainWindow& window);
void changeStartTime(MainWindow& window);
void changeEndTime(MainWindow& window);
/// Proposes the best time of the item's day and moves it there when the user agrees.
void moveToBestTime(MainWindow& window);
void deleteItem(MainWindow& window);

} // namespace qncal::desktop
