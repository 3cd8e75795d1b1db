#include "exchange/page_cards.h"

#include <algorithm>
#include <array>
#include <utility>

#include "exchange/people.h"
#include "model/class_lists.h"
#include "model/record_cursor.h"

namespace scorvane {

namespace {

class CardWriter {
 public:
  CardWriter(PageWriter& page, const Contest& contest, const ScoreCards& cards)
      : page_(page),
        contest_(contest),
        cards_(cards),
        named_(countNamed(contest)),
        hasReasons_(!reasonsClasses(contest.classes).empty()),
        hasQuestions_(!questionsClasses(contest.classes).empty()) {
    for (std::int32_t k = 0; k < contest.classes.count(); ++k) {
      appendNumber(rowStarts_.emplace_back("<tr><th scope=\"row\">"), k + 1);
      appendMarkup(rowStarts_.back().append(" "), contest.classes.name(k));
      rowStarts_.back() += "<td>";
    }
    for (std::size_t letter = 0; letter < placings_.size(); ++letter) {
      PageWriter placing;
      const auto given = static_cast<PlacingLetter>(letter);
      if (given != kNoLetter) placing.placing(given);
      placings_.at(letter) = std::move(placing.raw("<td>").out());
    }
  }

  void add(const Person& person) {
    const CardRow& card = person.card;
    const std::vector<CardTotal> totals = cards_.totalsOf(card);
    page_.raw("<details open><summary><h3>").number(card.number).raw(" ").text(*card.name);
    page_.raw("</h3> ").text(*person.team).raw("</summary>\n<table><caption>Overall ");
    page_.number(totals.back().total);
    if (card.place > 0) {
      page_.raw(", place ")
          .number(card.place)
          .raw(" of ")
          .number(static_cast<std::int64_t>(named_));
    }
    if (card.isAlternate) page_.raw(", alternate");
    if (card.counts) page_.raw(", counts for the team");
    page_.raw(
        "</caption>\n<thead><tr><th scope=\"col\">Class<th scope=\"col\">Placing<th "
        "scope=\"col\">Score");
    if (hasReasons_) page_.raw("<th scope=\"col\">Reasons");
    if (hasQuestions_) page_.raw("<th scope=\"col\">Questions");
    page_.raw("<th scope=\"col\">Total</thead>\n<tbody>\n");
    addClasses(card);
    for (const CardTotal& total : totals) addTotal(total);
    page_.raw("</table></details>\n");
  }

 private:
  void addClasses(const CardRow& card) {
    RecordCursor records(card.scores);
    for (std::int32_t k = 0; k < contest_.classes.count(); ++k) {
      const ScoreRecord& record = records.at(k);
      page_.raw(rowStarts_[static_cast<std::size_t>(k)]);
      page_.raw(placings_.at(static_cast<unsigned char>(record.letter)));
      if (record.letter != kNoLetter) page_.number(record.placingScore);
      if (hasReasons_) addEntered(record.reasonsScore);
      if (hasQuestions_) addEntered(record.questionsScore);
      page_.raw("<td>\n");
    }
  }
  // A 0 was not entered.
  void addEntered(std::int32_t score) {
    page_.raw("<td>");
    if (score != 0) page_.number(score);
  }
  void addTotal(const CardTotal& total) {
    page_.raw("<tr class=\"t\"><th scope=\"row\">");
    page_.text(total.category == nullptr ? "All classes" : *total.category);
    page_.raw("<td><td>").number(total.placings);
    if (hasReasons_) page_.raw("<td>");
    if (hasReasons_ && total.hasReasons) page_.number(total.reasons);
    if (hasQuestions_) page_.raw("<td>");
    if (hasQuestions_ && total.hasQuestions) page_.number(total.questions);
    page_.raw("<td>").number(total.total).raw("\n");
  }

  PageWriter& page_;
  const Contest& contest_;
  const ScoreCards& cards_;
  std::size_t named_;
  bool hasReasons_;
  bool hasQuestions_;
  // What the rows of every card are made of, by class and by letter: put together once, the page
  // takes half the time.
  std::vector<std::string> rowStarts_;
  std::array<std::string, 256> placings_;
};

}  // namespace

void addScoreCards(PageWriter& page, const Contest& contest, const ScoreCards& cards) {
  page.raw(
      "<section id=\"cards\">\n<h2>Score cards</h2>\n"
      "<p id=\"search\" hidden><label for=\"find\">Find by number, name or team</label><br>"
      "<input id=\"find\" type=\"search\" autocomplete=\"off\"><output id=\"found\" "
      "for=\"find\"></output></p>\n");
  CardWriter writer(page, contest, cards);
  const std::vector<Person> people = peopleByNumber(contest, cards);
  constexpr std::size_t kPerCard = 600, kPerClass = 80, kMostReserved = 32U << 20U;
  const std::size_t perPerson = kPerCard + kPerClass * contest.classes.className.size();
  page.out().reserve(page.out().size() + std::min(people.size() * perPerson, kMostReserved));
  for (const Person& person : people) {
    if (page.isTooLong()) break;
    writer.add(person);
  }
  page.raw("</section>\n");
}

}  // namespace scorvane
