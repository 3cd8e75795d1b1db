#include "session/recovery_offer.h"

#include <algorithm>
#include <array>
#include <ctime>
#include <map>
#include <utility>
#include <vector>

#include "session/contest_file.h"
#include "session/data_folder.h"
#include "session/earlier_saves.h"
#include "session/open_contest.h"
#include "session/recovery.h"
#include "session/recovery_copy.h"
#include "storage/contest_writer.h"
#include "text/format.h"

namespace scorvane {

namespace {

/// A copy that no running program uses.
struct FoundCopy {
  FoundCopy(FileSystem& files, const ListedFile& listed)
      : path(recoveryFolder(files) + "/" + listed.name) {
    changed = listed.changed;
    claim = files.claim(path).hold;
    if (claim != nullptr) bytes = files.readWhole(path);
    if (bytes) copy = readRecoveryCopy(*bytes);
  }
  FoundCopy(const FoundCopy&) = delete;
  FoundCopy& operator=(const FoundCopy&) = delete;
  ~FoundCopy() = default;

  std::string path;
  std::int64_t changed = 0;
  std::shared_ptr<void> claim;
  std::optional<std::string> bytes;  ///< nothing when it is in use or cannot be read
  RecoveryCopy copy;
};

/// The copies' files, the one last written to first.
std::vector<ListedFile> listedCopies(FileSystem& files) {
  std::vector<ListedFile> copies = files.list(recoveryFolder(files));
  std::erase_if(copies, [](const ListedFile& file) { return !file.name.ends_with(".scv"); });
  // After a power cut a folder's list may still tell of the time when the file was opened.
  for (ListedFile& copy : copies) {
    copy.changed = files.lastChange(recoveryFolder(files) + "/" + copy.name).value_or(copy.changed);
  }
  std::stable_sort(copies.begin(), copies.end(),
                   [](const ListedFile& a, const ListedFile& b) { return a.changed > b.changed; });
  return copies;
}

// What a program that was ended amid writing a copy has left, unless it may still be at it.
void removeLeftovers(FileSystem& files) {
  constexpr std::int64_t kDay = kTicksPerSecond * 24 * 3600;
  for (const ListedFile& file : files.list(recoveryFolder(files))) {
    if (!file.name.ends_with(".tmp") || files.now() - file.changed < kDay) continue;
    files.remove(recoveryFolder(files) + "/" + file.name);
  }
}

// What is read of a damaged copy may be wrong, so it is kept as it is, too.
void keepIfDamaged(FileSystem& files, const FoundCopy& found, const std::string& contestPath) {
  if (found.copy.baseIsWhole) return;
  keepEarlierSave(files, contestPath, *found.bytes, true, found.changed);
}

void moveToEarlierSaves(FileSystem& files, const FoundCopy& found, const std::string& contestPath) {
  keepIfDamaged(files, found, contestPath);
  const auto contest = recoveredContest(found.copy);
  const std::string bytes = contest ? writeContest(*contest) : *found.bytes;
  if (keepEarlierSave(files, contestPath, bytes, true, found.changed) == Keeping::failed) return;
  files.remove(found.path);
}

/// What a copy would change in the contest of the file.
struct RecoveredWork {
  std::vector<TypedScore> scores;  ///< in the order of typing, as far as that is known
  bool hasOtherChanges = false;
};

RecoveredWork workIn(const Contest& file, const Contest& recovered, const RecoveryCopy& copy) {
  RecoveredWork work;
  std::map<std::pair<ContestantNumber, std::int32_t>, std::size_t> listed;
  const auto list = [&](ContestantNumber number, std::int32_t classIndex, TypedFields fields) {
    if (!recovered.contestantNames.contains(number)) return;
    const ScoreRecord record = scoreRecord(recovered, number, classIndex);
    const ScoreRecord before = scoreRecord(file, number, classIndex);
    const auto [at, isNew] = listed.emplace(std::pair(number, classIndex), work.scores.size());
    if (isNew) work.scores.push_back({{number, classIndex, record}, {}});
    TypedFields& all = work.scores[at->second].fields;
    all.letter |= fields.letter || record.letter != before.letter;
    all.reasons |= fields.reasons || record.reasonsScore != before.reasonsScore;
    all.questions |= fields.questions || record.questionsScore != before.questionsScore;
  };
  for (const TypedScore& score : copy.typed) list(score.number, score.classIndex, score.fields);
  if (file.classes.className == recovered.classes.className) {
    for (const auto& [number, records] : recovered.scores) {
      for (const auto& [classIndex, record] : records) {
        // A placing score alone was worked out anew and not typed.
        ScoreRecord before = scoreRecord(file, number, classIndex);
        before.placingScore = record.placingScore;
        if (record != before) list(number, classIndex, {});
      }
    }
  }
  Contest withScores = file;
  for (const TypedScore& score : work.scores) {
    if (!file.contestantNames.contains(score.number)) continue;
    withScores.scores[score.number][score.classIndex] = score.record;
  }
  work.hasOtherChanges = writeContest(withScores) != writeContest(recovered);
  return work;
}

std::tm localTime(std::int64_t ticks) {
  const auto seconds = static_cast<std::time_t>(ticks / kTicksPerSecond);
  const std::tm* local = std::localtime(&seconds);
  return local == nullptr ? std::tm{} : *local;
}

/// Such as "2:31 PM", with the date unless that is today's.
std::string clockTime(std::int64_t ticks, std::int64_t now) {
  const std::tm then = localTime(ticks);
  const std::tm today = localTime(now);
  const bool isToday = then.tm_yday == today.tm_yday && then.tm_year == today.tm_year;
  std::array<char, 64> text{};
  if (isToday) {
    std::strftime(text.data(), text.size(), "%I:%M %p", &then);
  } else {
    std::strftime(text.data(), text.size(), "%I:%M %p on %B %d, %Y", &then);
  }
  return text.data() + (text[0] == '0' ? 1 : 0);
}

bool wantsBack(Window& owner, const RecoveredWork& work, const std::string& until) {
  std::string what;
  if (!work.scores.empty()) {
    what = std::to_string(work.scores.size()) +
           (work.scores.size() == 1 ? " score typed" : " scores typed");
  }
  if (work.hasOtherChanges)
    what += what.empty() ? "Changes of the setup" : " and changes of the setup";
  const bool isOne = work.scores.size() == 1 && !work.hasOtherChanges;
  Message question{"Scorvane was ended before its last work on this contest was saved.\r\n\r\n" +
                       what + " until " + until + (isOne ? " was" : " were") +
                       " kept.\r\n\r\nWould you like to bring them back?",
                   "Information", Buttons::yesNo, Answer::yes};
  return owner.ask(question) == Answer::yes;
}

// Nothing for a score that was not typed, as the card may not carry it yet.
std::string typedText(bool carried, bool typed, std::int32_t score) {
  if (!carried) return "---";
  return typed ? std::to_string(score) : "";
}

std::string recoveredReport(const Contest& contest, const RecoveredWork& work) {
  const JudgingClasses& classes = contest.classes;
  std::string out = "Scores Brought Back\n\n";
  if (work.hasOtherChanges) out += "Changes of the setup were brought back, too.\n";
  out += "Please compare the scores below with the cards.\n\n";
  appendFormat(out, "%-6s %-20s %-24s %-6s %-7s %-9s\n", "Number", "Name", "Class", "Letter",
               "Reasons", "Questions");
  out += std::string(77, '-') + "\n";
  for (const TypedScore& score : work.scores) {
    const std::int32_t k = score.classIndex;
    appendFormat(
        out, "%6d %-20.20s %2d. %-20.20s   %c    %7s %9s\n", score.number,
        contestantName(contest, score.number).c_str(), k + 1, classes.name(k).c_str(),
        score.fields.letter ? score.record.letter : kNoLetter,
        typedText(classes.hasReasons(k), score.fields.reasons, score.record.reasonsScore).c_str(),
        typedText(classes.hasQuestions(k), score.fields.questions, score.record.questionsScore)
            .c_str());
  }
  return out;
}

/// One question at an opening is enough: what else was left goes to the earlier saves.
std::optional<std::string> offer(Window& owner, const FoundCopy& found, bool& hasAsked) {
  FileSystem& files = sessionFiles();
  const Contest file = currentContest();
  const bool grewFromFile = found.copy.grewFrom && found.copy.grewFrom->isSameFile(savedState());
  const auto recovered =
      grewFromFile ? recoveredOver(file, found.copy) : recoveredContest(found.copy);
  if (recovered && writeContest(*recovered) == writeContest(file)) {
    files.remove(found.path);
    return std::nullopt;
  }
  if (grewFromFile && recovered && !std::exchange(hasAsked, true)) {
    const RecoveredWork work = workIn(file, *recovered, found.copy);
    if (wantsBack(owner, work, clockTime(found.changed, files.now()))) {
      keepIfDamaged(files, found, savedState().path);
      currentContest() = *recovered;
      adoptCopy(found.path, found.claim);
      saveCurrent(owner);
      return recoveredReport(*recovered, work);
    }
  }
  moveToEarlierSaves(files, found, savedState().path);
  return std::nullopt;
}

}  // namespace

std::optional<std::string> offerRecovery(Window& owner) {
  if (!isKeepingWork()) return std::nullopt;
  FileSystem& files = sessionFiles();
  const std::string key = contestKey(files, savedState().path);
  const FileState opened = savedState();
  const auto movedHere = [&](const RecoveryCopy& copy) {
    if (!copy.grewFrom || !copy.grewFrom->isSameFile(opened)) return false;
    const std::string& path = copy.grewFrom->path;
    const auto status = files.status(path);
    return !status || !status->exists || reachesSameFile(files, path, opened.path);
  };
  std::optional<std::string> report;
  bool hasAsked = false;
  for (const ListedFile& file : listedCopies(files)) {
    const FoundCopy found(files, file);
    if (!found.bytes || (!isCopyOf(file.name, key) && !movedHere(found.copy))) continue;
    if (auto broughtBack = offer(owner, found, hasAsked)) report = std::move(broughtBack);
  }
  return report;
}

void keepUntitledRests(FileSystem& files) {
  removeLeftovers(files);
  const std::string key = contestKey(files, "");
  for (const ListedFile& file : listedCopies(files)) {
    if (!isCopyOf(file.name, key)) continue;  // it may be large, and its contest comes later
    const FoundCopy found(files, file);
    if (found.bytes) moveToEarlierSaves(files, found, "");
  }
}

}  // namespace scorvane
