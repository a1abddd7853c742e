#include "firmcal/kindOption.h"

namespace qncal::firmcal {

CLI::Option* addKindOption(CLI::App& command, std::string& kind)
{
    return command.add_option("-k,--kind", kind, "appointment (the default), task or docket")->type_name("KIND");
}

} // namespace qncal::firmcal
