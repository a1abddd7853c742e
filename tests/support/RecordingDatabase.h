#pragma once

#include "core/forwarding/ForwardingDatabaseService.h"

#include <string>
#include <utility>
#include <vector>

namespace qncal::test {

/// Writes down what the component asks of the database: SQL texts, written fields and closed handles.
class RecordingDatabase : public ForwardingDatabaseService {
public:
    using ForwardingDatabaseService::ForwardingDatabaseService;

    /// What `isConnected` answers.
    bool connected = true;
    /// Each opened SQL text with its lock type.
    std::vector<std::pair<std::string, std::int32_t>> opened;
    /// "Subject=Budget", in the order of writing, existing and new records alike.
    std::vector<std::string> written;
    /// Handles opened and not closed since.
    std::vector<std::int32_t> open;
    /// Every operation, in order.
    std::vector<std::string> operations;

    std::vector<std::string> openedSql() const
    {
        std::vector<std::string> texts;
        for (const auto& [sql, lock] : opened)
            texts.push_back(sql);
        return texts;
    }

    bool isConnected() override { return ForwardingDatabaseService::isConnected() && connected; }

    std::int32_t openRecordset(std::string_view sql, std::int32_t cursor, std::int32_t lock, bool showError,
                               std::string_view errorText, bool keep) override
    {
        const std::int32_t handle =
            ForwardingDatabaseService::openRecordset(sql, cursor, lock, showError, errorText, keep);
        opened.emplace_back(sql, lock);
        open.push_back(handle);
        return handle;
    }

    void closeRecordset(std::int32_t handle) override
    {
        ForwardingDatabaseService::closeRecordset(handle);
        std::erase(open, handle);
    }

    bool setFieldValue(std::int32_t handle, std::string_view fieldName, std::string_view value, bool flag1, bool flag2,
                       bool flag3) override
    {
        written.push_back(std::string(fieldName) + "=" + std::string(value));
        return ForwardingDatabaseService::setFieldValue(handle, fieldName, value, flag1, flag2, flag3);
    }

    bool setNewField(std::int32_t handle, std::string_view fieldName, std::string_view value) override
    {
        written.push_back(std::string(fieldName) + "=" + std::string(value));
        return ForwardingDatabaseService::setNewField(handle, fieldName, value);
    }

protected:
    void beforeCall(std::string_view operation) override { operations.emplace_back(operation); }
};

} // namespace qncal::test
