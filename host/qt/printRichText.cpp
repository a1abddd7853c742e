#include "qt/printRichText.h"

#include "qt/richTextReader.h"

#include <QPrintDialog>
#include <QPrinter>
#include <QTextDocument>

namespace qncal::host {

bool printRichText(std::string_view richText, QWidget* owner, const std::function<bool(QPrinter&)>& choose)
{
    QPrinter printer(QPrinter::HighResolution);
    const bool chosen = choose ? choose(printer) : QPrintDialog(&printer, owner).exec() == QDialog::Accepted;
    if (!chosen || !printer.isValid())
        return false;
    QTextDocument document;
    readRichText(richText, document);
    document.print(&printer);
    return true;
}

} // namespace qncal::host
