#pragma once

#include "utilities/Variant.h"

#include <cstdint>
#include <memory>
#include <string>

namespace qncal {

class ErrorControlService;

/// Small helpers that the component creates for itself. Virtual so that a test can make one fail.
class UtilityService {
public:
    virtual ~UtilityService() = default;

    void setErrorControl(std::shared_ptr<ErrorControlService> errorControl) { errorControl_ = std::move(errorControl); }
    const std::shared_ptr<ErrorControlService>& errorControl() const { return errorControl_; }

    /// True for null and for an empty text.
    virtual bool isNullValue(const Variant& value) { return value.isNull() || (value.isText() && value.text().empty()); }
    /// 1 is True, every other value False.
    virtual bool checkBoxToBool(std::int16_t value) { return value == 1; }
    virtual std::int16_t boolToCheckBox(bool value) { return value ? 1 : 0; }

private:
    std::shared_ptr<ErrorControlService> errorControl_;
};

} // namespace qncal
