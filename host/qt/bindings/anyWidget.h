#pragma once

class QMenuBar;
class QWidget;

namespace qncal {

class Control;
class Form;

namespace host {

/// A new widget that shows the control, of the kind that suits it; for a rich text with its tool bar. A label for a
/// kind that is not known.
QWidget* newWidgetFor(Control& control, QWidget& parent);

/// A menu bar of the form's menu entries, each under its parent; none when it has no entries.
QMenuBar* newMenuBarFor(const Form& form, QWidget& parent);

} // namespace host
} // namespace qncal
