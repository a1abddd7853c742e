#include "services/holidayRows.h"

#include "services/Rows.h"
#include "utilities/text.h"

#include <algorithm>

namespace qncal::host {

namespace {

std::string between(DatabaseService& database, Date first, Date last)
{
    return "HolidayDate>=#" + database.getSQLDate(first) + "# AND HolidayDate<=#" + database.getSQLDate(last) + "#";
}

bool holds(const std::vector<HolidayRow>& rows, const StatutoryHoliday& holiday)
{
    return std::ranges::any_of(rows, [&](const HolidayRow& row) {
        return row.holiday.date == holiday.date && equalsNoCase(row.holiday.name, holiday.name);
    });
}

} // namespace

std::vector<HolidayRow> readHolidays(DatabaseService& database, Date first, Date last)
{
    std::vector<HolidayRow> holidays;
    for (Rows rows = Rows::read(database, "SELECT HolidayID, HolidayDate, HolidayType, HolidayName FROM Holidays WHERE "
                                              + between(database, first, last) + " ORDER BY HolidayDate;");
         !rows.atEnd(); rows.moveNext()) {
        constexpr std::int32_t wholeCountry = 1;
        holidays.push_back({rows.integer("HolidayID"),
                            {rows.field("HolidayDate").toDate().dateOnly(), rows.text("HolidayName"),
                             static_cast<std::int16_t>(rows.integer("HolidayType", wholeCountry))}});
    }
    return holidays;
}

void addHoliday(DatabaseService& database, const StatutoryHoliday& holiday)
{
    addRow(database, "Holidays",
           {{"HolidayDate", defaultDateText(holiday.date)},
            {"HolidayType", std::to_string(holiday.type)},
            {"HolidayName", holiday.name}});
}

void removeHoliday(DatabaseService& database, std::int32_t id)
{
    Rows rows = Rows::change(database, "SELECT Holidays.* FROM Holidays WHERE HolidayID=" + std::to_string(id) + ";");
    if (!rows.isEmpty())
        rows.deleteCurrent();
}

std::vector<StatutoryHoliday> addStatutoryHolidays(DatabaseService& database, const Locale::Values& region, int year)
{
    std::string_view letters;
    if (region.country == LocaleService::canada)
        letters = provinceFromCode(region.province).value_or(Province{}).letters;
    const std::vector<HolidayRow> present = readHolidays(database, Date::of(year, 1, 1), Date::of(year, 12, 31));
    std::vector<StatutoryHoliday> added;
    for (StatutoryHoliday& holiday : statutoryHolidays(year, region.country, letters)) {
        if (holds(present, holiday))
            continue;
        addHoliday(database, holiday);
        added.push_back(std::move(holiday));
    }
    return added;
}

} // namespace qncal::host
