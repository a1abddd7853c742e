#pragma once

#include "utilities/Date.h"

#include <memory>

namespace qncal {

class ErrorControlService;

/// Calendar arithmetic that the component creates for itself. Virtual so that a test can make one fail.
class DateTimeService {
public:
    virtual ~DateTimeService() = default;

    void setErrorControl(std::shared_ptr<ErrorControlService> errorControl) { errorControl_ = std::move(errorControl); }
    const std::shared_ptr<ErrorControlService>& errorControl() const { return errorControl_; }

private:
    std::shared_ptr<ErrorControlService> errorControl_;
};

} // namespace qncal
