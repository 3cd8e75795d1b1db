#include "storage/contest_loader.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>
#include <utility>

#include "storage/contest_format.h"
#include "storage/contest_oddities.h"
#include "storage/line_scanner.h"
#include "storage/safe_save.h"

namespace scorvane {

namespace {

using Bytes = std::variant<std::string, ContestFault>;

/// The classes begin within the first lines, or it is no contest.
std::optional<ContestFault> faultInHead(std::string_view head) {
  LineScanner lines(head);
  for (int i = 0; i <= kMaxSettingsLines; ++i) {
    const auto line = lines.next();
    if (!line) break;
    if (FieldScanner(*line).nextOrEmpty() == kClassesMarker) return std::nullopt;
  }
  return ContestFault{ContestFault::notAContest, lines.lineNumber()};
}

/// Whether a line has become longer than any, CRs to drop included.
bool isEndless(std::string_view bytes) {
  constexpr std::size_t kLongest = 8192;
  if (bytes.size() < kLongest) return false;
  return bytes.substr(bytes.size() - kLongest).find(kLineEnd) == std::string_view::npos;
}

ContestFault endlessLine(std::string_view bytes) {
  LineScanner lines(bytes);
  while (lines.next()) {
  }
  return {ContestFault::notAContest, lines.lineNumber()};
}

// Not at once: a device or an image of a disk must not fill the memory before it is refused.
Bytes readContestBytes(FileSystem& files, const std::string& path) {
  constexpr std::size_t kHead = std::size_t{1} << 16;
  constexpr std::size_t kStep = std::size_t{1} << 20;
  constexpr std::uint64_t kMostAtOnce = std::uint64_t{1} << 26;
  const auto file = files.openToRead(path);
  if (file == nullptr) return ContestFault{};
  std::string bytes(kHead, '\0');
  bool isHead = true;
  for (std::size_t length = 0;;) {
    const std::size_t room = std::min(bytes.size() - length, kStep);
    const auto count = file->read(bytes.data() + length, room);
    if (!count) return ContestFault{};
    length += *count;
    if (*count > 0 && length < (isHead ? kHead : kStep)) continue;
    const std::string_view read = std::string_view(bytes).substr(0, length);
    if (std::exchange(isHead, false)) {
      if (const auto fault = faultInHead(read)) return *fault;
      if (file->size() > kMaxFileSize) return ContestFault{};
      // One byte more than the length, so that reading the end needs no larger buffer.
      bytes.resize(std::max<std::size_t>(kHead, std::min(file->size() + 1, kMostAtOnce)));
    }
    if (*count == 0) {
      bytes.resize(length);
      return bytes;
    }
    if (isEndless(std::string_view(bytes).substr(0, length))) {
      return endlessLine(std::string_view(bytes).substr(0, length));
    }
    if (length > kMaxFileSize) return ContestFault{};
    if (length == bytes.size()) bytes.resize(length * 2);
  }
}

using Loading = std::variant<LoadedContest, ContestFault>;

Loading asContest(Bytes bytes) {
  if (const auto* fault = std::get_if<ContestFault>(&bytes)) return *fault;
  auto& read = std::get<std::string>(bytes);
  auto reading = readContest(read);
  if (const auto* fault = std::get_if<ContestFault>(&reading)) return *fault;
  auto& contest = std::get<Contest>(reading);
  std::string oddities = contestOddities(read, contest);
  return LoadedContest{std::move(contest), std::move(read), "", std::move(oddities)};
}

/// Whether a file that is no contest was left so by a save in place: such a save marks its first
/// byte, or had not written it yet.
bool isLeftUnfinished(FileSystem& files, const std::string& path) {
  const auto file = files.openToRead(path);
  std::array<char, 1> first{};
  const auto size = file ? file->read(first.data(), first.size()) : std::nullopt;
  return size && (*size == 0 || first.front() == kUnfinishedMark);
}

/// The copy of a save that was not finished, if it is a contest and the file is not newer.
std::optional<LoadedContest> copyOf(FileSystem& files, const std::string& path,
                                    const Loading& loading) {
  const auto* loaded = std::get_if<LoadedContest>(&loading);
  if (loaded == nullptr && !isLeftUnfinished(files, path)) return std::nullopt;
  auto copy = unfinishedSave(files, path, loaded == nullptr ? nullptr : &loaded->bytes);
  if (!copy) return std::nullopt;
  Loading reading = asContest(std::move(copy->bytes));
  auto* found = std::get_if<LoadedContest>(&reading);
  if (found == nullptr) return std::nullopt;
  found->copy = std::move(copy->path);
  return std::move(*found);
}

}  // namespace

Loading loadContestFile(FileSystem& files, const std::string& path) {
  Loading loading = asContest(readContestBytes(files, path));
  const auto* fault = std::get_if<ContestFault>(&loading);
  if (fault != nullptr && fault->kind == ContestFault::unreadable) return loading;
  if (!copyOf(files, path, loading)) return loading;
  // Perhaps another program is at it.
  const auto lock = files.lockForSaving(path, FileSystem::kSavePatience);
  loading = asContest(readContestBytes(files, path));
  auto copy = copyOf(files, path, loading);
  return copy ? Loading(std::move(*copy)) : std::move(loading);
}

}  // namespace scorvane
