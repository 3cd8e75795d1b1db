// Reports compared with texts that someone has read and approved.
#pragma once

#include <string>

#include "model/contest.h"

namespace scorvane {

/// Holds a report against the approved text in tests/<name>; fails with line and column of the
/// first difference. With the environment variable SCORVANE_RENEW=1 the approved text is
/// rewritten instead: read the diff before committing it.
void expectApproved(const std::string& report, const std::string& name);

/// The bytes of a file of the source, such as "samples/county.scv"; "" when there is none.
[[nodiscard]] std::string sourceFile(const std::string& name);
/// The contest of such a file.
[[nodiscard]] Contest contestOfFile(const std::string& name);

}  // namespace scorvane
