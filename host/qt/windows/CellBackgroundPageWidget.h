#pragma once

#include <QWidget>

class QGridLayout;

namespace qncal {

class Form;

namespace host {

/// The page "Cell Background", for any window whose form has the page's controls: a row for each weekday, a column for
/// each view, and below the views that may follow the day view the box that makes them.
class CellBackgroundPageWidget : public QWidget {
public:
    explicit CellBackgroundPageWidget(Form& form, QWidget* parent = nullptr);

private:
    void addView(QGridLayout& grid, Form& form, int column, const QString& title, const std::string& pickers);
};

} // namespace host
} // namespace qncal
