#include "cli/import_command.h"

#include "cli/contest_files.h"
#include "cli/system.h"
#include "exchange/roster_plan.h"

namespace scorvane {

CliResult runImport(const ImportOptions& options, FileSystem& files) {
  auto opening = ContestInFile::open(files, options.contest);
  if (const auto* refusal = std::get_if<std::string>(&opening)) return nothingDone(*refusal);
  auto& opened = std::get<ContestInFile>(opening);
  const auto bytes = files.readWhole(options.roster, kMostSheetBytes);
  if (!bytes) return nothingDone("cannot read '" + contestText(options.roster) + "'");

  const RosterPlan plan = planRoster(*bytes, opened.contest);
  CliResult result;
  result.error = opened.remarks;
  for (const std::string& line : planLines(plan, opened.contest)) result.output += line + '\n';
  result.output += planSummary(plan) + '\n';
  const auto fail = [&result](const std::string& reason) {
    result.status = kFailed;
    result.error += nothingDone(reason).error;
    return result;
  };
  if (plan.holdsNobody) return fail("the sheet holds no team and no contestant");
  if (!plan.problems.empty()) {
    if (!options.skipProblems) {
      return fail("nothing was done; --skip-problems leaves out the lines that have problems");
    }
    result.status = kDoneWithoutProblems;
  }
  if (options.dryRun) return result;
  importRoster(opened.contest, plan);
  // A sheet that is all there already leaves the very bytes of the file.
  if (plan.changesNothing && !options.into && opened.isThere()) return result;
  if (const auto refusal = opened.save(files, options.into)) return fail(*refusal);
  return result;
}

}  // namespace scorvane
