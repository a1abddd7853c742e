#pragma once

#include <QWidget>

class QGridLayout;

namespace qncal {

class Form;

namespace host {

/// The page "Colour Schemes", for any window whose form has the page's controls: the list of schemes, and beside it
/// the name, the four colours and a preview.
class ColourSchemePageWidget : public QWidget {
public:
    explicit ColourSchemePageWidget(Form& form, QWidget* parent = nullptr);

private:
    QGridLayout* newFields(Form& form);
    QWidget* newPreview(Form& form);
};

} // namespace host
} // namespace qncal
