#include "firmcal/templateText.h"

#include "common/Failure.h"
#include "controls/richTextStream.h"
#include "firmcal/CommandContext.h"
#include "firmcal/mergeFields.h"
#include "services/HostEnvironment.h"
#include "templates/delimiters.h"
#include "utilities/RunTimeError.h"
#include "utilities/replaceText.h"
#include "utilities/utf8.h"

#include <filesystem>
#include <fstream>
#include <istream>
#include <iterator>

namespace qncal::firmcal {

namespace {

constexpr std::string_view lineEnd = "\r\n";

std::string contents(std::istream& in) { return {std::istreambuf_iterator<char>(in), {}}; }

std::string fileContents(const std::string& name)
{
    std::ifstream file(name, std::ios::binary);
    if (!file.is_open() || std::filesystem::is_directory(name))
        throw Failure("cannot read " + name);
    return contents(file);
}

bool isUtf8(std::string_view text)
{
    while (!text.empty()) {
        const Utf8Character character = decodeUtf8(text);
        if (!character.valid)
            return false;
        text.remove_prefix(character.length);
    }
    return true;
}

/// Text editors end the last line of a file, which is no line break of the template.
std::string withStoredLineEnds(std::string text)
{
    replaceNoCase(text, lineEnd, "\n");
    if (text.ends_with('\n'))
        text.pop_back();
    replaceNoCase(text, "\n", lineEnd);
    return text;
}

/// The check has no message for a date expression without a format, but fails.
bool failedForWantOfFormat(CommandContext& context)
{
    const auto& reports = context.host().errors().reports();
    return !reports.empty() && reports.back().error.number == errorNumber::subscriptOutOfRange;
}

} // namespace

void addSourceOptions(CLI::App& command, TemplateSource& source)
{
    CLI::Option* file =
        command.add_option("FILE", source.file, "A file with the template, plain or rich text; - for standard input");
    command.add_option("-t,--text", source.text, "The template itself")
        ->type_name("TEMPLATE")
        ->excludes(file)
        ->each([&source](const std::string&) { source.hasText = true; });
}

bool isGiven(const TemplateSource& source) { return source.hasText || !source.file.empty(); }

std::string readTemplate(CommandContext& context, const TemplateSource& source)
{
    std::string text = source.hasText       ? source.text
                       : source.file == "-" ? contents(context.streams().in)
                                            : fileContents(source.file);
    if (isRichTextStream(text))
        return text;
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (text.starts_with(byteOrderMark))
        text.erase(0, byteOrderMark.size());
    if (!isUtf8(text))
        throw Failure("the template is neither UTF-8 text nor rich text");
    text = withStoredLineEnds(std::move(text));
    // What a keyboard without « and » has. Every merge but that of an item's own values reads it too.
    replaceNoCase(text, "<<", plainDelimiters.open);
    replaceNoCase(text, ">>", plainDelimiters.close);
    return text;
}

void checkTemplate(CommandContext& context, const MergeFieldList& list, const std::string& text)
{
    const auto engine = sampleEngine(list);
    std::string message;
    engine->testErrorComment.subscribe([&](const std::string& fault) { message = fault; });
    if (!engine->testRTBComment(text, isRichTextStream(text), true, false))
        return;
    if (message.empty() && failedForWantOfFormat(context))
        throw Failure("a date expression lacks its format, as in «(Todays Date, mmmm d yyyy)»");
    context.throwIfComponentFailed();
    replaceNoCase(message, "\r\n\r\n", "  ");
    throw Failure(message);
}

std::string readableText(std::string_view text)
{
    std::string readable = visibleTextOf(text);
    // The values in a plain text have the paragraph marks of rich text before their line breaks.
    if (!isRichTextStream(text))
        replaceNoCase(readable, "\\par \r\n", "\n");
    replaceNoCase(readable, lineEnd, "\n");
    return readable;
}

std::string indented(std::string_view text, std::string_view indent)
{
    std::string lines(indent);
    for (const char c : text) {
        lines += c;
        if (c == '\n')
            lines += indent;
    }
    return lines;
}

} // namespace qncal::firmcal
