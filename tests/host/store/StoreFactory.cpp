#include "host/store/StoreFactory.h"

namespace qncal::host {

const std::vector<StoreFactory>& storeFactories()
{
    const auto inMemory = [](const TemporaryFolder&) { return SqliteDatabase::openInMemory(); };
    const auto inFile = [](const TemporaryFolder& folder) { return SqliteDatabase::create(folder.file("store.db")); };
    const auto stay = [](std::unique_ptr<DatabaseService>&, const TemporaryFolder&) {};
    const auto reopen = [inFile](std::unique_ptr<DatabaseService>& store, const TemporaryFolder& folder) {
        store.reset();
        store = inFile(folder);
    };
    static const std::vector<StoreFactory> factories{
        {"sqliteInMemory", inMemory, stay}, {"sqliteFile", inFile, stay}, {"sqliteFileReopened", inFile, reopen}};
    return factories;
}

std::int32_t StoreTest::add(const std::string& table, const std::string& key, const Fields& fields)
{
    const std::int32_t handle = openUpdatable("SELECT " + table + ".* FROM " + table + ";");
    store().addNew(handle);
    for (const auto& [name, value] : fields)
        store().setNewField(handle, name, value);
    const std::int32_t id = store().getField(handle, key).toInteger();
    store().update(handle);
    store().closeRecordset(handle);
    return id;
}

std::vector<Variant> StoreTest::column(std::string_view sql, std::string_view field)
{
    std::vector<Variant> values;
    const std::int32_t handle = openReadOnly(sql);
    for (; !store().isEOF(handle); store().moveNext(handle))
        values.push_back(store().getField(handle, field));
    store().closeRecordset(handle);
    return values;
}

} // namespace qncal::host
