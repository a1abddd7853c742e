#pragma once

#include "store/StoreTable.h"
#include "utilities/NameIndex.h"

#include <memory>
#include <span>
#include <string_view>
#include <vector>

namespace qncal::host {

/// The tables of an open database by name.
class Catalogue {
public:
    Catalogue(std::span<const schema::Table> tables, SqliteConnection& connection)
    {
        for (const schema::Table& table : tables) {
            names_.add(table.name);
            tables_.push_back(std::make_unique<StoreTable>(table, connection));
        }
    }

    StoreTable* find(std::string_view name) const
    {
        const auto place = names_.find(name);
        return place ? tables_[*place].get() : nullptr;
    }
    const std::vector<std::unique_ptr<StoreTable>>& tables() const { return tables_; }

private:
    NameIndex names_;
    std::vector<std::unique_ptr<StoreTable>> tables_;
};

} // namespace qncal::host
