#include "compare.h"

#include "core/ServiceRegistry.h"
#include "core/schema.h"
#include "items/clsCalendarItem.h"
#include "store/SqliteDatabase.h"
#include "templates/clsInsertFieldsInRTB.h"
#include "templates/mergeFieldCodes.h"

#include <benchmark/benchmark.h>
#include <ctemplate/template.h>
#include <malloc.h>
#include <sqlite3.h>

#include <algorithm>
#include <array>
#include <memory>
#include <string>

/// The merge of templates, measured against a template library that gets the same text and the same values.

namespace {

using namespace qncal;

class Errors : public ErrorControlService {
public:
    void enterRoutine(std::string_view) override {}
    void leaveRoutine() override {}
    void setError(const ErrorState&) override {}
    void reportError() override {}
    std::int16_t getErrorAction() override { return 2; }
};

class Canada : public LocaleService {
public:
    std::int32_t getCountryCode() override { return canada; }
    std::int32_t getProvinceCode() override { return 3; }
    std::string getProductName() override { return "FirmCal"; }
    std::int32_t getRightsLevel() override { return 5; }
    std::int32_t getSignedInUserID() override { return 1; }
};

class NoClients : public ClientDropDownService {
public:
    std::shared_ptr<FormRegistry> getFormRegistry() override { return nullptr; }
    std::vector<UserEntry> getUsers() override { return {}; }
    std::string getUserName(std::int32_t) override { return {}; }
    std::string getCompanyName(std::int32_t) override { return {}; }
    std::string getContactName(std::int32_t) override { return {}; }
    std::string getContactAndSpouseName(std::int32_t) override { return {}; }
    Variant getClientListField(ClientKind, std::int32_t, std::string_view) override { return "Maple Leaf Bakery Ltd."; }
};

/// A host for the time of one benchmark.
struct World {
    std::shared_ptr<host::SqliteDatabase> database = host::SqliteDatabase::openInMemory();

    World()
    {
        ServiceRegistry& registry = serviceRegistry();
        registry.errorControl = std::make_shared<Errors>();
        registry.errorControlPresent = true;
        registry.locale = std::make_shared<Canada>();
        registry.database = database;
        registry.clientDropDown = std::make_shared<NoClients>();
        createComponentServices();
    }
    ~World() { serviceRegistry() = {}; }
};

constexpr std::array<std::string_view, 20> fields{"Appointment Name",
                                                  "Appointment Start Time",
                                                  "Appointment End Time",
                                                  "Time Duration",
                                                  "Company Name",
                                                  "Client ID",
                                                  "Corporate Name",
                                                  "Industry Type",
                                                  "Address",
                                                  "City",
                                                  "Province",
                                                  "Postal Code",
                                                  "Country",
                                                  "Office Number",
                                                  "Email",
                                                  "Contact Display Name",
                                                  "Contact Business Phone",
                                                  "Contact Business Email",
                                                  "Supervising Partner",
                                                  "Your Company Name"};

std::string variableName(std::string_view field)
{
    std::string name(field);
    for (char& c : name)
        c = c == ' ' ? '_' : c;
    return name;
}

/// 600 characters with the 20 fields in them; `expression` writes a field.
template <class Expression>
std::string textOf(Expression expression)
{
    constexpr std::size_t characters = 600;
    constexpr std::string_view filler = "please note that ";
    std::size_t inFields = 0;
    for (const std::string_view field : fields)
        inFields += field.size() + 2;
    const std::size_t between = (characters - inFields) / fields.size();
    std::string text;
    for (const std::string_view field : fields) {
        text += expression(field);
        for (std::size_t i = 0; i < between; ++i)
            text += filler[i % filler.size()];
    }
    return text;
}

std::string templateText()
{
    return textOf([](std::string_view field) { return "«" + std::string(field) + "»"; });
}

std::unique_ptr<clsInsertFieldsInRTB> newEngine()
{
    auto engine = std::make_unique<clsInsertFieldsInRTB>();
    engine->TestComment(true);
    engine->appointmentID(1);
    engine->TemplateText(templateText());
    return engine;
}

/// The list is there from the second merge on.
void mergeWithListBuilt(benchmark::State& state)
{
    const World world;
    const auto engine = newEngine();
    engine->parseRTBComment();
    for (auto _ : state)
        benchmark::DoNotOptimize(engine->parseRTBComment());
    bench::compareWith(state, "ctemplateTwentyFields", 1.0);
}
BENCHMARK(mergeWithListBuilt);

/// A new engine each time: the first merge builds the list, the second one merges.
void mergeWithListToBuild(benchmark::State& state)
{
    const World world;
    for (auto _ : state) {
        const auto engine = newEngine();
        engine->parseRTBComment();
        benchmark::DoNotOptimize(engine->parseRTBComment());
    }
    bench::compareWith(state, "ctemplateWholeList", 1.0);
}
BENCHMARK(mergeWithListToBuild);

/// The same text as a template of the library, parsed once, expanded with a dictionary that is filled each time:
/// with the fields of the text, or with every field of the list.
void expandWithLibrary(benchmark::State& state, bool wholeList)
{
    const World world;
    const std::string text = textOf([](std::string_view field) { return "{{" + variableName(field) + "}}"; });
    const std::string key = wholeList ? "whole" : "twenty";
    ctemplate::StringToTemplateCache(key, text, ctemplate::DO_NOT_STRIP);
    const auto engine = newEngine();
    engine->parseRTBComment();
    std::vector<std::pair<std::string, std::string>> values;
    for (const FieldListRow& row : engine->FieldList()->rows()) {
        const bool used = std::find(fields.begin(), fields.end(), row.displayName.view()) != fields.end();
        if (wholeList || used)
            values.emplace_back(variableName(row.displayName.view()), row.sampleText.str());
    }
    for (auto _ : state) {
        ctemplate::TemplateDictionary dictionary("merge");
        for (const auto& [name, value] : values)
            dictionary.SetValue(name, value);
        std::string merged;
        ctemplate::ExpandTemplate(key, ctemplate::DO_NOT_STRIP, &dictionary, &merged);
        benchmark::DoNotOptimize(merged);
    }
}
void ctemplateTwentyFields(benchmark::State& state) { expandWithLibrary(state, false); }
BENCHMARK(ctemplateTwentyFields);
void ctemplateWholeList(benchmark::State& state) { expandWithLibrary(state, true); }
BENCHMARK(ctemplateWholeList);

/// Both texts of an appointment by its kind's templates, as a save renders them.
void itemTexts(benchmark::State& state)
{
    const World world;
    clsCalendarItem item;
    item.calendarItemType(enumLocalCalendarAppointmentItem);
    item.Subject("Budget");
    item.companyIDNum(1);
    for (auto _ : state) {
        benchmark::DoNotOptimize(item.createTitleBarTextByID());
        benchmark::DoNotOptimize(item.createDisplayTextByID());
    }
    bench::compareWith(state, "threeRawSelects", 1.0);
}
BENCHMARK(itemTexts);

/// The same row read three times by hand through the engine's own interface.
void threeRawSelects(benchmark::State& state)
{
    sqlite3* database = nullptr;
    sqlite3_open(":memory:", &database);
    std::string columns;
    for (const schema::Column& column : schema::findTable("Appointments")->columns)
        columns.append(columns.empty() ? "" : ",").append(column.name);
    sqlite3_exec(
        database,
        ("CREATE TABLE Appointments (" + columns + "); INSERT INTO Appointments (AppointmentID) VALUES (1)").c_str(),
        nullptr, nullptr, nullptr);
    for (auto _ : state) {
        for (int i = 0; i < 3; ++i) {
            sqlite3_stmt* select = nullptr;
            sqlite3_prepare_v2(database, "SELECT * FROM Appointments WHERE AppointmentID=1", -1, &select, nullptr);
            benchmark::DoNotOptimize(sqlite3_step(select));
            benchmark::DoNotOptimize(sqlite3_column_text(select, 1));
            sqlite3_finalize(select);
        }
    }
    sqlite3_close(database);
}
BENCHMARK(threeRawSelects);

// Large buffers come from a heap that keeps its pages: what is compared is the merging, not the kernel's handing out of
// memory, of which the smaller text gets by with less.
[[maybe_unused]] const bool pagesAreKept = [] {
    constexpr int largest = 32 << 20;
    return mallopt(M_MMAP_THRESHOLD, largest) == 1 && mallopt(M_TRIM_THRESHOLD, 8 * largest) == 1;
}();

/// A megabyte of opening delimiters, and half of one: twice the text may take twice the time.
void mergeOpenings(benchmark::State& state)
{
    const World world;
    const auto engine = newEngine();
    engine->parseRTBComment();
    std::string text;
    while (text.size() < static_cast<std::size_t>(state.range(0)))
        text += "«";
    engine->TemplateText(text);
    for (auto _ : state)
        benchmark::DoNotOptimize(engine->parseRTBComment());
    if (state.range(0) == 1000000)
        bench::compareWith(state, "mergeOpenings/500000", 2.5);
}
BENCHMARK(mergeOpenings)->Arg(500000)->Arg(1000000)->Unit(benchmark::kMillisecond);

} // namespace
