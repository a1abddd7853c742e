#pragma once

#include "core/RecordSet.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>

namespace qncal {

/// The records that a merge takes its values from, in the order in which they are closed.
enum class MergeRecord : std::uint8_t {
    mainBusiness,
    company,
    companyNotes,
    contact,
    contactNotes,
    software,
    firm,
    employee,
    appointment,
    task,
    timeEntry,
};

/// The ids of the rows to merge from, -1 for none.
struct MergeItemIDs {
    std::int32_t company = -1;
    std::int32_t contact = -1;
    std::int32_t firm = -1;
    std::int32_t user = -1;
    std::int32_t appointment = -1;
    std::int32_t docket = -1;
    std::int32_t task = -1;
};

/// The record sets of one merge. They stay open from merge to merge, so that a row is read once for all its
/// fields; a new id needs `openAll` again. Failures are those of `RecordSet`.
class MergeRecordSets {
public:
    /// Closes what is open, then opens every record whose id is at least 0; without a connection only the former.
    /// `listUse` is a `mergeListUse`.
    void openAll(const MergeItemIDs& ids, std::int32_t listUse);
    /// Opens the record when it is not open: its row alone, or its whole table in a batch. A company brings the
    /// record of its software with it, and so does a contact where there is none yet.
    void openIfClosed(MergeRecord record, const MergeItemIDs& ids, std::int32_t listUse);
    bool isOpen(MergeRecord record) const;
    /// A record that was never opened is run-time error 91.
    RecordSet& at(MergeRecord record);

private:
    static constexpr std::size_t recordCount = 11;

    void closeAll();
    void open(MergeRecord record, const std::string& sql, std::int32_t listUse);
    void openRow(MergeRecord record, const MergeItemIDs& ids, std::int32_t listUse);
    void openTask(std::int32_t taskID, std::int32_t listUse);
    void openSoftware(std::string_view ownerColumn, std::int32_t ownerID, std::int32_t listUse);

    std::array<std::optional<RecordSet>, recordCount> records_;
};

} // namespace qncal
