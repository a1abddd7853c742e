#pragma once

#include "utilities/Variant.h"

#include <cstdint>
#include <memory>
#include <string>

namespace qncal {

class ErrorControlService;

/// Small aids of dialogs and data access that the component creates for itself. All virtual so that a test can
/// make one fail.
class UtilityService {
public:
    virtual ~UtilityService() = default;

    void setErrorControl(std::shared_ptr<ErrorControlService> errorControl) { errorControl_ = std::move(errorControl); }
    const std::shared_ptr<ErrorControlService>& errorControl() const { return errorControl_; }

    /// True for null and for an empty text.
    virtual bool isNullValue(const Variant& value);
    /// 1 is True, every other value False.
    virtual bool checkBoxToBool(std::int16_t checkBoxValue);
    virtual std::int16_t boolToCheckBox(bool value);
    /// "1st", "2nd", "3rd", "4th", "11th", "21st".
    virtual std::string getOrdinalText(std::int32_t number);
    /// For the key press event of a text box that takes whole numbers: a key that is neither a digit nor an editing
    /// key becomes 0, which swallows it. Editing keys are all control characters: backspace, enter, tab, escape,
    /// and Ctrl with a letter.
    virtual void filterDigitKeys(std::int16_t& keyAscii);

private:
    std::shared_ptr<ErrorControlService> errorControl_;
};

} // namespace qncal
