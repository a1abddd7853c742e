#include "qt/printRichText.h"

#include "qt/richTextReader.h"
#include "qt/runWindow.h"

#include <QPrintDialog>
#include <QPrinter>
#include <QTextDocument>

namespace qncal::host {

namespace {

bool choosePrinter(QPrinter& printer, QWidget* owner)
{
    return runWindow(new QPrintDialog(&printer, owner),
                     [](QPrintDialog& dialog) { return dialog.exec() == QDialog::Accepted; });
}

} // namespace

bool printRichText(std::string_view richText, QWidget* owner, const std::function<bool(QPrinter&)>& choose)
{
    QPrinter printer(QPrinter::HighResolution);
    const bool chosen = choose ? choose(printer) : choosePrinter(printer, owner);
    if (!chosen || !printer.isValid())
        return false;
    QTextDocument document;
    readRichText(richText, document);
    document.print(&printer);
    return true;
}

} // namespace qncal::host
