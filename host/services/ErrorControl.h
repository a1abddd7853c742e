#pragma once

#include "core/ErrorControlService.h"
#include "utilities/Date.h"

#include <cstddef>
#include <deque>
#include <filesystem>
#include <functional>
#include <iosfwd>
#include <memory>
#include <string>
#include <vector>

namespace qncal::host {

/// One error as the component reported it.
struct ErrorReport {
    Date when;
    ErrorState error;
    /// The labels of the routines that were running, outermost first.
    std::vector<std::string> routines;
    /// How often the same statement has failed in a row, this time included: 1 at first.
    int attempt = 1;
};

/// Decides what becomes of a reported error.
using ErrorPolicy = std::function<ErrorAction(const ErrorReport&)>;

/// The routine is left and its caller sees the default result.
ErrorPolicy leaveOnError();
/// The failed statement is tried `times` times more before the routine is left.
ErrorPolicy retryOnError(int times);
/// Shows the error and asks the user: r retries, everything else, the end of the input included, leaves.
/// The streams must outlive the policy.
ErrorPolicy askOnError(std::istream& in, std::ostream& out);

/// The component's routine stack and error reports, with an answer policy and an optional log.
///
/// The log has one paragraph for each error: moment, number and text, then the routine stack, innermost first.
class ErrorControl : public ErrorControlService {
public:
    /// How many reports are kept for `reports`.
    static constexpr std::size_t keptReports = 100;

    explicit ErrorControl(ErrorPolicy policy = leaveOnError());

    void setPolicy(ErrorPolicy policy) { policy_ = std::move(policy); }
    /// Logs to a stream that outlives this object; none stops logging.
    void logTo(std::ostream* log);
    /// Logs to the end of a file. Throws `RunTimeError` when the file cannot be written.
    void logTo(const std::filesystem::path& file);

    /// The last reports, oldest first.
    const std::deque<ErrorReport>& reports() const { return reports_; }
    /// How many errors were reported since the object was made; `clear` does not reset it.
    std::size_t reportCount() const { return reportCount_; }
    void clear() { reports_.clear(); }
    const std::vector<std::string>& routines() const { return routines_; }

    void enterRoutine(std::string_view label) override;
    void leaveRoutine() override;
    void setError(const ErrorState& error) override;
    void reportError() override;
    std::int16_t getErrorAction() override;

private:
    void write(const ErrorReport& report);

    ErrorPolicy policy_;
    std::unique_ptr<std::ostream> logFile_;
    std::ostream* log_ = nullptr;
    std::vector<std::string> routines_;
    ErrorState current_;
    std::deque<ErrorReport> reports_;
    std::size_t reportCount_ = 0;
    /// True from an error until the next routine is entered or left: a failure in between is the same statement.
    bool sameStatement_ = false;
};

} // namespace qncal::host
