#include "utilities/FileService.h"

#include <filesystem>
#include <mutex>
#include <system_error>
#include <utility>

namespace qncal {

namespace {

struct ApplicationFolder {
    std::mutex mutex;
    std::string path;
};

ApplicationFolder& applicationFolder()
{
    static ApplicationFolder folder;
    return folder;
}

std::string programFolder()
{
    std::error_code error;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
    return (error ? std::filesystem::current_path() : program.parent_path()).string();
}

} // namespace

void setApplicationFolder(std::string folder)
{
    while (folder.size() > 1 && folder.back() == '/')
        folder.pop_back();
    auto& current = applicationFolder();
    const std::scoped_lock lock(current.mutex);
    current.path = std::move(folder);
}

std::string FileService::getApplicationFolder()
{
    auto& current = applicationFolder();
    const std::scoped_lock lock(current.mutex);
    return current.path.empty() ? programFolder() : current.path;
}

bool FileService::fileExists(const std::string& path)
{
    std::error_code error;
    const auto status = std::filesystem::status(path, error);
    return std::filesystem::exists(status) && !std::filesystem::is_directory(status);
}

bool FileService::folderExists(const std::string& path)
{
    std::error_code error;
    return std::filesystem::is_directory(path, error);
}

std::string FileService::joinPath(std::string_view folder, std::string_view name)
{
    return (std::filesystem::path(folder) / std::filesystem::path(name)).string();
}

} // namespace qncal
