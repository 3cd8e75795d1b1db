// A dialog in memory that writes its session down: every step of the operator, and all that the
// step changed in the dialog and in the contest. Sessions are held against approved text.
#pragma once

#include <map>
#include <set>
#include <string>

#include "model/contest.h"
#include "tests/ui/memory_dialog.h"

class RecordedDialog : public MemoryDialog {
 public:
  /// Opens the dialog over `contest`, which becomes the current one. The contest is untitled, so a
  /// save asks for a file.
  RecordedDialog(const Contest& contest, int resourceId, DialogBehaviour& behaviour);

  [[nodiscard]] const std::string& session() const { return session_; }

 private:
  void did(const std::string& what, ControlId where, std::string_view text) override;
  [[nodiscard]] std::string nameOf(ControlId id) const;
  [[nodiscard]] std::map<std::string, std::string> shownNow() const;

  const DialogTemplate& template_;
  std::string session_;
  std::map<std::string, std::string> shown_;
  std::multiset<std::string> stored_;
};

template <typename Behaviour>
Behaviour made() {
  return Behaviour();
}

template <auto make>
struct Made {
  decltype(make()) behaviour = make();
};

/// The session of the behaviour that `make` gives, from the opening of its dialog on.
template <auto make, int resourceId>
struct Session : private Made<make>, RecordedDialog {
  explicit Session(const Contest& contest)
      : RecordedDialog(contest, resourceId, Made<make>::behaviour) {}
};
