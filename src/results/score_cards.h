// What a contestant and a team took home: places and totals to go with the cards.
#pragma once

#include <array>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "results/individual_ranking.h"
#include "results/rankings.h"
#include "results/total_summary_table.h"

namespace scorvane {

/// One contestant's sums over a category, or over all classes. Kinds that none of the classes has
/// are 0.
struct CardTotal {
  const std::string* category = nullptr;  ///< null for all classes
  bool hasReasons = false;
  bool hasQuestions = false;
  std::int32_t placings = 0;
  std::int32_t reasons = 0;
  std::int32_t questions = 0;
  std::int32_t total = 0;
};

/// A contestant with a name; the card itself is in `scores`.
struct CardRow {
  ContestantNumber number = 0;
  const std::string* name = nullptr;
  const ClassScores* scores = nullptr;  ///< null without any record
  std::int32_t overall = 0;
  int place = 0;  ///< among all contestants with a name, by overall score; 0 without any record
  bool isAlternate = false;
  bool counts = false;  ///< toward the team's overall score
};

/// A team by one kind of score.
struct TeamStanding {
  int place = 0;
  std::int32_t score = 0;
};
/// By ScoreKind: each is what the High Team report of its kind ranks by, the best members chosen
/// anew.
using TeamStandings = std::array<TeamStanding, kScoreKinds.size()>;
/// By the contest's teams.
[[nodiscard]] std::map<const Team*, TeamStandings> teamStandings(const Contest& contest);

/// Ranks everybody once. Refers to the contest.
class ScoreCards {
 public:
  explicit ScoreCards(const Contest& contest);
  ScoreCards(const ScoreCards&) = delete;
  ScoreCards& operator=(const ScoreCards&) = delete;

  /// Place among all contestants with a name in the order of High Individual Overall, beyond those
  /// it lists too; 0 for a contestant without any record.
  [[nodiscard]] int placeOf(ContestantNumber number) const;
  /// A team's members with a name, in slot order.
  [[nodiscard]] std::vector<CardRow> membersOf(const Team& team) const;
  /// The contestants with a name that no team has, in number order.
  [[nodiscard]] std::vector<CardRow> withoutTeam() const;
  /// The categories that have classes, if the contest has any, and all classes last.
  [[nodiscard]] std::vector<CardTotal> totalsOf(const CardRow& card) const;

 private:
  // A total before anything is added, and the columns of its sums.
  struct EmptyTotal {
    CardTotal total;
    std::vector<std::pair<std::int32_t CardTotal::*, std::size_t>> sums;
  };
  void findTotals();
  [[nodiscard]] CardRow cardOf(ContestantNumber number, const std::string& name) const;

  const Contest& contest_;
  SummaryColumns columns_;
  std::vector<EmptyTotal> totals_;
  std::vector<int> places_;                   ///< by position in contestantNames
  std::vector<IndividualRankEntry> overall_;  ///< by position in scores
};

}  // namespace scorvane
