#include "firmcal/newDatabase.h"

#include "common/Failure.h"
#include "firmcal/CommandContext.h"
#include "store/SqliteDatabase.h"

#include <filesystem>

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

} // namespace qncal::firmcal
