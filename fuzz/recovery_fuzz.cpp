// The recovery copy: any bytes, and copies of typed cards that a power cut or a bad sector damaged.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "fuzz/checks.h"
#include "fuzz/choices.h"
#include "session/recovery_copy.h"
#include "storage/contest_format.h"
#include "storage/contest_writer.h"
#include "tools/contest_maker.h"

namespace scorvane {

namespace {

constexpr std::int32_t kContestants = 8;
constexpr std::int32_t kClasses = 3;
constexpr std::int32_t kTimesTyped = 3;

// Reasons scores that tell whose they are: of five digits, and one damaged digit makes no other.
constexpr std::int32_t kPrime = 101;
constexpr std::int32_t kFirstMark = 100;

/// The mark of what was in the file (0) or typed for the n-th time.
std::int32_t markOf(std::int32_t contestant, std::int32_t classIndex, std::int32_t timesTyped) {
  return kPrime * (kFirstMark + (timesTyped * kContestants + contestant) * kClasses + classIndex);
}

bool isMarkOf(std::int32_t score, std::int32_t contestant, std::int32_t classIndex) {
  return score / kPrime >= kFirstMark && score % kPrime == 0 &&
         (score / kPrime - kFirstMark) % (kContestants * kClasses) ==
             contestant * kClasses + classIndex;
}

const Contest& openedContest() {
  static const Contest contest = [] {
    Contest made = makeContest({.contestants = kContestants,
                                .perTeam = 4,
                                .emptyPercent = 0,
                                .classes = kClasses,
                                .reasonsClasses = kClasses,
                                .questionsClasses = 0,
                                .categories = 1,
                                .groups = 2});
    std::int32_t contestant = 0;
    for (auto& [number, records] : made.scores) {
      for (std::int32_t k = 0; k < kClasses; ++k)
        records[k].reasonsScore = markOf(contestant, k, 0);
      ++contestant;
    }
    return made;
  }();
  return contest;
}

void requireSound(const std::optional<Contest>& contest) {
  if (!contest) return;
  // The first saving may leave out what the format has no room for.
  const std::string bytes = writeContest(readAgain(writeContest(*contest)));
  require(writeContest(readAgain(bytes)) == bytes, "what is brought back can be saved");
}

/// No score that tells whose it is comes under another name or class.
void requireOwnScores(const Contest& left) {
  const Contest& whole = openedContest();
  std::int32_t contestant = 0;
  for (const auto& [owner, records] : whole.scores) {
    for (const auto& [number, leftRecords] : left.scores) {
      if (contestantName(left, number) != contestantName(whole, owner)) continue;
      for (const auto& [k, record] : leftRecords) {
        const auto& names = whole.classes.className;
        const auto own = std::find(names.begin(), names.end(), left.classes.name(k));
        if (own == names.end()) continue;
        const std::int32_t score = record.reasonsScore;
        const bool isMark = score / kPrime >= kFirstMark && score % kPrime == 0;
        require(
            !isMark || isMarkOf(score, contestant, static_cast<std::int32_t>(own - names.begin())),
            "a score is its own contestant's");
      }
    }
    ++contestant;
  }
}

/// Up to three lines or sectors lost or the end cut off, or lines doubled, or one byte wrong: not
/// all at once, as two kinds of damage can make up for each other.
void damage(std::string& bytes, Choices& choices) {
  enum { lost, doubled, wrong, kinds };
  const std::uint32_t kind = choices.next(kinds);
  for (std::uint32_t left = kind == wrong ? 1 : choices.next(4); left > 0 && !bytes.empty();
       --left) {
    const std::size_t at = choices.next(static_cast<std::uint32_t>(bytes.size()));
    const std::size_t start = at == 0 ? 0 : bytes.rfind('\n', at - 1) + 1;
    const std::size_t length = std::min(bytes.find('\n', at), bytes.size() - 1) + 1 - start;
    if (kind == doubled) {
      bytes.insert(start, bytes.substr(start, length));
    } else if (kind == wrong) {
      bytes[at] = static_cast<char>(choices.next(256));
    } else if (const std::uint32_t count = choices.next(600); count == 0) {
      bytes.erase(start, length);
    } else if (count == 1) {
      bytes.resize(at);
    } else {
      const std::size_t end = std::min<std::size_t>(at + count, bytes.size());
      bytes.replace(at, end - at, end - at, '\0');
    }
  }
}

void tryTypedCards(Choices& choices) {
  const Contest& contest = openedContest();
  const std::string base = writeContest(contest);
  std::vector<ContestantNumber> numbers;
  for (const auto& [number, records] : contest.scores) numbers.push_back(number);
  std::string bytes = base + originLine({"c.scv", true, base.size(), 1, 1}, base);
  Contest expected = contest;
  for (std::uint32_t left = choices.next(30); left > 0; --left) {
    const auto contestant = static_cast<std::int32_t>(choices.next(kContestants));
    const auto k = static_cast<std::int32_t>(choices.next(kClasses));
    const std::int32_t typed = 1 + static_cast<std::int32_t>(choices.next(kTimesTyped));
    ScoreRecord& record = expected.scores[numbers[static_cast<std::size_t>(contestant)]][k];
    record.reasonsScore = markOf(contestant, k, typed);
    bytes += typedScoreLine(
        {{numbers[static_cast<std::size_t>(contestant)], k, record}, {false, true, false}});
  }
  const auto whole = recoveredContest(readRecoveryCopy(bytes));
  require(whole && writeContest(*whole) == writeContest(expected), "every typed card comes back");

  damage(bytes, choices);
  const RecoveryCopy copy = readRecoveryCopy(bytes);
  for (const auto& left : {recoveredContest(copy), recoveredOver(contest, copy)}) {
    requireSound(left);
    if (left) requireOwnScores(*left);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Choices choices(data, size);
  // A copy begins with a letter whose choice is 1.
  if (choices.next(2) == 0) {
    tryTypedCards(choices);
    return 0;
  }
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  const RecoveryCopy copy = readRecoveryCopy(bytes);
  requireSound(recoveredContest(copy));
  requireSound(recoveredOver(openedContest(), copy));
  return 0;
}

}  // namespace scorvane
