#include "exchange/roster_columns.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace scorvane {

namespace {

// What a word in a heading tells of the column, the kinds in the order in which they win.
enum class Word { unknown, team, coach, contestant, alternate, first, last, ordinal, other };

struct KnownWord {
  std::string_view word;
  Word means;
};
constexpr std::array kWords = {
    KnownWord{"team", Word::team},
    KnownWord{"club", Word::team},
    KnownWord{"county", Word::team},
    KnownWord{"chapter", Word::team},
    KnownWord{"school", Word::team},
    KnownWord{"organization", Word::team},
    KnownWord{"organisation", Word::team},
    KnownWord{"coach", Word::coach},
    KnownWord{"leader", Word::coach},
    KnownWord{"advisor", Word::coach},
    KnownWord{"adviser", Word::coach},
    KnownWord{"teacher", Word::coach},
    KnownWord{"agent", Word::coach},
    KnownWord{"contestant", Word::contestant},
    KnownWord{"name", Word::contestant},
    KnownWord{"member", Word::contestant},
    KnownWord{"participant", Word::contestant},
    KnownWord{"student", Word::contestant},
    KnownWord{"judge", Word::contestant},
    KnownWord{"alternate", Word::alternate},
    KnownWord{"alt", Word::alternate},
    KnownWord{"first", Word::first},
    KnownWord{"forename", Word::first},
    KnownWord{"last", Word::last},
    KnownWord{"surname", Word::last},
    KnownWord{"second", Word::ordinal},
    KnownWord{"third", Word::ordinal},
    KnownWord{"fourth", Word::ordinal},
    KnownWord{"fifth", Word::ordinal},
    KnownWord{"sixth", Word::ordinal},
};
// What is told of a team, a coach or a contestant besides the name.
constexpr std::array<std::string_view, 28> kOtherWords = {
    "mail",    "email",  "phone", "telephone", "cell",     "mobile",    "fax",
    "address", "number", "num",   "id",        "group",    "date",      "timestamp",
    "time",    "grade",  "age",   "birth",     "dob",      "birthday",  "gender",
    "sex",     "size",   "zip",   "parent",    "guardian", "emergency", "birthdate"};

struct Heading {
  std::string key;  ///< its words, joined
  bool says[static_cast<std::size_t>(Word::other) + 1] = {};
  std::int32_t number = 0;
  bool isName = false;      ///< has the word "name"
  bool isOnlyKnown = true;  ///< no word but such that tell of the kind

  [[nodiscard]] bool has(Word word) const { return says[static_cast<std::size_t>(word)]; }
};

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}
bool isUpper(char c) {
  return (c >= 'A' && c <= 'Z') ||
         (static_cast<unsigned char>(c) >= 0xC0 && static_cast<unsigned char>(c) < 0xE0);
}
bool isLetter(char c) {
  return isUpper(c) || (c >= 'a' && c <= 'z') || static_cast<unsigned char>(c) >= 0xC0;
}

// "TeamName 1" as "team", "name", "1".
std::vector<std::string> wordsOf(std::string_view text) {
  std::vector<std::string> words;
  char before = ' ';
  for (const char c : text) {
    const bool isPart = isLetter(c) || isDigit(c);
    const bool isNew = !(isLetter(before) || isDigit(before)) || isDigit(before) != isDigit(c) ||
                       (isUpper(c) && !isUpper(before));
    if (isPart && isNew) words.emplace_back();
    if (isPart) words.back() += isUpper(c) ? static_cast<char>(c + ('a' - 'A')) : c;
    before = c;
  }
  return words;
}

std::string_view withoutEnd(std::string_view word, std::string_view end) {
  return word.ends_with(end) ? word.substr(0, word.size() - end.size()) : word;
}

Word meaningOf(std::string_view word) {
  for (const std::string_view form : {word, withoutEnd(word, "s"), withoutEnd(word, "es")}) {
    for (const auto& [known, means] : kWords) {
      if (known == form) return means;
    }
    if (std::find(kOtherWords.begin(), kOtherWords.end(), form) != kOtherWords.end()) {
      return Word::other;
    }
  }
  return Word::unknown;
}

void noteWord(Heading& heading, std::string_view word) {
  const std::string_view singular = withoutEnd(word, "s");
  const std::string_view front = withoutEnd(singular, "name");
  Word means = meaningOf(word);
  if (means == Word::unknown && front.size() < singular.size() &&
      meaningOf(front) != Word::unknown) {  // "firstname"
    means = meaningOf(front);
    heading.says[static_cast<std::size_t>(Word::contestant)] = heading.isName = true;
  }
  heading.isName = heading.isName || singular == "name";
  heading.says[static_cast<std::size_t>(means)] = true;
  if (means == Word::unknown && word != "s") heading.isOnlyKnown = false;
}

std::int32_t numberOf(const std::string& digits) {
  std::int32_t number = 0;
  for (const char digit : digits.substr(0, 4)) number = number * 10 + (digit - '0');
  return number;
}

Heading readHeading(std::string_view text) {
  Heading heading;
  const std::vector<std::string> words = wordsOf(text);
  for (std::size_t i = 0; i < words.size(); ++i) {
    heading.key += words[i] + ' ';
    if (!isDigit(words[i].front())) {
      noteWord(heading, words[i]);
    } else if (i + 1 == words.size() || words[i + 1] != "h") {  // "4-H Club" counts nothing
      heading.number = numberOf(words[i]);
    }
  }
  const bool isQuestion = std::count(words.begin(), words.end(), "yes") > 0;
  const bool asksNumber = std::count(words.begin(), words.end(), "no") > 0 ||
                          (text.find('#') != std::string_view::npos && heading.number == 0);
  if (asksNumber && !isQuestion) {
    heading.says[static_cast<std::size_t>(Word::other)] = true;
  }
  // "First Member" is none's first name.
  const bool isPart = heading.isName || !heading.has(Word::contestant);
  constexpr std::array<std::string_view, 6> kOrdinals = {"first",  "second", "third",
                                                         "fourth", "fifth",  "sixth"};
  for (std::size_t i = 0; i < kOrdinals.size() && heading.number == 0; ++i) {
    const bool isSaid = std::count(words.begin(), words.end(), kOrdinals[i]) > 0;
    if (isSaid && (i > 0 || !isPart)) heading.number = static_cast<std::int32_t>(i) + 1;
  }
  if (!isPart) heading.says[static_cast<std::size_t>(Word::first)] = false;
  return heading;
}

// Of which kind a heading is: the first in the order of the words.
Word kindOf(const Heading& heading) {
  if (heading.has(Word::other)) return Word::unknown;
  for (const Word kind : {Word::team, Word::coach, Word::contestant}) {
    if (heading.has(kind)) return kind;
  }
  if (heading.has(Word::first) || heading.has(Word::last)) return Word::contestant;
  return heading.has(Word::alternate) ? Word::alternate : Word::unknown;
}

// The first column of a name counts, be it of the whole name or of a part of it.
struct FoundName {
  std::int32_t number = 0;
  bool isAlternate = false;
  bool isWhole = false;
  NameColumns columns;

  void add(const Heading& heading, std::size_t column) {
    const bool first = heading.has(Word::first);
    const bool last = heading.has(Word::last) && !first;
    if (!columns.exist()) isWhole = !first && !last;
    if (isWhole || last) {
      auto& place = isWhole ? columns.first : columns.last;
      if (!place && (isWhole ? !first && !last : true)) place = column;
    } else if (first && !columns.first) {
      columns.first = column;
    }
  }
};

class HeadingRow {
 public:
  HeadingRow(const Sheet& sheet, const Sheet::Row& row) {
    for (std::size_t column = 0; column < row.cells; ++column) {
      const std::string_view cell = sheet.cell(row, column);
      if (cell.empty()) continue;
      found_.width = column + 1;
      Heading heading = readHeading(cell);
      const Word kind = kindOf(heading);
      if (kind == Word::unknown) continue;
      isOnlyKnown_ = isOnlyKnown_ || heading.isOnlyKnown;
      note(heading, kind, column);
    }
    finish();
  }

  [[nodiscard]] const RosterColumns& columns() const { return found_; }
  /// Some heading consists of words that tell of the kind and no others.
  [[nodiscard]] bool isOnlyKnown() const { return isOnlyKnown_; }

 private:
  void note(Heading& heading, Word kind, std::size_t column) {
    if (kind == Word::team && !found_.team) {
      found_.team = column;
    } else if (kind == Word::coach || (kind == Word::team && heading.has(Word::coach))) {
      coach_.add(heading, column);
    } else if (kind == Word::alternate) {
      if (!alternate_) alternate_ = column;
      addMember(heading, column, true);
    } else if (kind == Word::contestant) {
      addMember(heading, column, heading.has(Word::alternate));
      if (heading.has(Word::alternate) && !askedAlternate_) askedAlternate_ = column;
    }
  }

  // The same heading once more is another member.
  void addMember(Heading& heading, std::size_t column, bool isAlternate) {
    const auto repeated = std::count(keys_.begin(), keys_.end(), heading.key);
    keys_.push_back(heading.key);
    constexpr std::int32_t kRepeated = 10000;
    const std::int32_t number = heading.number + kRepeated * static_cast<std::int32_t>(repeated);
    auto member = std::find_if(members_.begin(), members_.end(), [&](const FoundName& m) {
      return m.number == number && m.isAlternate == isAlternate;
    });
    if (member == members_.end()) member = members_.insert(member, {number, isAlternate, {}, {}});
    member->add(heading, column);
  }

  void finish() {
    found_.coach = coach_.columns;
    const bool isFirstNumbered =
        std::any_of(members_.begin(), members_.end(),
                    [](const FoundName& m) { return m.number == 1 && !m.isAlternate; });
    std::size_t regular = 0;
    bool isNumbered = false;
    for (const FoundName& member : members_) {
      if (member.isAlternate || (isFirstNumbered && member.number == 0)) continue;
      ++regular;
      isNumbered = isNumbered || member.number > 0;
    }
    const bool hasAlternates = alternate_ || askedAlternate_;
    const bool isTeamPerRow = regular > 1 || (isNumbered && hasAlternates);
    for (const FoundName& member : members_) {
      if (isTeamPerRow && isFirstNumbered && member.number == 0 && !member.isAlternate) continue;
      if (!isTeamPerRow && (member.isAlternate || !found_.members.empty())) continue;
      found_.members.push_back({member.columns, member.isAlternate});
    }
    if (!isTeamPerRow) found_.alternate = alternate_ ? alternate_ : askedAlternate_;
    const bool hasParts =
        found_.members.size() == 1 && found_.members[0].name.last && found_.members[0].name.first;
    found_.kinds = (found_.team ? 1U : 0U) + (found_.coach.exist() ? 1U : 0U) +
                   (found_.members.empty() ? 0U : 1U) + (hasParts || regular > 1 ? 1U : 0U) +
                   (found_.alternate ? 1U : 0U);
  }

  RosterColumns found_;
  bool isOnlyKnown_ = false;
  FoundName coach_;
  std::vector<FoundName> members_;
  std::vector<std::string> keys_;
  std::optional<std::size_t> alternate_;
  std::optional<std::size_t> askedAlternate_;
};

RosterColumns columnsWithoutHeadings(const Sheet& sheet) {
  std::vector<bool> isUsed;
  for (const Sheet::Row& row : sheet.rows()) {
    if (isUsed.size() < row.cells) isUsed.resize(row.cells);
    for (std::size_t column = 0; column < row.cells; ++column) {
      if (!sheet.cell(row, column).empty()) isUsed[column] = true;
    }
  }
  std::vector<std::size_t> used;
  for (std::size_t column = 0; column < isUsed.size() && used.size() < 3; ++column) {
    if (isUsed[column]) used.push_back(column);
  }
  RosterColumns columns;
  if (!used.empty()) columns.team = used[0];
  if (used.size() > 1) columns.members = {{{used[1], std::nullopt}, false}};
  if (used.size() > 2) columns.coach.first = used[2];
  return columns;
}

}  // namespace

RosterColumns findColumns(const Sheet& sheet) {
  // Further down a row that reads like headings is none.
  constexpr std::size_t kMostRowsAbove = 30;
  std::optional<RosterColumns> poor;
  for (std::size_t i = 0; i < std::min(sheet.rows().size(), kMostRowsAbove); ++i) {
    const HeadingRow headings(sheet, sheet.rows()[i]);
    RosterColumns columns = headings.columns();
    columns.firstRow = i + 1;
    if (columns.kinds > 1) return columns;
    if (columns.kinds == 1 && headings.isOnlyKnown() && !poor) poor = columns;
  }
  return poor ? *poor : columnsWithoutHeadings(sheet);
}

}  // namespace scorvane
