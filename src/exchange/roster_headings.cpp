#include "exchange/roster_headings.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <vector>

namespace scorvane {

namespace {

enum class Word {
  unknown,
  team,
  coach,
  contestant,
  name,
  alternate,
  first,
  last,
  ordinal,
  attribute,  // what is told of somebody besides the name
  relative,   // somebody else
  usual       // tells nothing, and is frequent in headings
};

struct WordList {
  Word means;
  std::string_view words;
};
constexpr std::array kWords = {
    WordList{Word::team, "team club county chapter school organization organisation"},
    WordList{Word::coach, "coach leader advisor adviser teacher agent"},
    WordList{Word::contestant, "contestant member participant student judge"},
    WordList{Word::name, "name"},
    WordList{Word::alternate, "alternate alt"},
    WordList{Word::first, "first forename"},
    WordList{Word::last, "last surname"},
    WordList{Word::ordinal, "second third fourth fifth sixth"},
    WordList{
        Word::attribute,
        "mail email phone telephone cell mobile fax address number num no id date timestamp "
        "time grade age birth dob birthday birthdate gender sex size zip fee paid note comment "
        "shirt division type status"},
    WordList{Word::relative, "parent guardian emergency group"},
    WordList{Word::usual,
             "a an and any are e for full h ffa if in is legal of official optional or please the "
             "this to what who yes you your"}};

struct KnownWord {
  std::string_view word;
  Word means = Word::unknown;
};

constexpr std::size_t kKnownWords = [] {
  std::size_t count = 0;
  for (const WordList& list : kWords) {
    count += static_cast<std::size_t>(std::count(list.words.begin(), list.words.end(), ' ')) + 1;
  }
  return count;
}();

constexpr std::array<KnownWord, kKnownWords> kSortedWords = [] {
  std::array<KnownWord, kKnownWords> sorted;
  std::size_t next = 0;
  for (const auto& [means, words] : kWords) {
    for (std::size_t start = 0; start < words.size(); ++next) {
      const std::size_t end = std::min(words.find(' ', start), words.size());
      sorted[next] = {words.substr(start, end - start), means};
      start = end + 1;
    }
  }
  std::sort(sorted.begin(), sorted.end(),
            [](const KnownWord& a, const KnownWord& b) { return a.word < b.word; });
  return sorted;
}();

struct HeadingWord {
  std::string text;
  bool isInBrackets = false;
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
std::vector<HeadingWord> wordsOf(std::string_view text) {
  std::vector<HeadingWord> words;
  char before = ' ';
  bool isInBrackets = false;
  for (const char c : text) {
    if (c == '(' || c == ')') isInBrackets = c == '(' && !words.empty();
    const bool isPart = isLetter(c) || isDigit(c);
    const bool isNew = !(isLetter(before) || isDigit(before)) || isDigit(before) != isDigit(c) ||
                       (isUpper(c) && !isUpper(before));
    if (isPart && isNew) words.push_back({"", isInBrackets});
    if (isPart) words.back().text += isUpper(c) ? static_cast<char>(c + ('a' - 'A')) : c;
    before = c;
  }
  return words;
}

std::string_view withoutEnd(std::string_view word, std::string_view end) {
  return word.ends_with(end) ? word.substr(0, word.size() - end.size()) : word;
}

Word meaningOf(std::string_view word) {
  for (const std::string_view form : {word, withoutEnd(word, "s"), withoutEnd(word, "es")}) {
    if (form.empty()) return Word::usual;  // of "coach's"
    const auto* found = std::lower_bound(
        kSortedWords.begin(), kSortedWords.end(), form,
        [](const KnownWord& known, std::string_view wanted) { return known.word < wanted; });
    if (found != kSortedWords.end() && found->word == form) return found->means;
  }
  return Word::unknown;
}

std::int32_t numberOf(const std::string& digits) {
  std::int32_t number = 0;
  for (const char digit : digits.substr(0, 4)) number = number * 10 + (digit - '0');
  return number;
}

class HeadingReader {
 public:
  explicit HeadingReader(std::string_view text) : words_(wordsOf(text)) {
    asksYesOrNo_ = contains("yes");
    heading_.isClear = true;
    for (std::size_t i = 0; i < words_.size(); ++i) readWord(i);
    const std::size_t numberSign = text.find('#');
    if (numberSign < text.find('(') && heading_.number == 0 && !says(Word::name)) {
      isOther_ = true;
    }
    // Nobody's name asks something.
    if (text.find('?') != std::string_view::npos) heading_.isClear = true;
    if (words_.empty()) heading_.isClear = isOther_;
  }

  Heading read() {
    const bool isPerson = says(Word::contestant);
    // "First Member" is none's first name.
    const bool isPart = says(Word::name) || !isPerson;
    constexpr std::array kOrdinals = {"first", "second", "third", "fourth", "fifth", "sixth"};
    for (std::size_t i = 0; i < kOrdinals.size() && heading_.number == 0; ++i) {
      if ((i > 0 || !isPart) && contains(kOrdinals.at(i))) {
        heading_.number = static_cast<std::int32_t>(i) + 1;
      }
    }
    heading_.isFirstName = isPart && says(Word::first);
    heading_.isLastName = says(Word::last) && !heading_.isFirstName;
    heading_.asksAlternate = says(Word::alternate);
    if (!isOther_ && (!isSomebodyElse_ || says(Word::coach))) heading_.kind = kindOfWords();
    if (heading_.kind == ColumnKind::team) {
      heading_.laterKind = noun_ == Word::coach        ? ColumnKind::coach
                           : noun_ == Word::contestant ? ColumnKind::contestant
                                                       : ColumnKind::none;
    }
    return std::move(heading_);
  }

 private:
  [[nodiscard]] bool says(Word word) const { return says_.at(static_cast<std::size_t>(word)); }
  [[nodiscard]] bool contains(std::string_view word) const {
    return std::any_of(words_.begin(), words_.end(),
                       [word](const HeadingWord& other) { return other.text == word; });
  }

  void readWord(std::size_t i) {
    const std::string& text = words_[i].text;
    heading_.key += text + ' ';
    if (isDigit(text.front())) {  // "4-H Club" counts nothing
      if (i + 1 == words_.size() || words_[i + 1].text != "h") heading_.number = numberOf(text);
      return;
    }
    Word means = meaningOf(text);
    if (text == "no" && asksYesOrNo_) means = Word::usual;
    const std::string_view singular = withoutEnd(text, "s");
    const std::string_view front = withoutEnd(singular, "name");
    if (means == Word::unknown && front.size() < singular.size() &&
        meaningOf(front) != Word::unknown) {  // "firstname"
      take(meaningOf(front), words_[i]);
      means = Word::name;
    }
    take(means, words_[i]);
    isNounKnown_ = isNounKnown_ || (text == "of" && noun_ != Word::unknown);
  }

  void take(Word means, const HeadingWord& word) {
    if (means == Word::unknown) heading_.isClear = false;
    // "Student Name (Grade)" is the student.
    if (means == Word::attribute && !word.isInBrackets && !says(Word::name)) isOther_ = true;
    if (means == Word::relative && !word.isInBrackets) isSomebodyElse_ = true;
    if (means == Word::team || means == Word::coach || means == Word::contestant) {
      if (word.isInBrackets && (noun_ != Word::unknown || says(Word::name))) return;
      if (!isNounKnown_) noun_ = means;
    }
    says_.at(static_cast<std::size_t>(means)) = true;
  }

  // The first in this order, whatever else is said.
  [[nodiscard]] ColumnKind kindOfWords() const {
    if (says(Word::team)) return ColumnKind::team;
    if (says(Word::coach)) return ColumnKind::coach;
    for (const Word word : {Word::contestant, Word::name, Word::first, Word::last}) {
      if (says(word)) return ColumnKind::contestant;
    }
    return says(Word::alternate) ? ColumnKind::alternate : ColumnKind::none;
  }

  std::vector<HeadingWord> words_;
  Heading heading_;
  std::array<bool, static_cast<std::size_t>(Word::usual) + 1> says_{};
  Word noun_ = Word::unknown;  ///< whom or what it is about: the last, but one before "of"
  bool isNounKnown_ = false;
  bool asksYesOrNo_ = false;
  bool isOther_ = false;
  bool isSomebodyElse_ = false;
};

}  // namespace

Heading readHeading(std::string_view text) {
  // The rest of a very long one adds nothing.
  constexpr std::size_t kMostRead = 300;
  return HeadingReader(text.substr(0, kMostRead)).read();
}

}  // namespace scorvane
