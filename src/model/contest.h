// The contest record: everything that is known of the one contest the program works on.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "model/flat_map.h"
#include "model/placing.h"
#include "model/reasons_order.h"

namespace scorvane {

using ContestantNumber = std::int32_t;

/// The category of classes that were given none; a saved contest always has at least one category.
inline constexpr const char* kNoCategory = "none";

struct ContestSettings {
  std::string contestName;
  std::string divisionName;
  std::string contestDate;            ///< free text, as typed
  std::int32_t startNum = 101;        ///< number of the first contestant
  std::int32_t numPerTeam = 4;        ///< regular members per team
  std::int32_t totalNumPerTeam = 4;   ///< member slots per team: regular members plus alternates
  std::int32_t numToScore = 3;        ///< members whose scores count toward a team's total
  bool reportPercent = false;         ///< numToReport is a percentage
  std::int32_t numToReport = 20;      ///< rows (or per cent of them) that results reports list
  std::int32_t numGroups = 5;         ///< rotation groups, lettered from "A"
  std::int32_t numReasonsGroups = 1;  ///< reasons groups, each heard by an official of its own
  ContestantNumber nextContestantNum = 101;
  char nextGroupLetter = 'A';
  friend bool operator==(const ContestSettings&, const ContestSettings&) = default;
};

/// The judging classes as parallel columns; element k of each describes class k (from 0).
///
/// The columns normally have one length. The undo of a refused class in Setup Classes can leave
/// some of them shorter than `className` for a while, so everything but that dialog reads through
/// the functions below, which return a blank value for a missing element.
struct JudgingClasses {
  std::vector<std::string> className;
  std::vector<bool> reasonsFlag;
  std::vector<bool> questionsFlag;
  std::vector<PlacingLetter> officialLetter;
  std::vector<std::int32_t> cut1;
  std::vector<std::int32_t> cut2;
  std::vector<std::int32_t> cut3;
  std::vector<std::int32_t> categoryIndex;

  /// Number of classes: the number of names.
  [[nodiscard]] std::int32_t count() const { return static_cast<std::int32_t>(className.size()); }
  [[nodiscard]] const std::string& name(std::int32_t index) const;  ///< "" when missing
  [[nodiscard]] bool hasReasons(std::int32_t index) const;          ///< false when missing
  [[nodiscard]] bool hasQuestions(std::int32_t index) const;        ///< false when missing
  [[nodiscard]] PlacingLetter official(std::int32_t index) const;   ///< ' ' when missing
  [[nodiscard]] Cuts cuts(std::int32_t index) const;                ///< zeros when missing
  [[nodiscard]] std::int32_t category(std::int32_t index) const;    ///< 0 when missing

  /// Appends one class to every column.
  void add(std::string name, bool reasons, bool questions, PlacingLetter official, const Cuts& cuts,
           std::int32_t category);
  /// Removes a class from every column that has it.
  void remove(std::int32_t index);
  void clear();
  friend bool operator==(const JudgingClasses&, const JudgingClasses&) = default;
};

struct ScoreRecord {
  PlacingLetter letter = kNoLetter;
  std::int32_t placingScore = 0;    ///< at most 50; can fall below 0 with legal cuts
  std::int32_t reasonsScore = 0;    ///< 0 to 50
  std::int32_t questionsScore = 0;  ///< 0 to 50
  friend bool operator==(const ScoreRecord&, const ScoreRecord&) = default;
};

/// One contestant's records by class index (from 0).
using ClassScores = FlatMap<std::int32_t, ScoreRecord>;

struct Team {
  std::string coach;
  /// Contestant number in each member slot; slot j is a regular member below numPerTeam, an
  /// alternate from there on.
  std::vector<ContestantNumber> members;
  friend bool operator==(const Team&, const Team&) = default;
};

/// Most slots of a team, whatever size is set up. Far fewer fit into a team's line of the contest
/// file; a typing slip or a damaged file must not fill the memory.
inline constexpr std::int32_t kMostTeamSlots = 1000;

/// Member slots of every team: totalNumPerTeam, from 0 to kMostTeamSlots.
[[nodiscard]] std::size_t teamSlots(const ContestSettings& settings);

struct Contest {
  ContestSettings settings;
  std::vector<std::string> categories;
  std::vector<char> groupLetters;  ///< "A", "B", ... one per group
  JudgingClasses classes;
  /// A contestant exists when there is an entry here; an empty name marks a number that a team
  /// slot reserves without a person in it.
  FlatMap<ContestantNumber, std::string> contestantNames;
  FlatMap<ContestantNumber, char> contestantGroup;
  FlatMap<ContestantNumber, ReasonsPlace> reasonsPlace;
  ReasonsOrder reasonsOrder;
  std::map<std::string, Team> teams;  ///< by team name, in ascending byte order
  FlatMap<ContestantNumber, ClassScores> scores;

  friend bool operator==(const Contest&, const Contest&) = default;
};

/// Name of a contestant; "" when the number does not exist.
[[nodiscard]] const std::string& contestantName(const Contest& contest, ContestantNumber number);

/// How many contestants have a name: numbers that are only reserved do not count.
[[nodiscard]] std::size_t countNamed(const Contest& contest);

/// A contestant's place in the reasons order; unassigned when the number does not exist.
[[nodiscard]] ReasonsPlace reasonsPlaceOf(const Contest& contest, ContestantNumber number);

/// A contestant's record for a class (index from 0); a blank record when there is none.
[[nodiscard]] const ScoreRecord& scoreRecord(const Contest& contest, ContestantNumber number,
                                             std::int32_t classIndex);

/// Name of a category; the first one's when there is no such index, "" without categories.
[[nodiscard]] const std::string& categoryName(const Contest& contest, std::int32_t index);

/// How many of the three scores of a card a record holds: a letter, and reasons and questions
/// scores other than 0.
[[nodiscard]] int countEntered(const ScoreRecord& record);

/// Whether any score was entered: some record holds a letter, or a reasons or questions score
/// other than 0.
[[nodiscard]] bool hasScores(const Contest& contest);

/// How many letters, and reasons and questions scores other than 0, were entered.
[[nodiscard]] std::int64_t countScores(const Contest& contest);

/// Rewrites every contestant's placing score of every class from the stored letters, the official
/// placings and the cuts; creates the records that are missing.
void recomputeAllPlacingScores(Contest& contest);

}  // namespace scorvane
