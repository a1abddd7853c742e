#pragma once

#include "core/forwarding/ForwardingDatabaseService.h"
#include "utilities/RunTimeError.h"

#include <set>

namespace qncal::test {

/// Takes every write and fails when the record set is closed, as a database does that puts its writes off.
class DatabaseThatFailsLate : public ForwardingDatabaseService {
public:
    using ForwardingDatabaseService::ForwardingDatabaseService;

    bool setFieldValue(std::int32_t handle, std::string_view fieldName, std::string_view value, bool flag1, bool flag2,
                       bool flag3) override
    {
        written_.insert(handle);
        return ForwardingDatabaseService::setFieldValue(handle, fieldName, value, flag1, flag2, flag3);
    }
    void closeRecordset(std::int32_t handle) override
    {
        ForwardingDatabaseService::closeRecordset(handle);
        if (written_.erase(handle) > 0)
            throw RunTimeError(errorNumber::invalidProcedureCall, "the disk is full");
    }

private:
    std::set<std::int32_t> written_;
};

} // namespace qncal::test
