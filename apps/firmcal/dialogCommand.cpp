#include "common/Failure.h"
#include "common/statusFields.h"
#include "controls/DialogHost.h"
#include "core/forms.h"
#include "firmcal/CommandContext.h"
#include "firmcal/commands.h"
#include "firmcal/kindOption.h"
#include "headless/HeadlessDialogHost.h"
#include "items/frmSelectStartTime.h"
#include "templates/frmTestComment.h"
#include "utilities/text.h"

#include <nlohmann/json.hpp>

#include <ostream>

namespace qncal::firmcal {

namespace {

struct DialogOptions {
    std::string name;
    std::string kind = "appointment";
    int number = 1;
    bool show = false;
};

struct Dialog {
    const char* name;
    const char* purpose;
    void (*open)(CommandContext& context, enumLocalCalendarItemType kind, int number);
};

constexpr Dialog dialogs[] = {
    {"frmSelectStartTime", "asks for a start time",
     [](CommandContext&, enumLocalCalendarItemType, int) {
         constexpr int usualStart = 9;
         frmSelectStartTime form;
         form.TimeSelected(Date::timeOf(usualStart));
         form.Initialize();
     }},
    {"frmChangeApptStatusFields", "names the status fields",
     [](CommandContext&, enumLocalCalendarItemType kind, int) { newChangeApptStatusFieldsForm()->Initialize(kind); }},
    {"frmApptStatusOptions", "name, colour and icon of a status",
     [](CommandContext& context, enumLocalCalendarItemType kind, int number) {
         const StatusFields fields = statusFields(context.host().database(), kind);
         newApptStatusOptionsForm()->Initialize(kind, fields[static_cast<std::size_t>(number - 1)].name,
                                                static_cast<std::int16_t>(number));
     }},
    {"frmApptCustomFields", "names the custom fields",
     [](CommandContext&, enumLocalCalendarItemType kind, int) { newApptCustomFieldsForm()->Initialize(kind); }},
    {"frmTestComment", "shows the text of a test merge",
     [](CommandContext&, enumLocalCalendarItemType, int) { frmTestComment().Initialize("{\\rtf1\\ansi Sample}"); }},
};

const Dialog& dialogNamed(const std::string& name)
{
    for (const Dialog& dialog : dialogs) {
        if (equalsNoCase(dialog.name, name))
            return dialog;
    }
    throw Failure("there is no dialog '" + name + "'; 'firmcal dialog' lists them");
}

void listDialogs(CommandContext& context)
{
    auto json = nlohmann::ordered_json::array();
    for (const Dialog& dialog : dialogs) {
        json.push_back({{"name", dialog.name}, {"purpose", dialog.purpose}});
        if (!context.options().json)
            context.out() << dialog.name << "  " << dialog.purpose << '\n';
    }
    if (context.options().json)
        context.printJson(json);
}

/// While it lives, dialogs are shown to a script.
class HeadlessDialogs {
public:
    HeadlessDialogs() : previous_(dialogHost()) { setDialogHost(host_); }
    ~HeadlessDialogs() { setDialogHost(previous_); }
    HeadlessDialogs(const HeadlessDialogs&) = delete;
    HeadlessDialogs& operator=(const HeadlessDialogs&) = delete;
    host::HeadlessDialogHost& operator*() const { return *host_; }

private:
    std::shared_ptr<DialogHost> previous_;
    std::shared_ptr<host::HeadlessDialogHost> host_ = std::make_shared<host::HeadlessDialogHost>();
};

void printForm(CommandContext& context, const Form& form)
{
    if (!context.options().json) {
        context.out() << host::listControls(form);
        return;
    }
    auto controls = nlohmann::ordered_json::array();
    for (const Control* control : form.controls())
        controls.push_back({{"control", control->path()},
                            {"kind", control->kind()},
                            {"value", control->valueText()},
                            {"visible", control->isVisible()},
                            {"enabled", control->isEnabled()},
                            {"focus", control->hasFocus()}});
    context.printJson({{"form", form.name()}, {"caption", form.caption()}, {"controls", controls}});
}

void showDialog(CommandContext& context, const DialogOptions& options)
{
    if (options.name.empty())
        return listDialogs(context);
    const Dialog& dialog = dialogNamed(options.name);
    const enumLocalCalendarItemType kind = readKind(options.kind);
    context.host();
    const HeadlessDialogs headless;
    (*headless).whenShown(dialog.name, [&](host::Hand& hand) { printForm(context, hand.form()); });
    dialog.open(context, kind, options.number);
    context.throwIfComponentFailed();
}

} // namespace

void addDialogCommand(CLI::App& program, CommandContext& context)
{
    CLI::App* command = program.add_subcommand("dialog", "List the dialogs, or show what stands on one");
    auto options = std::make_shared<DialogOptions>();
    CLI::Option* name = command->add_option("NAME", options->name, "The dialog's name; without it all are listed");
    command->add_flag("--show", options->show, "Print its controls with their values (the default)")->needs(name);
    addKindOption(*command, options->kind);
    command->add_option("--number", options->number, "Which status field, 1 to 5; 1 without it")
        ->type_name("NUMBER")
        ->check(CLI::Range(1, 5));
    command->footer("The dialog is opened as a program would, printed and closed; nothing is changed.\n"
                    "Examples:\n"
                    "  firmcal dialog\n"
                    "  firmcal dialog frmApptStatusOptions --kind task --number 2 --show");
    command->callback([&context, options] { showDialog(context, *options); });
}

} // namespace qncal::firmcal
