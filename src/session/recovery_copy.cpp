#include "session/recovery_copy.h"

#include <algorithm>
#include <charconv>
#include <utility>
#include <variant>

#include "storage/content_hash.h"
#include "storage/contest_format.h"
#include "storage/contest_reader.h"
#include "storage/contest_salvage.h"
#include "storage/line_scanner.h"
#include "text/format.h"

namespace scorvane {

namespace {

constexpr std::string_view kOriginKey = "grewFrom:";
constexpr int kCheckDigits = 8;

std::string checked(std::string line) {
  const std::string check = hashText(contentHash(line), kCheckDigits);
  return line.append("\t").append(check).append(kLineEnd);
}

/// A line without its check value; nothing when that is missing or wrong.
std::optional<std::string_view> withoutCheck(std::string_view line) {
  if (line.size() <= kCheckDigits) return std::nullopt;
  const std::size_t tab = line.size() - kCheckDigits - 1;
  if (line[tab] != '\t') return std::nullopt;
  const std::string_view text = line.substr(0, tab);
  if (line.substr(tab + 1) != hashText(contentHash(text), kCheckDigits)) return std::nullopt;
  return text;
}

template <typename Number>
Number numberOf(std::string_view field, int base = 10) {
  Number number = 0;
  std::from_chars(field.data(), field.data() + field.size(), number, base);
  return number;
}

/// `baseHash` becomes what the base was when the line was written.
FileState readOrigin(FieldScanner fields, std::string_view line, std::uint64_t& baseHash) {
  FileState state;
  baseHash = numberOf<std::uint64_t>(fields.nextOrEmpty(), 16);
  state.exists = fields.nextOrEmpty() == "1";
  state.size = numberOf<std::uint64_t>(fields.nextOrEmpty());
  state.hash = numberOf<std::uint64_t>(fields.nextOrEmpty(), 16);
  const std::string_view changed = fields.nextOrEmpty();
  state.changed = numberOf<std::int64_t>(changed);
  state.path = line.substr(static_cast<std::size_t>(changed.data() - line.data()) + changed.size());
  state.path.erase(0, 1);
  return state;
}

void addTyped(const RecoveryCopy& copy, Contest& contest) {
  for (const TypedScore& score : copy.typed) {
    const bool hasClass = score.classIndex >= 0 && score.classIndex < contest.classes.count();
    if (!hasClass || !contest.contestantNames.contains(score.number)) continue;
    ScoreRecord& record = contest.scores[score.number][score.classIndex];
    // Others may have entered the rest of the record since. A line that does not say what of it was
    // typed counts as a whole.
    const auto& [letter, reasons, questions] = score.fields;
    if (!letter && !reasons && !questions) record = score.record;
    if (score.fields.letter) {
      record.letter = score.record.letter;
      record.placingScore = score.record.placingScore;
    }
    if (score.fields.reasons) record.reasonsScore = score.record.reasonsScore;
    if (score.fields.questions) record.questionsScore = score.record.questionsScore;
  }
}

}  // namespace

std::string originLine(const FileState& grewFrom, std::string_view base) {
  std::string line(kOriginKey);
  line.append("\t").append(hashText(contentHash(base)));
  line.append(grewFrom.exists ? "\t1\t" : "\t0\t").append(std::to_string(grewFrom.size));
  line.append("\t").append(hashText(grewFrom.hash));
  line.append("\t").append(std::to_string(grewFrom.changed));
  return checked(line.append("\t").append(grewFrom.path));
}

namespace {

constexpr char kLetterTyped = 'L', kReasonsTyped = 'R', kQuestionsTyped = 'Q';

TypedScore readTyped(std::string_view line) {
  TypedScore score{parseScoreLine(line), {}};
  const std::string_view fields = line.substr(line.rfind('\t') + 1);
  score.fields = {fields.find(kLetterTyped) != std::string_view::npos,
                  fields.find(kReasonsTyped) != std::string_view::npos,
                  fields.find(kQuestionsTyped) != std::string_view::npos};
  return score;
}

}  // namespace

std::string typedScoreLine(const TypedScore& score) {
  const ScoreRecord& record = score.record;
  std::string line =
      formatText("%d\t%d\t%c\t%d\t%d\t%d\t", score.number, score.classIndex, record.letter,
                 record.placingScore, record.reasonsScore, record.questionsScore);
  if (score.fields.letter) line += kLetterTyped;
  if (score.fields.reasons) line += kReasonsTyped;
  if (score.fields.questions) line += kQuestionsTyped;
  return checked(std::move(line));
}

RecoveryCopy readRecoveryCopy(std::string_view bytes) {
  RecoveryCopy copy;
  copy.base = bytes;
  std::uint64_t baseHash = 0;
  bool isAdded = false;
  // One damaged byte of a line's end must not take the next line away as well.
  for (std::size_t start = 0, end = 0;
       (end = bytes.find_first_of(kLineEnd, start)) != std::string_view::npos;
       start = std::min(end + (bytes[end] == kLineEnd[0] ? 2 : 1), bytes.size())) {
    const auto line = withoutCheck(bytes.substr(start, end - start));
    if (!line) continue;
    if (!std::exchange(isAdded, true)) copy.base = bytes.substr(0, start);
    FieldScanner fields(*line);
    if (fields.nextOrEmpty() == kOriginKey) {
      copy.grewFrom = readOrigin(fields, *line, baseHash);
    } else {
      copy.typed.push_back(readTyped(*line));
    }
  }
  copy.baseIsWhole = copy.grewFrom && contentHash(copy.base) == baseHash;
  return copy;
}

std::optional<Contest> recoveredContest(const RecoveryCopy& copy) {
  std::optional<Contest> contest;
  auto reading = readContest(copy.base);
  if (auto* read = std::get_if<Contest>(&reading); read != nullptr && copy.baseIsWhole) {
    contest = std::move(*read);
  } else {
    contest = salvageContest(copy.base);
  }
  if (contest) addTyped(copy, *contest);
  return contest;
}

std::optional<Contest> recoveredOver(const Contest& file, const RecoveryCopy& copy) {
  if (copy.baseIsWhole) return recoveredContest(copy);
  const auto rest = salvageContest(copy.base);
  if (!rest || rest->classes.className != file.classes.className) return std::nullopt;
  std::optional<Contest> contest = file;
  for (const auto& [number, records] : rest->scores) {
    if (!file.contestantNames.contains(number)) continue;
    for (const auto& [classIndex, record] : records) {
      if (record != ScoreRecord{}) contest->scores[number][classIndex] = record;
    }
  }
  addTyped(copy, *contest);
  return contest;
}

}  // namespace scorvane
