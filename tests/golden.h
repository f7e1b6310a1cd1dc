#pragma once

// Texts that are held against files kept beside the tests, in tests/golden.
//
// After a change that is meant, write the files anew and read their diff:
//   REWRITE_GOLDEN=1 build/debug/tests/billing_tests --gtest_filter='Golden*'

#include <string>

namespace tb::test {

// Fails with the lines that differ, each under its heading (a line that starts with "==== ").
void expectGolden(const std::string& name, const std::string& text);

}  // namespace tb::test
