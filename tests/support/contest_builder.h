// Small contests for tests, written down in a few lines.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "model/contest.h"

/// Builds a contest step by step. It starts as a new contest of March 05, 2024 with the category
/// "none"; settings are changed through `contest.settings` before teams are added.
class ContestBuilder {
 public:
  struct Class {
    std::string name = "Angus Heifers";
    bool reasons = false;
    bool questions = false;
    PlacingLetter official = 'A';
    Cuts cuts = {2, 3, 4};
    std::int32_t category = 0;
  };
  struct Scores {
    std::int32_t placing = 0;
    std::int32_t reasons = 0;
    std::int32_t questions = 0;
  };

  ContestBuilder();

  ContestBuilder& members(std::int32_t perTeam, std::int32_t totalPerTeam, std::int32_t toScore);
  ContestBuilder& categories(std::vector<std::string> names);
  ContestBuilder& addClass(const Class& judged);
  /// Adds a team; its members take the next free numbers. An empty name is a reserved slot.
  ContestBuilder& team(const std::string& name, const std::string& coach,
                       const std::vector<std::string>& members);
  /// A contestant without a team, with the next free number.
  ContestBuilder& contestant(const std::string& name);
  /// Enters a contestant's cards, one letter a class from the first on (' ' = not entered), with
  /// the placing score that the cut rule gives.
  ContestBuilder& placings(ContestantNumber number, std::string_view letters);
  /// Stores scores as they stand, one triple a class from the first on.
  ContestBuilder& scores(ContestantNumber number, std::initializer_list<Scores> perClass);

  Contest contest;
};
