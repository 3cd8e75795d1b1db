#include "exchange/score_sheets.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <map>
#include <memory>
#include <utility>

#include "exchange/people.h"
#include "model/class_lists.h"
#include "model/class_statistics.h"
#include "model/numbering.h"
#include "model/record_cursor.h"

namespace scorvane {

namespace {

// What the sheets are made of, kept while they are written.
struct Book {
  explicit Book(const Contest& judged)
      : contest(judged),
        cards(judged),
        people(peopleByNumber(judged, cards)),
        standings(teamStandings(judged)),
        teams(teamRows(judged, everybodyRequest(judged, ScoreKind::overall))) {}

  const Contest& contest;
  ScoreCards cards;
  std::vector<Person> people;
  std::map<const Team*, TeamStandings> standings;
  std::vector<TeamRow> teams;
};

using SharedBook = std::shared_ptr<const Book>;

void addHeadings(Table& sheet, std::initializer_list<const char*> headings) {
  sheet.headings.insert(sheet.headings.end(), headings.begin(), headings.end());
}

Table newSheet(const char* name, std::initializer_list<const char*> headings) {
  Table sheet;
  sheet.name = name;
  addHeadings(sheet, headings);
  return sheet;
}

void addCells(std::vector<Cell>& cells, std::initializer_list<Cell> more) {
  cells.insert(cells.end(), more);
}

Cell letterCell(const PlacingLetter& letter) {
  return letter == kNoLetter ? Cell{} : Cell::ofText({&letter, 1});
}

// The order of a letter as digits, such as "3124"; blank for any letter but 'A' to 'X'.
Cell orderCell(PlacingLetter letter) {
  static const auto orders = [] {
    std::array<std::array<char, 4>, 24> made{};
    for (std::size_t i = 0; i < made.size(); ++i) {
      const auto order = orderOfLetter(static_cast<char>('A' + i));
      for (std::size_t k = 0; k < order.size(); ++k) {
        made.at(i).at(k) = static_cast<char>('0' + order.at(k));
      }
    }
    return made;
  }();
  if (!isOrderLetter(letter)) return {};
  const auto& order = orders.at(static_cast<std::size_t>(letter - 'A'));
  return Cell::ofText({order.data(), order.size()});
}

Cell placingScoreCell(const ScoreRecord& record) {
  return record.letter == kNoLetter ? Cell{} : Cell::ofNumber(record.placingScore);
}

// A reasons or questions score; a 0 was not entered.
Cell enteredCell(std::int32_t score) {
  return score == 0 ? Cell{} : Cell::ofNumber(score);
}

void addClassHeadings(Table& sheet, const JudgingClasses& classes) {
  for (std::int32_t k = 0; k < classes.count(); ++k) {
    const std::string number = std::to_string(k + 1);
    addHeadings(sheet, {(number + " Placing").c_str(), (number + " Score").c_str()});
    if (classes.hasReasons(k)) sheet.headings.push_back(number + " Reasons");
    if (classes.hasQuestions(k)) sheet.headings.push_back(number + " Questions");
  }
}

void addClassCells(std::vector<Cell>& cells, const JudgingClasses& classes,
                   const ClassScores* scores) {
  RecordCursor records(scores);
  for (std::int32_t k = 0; k < classes.count(); ++k) {
    const ScoreRecord& record = records.at(k);
    addCells(cells, {letterCell(record.letter), placingScoreCell(record)});
    if (classes.hasReasons(k)) cells.push_back(enteredCell(record.reasonsScore));
    if (classes.hasQuestions(k)) cells.push_back(enteredCell(record.questionsScore));
  }
}

Table contestantsSheet(const SharedBook& book) {
  Table sheet = newSheet("Contestants", {"Number", "Name", "Team", "Coach", "Group", "Alternate"});
  addClassHeadings(sheet, book->contest.classes);
  for (const CardTotal& total : book->cards.totalsOf({})) {
    if (total.category != nullptr) sheet.headings.push_back(*total.category + " Total");
  }
  addHeadings(sheet, {"Placings", "Reasons", "Questions", "Overall", "Place"});
  sheet.rows = book->people.size();
  sheet.fill = [book, group = std::string(1, ' ')](std::size_t row,
                                                   std::vector<Cell>& cells) mutable {
    const auto& [card, team, coach] = book->people[row];
    group[0] = groupOfContestant(book->contest, card.number);
    addCells(cells, {Cell::ofNumber(card.number), Cell::ofText(*card.name), Cell::ofText(*team),
                     Cell::ofText(*coach), Cell::ofText(group),
                     Cell::ofText(card.isAlternate ? "alt" : "")});
    addClassCells(cells, book->contest.classes, card.scores);
    for (const CardTotal& total : book->cards.totalsOf(card)) {
      if (total.category == nullptr) {
        addCells(cells, {Cell::ofNumber(total.placings), Cell::ofNumber(total.reasons),
                         Cell::ofNumber(total.questions)});
      }
      cells.push_back(Cell::ofNumber(total.total));
    }
    cells.push_back(card.place == 0 ? Cell{} : Cell::ofNumber(card.place));
  };
  return sheet;
}

Table teamsSheet(const SharedBook& book) {
  Table sheet =
      newSheet("Teams", {"Place", "Team", "Coach", "Placings", "Reasons", "Questions", "Overall"});
  std::size_t slots = 0;
  for (const auto& [name, team] : book->contest.teams) slots = std::max(slots, team.members.size());
  for (std::size_t slot = 1; slot <= slots; ++slot) {
    sheet.headings.push_back("Member " + std::to_string(slot));
  }
  sheet.rows = book->teams.size();
  sheet.fill = [book](std::size_t row, std::vector<Cell>& cells) {
    const TeamRow& ranked = book->teams[row];
    const Team& team = book->contest.teams.at(*ranked.name);
    const TeamStandings& standings = book->standings.at(&team);
    const auto score = [&](ScoreKind kind) {
      return Cell::ofNumber(standings.at(static_cast<std::size_t>(kind)).score);
    };
    addCells(cells,
             {Cell::ofNumber(ranked.place), Cell::ofText(*ranked.name), Cell::ofText(team.coach),
              score(ScoreKind::placings), score(ScoreKind::reasons), score(ScoreKind::questions),
              Cell::ofNumber(ranked.score)});
    for (const ContestantNumber number : team.members) {
      cells.push_back(Cell::ofText(contestantName(book->contest, number)));
    }
  };
  return sheet;
}

Table classesSheet(const SharedBook& book) {
  Table sheet = newSheet("Classes", {"Class", "Name", "Category", "Official", "Order", "Cut 1",
                                     "Cut 2", "Cut 3", "Cards", "Average", "Perfect"});
  sheet.rows = static_cast<std::size_t>(book->contest.classes.count());
  const auto judged = std::make_shared<const CardsByClass>(book->contest);
  sheet.fill = [book, judged, official = std::string(1, ' ')](std::size_t row,
                                                              std::vector<Cell>& cells) mutable {
    const auto k = static_cast<std::int32_t>(row);
    const Contest& contest = book->contest;
    const auto [cut1, cut2, cut3] = contest.classes.cuts(k);
    const ClassStatistics statistics = judged->statistics(k);
    const ScoreSum& cards = statistics.placings;
    official[0] = contest.classes.official(k);
    addCells(cells, {Cell::ofNumber(k + 1), Cell::ofText(contest.classes.name(k)),
                     hasCategories(contest)
                         ? Cell::ofText(categoryName(contest, contest.classes.category(k)))
                         : Cell{},
                     letterCell(official[0]), orderCell(official[0]), Cell::ofNumber(cut1),
                     Cell::ofNumber(cut2), Cell::ofNumber(cut3), Cell::ofNumber(cards.count),
                     cards.count == 0 ? Cell{} : Cell::ofTenths(cards.averageInTenths()),
                     Cell::ofNumber(statistics.perfect)});
  };
  return sheet;
}

// Whose card of which class.
struct Entered {
  const CardRow* card;
  std::int32_t classIndex;
  const ScoreRecord* record;
};

std::vector<Entered> enteredCards(const Book& book) {
  std::vector<Entered> entered;
  for (const Person& person : book.people) {
    RecordCursor records(person.card.scores);
    for (std::int32_t k = 0; k < book.contest.classes.count(); ++k) {
      const ScoreRecord& record = records.at(k);
      if (countEntered(record) > 0) entered.push_back({&person.card, k, &record});
    }
  }
  return entered;
}

Table cardsSheet(const SharedBook& book) {
  Table sheet = newSheet(
      "Cards", {"Number", "Name", "Class", "Placing", "Order", "Score", "Reasons", "Questions"});
  const auto entered = std::make_shared<const std::vector<Entered>>(enteredCards(*book));
  sheet.rows = entered->size();
  sheet.fill = [book, entered](std::size_t row, std::vector<Cell>& cells) {
    const auto& [card, k, record] = (*entered)[row];
    addCells(cells,
             {Cell::ofNumber(card->number), Cell::ofText(*card->name), Cell::ofNumber(k + 1),
              letterCell(record->letter), orderCell(record->letter), placingScoreCell(*record),
              enteredCell(record->reasonsScore), enteredCell(record->questionsScore)});
  };
  return sheet;
}

}  // namespace

std::vector<Table> scoreSheets(const Contest& contest) {
  const auto book = std::make_shared<const Book>(contest);
  return {contestantsSheet(book), teamsSheet(book), classesSheet(book), cardsSheet(book)};
}

}  // namespace scorvane
