#include "results/score_cards_report.h"

#include "model/record_cursor.h"
#include "results/award_lists.h"
#include "results/hand_out.h"
#include "results/score_cards.h"
#include "text/format.h"
#include "text/report_marks.h"

namespace scorvane {

namespace {

constexpr const char* kCardColumns =
    " # Class             Offic. Cuts   Placed PLC RSN QUE Where the points went\n";

class ScoreCardsBuilder {
 public:
  explicit ScoreCardsBuilder(const Contest& contest)
      : contest_(contest),
        cards_(contest),
        standings_(teamStandings(contest)),
        named_(countNamed(contest)),
        report_(
            "Score Cards By Team\n\n"
            "\"3 over 1: -5\" = 3 was placed above 1, but the officials have 1 above 3.\n\n") {}

  std::string build() {
    for (const auto& [name, team] : contest_.teams) {
      report_.beginPage(
          formatText("Team:  %-30.30s     Coach:  %.30s\n\n", name.c_str(), team.coach.c_str()));
      addStandings(standings_.at(&team));
      if (!addCards(cards_.membersOf(team), true)) return report_.take();
    }
    const std::vector<CardRow> others = cards_.withoutTeam();
    if (!others.empty()) {
      report_.beginPage("Contestants Without a Team\n\n");
      addCards(others, false);
    }
    return report_.take();
  }

 private:
  void addStandings(const TeamStandings& standings) {
    std::string scores = "Score";
    std::string places = "Place";
    for (const ScoreKind kind :
         {ScoreKind::placings, ScoreKind::reasons, ScoreKind::questions, ScoreKind::overall}) {
      const auto& [place, score] = standings.at(static_cast<std::size_t>(kind));
      appendFormat(scores, " %10d", score);
      appendFormat(places, " %10s", placeInWords(place).c_str());
    }
    report_.add(formatText(
        "        Placings    Reasons  Questions    Overall\n"
        "%s   by the %d best of each\n%s   of %zu teams\n\n",
        scores.c_str(), contest_.settings.numToScore, places.c_str(), contest_.teams.size()));
  }

  bool addCards(const std::vector<CardRow>& cards, bool ofTeam) {
    for (const CardRow& card : cards) {
      std::string block = cardHeading(card, ofTeam);
      const std::string continued =
          formatText("%4d %.32s, continued\n%s", card.number, card.name->c_str(), kCardColumns);
      RecordCursor records(card.scores);
      for (std::int32_t k = 0; k < contest_.classes.count(); ++k) {
        appendClass(block, k, records.at(k));
        // So many classes that the card alone is too long.
        if (block.size() > kMostOfACard) {
          report_.add(block, continued);
          block.clear();
          if (report_.isTooLong()) return false;
        }
      }
      for (const CardTotal& total : cards_.totalsOf(card)) appendTotal(block, total);
      report_.add(block += "\n", continued);
      if (report_.isTooLong()) return false;
    }
    return true;
  }

  std::string cardHeading(const CardRow& card, bool ofTeam) const {
    std::string out = formatText("%4d %.32s", card.number, card.name->c_str());
    if (card.place > 0) {
      appendFormat(out, ": %s of %zu", placeInWords(card.place).c_str(), named_);
    }
    if (ofTeam) {
      out += card.isAlternate ? ", alternate"
             : card.counts    ? ", counts for the team"
                              : ", does not count";
    }
    return out.append("\n").append(kCardColumns);
  }

  void appendClass(std::string& out, std::int32_t k, const ScoreRecord& record) const {
    const JudgingClasses& classes = contest_.classes;
    const std::size_t start = out.size();
    appendFormat(out, "%2d %-17.17s %-6s %-6.6s %-6s", k + 1, classes.name(k).c_str(),
                 placingText(classes.official(k)).c_str(), cutsText(classes.cuts(k)).c_str(),
                 placingText(record.letter).c_str());
    appendScore(out, true, record.letter != kNoLetter, record.placingScore);
    appendScore(out, classes.hasReasons(k), record.reasonsScore != 0, record.reasonsScore);
    appendScore(out, classes.hasQuestions(k), record.questionsScore != 0, record.questionsScore);
    appendLosses(out, start, k, record);
    out.erase(out.find_last_not_of(' ') + 1);
    out += '\n';
  }

  // Blank where the class has no such score, a hyphen where none was entered.
  static void appendScore(std::string& out, bool isAsked, bool isEntered, std::int32_t score) {
    if (!isAsked || !isEntered) {
      out += isAsked ? "   -" : "    ";
    } else {
      appendFormat(out, " %3d", score);
    }
  }

  void appendLosses(std::string& out, std::size_t start, std::int32_t k,
                    const ScoreRecord& record) const {
    const std::size_t indent = out.size() - start + 1;
    out += " ";
    const auto add = [&](const std::string& text) {
      if (out.size() - start > indent) out += "  ";
      if (out.size() - start + text.size() > kWidestLine) {
        out.erase(out.find_last_not_of(' ') + 1);
        out += '\n';
        start = out.size();
        out.append(indent, ' ');
      }
      out += text;
    };
    const JudgingClasses& classes = contest_.classes;
    if (!isOrderLetter(record.letter)) {
      if (record.letter != kNoLetter) add("zero card");
    } else if (!isOrderLetter(classes.official(k))) {
      add("no official placing");
    } else if (record.placingScore !=
               placingScore(record.letter, classes.official(k), classes.cuts(k))) {
      add("not by these cuts");
    } else {
      for (const auto& [first, second, points] :
           lostPairs(record.letter, classes.official(k), classes.cuts(k))) {
        add(formatText("%d over %d: %d", first, second, -points));
      }
    }
  }

  static void appendTotal(std::string& out, const CardTotal& total) {
    appendFormat(out, "   %-38.38s %3d",
                 total.category == nullptr ? "All classes" : total.category->c_str(),
                 total.placings);
    appendScore(out, total.hasReasons, true, total.reasons);
    appendScore(out, total.hasQuestions, true, total.questions);
    appendFormat(out, "  Total %d\n", total.total);
  }

  static constexpr std::size_t kMostOfACard = 1U << 20U;

  const Contest& contest_;
  ScoreCards cards_;
  std::map<const Team*, TeamStandings> standings_;
  std::size_t named_;
  HandOut report_;
};

}  // namespace

std::string scoreCardsReport(const Contest& contest) {
  return ScoreCardsBuilder(contest).build();
}

}  // namespace scorvane
