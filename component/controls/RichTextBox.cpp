#include "controls/RichTextBox.h"

#include "controls/DialogHost.h"
#include "controls/richTextStream.h"
#include "utilities/codePoints.h"

#include <algorithm>

namespace qncal {

std::string RichTextBox::text() const { return visibleTextOf(textRTF_); }

void RichTextBox::insertText(std::int32_t position, std::string_view plainText)
{
    if (plainText.empty())
        return;
    position = std::max(position, 0);
    std::string stream = textRTF_;
    const bool rich = isRichTextStream(stream);
    const std::size_t offset = rich ? streamOffsetOf(stream, position)
                                    : truncatedToCodePoints(stream, static_cast<std::size_t>(position)).size();
    stream.insert(offset, rich ? escapedForStream(plainText) : std::string(plainText));
    selStart_ = position + static_cast<std::int32_t>(countCodePoints(plainText));
    selLength_ = 0;
    textRTF(std::move(stream));
}

bool RichTextBox::print() const
{
    const auto host = dialogHost();
    return host && host->print(*this);
}

} // namespace qncal
