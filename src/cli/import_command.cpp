#include "cli/import_command.h"

#include "cli/contest_files.h"

namespace scorvane {

CliResult runImport(const ImportOptions& options, FileSystem& files) {
  auto opening = ContestInFile::open(files, options.contest);
  if (const auto* refusal = std::get_if<std::string>(&opening)) return nothingDone(*refusal);
  const auto bytes = files.readWhole(options.roster);
  if (!bytes) return nothingDone("cannot read '" + options.roster + "'");
  return nothingDone("the sheet holds no team and no contestant");
}

}  // namespace scorvane
