#pragma once

#include "apps/firmcal/CommandLine.h"

#include <nlohmann/json.hpp>

#include <fstream>
#include <string>
#include <vector>

namespace qncal::firmcal::test {

using Json = nlohmann::ordered_json;

/// What the tests of imports and exports start with.
class CalendarFileTest : public EmptyDatabaseTest {
protected:
    static std::string corpus(const std::string& name)
    {
        return std::string(QNCAL_SOURCE_DIR) + "/tests/apps/firmcal/ics/" + name;
    }
    std::string write(const std::string& name, const std::string& text) const
    {
        const std::string file = (folder() / name).string();
        std::ofstream(file, std::ios::binary) << text;
        return file;
    }
    Json import(const std::string& file, const std::vector<std::string>& more = {}) const
    {
        std::vector<std::string> arguments{"import", file, "--zone", "America/Toronto", "--json"};
        arguments.insert(arguments.end(), more.begin(), more.end());
        return Json::parse(output(arguments));
    }
    /// "2026-03-02 09:00-09:30 Stand-up", one line each, in order.
    std::string calendar(const std::string& kind = "appointment") const
    {
        std::string lines;
        for (const auto& row : Json::parse(
                 output({"item", "list", "--kind", kind, "--from", "2020-01-01", "--to", "2030-01-01", "--json"})))
            lines += row["DateFrom"].get<std::string>() + " " + row["TimeFrom"].get<std::string>() + "-"
                     + row["TimeTo"].get<std::string>() + " " + row["Subject"].get<std::string>() + "\n";
        return lines;
    }
    /// The texts of the remarks of a sort, one line each.
    static std::string remarks(const Json& report, const std::string& sort)
    {
        std::string lines;
        for (const auto& remark : report["remarks"]) {
            if (remark["sort"] == sort)
                lines += remark["text"].get<std::string>() + "\n";
        }
        return lines;
    }
};

} // namespace qncal::firmcal::test
