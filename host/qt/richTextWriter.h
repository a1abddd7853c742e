#pragma once

#include <string>

class QTextDocument;

namespace qncal::host {

/// The document as a rich-text stream of what `readRichText` understands: reading it gives the same document.
std::string writeRichText(const QTextDocument& document);

} // namespace qncal::host
