#include "cli/merge_command.h"

#include <utility>
#include <variant>

#include "cli/contest_files.h"
#include "cli/contest_input.h"
#include "cli/system.h"
#include "model/bring_in_scores.h"
#include "model/contest_merge.h"
#include "reports/merge_report.h"
#include "text/format.h"

namespace scorvane {

namespace {

/// Says what was found of the files, too: it can be why nothing was done.
CliResult refused(const ContestInFile& ours, const std::string& reason) {
  CliResult result = nothingDone(reason);
  result.error.insert(0, ours.remarks);
  return result;
}

CliResult finish(ContestInFile& ours, Contest merged, const std::string& report, bool isSmooth,
                 const MergeOptions& options, FileSystem& files) {
  ours.contest = std::move(merged);
  if (const auto refusal = ours.save(files, options.into)) return refused(ours, *refusal);
  return {isSmooth ? 0 : kDoneWithDifferences, report, ours.remarks};
}

}  // namespace

CliResult runMerge(const MergeOptions& options, FileSystem& files) {
  auto opening = ContestInFile::open(files, options.ours);
  if (const auto* refusal = std::get_if<std::string>(&opening)) return nothingDone(*refusal);
  auto& ours = std::get<ContestInFile>(opening);
  if (!ours.isThere()) {
    return nothingDone(formatText("cannot read '%s': it does not exist or cannot be opened",
                                  contestText(options.ours).c_str()));
  }
  const auto theirs = openContest(options.theirs, files, kContestProgram, ours.remarks);
  if (const auto* refusal = std::get_if<std::string>(&theirs)) return refused(ours, *refusal);
  const Contest& other = std::get<LoadedContest>(theirs).contest;
  if (!options.base) {
    BroughtScores brought = bringInScores(ours.contest, other);
    const std::string report = broughtScoresReport(brought);
    return finish(ours, std::move(brought.contest), report, brought.isSmooth(), options, files);
  }
  const auto base = openContest(*options.base, files, kContestProgram, ours.remarks);
  if (const auto* refusal = std::get_if<std::string>(&base)) return refused(ours, *refusal);
  const Contest& ancestor = std::get<LoadedContest>(base).contest;
  for (const Contest* contest : {&std::as_const(ours.contest), &other}) {
    if (isSameContest(ancestor, *contest)) continue;
    const std::string& path = contest == &other ? options.theirs : options.ours;
    return refused(ours, formatText("'%s' and '%s' are different contests",
                                    contestText(path).c_str(), contestText(*options.base).c_str()));
  }
  Merge merge = mergeContests(ancestor, ours.contest, other);
  const std::string report = mergeReport(merge);
  return finish(ours, std::move(merge.contest), report, merge.isSmooth(), options, files);
}

}  // namespace scorvane
