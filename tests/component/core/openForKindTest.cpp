#include "core/openForKind.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace qncal {
namespace {

/// Writes down what becomes of it.
class TracedForm {
public:
    explicit TracedForm(std::string& trace) : trace_(trace) { trace_ += "created "; }
    ~TracedForm() { trace_ += "released"; }
    TracedForm(const TracedForm&) = delete;
    TracedForm& operator=(const TracedForm&) = delete;
    void Initialize(int kind) { trace_ += "initialised with " + std::to_string(kind) + " "; }

private:
    std::string& trace_;
};

std::string traceOf(int view)
{
    std::string trace;
    openForKind(
        static_cast<enumFormDayTimerType>(view), [&] { return std::make_shared<TracedForm>(trace); },
        [](TracedForm& form, enumLocalCalendarItemType kind) { form.Initialize(kind); });
    return trace;
}

TEST(openForKind, InitialisesForTheKindOfTheView)
{
    EXPECT_EQ(traceOf(0), "created initialised with 0 released");
    EXPECT_EQ(traceOf(1), "created initialised with 1 released");
    EXPECT_EQ(traceOf(2), "created initialised with 2 released");
}

TEST(openForKind, ReleasesADialogOfAnyOtherViewUninitialised)
{
    for (const int view : {3, 4, -1})
        EXPECT_EQ(traceOf(view), "created released") << view;
}

} // namespace
} // namespace qncal
