#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace qncal {

/// The user's registration file: which library holds which class. It is text, one section for each class:
///
///     [clsCalendarItem]
///     id=4c1cfba7-e047-4bbf-b50e-516f69e0cb1b
///     library=/usr/lib/libqnCalSetupCtrl.so.1

struct ClassRegistration {
    std::string name;
    std::string id;
    std::string library;
    friend bool operator==(const ClassRegistration&, const ClassRegistration&) = default;
};

/// qncal/classes.ini in $XDG_DATA_HOME, or in ~/.local/share. Throws `std::runtime_error` when neither that
/// variable nor HOME holds an absolute path.
std::filesystem::path registrationFile();

/// In the order of the file; none when there is no file. Lines that it does not know are passed over.
/// Throws `std::runtime_error` when the file cannot be read.
std::vector<ClassRegistration> readRegistrations(const std::filesystem::path& file);

/// Replaces the file in one step, so that a reader sees either the old one or the new one; without any class there
/// is no file. Creates the folder. Throws `std::runtime_error`, the old file then stays.
void writeRegistrations(const std::filesystem::path& file, const std::vector<ClassRegistration>& classes);

} // namespace qncal
