#pragma once

#include <cstdlib>
#include <filesystem>
#include <string>

namespace qncal::test {

/// A new folder under the temporary one, in the place of the user's data folder ($XDG_DATA_HOME) while it lives.
class DataHome {
public:
    DataHome()
    {
        std::string name = (std::filesystem::temp_directory_path() / "qncal-data-XXXXXX").string();
        folder_ = mkdtemp(name.data());
        setenv(variable, folder_.c_str(), 1);
    }
    ~DataHome()
    {
        if (previous_.empty())
            unsetenv(variable);
        else
            setenv(variable, previous_.c_str(), 1);
        std::error_code ignored;
        std::filesystem::permissions(folder_, std::filesystem::perms::owner_all, ignored);
        std::filesystem::remove_all(folder_, ignored);
    }
    DataHome(const DataHome&) = delete;
    DataHome& operator=(const DataHome&) = delete;

    const std::filesystem::path& folder() const { return folder_; }

private:
    static constexpr const char* variable = "XDG_DATA_HOME";
    std::string previous_ = std::getenv(variable) ? std::getenv(variable) : "";
    std::filesystem::path folder_;
};

} // namespace qncal::test
