#pragma once

#include <functional>
#include <memory>
#include <string>

namespace qncal::host {
class SqliteDatabase;
}

namespace qncal::firmcal {

class CommandContext;

/// Makes a database file with the schema, opens the host over it and lets `fill` fill it. When anything fails the
/// file is removed again. Throws `Failure` for a file that exists.
void makeDatabase(CommandContext& context, const std::string& file, const std::function<void()>& fill);

} // namespace qncal::firmcal
