#include "firmcal/mergeFields.h"

#include "common/Failure.h"
#include "firmcal/UsageError.h"
#include "templates/mergeFieldCodes.h"
#include "utilities/text.h"

#include <array>

namespace qncal::firmcal {

namespace {

constexpr std::array<MergeFieldList, 6> lists{{
    {"appointment", mergeListType::appointment, enumLocalCalendarAppointmentItem},
    {"task", mergeListType::task, enumLocalCalendarTaskItem},
    {"docket", mergeListType::timeEntry, enumLocalCalendarDocketItem},
    {"company", mergeListType::company, enumLocalCalendarUnknownItem},
    {"contact", mergeListType::contact, enumLocalCalendarUnknownItem},
    {"address", mergeListType::contactAddress, enumLocalCalendarUnknownItem},
}};

/// A pick list that sorts the fields under its headings.
class GroupingList : public ListTarget {
public:
    explicit GroupingList(std::vector<MergeFieldGroup>& groups) : groups_(groups) {}

    void addLine(std::string_view text, std::int32_t rowKey) override
    {
        if (rowKey >= 0)
            groups_.back().fields.push_back({.name = std::string(text)});
        else if (!text.empty())
            groups_.push_back({withoutBrackets(text), {}});
    }
    void clear() override { groups_.clear(); }
    void refresh() override {}

private:
    static std::string withoutBrackets(std::string_view heading)
    {
        const bool inBrackets = heading.starts_with('[') && heading.ends_with(']');
        return std::string(inBrackets ? heading.substr(1, heading.size() - 2) : heading);
    }

    std::vector<MergeFieldGroup>& groups_;
};

std::string_view typeName(MergeDataType type)
{
    switch (type) {
    case MergeDataType::text:
        return "text";
    case MergeDataType::date:
        return "date";
    case MergeDataType::time:
        return "time";
    case MergeDataType::currency:
        return "currency";
    case MergeDataType::yesNo:
        return "yes/no";
    case MergeDataType::hours:
        return "hours";
    }
    return {};
}

void build(clsInsertFieldsInRTB& engine)
{
    bool noListBox = true;
    engine.createDefaultFieldListStructure(noListBox, false);
}

std::unique_ptr<clsInsertFieldsInRTB> unbuiltEngine(const MergeFieldList& list)
{
    auto engine = std::make_unique<clsInsertFieldsInRTB>();
    engine->ListType(list.type);
    engine->TestComment(true);
    return engine;
}

} // namespace

std::span<const MergeFieldList> mergeFieldLists() { return lists; }

const MergeFieldList& mergeFieldList(std::string_view name)
{
    for (const MergeFieldList& list : lists) {
        if (equalsNoCase(name, list.name))
            return list;
    }
    throw UsageError("no kind '" + std::string(name) + "' (appointment, task, docket, company, contact, address)");
}

std::unique_ptr<clsInsertFieldsInRTB> sampleEngine(const MergeFieldList& list)
{
    auto engine = unbuiltEngine(list);
    build(*engine);
    return engine;
}

std::vector<MergeFieldGroup> mergeFieldGroups(const MergeFieldList& list)
{
    std::vector<MergeFieldGroup> groups;
    const auto engine = unbuiltEngine(list);
    engine->ConvertStrToRTF(false);
    engine->ListBox(std::make_shared<GroupingList>(groups));
    engine->ListBox2(engine->ListBox());
    build(*engine);
    // The list box has a line for each row, in the same order.
    std::span<const FieldListRow> rows = engine->FieldList()->rows();
    for (MergeFieldGroup& group : groups) {
        for (MergeField& field : group.fields) {
            const FieldListRow& row = rows.front();
            rows = rows.subspan(1);
            field = {.name = row.displayName.str(),
                     .expression = engine->parseListItem(row.key, true),
                     .type = typeName(row.dataType),
                     .category = row.category.str(),
                     .databaseField = row.databaseField.str(),
                     .sample = engine->getDataFieldInfo(row.key, {}),
                     .maximumLength = row.maximumLength};
        }
    }
    return groups;
}

} // namespace qncal::firmcal
