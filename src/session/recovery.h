// Keeping unsaved work safe. While the open contest differs from its file, a recovery copy of it
// is kept in the operator's folder for application data: from there it comes back after the program
// was ended, whatever ended it.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "model/contest.h"
#include "session/recovery_copy.h"
#include "storage/file.h"
#include "ui/window.h"

namespace scorvane {

/// Starts to keep the work on the current contest, which is new. Work that was left of contests
/// without a file goes to the earlier saves. Without this call nothing is kept, as in the programs
/// that have no window.
void startKeepingWork(FileSystem& files);
/// The orderly end of the program.
void endKeepingWork();
/// Any other end of it: all is forgotten but what the disk holds.
void stopKeepingWork();
/// The files that the session works with: the machine's, unless others are in use.
[[nodiscard]] FileSystem& sessionFiles();
[[nodiscard]] bool isKeepingWork();

/// To be called when a score was stored in the current contest, before it is shown as the last one:
/// the medium has it then. What this costs does not grow with the contest, but for the first score
/// after a save.
void scoreStored(const TypedScore& score);
/// To be called when anything else may have been stored. The whole contest is kept when it has
/// changed; a copy that is the same as the contest's file goes.
void contestChanged();
/// Says, once, that work could not be kept. To be called when a dialog has closed.
void sayIfWorkIsNotKept(Window& owner);

// What opening and saving tell.

/// The contest is a new one: what it holds now, today's date included, is no work.
void contestIsNew();
/// The contest was read from, or saved to, a file.
void contestHasFile(const std::string& path, std::string_view bytes);
/// What the contest's file holds by now was merged into the contest, which may have other classes
/// for it.
void contestTookIn(const std::string& path, std::string_view bytes, const Contest& theirs,
                   bool hasSameNumbers);
/// The contest was not saved, as the operator thought better of it, or as that failed: then what is
/// kept of it stays when it is left.
enum class NotSaved { cancelled, failed };
void contestWasNotSaved(NotSaved why);
/// The contest is about to be replaced. Work that the operator chose not to save goes to the
/// earlier saves.
void leaveContest();

/// Goes on with a copy that was found: it goes when the contest is saved.
void adoptCopy(const std::string& path, std::shared_ptr<void> claim);
/// The state of the contest's file that the current contest grew from.
[[nodiscard]] const FileState& savedState();

}  // namespace scorvane
