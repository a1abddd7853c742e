#include "services/ErrorControl.h"

#include "utilities/Clock.h"
#include "utilities/RunTimeError.h"

#include <fstream>
#include <istream>
#include <ostream>
#include <utility>

namespace qncal::host {

ErrorPolicy leaveOnError()
{
    return [](const ErrorReport&) { return ErrorAction::leave; };
}

ErrorPolicy retryOnError(int times)
{
    return [times](const ErrorReport& report) {
        return report.attempt <= times ? ErrorAction::retry : ErrorAction::leave;
    };
}

ErrorPolicy askOnError(std::istream& in, std::ostream& out)
{
    return [&in, &out](const ErrorReport& report) {
        out << "Error " << report.error.number << ": " << report.error.text << "\nRetry or leave? [r/L] " << std::flush;
        std::string answer;
        std::getline(in, answer);
        return !answer.empty() && (answer[0] == 'r' || answer[0] == 'R') ? ErrorAction::retry : ErrorAction::leave;
    };
}

ErrorControl::ErrorControl(ErrorPolicy policy) : policy_(std::move(policy)) {}

void ErrorControl::logTo(std::ostream* log)
{
    log_ = log;
    logFile_.reset();
}

void ErrorControl::logTo(const std::filesystem::path& file)
{
    auto opened = std::make_unique<std::ofstream>(file, std::ios::app);
    if (!*opened)
        throw RunTimeError(errorNumber::invalidProcedureCall, "Cannot write the log file " + file.string());
    logFile_ = std::move(opened);
    log_ = logFile_.get();
}

void ErrorControl::enterRoutine(std::string_view label)
{
    routines_.emplace_back(label);
    sameStatement_ = false;
}

void ErrorControl::leaveRoutine()
{
    if (!routines_.empty())
        routines_.pop_back();
    sameStatement_ = false;
}

void ErrorControl::setError(const ErrorState& error) { current_ = error; }

void ErrorControl::reportError()
{
    ErrorReport report{now(), current_, routines_, 1};
    if (sameStatement_ && !reports_.empty() && reports_.back().error.number == current_.number)
        report.attempt = reports_.back().attempt + 1;
    sameStatement_ = true;
    write(report);
    reports_.push_back(std::move(report));
    if (reports_.size() > keptReports)
        reports_.pop_front();
    ++reportCount_;
}

std::int16_t ErrorControl::getErrorAction()
{
    const ErrorAction action = reports_.empty() ? ErrorAction::leave : policy_(reports_.back());
    return static_cast<std::int16_t>(action);
}

void ErrorControl::write(const ErrorReport& report)
{
    if (!log_)
        return;
    *log_ << defaultDateText(report.when) << " error " << report.error.number << ": " << report.error.text << '\n';
    for (auto label = report.routines.rbegin(); label != report.routines.rend(); ++label)
        *log_ << "    in " << *label << '\n';
    log_->flush();
}

} // namespace qncal::host
