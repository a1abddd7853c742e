#pragma once

#include "firmcal/firmTemplates.h"

#include <CLI/App.hpp>

#include <string>
#include <string_view>

namespace qncal::firmcal {

class CommandContext;
struct MergeFieldList;

/// Where a template is taken from.
struct TemplateSource {
    std::string file;
    std::string text;
    bool hasText = false;
};

/// The argument FILE and the option --text.
void addSourceOptions(CLI::App& command, TemplateSource& source);
/// Whether the command line names a template.
bool isGiven(const TemplateSource& source);
/// The text of the template; plain text with the line ends that templates are stored with, << and >> as « and ».
/// Throws `Failure` for a file that cannot be read and for bytes that are no UTF-8 text.
std::string readTemplate(CommandContext& context, const TemplateSource& source);

/// Throws `Failure` with the message of the template check when the template has a fault.
void checkTemplate(CommandContext& context, const MergeFieldList& list, const std::string& text);

/// What a template or a rendered text reads as: without the formatting of rich text, lines ending in line feeds.
std::string readableText(std::string_view text);
/// The lines of a readable text, each behind the indent.
std::string indented(std::string_view text, std::string_view indent);

} // namespace qncal::firmcal
