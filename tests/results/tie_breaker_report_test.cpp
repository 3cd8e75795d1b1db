#include "results/tie_breaker_report.h"

#include <gtest/gtest.h>

#include "tests/support/approved.h"

TEST(TieBreakerReport, IsTheApprovedText) {
  expectApproved(tieBreakerReport(), "results/tie_breaker_rules.txt");
}
