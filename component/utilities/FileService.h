#pragma once

#include <string>
#include <string_view>

namespace qncal {

/// Sets the folder that every `FileService` calls the application's, for a host whose data lies elsewhere than its
/// program. It holds for the whole process, because the component replaces its service objects again and again.
/// An empty path puts the folder of the running program back. May be called from any thread.
void setApplicationFolder(std::string folder);

/// Paths of the application, as UTF-8. All virtual so that a test can make one fail.
class FileService {
public:
    virtual ~FileService() = default;

    /// The folder that was set, else that of the running program; without a separator at its end.
    virtual std::string getApplicationFolder();
    /// True for a file of any kind but a folder. A path that cannot be examined counts as no file.
    virtual bool fileExists(const std::string& path);
    virtual bool folderExists(const std::string& path);
    /// Folder and name with one separator between them; an absolute name stands alone.
    virtual std::string joinPath(std::string_view folder, std::string_view name);
};

} // namespace qncal
