#include "qt/windows/TestCommentWindow.h"

#include "controls/RichTextBox.h"
#include "controls/captionedControls.h"
#include "qt/widgets/RichTextEdit.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace qncal::host {

TestCommentWindow::TestCommentWindow(Form& form, QWidget* parent) : FormWindow(form, parent)
{
    auto* text = add<RichTextEdit, RichTextBox>("rtbClientNotes");
    text->setMinimumSize(fontMetrics().averageCharWidth() * 60, fontMetrics().height() * 12);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(addLabelFor(text, "lblHeading"));
    layout->addWidget(text, 1);
    layout->addLayout(addButtons({"cmdOk"}));
    finish();
}

} // namespace qncal::host
