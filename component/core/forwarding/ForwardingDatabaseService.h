#pragma once

#include "core/DatabaseService.h"

#include <memory>
#include <string_view>
#include <utility>

namespace qncal {

/// Hands every call on to another database service. Override an operation to change it, or `beforeCall` to see or
/// refuse them all: what it throws goes to the caller in place of the call.
class ForwardingDatabaseService : public DatabaseService {
public:
    explicit ForwardingDatabaseService(std::shared_ptr<DatabaseService> target) : target_(std::move(target)) {}
    const std::shared_ptr<DatabaseService>& target() const { return target_; }

    bool isConnected() override
    {
        beforeCall("isConnected");
        return target_->isConnected();
    }
    std::int32_t openRecordset(std::string_view sql, std::int32_t cursor, std::int32_t lock, bool showError,
                               std::string_view errorText, bool keep) override
    {
        beforeCall("openRecordset");
        return target_->openRecordset(sql, cursor, lock, showError, errorText, keep);
    }
    void closeRecordset(std::int32_t handle) override
    {
        beforeCall("closeRecordset");
        target_->closeRecordset(handle);
    }
    bool isRecordsetOpen(std::int32_t handle) override
    {
        beforeCall("isRecordsetOpen");
        return target_->isRecordsetOpen(handle);
    }
    bool hasRecords(std::int32_t handle) override
    {
        beforeCall("hasRecords");
        return target_->hasRecords(handle);
    }
    bool isRecordsetEmpty(std::int32_t handle) override
    {
        beforeCall("isRecordsetEmpty");
        return target_->isRecordsetEmpty(handle);
    }
    bool isEOF(std::int32_t handle) override
    {
        beforeCall("isEOF");
        return target_->isEOF(handle);
    }
    bool moveNext(std::int32_t handle) override
    {
        beforeCall("moveNext");
        return target_->moveNext(handle);
    }
    bool movePrevious(std::int32_t handle) override
    {
        beforeCall("movePrevious");
        return target_->movePrevious(handle);
    }
    std::int32_t getRecordCount(std::int32_t handle) override
    {
        beforeCall("getRecordCount");
        return target_->getRecordCount(handle);
    }
    std::int32_t getPosition(std::int32_t handle) override
    {
        beforeCall("getPosition");
        return target_->getPosition(handle);
    }
    bool setPosition(std::int32_t handle, std::int32_t position) override
    {
        beforeCall("setPosition");
        return target_->setPosition(handle, position);
    }
    bool findRecord(std::int32_t handle, std::string_view fieldName, std::string_view value, std::string& reserved1,
                    std::string& reserved2, std::string& reserved3, std::string& reserved4) override
    {
        beforeCall("findRecord");
        return target_->findRecord(handle, fieldName, value, reserved1, reserved2, reserved3, reserved4);
    }
    Variant getField(std::int32_t handle, std::string_view fieldName) override
    {
        beforeCall("getField");
        return target_->getField(handle, fieldName);
    }
    bool setFieldValue(std::int32_t handle, std::string_view fieldName, std::string_view value, bool flag1, bool flag2,
                       bool flag3) override
    {
        beforeCall("setFieldValue");
        return target_->setFieldValue(handle, fieldName, value, flag1, flag2, flag3);
    }
    bool addNew(std::int32_t handle) override
    {
        beforeCall("addNew");
        return target_->addNew(handle);
    }
    bool setNewField(std::int32_t handle, std::string_view fieldName, std::string_view value) override
    {
        beforeCall("setNewField");
        return target_->setNewField(handle, fieldName, value);
    }
    bool update(std::int32_t handle) override
    {
        beforeCall("update");
        return target_->update(handle);
    }
    bool deleteRecord(std::int32_t handle) override
    {
        beforeCall("deleteRecord");
        return target_->deleteRecord(handle);
    }
    std::string getSQLDate(const Date& date) override
    {
        beforeCall("getSQLDate");
        return target_->getSQLDate(date);
    }
    std::string getSQLText(std::string_view text) override
    {
        beforeCall("getSQLText");
        return target_->getSQLText(text);
    }

protected:
    virtual void beforeCall(std::string_view /*operation*/) {}

private:
    std::shared_ptr<DatabaseService> target_;
};

} // namespace qncal
