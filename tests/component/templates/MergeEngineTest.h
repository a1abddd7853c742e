#pragma once

#include "core/ServiceRegistry.h"
#include "services/Locale.h"
#include "support/RecordingErrorControl.h"
#include "templates/clsInsertFieldsInRTB.h"
#include "utilities/Clock.h"

#include <gtest/gtest.h>

namespace qncal {

inline const Date lastDayBeforeHarmonisation = Date::of(2010, 6, 30, 23, 59, 59);
inline const Date firstDayOfHarmonisation = Date::of(2010, 7, 1);

/// A merge field engine with a settable region and clock and without a database.
class MergeEngineTest : public testing::Test {
protected:
    void SetUp() override
    {
        serviceRegistry().errorControl = errors;
        serviceRegistry().locale = locale;
        createComponentServices();
    }
    void TearDown() override { serviceRegistry() = {}; }

    void region(std::int32_t country, std::int32_t province)
    {
        locale->values().country = country;
        locale->values().province = province;
    }

    std::shared_ptr<test::RecordingErrorControl> errors = std::make_shared<test::RecordingErrorControl>();
    std::shared_ptr<host::Locale> locale = std::make_shared<host::Locale>();
    Date clock = Date::of(2026, 3, 7, 10);
    ClockOverride clockOverride{[this] { return clock; }};
    clsInsertFieldsInRTB engine;
};

} // namespace qncal
