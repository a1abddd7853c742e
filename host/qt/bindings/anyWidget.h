#pragma once

class QMenu;
class QMenuBar;
class QWidget;

namespace qncal {

class Control;
class Form;
class MenuItem;

namespace host {

/// A new widget that shows the control, of the kind that suits it; for a rich text with its tool bar. A label for a
/// kind that is not known.
QWidget* newWidgetFor(Control& control, QWidget& parent);

/// A menu bar of the form's menu entries, each under its parent; none when it has no entries.
QMenuBar* newMenuBarFor(const Form& form, QWidget& parent);
/// The entries below one as a menu of its own, for the place where the pointer is.
QMenu* newMenuFor(const MenuItem& menu, QWidget* parent);

} // namespace host
} // namespace qncal
