#pragma once

#include "support/TestWorld.h"

#include <gtest/gtest.h>

namespace qncal::test {

/// The fixture of every test that needs a host around the component.
class ComponentTest : public testing::Test, protected TestWorld {};

/// The same, with a parameter.
template <class Parameter>
class ComponentTestWith : public ComponentTest, public testing::WithParamInterface<Parameter> {
};

} // namespace qncal::test
