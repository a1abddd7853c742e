#pragma once

#include "support/TemporaryFolder.h"

#include <cstdlib>
#include <filesystem>
#include <string>

namespace qncal::test {

/// A new folder in the place of the user's data folder ($XDG_DATA_HOME) while it lives.
class DataHome {
public:
    DataHome() { setenv(variable, folder_.path().c_str(), 1); }
    ~DataHome()
    {
        if (previous_.empty())
            unsetenv(variable);
        else
            setenv(variable, previous_.c_str(), 1);
    }
    DataHome(const DataHome&) = delete;
    DataHome& operator=(const DataHome&) = delete;

    const std::filesystem::path& folder() const { return folder_.path(); }

private:
    static constexpr const char* variable = "XDG_DATA_HOME";
    std::string previous_ = std::getenv(variable) ? std::getenv(variable) : "";
    TemporaryFolder folder_;
};

} // namespace qncal::test
