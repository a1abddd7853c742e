#include "BenchFile.h"
#include "compare.h"

#include "popups/ReminderLoop.h"
#include "store/SqliteDatabase.h"
#include "utilities/Clock.h"

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <memory>
#include <stdexcept>
#include <string>

/// What a sweep for due reminders costs among few and among many.

namespace qncal::host {
namespace {

using bench::compareWith;

constexpr int sweeps = 2000;

class NoDisplay : public ReminderDisplay {
public:
    Stay show(const Reminder&) override { return Stay::gone; }
    Stay showMissed(const std::vector<Reminder>&) override { return Stay::gone; }
    void withdraw(std::int32_t) override {}
};

/// A database with a reminder for every minute. The first half of them has been shown.
class ReminderFile {
public:
    explicit ReminderFile(int count) : store_(SqliteDatabase::create(folder_.file("reminders.db")))
    {
        fill(count);
        present_ = Date::of(2026, 1, 1).addSeconds(std::int64_t{count / 2} * secondsPerMinute);
    }
    /// A minute later.
    void passMinute() { present_ = present_.addSeconds(secondsPerMinute); }
    Date present() const { return present_; }
    const std::shared_ptr<SqliteDatabase>& store() const { return store_; }

private:
    static constexpr std::int64_t secondsPerMinute = 60;

    void fill(int count) const
    {
        const std::string number = std::to_string(count);
        const std::string sql = "WITH RECURSIVE minutes(n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM minutes WHERE n < "
                                + number
                                + ") INSERT INTO Reminders (UserIDNum, ReminderType, ReminderDate, ReminderTime, "
                                  "TextBody, Completed, ShownFor) SELECT 1 + n % 20, 1, date(moment), time(moment), "
                                  "'Call back about file ' || n, shown, CASE shown WHEN 1 THEN moment END FROM (SELECT "
                                  "n, datetime('2026-01-01', n || ' minutes') AS moment, n <= "
                                + number + " / 2 AS shown FROM minutes)";
        sqlite3* raw = nullptr;
        const bool filled = sqlite3_open(folder_.file("reminders.db").c_str(), &raw) == SQLITE_OK
                            && sqlite3_exec(raw, sql.c_str(), nullptr, nullptr, nullptr) == SQLITE_OK;
        sqlite3_close(raw);
        if (!filled)
            throw std::runtime_error("the reminders cannot be stored");
        store_->idle();
    }

    test::TemporaryFolder folder_;
    std::shared_ptr<SqliteDatabase> store_;
    Date present_;
};

/// A sweep each minute, each of which finds one reminder, shows it and marks it.
void sweep(benchmark::State& state, ReminderFile& file)
{
    const ClockOverride clock([&file] { return file.present(); });
    NoDisplay display;
    ReminderLoop loop(file.store(), display);
    for (auto _ : state) {
        file.passMinute();
        if (loop.sweep() != 1)
            state.SkipWithError("a sweep did not find its one reminder");
        file.store()->flush();
    }
    file.store()->idle();
}

void reminderSweepAmong100000(benchmark::State& state)
{
    static ReminderFile file(100000);
    sweep(state, file);
}
BENCHMARK(reminderSweepAmong100000)->Iterations(sweeps);

void reminderSweepAmong1000000(benchmark::State& state)
{
    compareWith(state, "reminderSweepAmong100000/iterations:2000", 1.2);
    static ReminderFile file(1000000);
    sweep(state, file);
}
BENCHMARK(reminderSweepAmong1000000)->Iterations(sweeps);

} // namespace
} // namespace qncal::host
