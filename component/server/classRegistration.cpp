#include "server/classRegistration.h"

#include <cstdlib>
#include <fstream>
#include <stdexcept>
#include <string_view>

namespace qncal {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view idKey = "id=";
constexpr std::string_view libraryKey = "library=";

/// The folder that an environment variable names; empty unless its path is absolute.
fs::path folderFrom(const char* variable)
{
    const char* value = std::getenv(variable);
    const fs::path folder = value ? value : "";
    return folder.is_absolute() ? folder : fs::path();
}

[[noreturn]] void cannot(const std::string& what, const fs::path& file)
{
    throw std::runtime_error("Cannot " + what + " " + file.string());
}

} // namespace

fs::path registrationFile()
{
    fs::path data = folderFrom("XDG_DATA_HOME");
    if (data.empty()) {
        const fs::path home = folderFrom("HOME");
        if (home.empty())
            throw std::runtime_error("Neither XDG_DATA_HOME nor HOME names a folder");
        data = home / ".local" / "share";
    }
    return data / "qncal" / "classes.ini";
}

std::vector<ClassRegistration> readRegistrations(const fs::path& file)
{
    if (!fs::exists(file))
        return {};
    std::ifstream in(file);
    if (!in)
        cannot("read", file);
    std::vector<ClassRegistration> classes;
    for (std::string line; std::getline(in, line);) {
        if (line.size() > 2 && line.front() == '[' && line.back() == ']')
            classes.push_back({line.substr(1, line.size() - 2), {}, {}});
        else if (classes.empty())
            continue;
        else if (line.starts_with(idKey))
            classes.back().id = line.substr(idKey.size());
        else if (line.starts_with(libraryKey))
            classes.back().library = line.substr(libraryKey.size());
    }
    if (in.bad())
        cannot("read", file);
    return classes;
}

void writeRegistrations(const fs::path& file, const std::vector<ClassRegistration>& classes)
{
    if (classes.empty()) {
        fs::remove(file);
        return;
    }
    fs::create_directories(file.parent_path());
    fs::path draft = file;
    draft += ".new";
    {
        std::ofstream out(draft, std::ios::trunc);
        for (const ClassRegistration& entry : classes)
            out << '[' << entry.name << "]\n" << idKey << entry.id << '\n' << libraryKey << entry.library << "\n\n";
        out.close();
        if (!out)
            cannot("write", draft);
    }
    fs::rename(draft, file);
}

} // namespace qncal
