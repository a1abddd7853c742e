#include "firmcal/itemTexts.h"

#include "common/itemKind.h"
#include "firmcal/CommandContext.h"
#include "firmcal/itemCommands.h"
#include "firmcal/templateText.h"

#include <nlohmann/json.hpp>

#include <ostream>

namespace qncal::firmcal {

namespace {

struct RenderOptions {
    ItemReference item;
    bool rich = false;
    bool title = false;
    bool display = false;
};

void render(CommandContext& context, const RenderOptions& options)
{
    clsCalendarItem item;
    load(context, item, options.item);
    const ItemTexts texts = options.rich ? renderTexts(context, item) : readableTexts(context, item);
    if (context.options().json)
        return context.printJson({{"kind", kindWord(item.calendarItemType())},
                                  {"itemID", item.itemID()},
                                  {"title", texts.title},
                                  {"display", texts.display}});
    if (options.title || options.display) {
        context.out() << (options.title ? texts.title : texts.display) << '\n';
        return;
    }
    context.out() << "Title bar\n"
                  << indented(texts.title.empty() ? "(none)" : texts.title, "  ") << "\nDisplay text\n"
                  << indented(texts.display, "  ") << '\n';
}

} // namespace

ItemTexts renderTexts(CommandContext& context, clsCalendarItem& item)
{
    ItemTexts texts{item.createTitleBarTextByID(), item.createDisplayTextByID()};
    context.throwIfComponentFailed();
    return texts;
}

ItemTexts readableTexts(CommandContext& context, clsCalendarItem& item)
{
    const ItemTexts texts = renderTexts(context, item);
    return {readableText(texts.title), readableText(texts.display)};
}

void addRenderCommand(CLI::App& item, CommandContext& context)
{
    CLI::App* command = item.add_subcommand("render", "Show the texts of an item as the calendar shows them");
    auto options = std::make_shared<RenderOptions>();
    addReference(*command, options->item);
    command->add_flag("--rtf", options->rich,
                      "The texts as they are, rich text included, instead of what they read as");
    CLI::Option* title = command->add_flag("--title", options->title, "The text of the title bar alone");
    command->add_flag("--display", options->display, "The display text alone")->excludes(title);
    command->footer("The texts are made from the firm's templates; see 'firmcal template --help'.\n"
                    "Examples:\n"
                    "  firmcal item render 12\n"
                    "  firmcal item render 7 --kind task --display --rtf > text.rtf");
    command->callback([&context, options] { render(context, *options); });
}

} // namespace qncal::firmcal
