#pragma once

#include <string>
#include <utility>
#include <vector>

namespace qncal::host {

struct Record {
    std::string table;
    std::string key;
    std::vector<std::pair<std::string, std::string>> fields;
};

/// One small firm: two users, three items of each kind, two clients.
std::vector<Record> smallFirm();

} // namespace qncal::host
