// Checks of properties on random machines.
#pragma once

#include <functional>
#include <sstream>
#include <string>

#include <gtest/gtest.h>
#include <rapidcheck.h>

// One case of a property. The test names the seed, so that each run is the same.
template <class Property> void Check(int count, int size, const Property& property) {
    rc::detail::TestParams params;
    params.seed = std::hash<std::string>()(testing::UnitTest::GetInstance()->current_test_info()->name());
    params.maxSuccess = count;
    params.maxSize = size;
    const auto result = rc::detail::checkTestable(property, rc::detail::TestMetadata(), params);
    if (!result.template is<rc::detail::SuccessResult>()) {
        std::ostringstream report;
        rc::detail::printResultMessage(result, report);
        FAIL() << "seed " << params.seed << '\n' << report.str();
    }
}
