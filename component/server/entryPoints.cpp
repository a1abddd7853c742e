#include "server/entryPoints.h"

#include "server/classRegistration.h"
#include "server/publicClasses.h"

#include <algorithm>
#include <atomic>
#include <dlfcn.h>
#include <new>
#include <stdexcept>
#include <string>
#include <vector>

namespace qncal {

namespace {

std::atomic<int> liveObjects{0};
std::atomic<int> locks{0};

/// The code of an action that gives none itself but throws.
template <class Action>
HResult guarded(HResult failure, Action action)
{
    try {
        return action();
    } catch (const std::bad_alloc&) {
        return hresult::outOfMemory;
    } catch (...) {
        return failure;
    }
}

class Factory final : public ClassFactory {
public:
    explicit Factory(const PublicClass& made) : made_(&made) {}
    virtual ~Factory() = default;
    const Guid& classId() const { return made_->id; }

    HResult createInstance(std::shared_ptr<void>& object) const override
    {
        return guarded(hresult::fail, [&] {
            auto created = made_->create();
            // The reference handed out keeps the object, and takes it off the count when it goes.
            void* const address = created.get();
            ++liveObjects;
            object = std::shared_ptr<void>(address, [created](void*) mutable {
                created.reset();
                --liveObjects;
            });
            return hresult::ok;
        });
    }

    HResult lockServer(bool lock) const override
    {
        locks += lock ? 1 : -1;
        return hresult::ok;
    }

private:
    const PublicClass* made_;
};

const std::vector<Factory>& factories()
{
    static const std::vector<Factory> all(publicClasses().begin(), publicClasses().end());
    return all;
}

/// The file that this code was loaded from.
std::string ownPath()
{
    Dl_info info{};
    if (dladdr(reinterpret_cast<const void*>(&DllGetClassObject), &info) == 0 || !info.dli_fname)
        throw std::runtime_error("The library cannot tell its own path");
    return std::filesystem::canonical(info.dli_fname).string();
}

/// What stands in the registration file apart from the classes of this library.
std::vector<ClassRegistration> foreignRegistrations(const std::filesystem::path& file)
{
    auto registered = readRegistrations(file);
    std::erase_if(registered, [](const ClassRegistration& entry) {
        return std::ranges::find(publicClasses(), entry.name, &PublicClass::name) != publicClasses().end();
    });
    return registered;
}

} // namespace

} // namespace qncal

using namespace qncal;

HResult DllGetClassObject(const Guid* classId, const Guid* interfaceId, void** object)
{
    if (!classId || !interfaceId || !object)
        return hresult::pointer;
    *object = nullptr;
    if (*interfaceId != ClassFactory::interfaceId)
        return hresult::noInterface;
    return guarded(hresult::fail, [&] {
        const auto factory = std::ranges::find(factories(), *classId, &Factory::classId);
        if (factory == factories().end())
            return hresult::classNotAvailable;
        *object = const_cast<ClassFactory*>(static_cast<const ClassFactory*>(&*factory));
        return hresult::ok;
    });
}

HResult DllCanUnloadNow() { return liveObjects == 0 && locks == 0 ? hresult::ok : hresult::no; }

HResult DllRegisterServer()
{
    return guarded(hresult::registrationFailed, [] {
        const auto file = registrationFile();
        const std::string library = ownPath();
        auto registered = foreignRegistrations(file);
        for (const PublicClass& made : publicClasses())
            registered.push_back({std::string(made.name), std::string(made.idText), library});
        writeRegistrations(file, registered);
        return hresult::ok;
    });
}

HResult DllUnregisterServer()
{
    return guarded(hresult::registrationFailed, [] {
        const auto file = registrationFile();
        if (std::filesystem::exists(file))
            writeRegistrations(file, foreignRegistrations(file));
        return hresult::ok;
    });
}
