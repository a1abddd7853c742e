#pragma once

#include <QString>

#include <string_view>

class QTextDocument;

namespace qncal::host {

/// Replaces the document's content by a rich-text stream: fonts, sizes, bold, italic, underline, strike-out, colours,
/// alignment, indents, tab stops and bullets. Any bytes are taken; what is not understood is passed over. A text that
/// is no stream is taken as plain text.
///
/// Black is taken as the ink of the paper: it follows the palette, so that it shows on a dark one, too.
void readRichText(std::string_view richText, QTextDocument& document);

/// The document's text as the component counts it: a line feed for each paragraph or line break.
QString visibleText(const QTextDocument& document);

} // namespace qncal::host
