// The published page's score cards.
#pragma once

#include "exchange/page_writer.h"
#include "results/score_cards.h"

namespace scorvane {

/// Adds the card of every contestant with a name, in order of number, and the field that a script
/// finds them by.
void addScoreCards(PageWriter& page, const Contest& contest, const ScoreCards& cards);

}  // namespace scorvane
