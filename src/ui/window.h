// What the program asks of the desktop over any window: message boxes and file dialogs. Behaviour
// talks to this port alone, so that it runs and is tested without a windowing system.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace scorvane {

enum class Buttons { ok, okCancel, yesNo };
enum class Answer { ok, cancel, yes, no };

struct Message {
  std::string text;
  std::string caption;
  Buttons buttons = Buttons::ok;
  /// The button that Enter presses.
  Answer defaultAnswer = Answer::ok;
  bool informationIcon = false;
};

/// One entry of a file dialog's type list, such as {"Scorvane", "*.scv"}.
struct FileFilter {
  std::string name;
  std::string pattern;
};

struct FileQuestion {
  enum class Purpose { open, save };
  Purpose purpose = Purpose::open;
  std::vector<FileFilter> filters;  ///< the first one is selected
  std::string defaultExtension;     ///< without the dot; added to a name typed without one
  bool fileMustExist = false;
  std::string folder;  ///< where to begin; the operator's documents when empty
};

/// Longest path of a contest, in characters.
inline constexpr std::size_t kMaxPathLength = 499;

class Window {
 public:
  Window() = default;
  Window(const Window&) = delete;
  Window& operator=(const Window&) = delete;
  virtual ~Window() = default;

  /// Shows a modal message box owned by this window and returns the button pressed. Closing a box
  /// that has a Cancel button counts as Cancel.
  virtual Answer ask(const Message& message) = 0;
  /// Lets the operator choose a file; nothing when cancelled. Longer paths than
  /// kMaxPathLength are for the caller to refuse.
  virtual std::optional<std::string> chooseFile(const FileQuestion& question) = 0;
  /// A box with only an OK button.
  void show(const std::string& text, const std::string& caption) { ask({text, caption}); }

  /// Whether the operator agrees, by OK, to a step that destroys something. Enter cancels.
  [[nodiscard]] bool confirm(const std::string& question) {
    return ask({question, "Warning", Buttons::okCancel, Answer::cancel}) == Answer::ok;
  }
};

}  // namespace scorvane
