#include "cli/options.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>

namespace scorvane {

namespace {

using Action = CliOptions::Action;
using Arguments = std::span<const std::string_view>;

// Why something cannot be followed; "" when all is well.
using Fault = std::string;

std::string quoted(std::string_view text) {
  std::string words = "'";
  words += text;
  words += '\'';
  return words;
}

std::optional<std::int32_t> wholeNumber(std::string_view text, std::int32_t least) {
  std::int32_t value = 0;
  const char* end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, value);
  if (error != std::errc() || stop != end || value < least) return std::nullopt;
  return value;
}

Fault readNumber(std::string_view text, std::int32_t least, std::optional<std::int32_t>& value) {
  value = wholeNumber(text, least);
  if (value) return {};
  return quoted(text) + " is not a whole number from " + std::to_string(least) + " on";
}

Fault readClasses(std::string_view list, CliOptions& options) {
  options.classNumbers.emplace();
  while (!list.empty()) {
    const std::size_t comma = std::min(list.find(','), list.size());
    std::optional<std::int32_t> number;
    Fault fault = readNumber(list.substr(0, comma), 1, number);
    if (!fault.empty()) return fault;
    options.classNumbers->push_back(*number);
    list.remove_prefix(std::min(comma + 1, list.size()));
  }
  return {};
}

bool sameWord(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) {
    return std::tolower(static_cast<unsigned char>(x)) ==
           std::tolower(static_cast<unsigned char>(y));
  });
}

Fault readKind(std::string_view word, CliOptions& options) {
  for (const ScoreKind kind : kScoreKinds) {
    if (!sameWord(word, scoreKindWord(kind))) continue;
    options.kind = kind;
    return {};
  }
  return quoted(word) + " is no kind of score: overall, placings, reasons or questions";
}

// The options, in the order of the usage text.
struct OptionRule {
  std::string_view name;
  bool takesValue;
  /// The question whose reports take the option; nothing for options of no report.
  std::optional<ReportQuestion> question;
  Fault (*read)(std::string_view value, CliOptions& options);
};

constexpr std::array kRules = {
    OptionRule{"--class", true, ReportQuestion::reasonsClass,
               [](std::string_view v, CliOptions& o) { return readNumber(v, 1, o.classNumber); }},
    OptionRule{"--round", true, ReportQuestion::round,
               [](std::string_view v, CliOptions& o) { return readNumber(v, 1, o.round); }},
    OptionRule{"--title", true, ReportQuestion::custom,
               [](std::string_view v, CliOptions& o) { return o.title = v, Fault(); }},
    OptionRule{"--classes", true, ReportQuestion::custom, readClasses},
    OptionRule{"--category", true, ReportQuestion::custom,
               [](std::string_view v, CliOptions& o) { return o.category = v, Fault(); }},
    OptionRule{"--kind", true, ReportQuestion::custom, readKind},
    OptionRule{"--number", true, ReportQuestion::custom,
               [](std::string_view v, CliOptions& o) { return readNumber(v, 0, o.number); }},
    OptionRule{"--percent", false, ReportQuestion::custom,
               [](std::string_view, CliOptions& o) { return o.percent = true, Fault(); }},
    OptionRule{"--team", false, ReportQuestion::custom,
               [](std::string_view, CliOptions& o) { return o.team = true, Fault(); }},
    OptionRule{"--all", true, std::nullopt,
               [](std::string_view v, CliOptions& o) {
                 o.action = Action::allReports;
                 o.folder = v;
                 return Fault(v.empty() ? "--all needs the name of a folder" : "");
               }},
};

// Reads the arguments from left to right into options and the words between them.
class ArgumentReader {
 public:
  explicit ArgumentReader(Arguments arguments) : rest_(arguments) {}

  /// "" or what is wrong.
  Fault readAll() {
    options_.action = Action::printReports;
    while (!rest_.empty()) {
      Fault fault = readNext();
      if (!fault.empty()) return fault;
    }
    return checkWords();
  }
  [[nodiscard]] const CliOptions& options() const { return options_; }

 private:
  std::string_view take() {
    const std::string_view argument = rest_.front();
    rest_ = rest_.subspan(1);
    return argument;
  }
  Fault readNext();
  Fault readOption(std::string_view argument);
  Fault checkWords();
  Fault findReport(std::string_view word);
  [[nodiscard]] Fault checkUse() const;
  [[nodiscard]] bool asks(ReportQuestion question) const;
  [[nodiscard]] std::string whatIsAskedFor() const;

  Arguments rest_;
  bool onlyWords_ = false;
  std::vector<std::string_view> words_;
  std::vector<const OptionRule*> used_;
  CliOptions options_;
};

Fault ArgumentReader::readNext() {
  const std::string_view argument = take();
  if (onlyWords_ || argument.size() < 2 || argument.front() != '-') {
    words_.push_back(argument);
  } else if (argument == "--") {
    onlyWords_ = true;
  } else {
    return readOption(argument);
  }
  return {};
}

Fault ArgumentReader::readOption(std::string_view argument) {
  const std::size_t equals = argument.find('=');
  const std::string_view name = argument.substr(0, equals);
  const auto* rule = std::find_if(kRules.begin(), kRules.end(),
                                  [&](const OptionRule& r) { return r.name == name; });
  if (rule == kRules.end()) return "there is no option " + quoted(name);
  if (std::find(used_.begin(), used_.end(), rule) != used_.end()) {
    return std::string(name) + " is given twice";
  }
  used_.push_back(rule);
  if (!rule->takesValue) {
    if (equals != std::string_view::npos) return std::string(name) + " takes no value";
    return rule->read({}, options_);
  }
  if (equals != std::string_view::npos) {
    return rule->read(argument.substr(equals + 1), options_);
  }
  if (rest_.empty()) return std::string(name) + " needs a value";
  return rule->read(take(), options_);
}

Fault ArgumentReader::checkWords() {
  if (words_.empty()) return "no contest file is named";
  options_.contest = words_[0];
  if (options_.action == Action::allReports) {
    if (words_.size() > 1) return quoted(words_[1]) + " is too much: --all writes every report";
    return checkUse();
  }
  if (words_.size() < 2) return "no report is named";
  for (std::size_t i = 1; i < words_.size(); ++i) {
    Fault fault = findReport(words_[i]);
    if (!fault.empty()) return fault;
  }
  return checkUse();
}

Fault ArgumentReader::findReport(std::string_view word) {
  const std::optional<std::int32_t> id = wholeNumber(word, 0);
  for (const Command& command : commandTable()) {
    if (command.report == nullptr) continue;
    if (id ? command.id != *id : !sameWord(command.caption, word)) continue;
    options_.commands.push_back(&command);
    return {};
  }
  return "there is no report " + quoted(word) + "; --list names all of them";
}

// Options and reports must go together.
Fault ArgumentReader::checkUse() const {
  for (const OptionRule* rule : used_) {
    if (!rule->question || asks(*rule->question)) continue;
    return std::string(rule->name) + " does not belong to " + whatIsAskedFor();
  }
  for (const Command* command : options_.commands) {
    const std::string needs = quoted(command->caption) + " needs ";
    if (command->question == ReportQuestion::reasonsClass && !options_.classNumber) {
      return needs + "--class";
    }
    if (command->question == ReportQuestion::round && !options_.round) return needs + "--round";
  }
  return {};
}

bool ArgumentReader::asks(ReportQuestion question) const {
  return std::any_of(options_.commands.begin(), options_.commands.end(),
                     [question](const Command* c) { return c->question == question; });
}

std::string ArgumentReader::whatIsAskedFor() const {
  if (options_.commands.empty()) return "--all";
  if (options_.commands.size() > 1) return "these reports";
  return "the report " + quoted(options_.commands[0]->caption);
}

}  // namespace

std::variant<CliOptions, UsageError> parseOptions(Arguments arguments) {
  struct Lone {
    std::string_view name;
    Action action;
  };
  for (const Lone& lone : {Lone{"--help", Action::help}, Lone{"-h", Action::help},
                           Lone{"--version", Action::version}, Lone{"--list", Action::list}}) {
    if (arguments.size() != 1 || arguments[0] != lone.name) continue;
    CliOptions options;
    options.action = lone.action;
    return options;
  }
  ArgumentReader reader(arguments);
  Fault fault = reader.readAll();
  if (!fault.empty()) return UsageError{std::move(fault)};
  return reader.options();
}

std::string_view usageText() {
  return R"(usage: scorvane-report CONTEST.scv REPORT... [options]
       scorvane-report CONTEST.scv --all DIR
       scorvane-report --list | --help | --version

Prints a report of a contest file, byte for byte as the program shows it; several are
printed one after the other. REPORT is the number or the caption of a report command;
--list prints both, one report a line.

  --class N          Reasons Score Sheets, Verify Reasons Scores: class number, from 1
  --round N          Round Verification Report: round, from 1

  Custom/Category Report:
  --title TEXT       heading of the report
  --classes 1,3,4    class numbers to score; none when neither this nor a category is given
  --category NAME    the classes of this category, and its name as the title
  --kind KIND        overall (when not given), placings, reasons or questions
  --number N         rows to report; the contest's own number when not given
  --percent          the number is a percentage; as the contest says when not given
  --team             teams instead of individuals

  --all DIR          writes every report that asks nothing as a text file (CR LF) into DIR

Exit status: 0 done; 1 the contest cannot be read, or lacks what the report needs, or
the report cannot be written; 2 wrong usage.
)";
}

}  // namespace scorvane
