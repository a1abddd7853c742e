#include "firmcal/CommandContext.h"
#include "firmcal/commands.h"
#include "firmcal/Failure.h"
#include "firmcal/newDatabase.h"
#include "store/SqliteDatabase.h"

#include <filesystem>
#include <ostream>

namespace qncal::firmcal {

namespace {

/// Removes a database with the files that the engine keeps beside it, unless the making of it succeeded.
class UnfinishedFile {
public:
    explicit UnfinishedFile(std::string file) : file_(std::move(file)) {}
    ~UnfinishedFile()
    {
        std::error_code ignored;
        for (const char* suffix : {"", "-wal", "-shm"}) {
            if (!finished_)
                std::filesystem::remove(file_ + suffix, ignored);
        }
    }
    UnfinishedFile(const UnfinishedFile&) = delete;
    UnfinishedFile& operator=(const UnfinishedFile&) = delete;
    void finish() { finished_ = true; }

private:
    std::string file_;
    bool finished_ = false;
};

} // namespace

void makeDatabase(CommandContext& context, const std::string& file, const std::function<void()>& fill)
{
    if (std::filesystem::exists(file))
        throw Failure(file + " exists already");
    UnfinishedFile unfinished(file);
    const std::shared_ptr<host::SqliteDatabase> database = host::SqliteDatabase::create(file);
    host::HostEnvironment& host = context.host(database);
    host::storeRegion(host.database(), host.locale().values());
    fill();
    database->flush();
    unfinished.finish();
}

void addInitCommand(CLI::App& program, CommandContext& context)
{
    CLI::App* command = program.add_subcommand("init", "Make an empty database");
    auto file = std::make_shared<std::string>();
    command->add_option("FILE", *file, "The file to make")->required();
    command->footer("--country and --province set the firm's region, which is kept in the database.\n"
                    "Example:\n"
                    "  firmcal init firm.db --country CA --province QC");
    command->callback([&context, file] {
        makeDatabase(context, *file, [] {});
        context.out() << "Made " << *file << '\n';
    });
}

} // namespace qncal::firmcal
