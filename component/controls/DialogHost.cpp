#include "controls/DialogHost.h"

namespace qncal {

namespace {

std::shared_ptr<DialogHost>& slot()
{
    thread_local std::shared_ptr<DialogHost> host;
    return host;
}

} // namespace

std::shared_ptr<DialogHost> dialogHost() { return slot(); }

void setDialogHost(std::shared_ptr<DialogHost> host) { slot() = std::move(host); }

} // namespace qncal
