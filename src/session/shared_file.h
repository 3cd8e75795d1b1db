// The contest's file while others save to it, too: what this program last saw in it, and taking in
// what they have saved.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "model/contest_merge.h"

namespace scorvane {

/// What the operator has to hear about once the contest is saved.
struct SharingNews {
  Merge merge;         ///< with the contest as it was saved
  bool isKept = true;  ///< whether all that others had saved is among the earlier saves
  /// What a save replaced, or did not find, instead of this contest.
  enum class Replaced { nothing, anotherContest, noContest, missingFile };
  Replaced replaced = Replaced::nothing;
};

/// The current contest was read from its file, or written to it.
void knowFile(std::string_view bytes);
/// It was written while somebody else may have been saving as well. Until that is known, what both
/// have in common is what the file held before.
void knowFileForNow(std::string_view bytes);
/// Whether the file that was just chosen is the one that the contest was read from, or written to,
/// before: under whatever name, it is known by this one now.
[[nodiscard]] bool isOwnFile();
/// Nothing is known of any file, and there is no news.
void forgetFile();

/// Takes in what others have saved to the contest's file since this program last saw it. One look
/// at the file's size and time when there is nothing new. A file that cannot be read now, or that
/// holds no such contest, changes nothing. Whether the contest has changed.
bool takeInOthersWork();

/// The same with what a save has found in the file; nothing when that is gone. What is not this
/// contest is news.
void takeInBeforeSaving(const std::optional<std::string>& found, bool isLocked);
/// The save has replaced what was found, and whether that is among the earlier saves.
void foundWasReplaced(bool isKept);

/// To be told once the contest is saved.
void addNews(const Merge& merge);
/// The contest was saved, or is in its file as it is.
void newsMayBeTold();
/// It was not, so nothing was replaced.
void nothingWasReplaced();
/// The news that may be told, which is forgotten here; nothing when there is none.
[[nodiscard]] std::optional<SharingNews> takeNews();

}  // namespace scorvane
