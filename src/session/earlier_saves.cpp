#include "session/earlier_saves.h"

#include <algorithm>
#include <charconv>
#include <utility>

#include "session/data_folder.h"
#include "storage/content_hash.h"
#include "text/format.h"

namespace scorvane {

namespace {

constexpr std::uint64_t kMostBytes = 200U << 20;
constexpr std::string_view kSaveEnding = "save.scv";
constexpr std::string_view kRestEnding = "rest.scv";

std::string folderOf(FileSystem& files, const std::string& contestPath) {
  return earlierSavesFolder(files) + "/" + contestKey(files, contestPath);
}

/// What a kept file's name says: its number, the time, the size and the kind. The number and not
/// the time tells the order, as clocks are set back.
struct KeptName {
  std::int64_t sequence = 0;
  std::int64_t time = 0;
  std::uint64_t size = 0;
  bool isUnsavedRest = false;

  [[nodiscard]] std::string text() const {
    return formatText("%08lld-%lld-%llu-", static_cast<long long>(sequence),
                      static_cast<long long>(time), static_cast<unsigned long long>(size)) +
           std::string(isUnsavedRest ? kRestEnding : kSaveEnding);
  }

  static std::optional<KeptName> read(std::string_view text) {
    KeptName name;
    const auto take = [&text](auto& number) {
      const auto end = std::from_chars(text.data(), text.data() + text.size(), number).ptr;
      text.remove_prefix(static_cast<std::size_t>(end - text.data()));
      const bool isFollowed = text.starts_with('-');
      if (isFollowed) text.remove_prefix(1);
      return isFollowed;
    };
    if (!take(name.sequence) || !take(name.time) || !take(name.size)) return std::nullopt;
    name.isUnsavedRest = text == kRestEnding;
    return name.isUnsavedRest || text == kSaveEnding ? std::optional(name) : std::nullopt;
  }
};

struct KeptFiles {
  std::vector<EarlierSave> saves;  ///< newest first
  std::int64_t lastSequence = 0;
};

// After a power cut a folder's list may be behind the files.
std::uint64_t sizeOf(FileSystem& files, const std::string& path) {
  const auto file = files.openToRead(path);
  return file == nullptr ? 0 : file->size();
}

// A file of another size than its name says was cut off by the end of the program.
KeptFiles keptIn(FileSystem& files, const std::string& folder, const std::string& contestPath) {
  KeptFiles kept;
  for (const ListedFile& file : files.list(folder)) {
    const auto name = KeptName::read(file.name);
    if (!name) continue;
    kept.lastSequence = std::max(kept.lastSequence, name->sequence);
    const std::string path = folder + "/" + file.name;
    if (name->size != file.size && name->size != sizeOf(files, path)) continue;
    kept.saves.push_back({path, name->time, name->isUnsavedRest, contestPath, name->size});
  }
  std::reverse(kept.saves.begin(), kept.saves.end());
  return kept;
}

/// Each folder says which contest it belongs to, and which folder held what was kept of the
/// contest before its file was renamed.
struct FolderNote {
  std::string contestPath;
  std::string formerKey;
};

constexpr const char* kNoteName = "/contest.txt";

FolderNote readNote(FileSystem& files, const std::string& folder) {
  const std::string text = files.readWhole(folder + kNoteName).value_or("");
  const std::size_t end = text.find('\n');
  if (end == std::string::npos) return {};
  return {text.substr(0, end), text.substr(end + 1)};
}

// Never writes over a file that is there.
FileOutcome makeFile(FileSystem& files, const std::string& path, std::string_view bytes) {
  const FileSystem::Opened opened = files.create(path);
  if (opened.outcome != FileOutcome::done) return opened.outcome;
  if (opened.file->write(bytes) && opened.file->flush() && opened.file->close()) {
    return FileOutcome::done;
  }
  static_cast<void>(opened.file->close());
  files.remove(path);
  return FileOutcome::failed;
}

void makeNote(FileSystem& files, const std::string& folder, const FolderNote& note) {
  static_cast<void>(makeFile(files, folder + kNoteName, note.contestPath + "\n" + note.formerKey));
}

bool exists(FileSystem& files, const std::string& path) {
  const auto status = files.status(path);
  return status && status->exists;
}

constexpr const char* kContentPrefix = "content-";

/// A file without content whose name tells what the contest's file held last.
std::string contentName(std::uint64_t hash) {
  return kContentPrefix + hashText(hash);
}

}  // namespace

std::vector<EarlierSave> earlierSaves(FileSystem& files, const std::string& contestPath) {
  constexpr int kMostNames = 20;  // a contest that goes by so many names went round in a circle
  std::vector<EarlierSave> saves;
  std::string folder = folderOf(files, contestPath);
  for (int i = 0; i < kMostNames; ++i) {
    std::vector<EarlierSave> kept = keptIn(files, folder, contestPath).saves;
    std::move(kept.begin(), kept.end(), std::back_inserter(saves));
    const std::string former = readNote(files, folder).formerKey;
    if (former.empty()) break;
    folder = earlierSavesFolder(files) + "/" + former;
  }
  return saves;
}

namespace {

// A former folder may be that of another contest by now, whose file has the name again.
bool mayThin(FileSystem& files, const std::string& folder, const std::string& own) {
  const std::string owner = readNote(files, folder).contestPath;
  return folder == own || owner.empty() || !exists(files, owner);
}

void thin(FileSystem& files, const std::string& contestPath) {
  const std::vector<EarlierSave> saves = earlierSaves(files, contestPath);
  const std::string own = folderOf(files, contestPath);
  for (const std::size_t i : superfluousSaves(saves)) {
    const std::string& path = saves[i].path;
    if (mayThin(files, path.substr(0, path.rfind('/')), own)) files.remove(path);
  }
}

}  // namespace

std::optional<std::string> readEarlierSave(FileSystem& files, const EarlierSave& save) {
  return files.readWhole(save.path);
}

Keeping keepEarlierSave(FileSystem& files, const std::string& contestPath, std::string_view bytes,
                        bool isUnsavedRest, std::optional<std::int64_t> time) {
  if (files.localDataFolder().empty() || bytes.size() > kMostBytes) return Keeping::failed;
  const std::string folder = folderOf(files, contestPath);
  if (!files.makeFolders(folder)) return Keeping::failed;
  // A save is not to wait for another program that hangs. Without the lock both may choose the same
  // number; who comes second then takes the next one.
  constexpr int kPatience = 200;
  constexpr int kMostTaken = 100;
  const auto lock = files.lockForSaving(folder + kNoteName, kPatience);
  const KeptFiles kept = keptIn(files, folder, contestPath);
  if (!kept.saves.empty() && kept.saves[0].size == bytes.size() &&
      readEarlierSave(files, kept.saves[0]) == bytes) {
    return Keeping::known;
  }
  if (!time && !isUnsavedRest) time = files.lastChange(contestPath);
  KeptName name;
  name.time = std::max<std::int64_t>(time.value_or(files.now()) / kTicksPerSecond, 0);
  name.size = bytes.size();
  name.isUnsavedRest = isUnsavedRest;
  FileOutcome made = FileOutcome::exists;
  for (int taken = 0; made == FileOutcome::exists && taken < kMostTaken; ++taken) {
    name.sequence = kept.lastSequence + 1 + taken;
    made = makeFile(files, folder + "/" + name.text(), bytes);
  }
  if (made != FileOutcome::done) return Keeping::failed;
  makeNote(files, folder, {contestPath.empty() ? "" : fullPath(files, contestPath), ""});
  if (isUnsavedRest) thin(files, contestPath);
  return Keeping::kept;
}

void forgetNewestSave(FileSystem& files, const std::string& contestPath) {
  const KeptFiles kept = keptIn(files, folderOf(files, contestPath), contestPath);
  if (!kept.saves.empty()) files.remove(kept.saves[0].path);
}

void tidyEarlierSaves(FileSystem& files, const std::string& contestPath, std::uint64_t hash) {
  const std::string folder = folderOf(files, contestPath);
  if (keptIn(files, folder, contestPath).saves.empty()) return;
  thin(files, contestPath);
  const std::string content = contentName(hash);
  for (const ListedFile& file : files.list(folder)) {
    if (file.name.starts_with(kContentPrefix) && file.name != content) {
      files.remove(folder + "/" + file.name);
    }
  }
  static_cast<void>(makeFile(files, folder + "/" + content, ""));
}

void followRenamedContest(FileSystem& files, const std::string& contestPath, std::uint64_t hash) {
  const std::string own = folderOf(files, contestPath);
  if (!files.list(own).empty()) return;
  for (const ListedFile& entry : files.list(earlierSavesFolder(files))) {
    const std::string folder = earlierSavesFolder(files) + "/" + entry.name;
    if (!entry.isFolder || !exists(files, folder + "/" + contentName(hash))) continue;
    const std::string former = readNote(files, folder).contestPath;
    if (former.empty()) continue;
    if (exists(files, former) && !reachesSameFile(files, former, contestPath)) continue;
    if (files.makeFolders(own)) makeNote(files, own, {fullPath(files, contestPath), entry.name});
    return;
  }
}

std::vector<std::size_t> superfluousSaves(const std::vector<EarlierSave>& saves) {
  constexpr std::int64_t kHour = 3600;
  // People work into the night, and rarely pause as long as they sleep.
  constexpr std::int64_t kPauseBetweenDays = 4 * kHour;
  constexpr int kMostOfLastDay = 200;
  constexpr int kDaysOfHours = 7;
  std::vector<std::size_t> gone;
  std::uint64_t bytes = 0;
  int day = 0;
  int ofLastDay = 0;
  for (std::size_t i = 0; i < saves.size(); ++i) {
    const std::int64_t time = saves[i].time;
    const std::int64_t next = i == 0 ? time + kPauseBetweenDays : saves[i - 1].time;
    const bool endsDay = next - time >= kPauseBetweenDays;  // not when the clock was set back
    const bool endsHour = endsDay || next / kHour != time / kHour;
    if (endsDay) ++day;
    const bool stays = saves[i].isUnsavedRest || endsDay || (endsHour && day <= kDaysOfHours) ||
                       (day == 1 && ofLastDay < kMostOfLastDay);
    if (day == 1) ++ofLastDay;
    if (stays) bytes += saves[i].size;
    if (!stays || (i > 0 && bytes > kMostBytes)) gone.push_back(i);
  }
  return gone;
}

}  // namespace scorvane
