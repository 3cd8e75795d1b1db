#include "cli/contest_options.h"

#include <vector>

#include "cli/arguments.h"
#include "cli/program.h"

namespace scorvane {

namespace {

using Refusal = std::optional<std::string>;

constexpr const char* kContestPurpose = "Changes contest files.";
constexpr const char* kImportPurpose =
    "Brings the teams and contestants of a sheet into a contest, as Import Roster in the program\n"
    "does, and prints what came of it line by line.";
constexpr const char* kImportStatus =
    "Exit status: 0 done; 1 nothing done: a file cannot be read or written, the sheet has "
    "problems\n"
    "and --skip-problems is missing, or it holds no team and no contestant; 2 wrong usage; 3 done\n"
    "without the lines that have problems.";

// The commands; which of them was given tells whether it was parsed.
void declareImport(CLI::App& app, ImportOptions& o) {
  CLI::App* command = app.add_subcommand("import", "brings in a roster from a spreadsheet");
  command->description(kImportPurpose);
  command->set_help_flag("-h,--help", "prints this text");
  command->add_option("ROSTER", o.roster, "the sheet: a .csv, .tsv or .txt file")
      ->type_name("")
      ->required();
  command->add_option("CONTEST", o.contest, "the contest file; made new when it does not exist")
      ->type_name("")
      ->required();
  command->add_option("--into", o.into, "writes the contest to OUT instead, and nothing else")
      ->type_name("OUT");
  command->add_flag("--dry-run", o.dryRun, "writes nothing, and ends as the import would")
      ->disable_flag_override();
  command->add_flag("--skip-problems", o.skipProblems, "leaves out the lines that have problems")
      ->disable_flag_override();
  command->footer(kImportStatus);
}

void declareMerge(CLI::App& app, MergeOptions& o) {
  CLI::App* command = app.add_subcommand("merge", "joins two files of one contest");
  command->description(
      "Joins what two people typed into files of one contest, and prints what differs. Without\n"
      "their common ancestor only scores missing in OURS are taken over from THEIRS.");
  command->set_help_flag("-h,--help", "prints this text");
  command->add_option("OURS", o.ours, "the contest file whose values stay")
      ->type_name("")
      ->required();
  command->add_option("THEIRS", o.theirs, "the other contest file")->type_name("")->required();
  command->add_option("--base", o.base, "the contest as both files had it last")
      ->type_name("ANCESTOR");
  command->add_option("--into", o.into, "where the contest goes; may be OURS")
      ->type_name("OUT")
      ->required();
  command->footer(
      "Exit status: 0 done; 1 nothing done: a file cannot be read or written, or ANCESTOR is "
      "another\n"
      "contest; 2 wrong usage; 3 done, and values differ, something was left out, a removal lost "
      "or\n"
      "numbers changed.");
}

Refusal refuseRest(const CLI::App& app) {
  const std::string first = app.remaining(true).at(0);
  const std::vector<CLI::App*> given = app.get_subcommands();
  if (first.starts_with('-') && first != "-")
    return refuseUnknown(given.empty() ? app : *given[0], first);
  if (!given.empty()) return inQuotes(first) + " is too much";
  std::vector<std::string> names;
  for (const CLI::App* command : app.get_subcommands(nullptr)) names.push_back(command->get_name());
  return "there is no command " + inQuotes(first) + suggested(first, names, "");
}

}  // namespace

Refusal readContestOptions(std::span<const std::string_view> arguments, ContestOptions& options) {
  CLI::App app(kContestPurpose, kContestProgram);
  app.set_version_flag("--version", std::string(kContestProgram) + " " SCORVANE_VERSION,
                       "prints the version");
  app.set_help_flag("-h,--help", "prints this text");
  declareImport(app, options.importRoster);
  declareMerge(app, options.merge);
  try {
    app.parse(libraryArguments(arguments));
  } catch (const CLI::CallForHelp&) {
    options.help = app.help();
    return std::nullopt;
  } catch (const CLI::CallForVersion&) {
    options.action = ContestOptions::Action::version;
    return std::nullopt;
  } catch (const CLI::ExtrasError&) {
    return refuseRest(app);
  } catch (const CLI::ParseError& error) {
    return error.what();
  }
  const bool isImport = app.got_subcommand("import");
  if (!isImport && !app.got_subcommand("merge")) return "no command is named";
  options.action = isImport ? ContestOptions::Action::importRoster : ContestOptions::Action::merge;
  return std::nullopt;
}

}  // namespace scorvane
