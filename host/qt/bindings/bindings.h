#pragma once

class QAbstractButton;
class QAction;
class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;
class QScrollBar;
class QTabBar;
class QTreeWidget;
class QWidget;

namespace qncal {

class CheckBox;
class ColourPicker;
class ComboBox;
class CommandButton;
class DateTimePicker;
class Image;
class Label;
class ListBox;
class ListView;
class MenuItem;
class OptionButton;
class Panel;
class RichTextBox;
class ScrollBar;
class TabStrip;
class TextBox;
class UpDown;

namespace host {

class ColourButton;
class DateTimeEdit;
class RichTextEdit;
class UpDownButtons;

// Each ties a control model to a widget that shows it, both ways, until either goes away. The widget has the
// parent that it is to stay in.

void bind(TextBox& control, QLineEdit& widget);
void bind(TextBox& control, QPlainTextEdit& widget);
void bind(RichTextBox& control, RichTextEdit& widget);
void bind(Label& control, QLabel& widget);
/// A group box shows the caption. The widget's height goes to the model, the model's top to the widget.
void bind(Panel& control, QWidget& widget);
void bind(Image& control, QLabel& widget);
void bind(CommandButton& control, QPushButton& widget);
/// Any button that can be checked. A caption is shown only where the model has one.
void bind(CheckBox& control, QAbstractButton& widget);
void bind(OptionButton& control, QRadioButton& widget);
void bind(ComboBox& control, QComboBox& widget);
void bind(ListBox& control, QListWidget& widget);
void bind(ListView& control, QTreeWidget& widget);
void bind(DateTimePicker& control, DateTimeEdit& widget);
void bind(UpDown& control, UpDownButtons& widget);
void bind(ScrollBar& control, QScrollBar& widget);
/// Missing tabs are added; the tabs of a tab widget are there already and get their captions.
void bind(TabStrip& control, QTabBar& widget);
void bind(ColourPicker& control, ColourButton& widget);
void bind(MenuItem& control, QAction& action);

} // namespace host
} // namespace qncal
