// The recovery copy as bytes: an ordinary contest file, a line that says which state of the
// contest's file it grew from, and one line per score typed since. The added lines end with a
// check value, so that a line is known to be whole, and to be an added one, wherever it is.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/contest.h"
#include "storage/file.h"
#include "storage/score_reader.h"

namespace scorvane {

/// What a contest's file held, and since when.
struct FileState {
  std::string path;  ///< the full one
  bool exists = false;
  std::uint64_t size = 0;
  std::uint64_t hash = 0;
  std::int64_t changed = 0;

  /// Whether a file is this very one, perhaps under another name. Memory sticks round the time of
  /// the last change to two seconds, and only show it when they are plugged in again.
  [[nodiscard]] bool isSameFile(const FileState& other) const {
    constexpr std::int64_t kRounding = 2 * kTicksPerSecond;
    return exists && other.exists && size == other.size && hash == other.hash &&
           changed - other.changed <= kRounding && other.changed - changed <= kRounding;
  }
};

/// Which scores of a card were typed.
struct TypedFields {
  bool letter = false;
  bool reasons = false;
  bool questions = false;
};

/// A contestant's record for a class after a score was typed.
struct TypedScore : ScoreLine {
  TypedFields fields{};
};

struct RecoveryCopy {
  std::optional<FileState> grewFrom;  ///< nothing when that line is damaged
  std::string_view base;              ///< refers to the bytes read
  bool baseIsWhole = false;
  std::vector<TypedScore> typed;  ///< in the order of typing
};

/// The line that follows the contest file `base`.
[[nodiscard]] std::string originLine(const FileState& grewFrom, std::string_view base);
/// A score line of the contest file with what was typed and its check value.
[[nodiscard]] std::string typedScoreLine(const TypedScore& score);

/// Any bytes are safe; every added line that is whole is read.
[[nodiscard]] RecoveryCopy readRecoveryCopy(std::string_view bytes);

/// The contest of a copy; that of all its whole lines when it is damaged.
[[nodiscard]] std::optional<Contest> recoveredContest(const RecoveryCopy& copy);
/// The same from a copy that grew from `file`. A damaged copy then only adds its scores to what the
/// file holds; nothing when its classes are not the file's, as a score names its class by number.
[[nodiscard]] std::optional<Contest> recoveredOver(const Contest& file, const RecoveryCopy& copy);

}  // namespace scorvane
