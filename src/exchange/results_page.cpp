#include "exchange/results_page.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "exchange/class_chart.h"
#include "exchange/page_cards.h"
#include "exchange/page_markup.h"
#include "exchange/page_writer.h"
#include "exchange/table.h"
#include "model/class_lists.h"
#include "results/award_lists.h"

namespace scorvane {

namespace {

void addHead(PageWriter& page, const ContestSettings& settings) {
  page.raw(
      "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
      "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; style-src '");
  page.raw(kPageStyleHash).raw("'; script-src '").raw(kPageScriptHash);
  page.raw(
      "'; base-uri 'none'; form-action 'none'\">\n"
      "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
      "<meta name=\"robots\" content=\"noindex\">\n<title>Results: ");
  page.text(settings.contestName).raw("</title>\n<style>").raw(kPageStyle);
  page.raw("</style>\n</head>\n<body>\n<header>\n<h1>");
  page.text(settings.contestName.empty() ? "Results" : settings.contestName).raw("</h1>\n<p>");
  page.text(settings.divisionName).raw("<br>").text(settings.contestDate).raw("</p>\n");
}

void addContents(PageWriter& page, PageContent content) {
  page.raw(
      "<nav aria-label=\"On this page\"><ul>\n<li><a href=\"#awards\">Awards</a>\n"
      "<li><a href=\"#classes\">Classes</a>\n");
  if (content != PageContent::awards) page.raw("<li><a href=\"#teams\">Teams</a>\n");
  if (content == PageContent::cards) page.raw("<li><a href=\"#cards\">Score cards</a>\n");
  page.raw("</ul></nav>\n</header>\n<main>\n");
}

void addTableStart(PageWriter& page, std::string_view name, std::string_view who,
                   std::string_view columns) {
  page.raw("<table><caption><h3>").text(name).raw(who).raw("</h3></caption>\n<thead><tr>");
  page.raw("<th scope=\"col\">Place").raw(columns);
  page.raw("<th scope=\"col\" class=\"s\">Score</thead>\n<tbody>\n");
}

void addPlace(PageWriter& page, int place, const std::string& name, const std::string& tie) {
  page.raw("<tr><td>").number(place).raw("<th scope=\"row\">").text(name);
  if (!tie.empty()) page.raw("<small>").text(tie).raw("</small>");
}

void addScore(PageWriter& page, std::int32_t score) {
  page.raw("<td class=\"s\">").number(score).raw("\n");
}

void addIndividuals(PageWriter& page, const ReportRequest& request,
                    const std::vector<IndividualRow>& rows) {
  if (rows.empty()) return;
  addTableStart(page, awardName(request), ": individuals",
                "<th scope=\"col\">Name<th scope=\"col\">Team");
  for (const IndividualRow& row : rows) {
    addPlace(page, row.place, *row.name, tieInWords(request, row));
    page.raw("<td>").text(*row.team);
    addScore(page, row.score);
  }
  page.raw("</tbody></table>\n");
}

void addTeams(PageWriter& page, const ReportRequest& request, const std::vector<TeamRow>& rows) {
  if (rows.empty()) return;
  addTableStart(page, awardName(request), ": teams", "<th scope=\"col\">Team");
  for (const TeamRow& row : rows) {
    addPlace(page, row.place, *row.name, tieInWords(request, row));
    addScore(page, row.score);
  }
  page.raw("</tbody></table>\n");
}

void addAwards(PageWriter& page, const Contest& contest) {
  page.raw("<section id=\"awards\">\n<h2>Awards</h2>\n");
  if (auto requests = awardRequests(contest)) {
    // On the stage the overall award comes last; who reads wants it first.
    std::rotate(requests->begin(), requests->end() - 1, requests->end());
    const std::size_t start = page.out().size();
    for (const ReportRequest& request : *requests) {
      if (page.isTooLong()) break;
      const AwardRows rows = awardRows(contest, request);
      addIndividuals(page, request, rows.individuals);
      addTeams(page, request, rows.teams);
    }
    if (page.out().size() == start) page.raw("<p>No scores are in yet.</p>\n");
  } else {
    page.raw("<p>There are too many categories to rank.</p>\n");
  }
  page.raw("</section>\n");
}

void addClass(PageWriter& page, const JudgingClasses& classes, const ClassStatistics& statistics) {
  const std::int32_t k = statistics.classIndex;
  const auto [cut1, cut2, cut3] = classes.cuts(k);
  page.raw("<article><h3>").number(k + 1).raw(" ").text(classes.name(k));
  page.raw("</h3>\n<p>");
  if (classes.official(k) == kNoLetter) {
    page.raw("No official placing");
  } else {
    page.raw("Official ").placing(classes.official(k));
  }
  page.raw(", cuts ").number(cut1).raw(" ").number(cut2).raw(" ").number(cut3).raw("<br>");
  const ScoreSum& cards = statistics.placings;
  page.number(cards.count).raw(cards.count == 1 ? " card" : " cards");
  if (cards.count > 0) {
    appendNumeral(page.raw(", average ").out(), Cell::ofTenths(cards.averageInTenths()));
    page.raw(", ").number(statistics.perfect).raw(" perfect");
  }
  page.raw("</p>\n");
  appendClassChart(page.out(), statistics);
  page.raw("</article>\n");
}

void addClasses(PageWriter& page, const Contest& contest) {
  page.raw("<section id=\"classes\">\n<h2>Classes</h2>\n<div class=\"g\">\n");
  const CardsByClass cards(contest);
  for (std::int32_t k = 0; k < contest.classes.count() && !page.isTooLong(); ++k) {
    addClass(page, contest.classes, cards.statistics(k));
  }
  page.raw("</div>\n</section>\n");
}

void addAllTeams(PageWriter& page, const Contest& contest, const ScoreCards& cards) {
  page.raw("<section id=\"teams\">\n<h2>Teams</h2>\n");
  const ReportRequest request = everybodyRequest(contest, ScoreKind::overall);
  addTableStart(page, "Overall", ": all teams", "<th scope=\"col\">Team<th scope=\"col\">Members");
  for (const TeamRow& row : teamRows(contest, request)) {
    if (page.isTooLong()) break;
    addPlace(page, row.place, *row.name, tieInWords(request, row));
    page.raw("<td><ul>");
    for (const CardRow& member : cards.membersOf(contest.teams.at(*row.name))) {
      page.raw("<li>").text(*member.name).raw(" ").number(member.overall);
      if (member.isAlternate) page.raw(", alternate");
    }
    page.raw("</ul>");
    addScore(page, row.score);
  }
  page.raw("</tbody></table>\n</section>\n");
}

}  // namespace

std::string resultsPage(const Contest& contest, PageContent content) {
  PageWriter page;
  addHead(page, contest.settings);
  addContents(page, content);
  addAwards(page, contest);
  addClasses(page, contest);
  if (content != PageContent::awards) {
    const ScoreCards cards(contest);
    addAllTeams(page, contest, cards);
    if (content == PageContent::cards) addScoreCards(page, contest, cards);
  }
  if (page.isTooLong()) page.raw("<p>This page is too long; it ends here.</p>\n");
  page.raw("</main>\n");
  if (content == PageContent::cards) page.raw("<script>").raw(kPageScript).raw("</script>\n");
  page.raw("</body>\n</html>\n");
  return std::move(page.out());
}

}  // namespace scorvane
