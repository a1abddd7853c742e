#pragma once

#include "server/Guid.h"

#include <cstdint>
#include <memory>

/// The exported entry points of the in-process server. Each gives one of the codes below and lets no exception out.

namespace qncal {

using HResult = std::int32_t;

namespace hresult {
inline constexpr auto ok = static_cast<HResult>(0x00000000);
/// Done, and the answer is no.
inline constexpr auto no = static_cast<HResult>(0x00000001);
inline constexpr auto noInterface = static_cast<HResult>(0x80004002);
inline constexpr auto pointer = static_cast<HResult>(0x80004003);
inline constexpr auto fail = static_cast<HResult>(0x80004005);
inline constexpr auto classNotAvailable = static_cast<HResult>(0x80040111);
/// The registration could not be written.
inline constexpr auto registrationFailed = static_cast<HResult>(0x80040201);
inline constexpr auto outOfMemory = static_cast<HResult>(0x8007000E);
} // namespace hresult

/// Makes objects of one public class. The library owns its factories; they live as long as it is loaded.
class ClassFactory {
public:
    static constexpr Guid interfaceId = guid("cee453fe-c182-47de-b948-be903e99bd25");

    /// A new object, to be cast to the factory's class. It counts as alive until its last reference goes.
    virtual HResult createInstance(std::shared_ptr<void>& object) const = 0;
    /// A lock keeps `DllCanUnloadNow` at no until it is undone by a call with False.
    virtual HResult lockServer(bool lock) const = 0;

protected:
    ~ClassFactory() = default;
};

} // namespace qncal

extern "C" {

/// The factory of a public class as a `const qncal::ClassFactory*`; classNotAvailable for an id that is none.
qncal::HResult DllGetClassObject(const qncal::Guid* classId, const qncal::Guid* interfaceId, void** object);
/// ok when no object and no lock is left, else no.
qncal::HResult DllCanUnloadNow();
/// Enters the public classes with this library's path into the user's registration file (server/classRegistration.h).
qncal::HResult DllRegisterServer();
/// Takes them out again; ok also when there was nothing to take out.
qncal::HResult DllUnregisterServer();
}
