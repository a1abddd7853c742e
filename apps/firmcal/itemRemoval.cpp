#include "common/Failure.h"
#include "core/schema.h"
#include "firmcal/CommandContext.h"
#include "firmcal/itemCommands.h"
#include "services/Rows.h"

#include <ostream>

namespace qncal::firmcal {

namespace {

void copyToArchive(DatabaseService& database, std::int32_t taskID)
{
    const schema::Table& archive = *schema::findTable("archiveTasks");
    const std::string id = std::to_string(taskID);
    const host::Rows task = host::Rows::read(database, "SELECT Tasks.* FROM Tasks WHERE Tasks.TaskID=" + id + ";");
    host::Rows archived = host::Rows::change(database, "SELECT archiveTasks.* FROM archiveTasks;");
    archived.addNew();
    archived.setNew(archive.columns.front().name, id);
    for (const schema::Column& column : archive.columns.subspan(1)) {
        const Variant value = task.field(column.name);
        if (!value.isNull())
            archived.setNew(column.name, value.toText());
    }
    archived.update();
    archived.close();
}

} // namespace

void deleteItem(CommandContext& context, enumLocalCalendarItemType kind, std::int32_t id)
{
    clsCalendarItem item;
    load(context, item, kind, id);
    const std::string description = describe(item);
    if (!removeAfterQuestion(context.errors(), context.host().messages(), item))
        throw Failure("nothing deleted");
    context.out() << "Deleted " << description << '\n';
}

void archiveTask(CommandContext& context, std::int32_t id)
{
    clsCalendarItem item;
    load(context, item, enumLocalCalendarTaskItem, id);
    const std::string description = describe(item);
    copyToArchive(context.host().database(), id);
    remove(context.errors(), item);
    context.out() << "Archived " << description << '\n';
}

} // namespace qncal::firmcal
