#include "firmcal/CommandContext.h"
#include "firmcal/Table.h"
#include "firmcal/commands.h"
#include "services/Rows.h"
#include "store/SqliteDatabase.h"

#include <nlohmann/json.hpp>

#include <ostream>

namespace qncal::firmcal {

namespace {

using Json = nlohmann::ordered_json;

/// How much of a long text a table on a terminal shows.
constexpr std::size_t cellLimitOnTerminal = 60;

Json jsonValue(const Variant& value)
{
    if (value.isNull())
        return nullptr;
    if (value.isBoolean())
        return value.toBoolean();
    if (!value.isNumber())
        return value.toText();
    const double number = value.toReal();
    return number == static_cast<double>(static_cast<std::int64_t>(number)) ? Json(static_cast<std::int64_t>(number))
                                                                            : Json(number);
}

void printAsJson(CommandContext& context, host::Rows& rows, const std::vector<std::string>& fields)
{
    Json json = Json::array();
    for (; !rows.atEnd(); rows.moveNext()) {
        Json record = Json::object();
        for (const std::string& field : fields)
            record[field] = jsonValue(rows.field(field));
        json.push_back(std::move(record));
    }
    context.printJson(json);
}

void printAsTable(CommandContext& context, host::Rows& rows, const std::vector<std::string>& fields)
{
    std::vector<Table::Column> columns;
    for (const std::string& field : fields) {
        const bool isNumber = !rows.isEmpty() && rows.field(field).isNumber();
        columns.push_back({field, isNumber ? Table::Align::right : Table::Align::left});
    }
    Table table(std::move(columns));
    if (context.streams().outIsTerminal)
        table.limitCells(cellLimitOnTerminal);
    for (; !rows.atEnd(); rows.moveNext()) {
        std::vector<std::string> cells;
        cells.reserve(fields.size());
        for (const std::string& field : fields)
            cells.push_back(rows.text(field));
        table.add(std::move(cells));
    }
    table.print(context.out());
    if (context.streams().outIsTerminal)
        context.out() << table.rowCount() << (table.rowCount() == 1 ? " row\n" : " rows\n");
}

void runSelect(CommandContext& context, const std::string& sql)
{
    host::SqliteDatabase& database = context.database();
    host::Rows rows = host::Rows::read(database, sql);
    const std::vector<std::string> fields = database.fieldNames(rows.handle());
    if (context.options().json)
        printAsJson(context, rows, fields);
    else
        printAsTable(context, rows, fields);
}

} // namespace

void addSqlCommand(CLI::App& program, CommandContext& context)
{
    CLI::App* command = program.add_subcommand("sql", "Run a SELECT of the component's SQL dialect");
    auto sql = std::make_shared<std::string>();
    command->add_option("SELECT", *sql, "The statement")->required();
    command->footer("Dates stand between # and #, text between single quotes.\n"
                    "Examples:\n"
                    "  firmcal sql \"SELECT CompanyID, CompanyName FROM Companies WHERE CompanyName LIKE '%north%';\"\n"
                    "  firmcal sql \"SELECT * FROM Holidays WHERE HolidayDate>=#2026-07-01#\" --json");
    command->callback([&context, sql] { runSelect(context, *sql); });
}

} // namespace qncal::firmcal
