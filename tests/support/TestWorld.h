#pragma once

#include "core/ServiceRegistry.h"
#include "headless/HeadlessDialogHost.h"
#include "store/SqliteDatabase.h"
#include "support/RecordingErrorControl.h"
#include "support/ScriptedMessages.h"
#include "support/TestServices.h"
#include "utilities/Clock.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace qncal::test {

/// A whole host around the component: an empty database in memory, services whose answers a test sets, a dialog host
/// that is scripted, and a clock that stands still. It stands in the service registry while it lives; at its end
/// every error, message and form must have been expected.
class TestWorld {
public:
    /// Tuesday, 31 March 2026, 8:30.
    static Date now() { return Date::of(2026, 3, 31, 8, 30); }
    static Date today() { return now().dateOnly(); }

    TestWorld();
    ~TestWorld();
    TestWorld(const TestWorld&) = delete;
    TestWorld& operator=(const TestWorld&) = delete;

    using Values = std::vector<std::pair<std::string_view, std::string>>;
    /// A new row and its key.
    std::int32_t addRow(std::string_view table, const Values& values);
    /// A field of a row as text, "Null" for a null; "no row" when there is none with that key.
    std::string cell(std::string_view table, std::int32_t key, std::string_view column);
    void setCell(std::string_view table, std::int32_t key, std::string_view column, std::string_view value);
    std::int32_t rowCount(std::string_view table);
    /// All rows of all tables as text, for comparing two worlds.
    std::string allRows();

    ClockOverride clock{now()};
    std::shared_ptr<host::SqliteDatabase> database = host::SqliteDatabase::openInMemory();
    std::shared_ptr<RecordingErrorControl> errors = std::make_shared<RecordingErrorControl>();
    std::shared_ptr<ScriptedMessages> messages = std::make_shared<ScriptedMessages>();
    std::shared_ptr<TestLocale> locale = std::make_shared<TestLocale>();
    std::shared_ptr<TestClientDropDown> clientDropDown = std::make_shared<TestClientDropDown>();
    std::shared_ptr<TestAutoNotify> autoNotify = std::make_shared<TestAutoNotify>();
    std::shared_ptr<host::HeadlessDialogHost> dialogs = std::make_shared<host::HeadlessDialogHost>();
};

} // namespace qncal::test
