#include "services/createObject.h"

#include "server/Guid.h"
#include "server/classRegistration.h"
#include "server/entryPoints.h"

#include <algorithm>
#include <dlfcn.h>
#include <stdexcept>
#include <string>

namespace qncal::host {

namespace {

[[noreturn]] void fail(std::string_view className, const std::string& why)
{
    throw std::runtime_error("Cannot create " + std::string(className) + ": " + why);
}

} // namespace

std::shared_ptr<void> createObject(std::string_view className)
{
    const auto registered = readRegistrations(registrationFile());
    const auto entry = std::ranges::find(registered, className, &ClassRegistration::name);
    if (entry == registered.end())
        fail(className, "it is not registered in " + registrationFile().string());

    void* const library = dlopen(entry->library.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!library)
        fail(className, dlerror());
    const auto getClassObject = reinterpret_cast<decltype(&DllGetClassObject)>(dlsym(library, "DllGetClassObject"));
    if (!getClassObject)
        fail(className, entry->library + " has no DllGetClassObject");

    const auto classId = parseGuid(entry->id);
    void* found = nullptr;
    if (!classId || getClassObject(&*classId, &ClassFactory::interfaceId, &found) != hresult::ok)
        fail(className, entry->library + " does not have the class " + entry->id);
    std::shared_ptr<void> object;
    if (static_cast<const ClassFactory*>(found)->createInstance(object) != hresult::ok)
        fail(className, "its factory failed");
    return object;
}

} // namespace qncal::host
