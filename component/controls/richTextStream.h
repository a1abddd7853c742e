#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace qncal {

/// True for a text that begins as a rich-text stream does.
bool isRichTextStream(std::string_view text);

/// The visible text of a stream as UTF-8, paragraphs and line breaks as line feeds. What is no stream comes back
/// as it is. Any bytes are taken: unknown control words and destinations are passed over.
std::string visibleTextOf(std::string_view richText);

/// The place in the stream before which a character inserted at that position of the visible text belongs; the
/// end of the text when the position lies behind it.
std::size_t streamOffsetOf(std::string_view richText, std::int32_t position);

/// Plain UTF-8 text as it stands inside a stream: backslash and braces escaped, line ends as \par, characters
/// outside of ASCII as \'xx or \uN.
std::string escapedForStream(std::string_view plainText);

/// A whole stream around an escaped or formatted body, in the font that the component writes.
std::string streamAround(std::string_view body);

} // namespace qncal
