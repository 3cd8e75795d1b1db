// The results as one web page that needs nothing besides itself.
#pragma once

#include <string>

#include "model/contest.h"

namespace scorvane {

/// How much of the results is told. Names are of minors, so the default names those with an award
/// only.
enum class PageContent {
  awards,  ///< award lists, and the classes without anybody's name
  teams,   ///< all teams with members and scores, too
  cards,   ///< every contestant's card, too
};

/// The page in UTF-8: HTML 5 without any reference to the outside.
[[nodiscard]] std::string resultsPage(const Contest& contest, PageContent content);

}  // namespace scorvane
