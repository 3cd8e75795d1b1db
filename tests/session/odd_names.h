// Contests under up to 200 names beyond the code page, the same on every system: each is opened,
// saved, recovered and saved as, and no file whose name its own could be bent to is touched.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "session/contest_file.h"
#include "session/data_folder.h"
#include "session/earlier_saves.h"
#include "session/open_contest.h"
#include "session/recovery.h"
#include "storage/contest_writer.h"
#include "storage/file.h"
#include "text/unicode.h"

namespace scorvane {

/// What the check needs beside the code under test.
struct RawDisk {
  void (*make)(const std::string& path, const std::string& bytes);
  std::string (*contentOf)(const std::string& path);
  /// What a name might be bent to.
  std::vector<std::string> (*bent)(const std::string& name);
};

class OddNames {
 public:
  OddNames(std::string folder, const RawDisk& disk, const std::string& contest,
           std::size_t perScript)
      : folder_(std::move(folder)), disk_(disk), names_(names(perScript)) {
    for (const std::string& name : names_) {
      put(name, contest);
      for (const char* prefix : {"", "copy "}) {
        for (const std::string& decoy : disk_.bent(prefix + name)) put(decoy, "decoy of " + name);
      }
    }
  }
  ~OddNames() { stopKeepingWork(); }
  OddNames(const OddNames&) = delete;
  OddNames& operator=(const OddNames&) = delete;

  /// What went wrong.
  std::vector<std::string> faults() {
    for (const std::string& name : names_) tryName(name);
    for (const auto& [name, bytes] : expected_) {
      if (disk_.contentOf(pathOf(name)) != bytes) faults_.push_back("not as it should be: " + name);
    }
    const auto listed = systemFiles().list(folder_);
    if (listed.size() != expected_.size()) faults_.push_back("files were made or lost");
    for (const ListedFile& file : listed) {
      if (!expected_.contains(file.name)) faults_.push_back("unknown file " + file.name);
    }
    return faults_;
  }

 private:
  struct Operator : Window {
    Answer ask(const Message& message) override {
      said.push_back(message.text);
      return message.buttons == Buttons::yesNo ? Answer::yes : Answer::ok;
    }
    std::optional<std::string> chooseFile(const FileQuestion& /*question*/) override {
      return chosen;
    }
    std::vector<std::string> said;
    std::string chosen;
  };

  // Each has a number, as capitals and small letters are one on some disks.
  static std::vector<std::string> names(std::size_t perScript) {
    constexpr std::u16string_view kScripts[] = {u"ΩΓΘΣΦαδεπστφ",
                                                u"ЖщЯйёАВЕКМ",
                                                u"评审家畜大会结果",
                                                u"かきくシソツー",
                                                u"한국어경연",
                                                u"שלוםאבגד",
                                                u"ابتثجحخ",
                                                u"कखगघङ",
                                                u"กขคง",
                                                u"ĀăŁőşŵĦĸŋǾ",
                                                u"ＯＡｆ１．＼／：＊？＂＜｜",
                                                u"O\u0308e\u0301n\u0303",
                                                u"\u212B\u212A\u2126\u017F\u0131",
                                                u"⁄∕∖∶∗⁎‵′″‹›〈〉",
                                                u"∞≤√π∩ⁿ²₧",
                                                u"🐄🐖🐑🐎🏆",
                                                u"𝐀𝒷𠀀𠮷",
                                                u"\u200B\u200D\u202E\u2066\uFEFF",
                                                u"\uE000\uF8FF\uFFFD\uFFFE",
                                                u"ǰẞßŉﬁﬆ"};
    std::vector<std::string> names;
    for (const std::u16string_view script : kScripts) {
      for (std::size_t i = 0; i < perScript; ++i) {
        std::u16string name(i % 2 == 0 ? u"" : u"Fair ");
        for (std::size_t k = 0; k <= i % 4; ++k) {
          std::size_t at = (i * 3 + k * 5) % script.size();
          if (script[at] >= 0xDC00 && script[at] < 0xE000) --at;
          name += script.substr(at, script[at] >= 0xD800 && script[at] < 0xDC00 ? 2 : 1);
        }
        if (windows1252Of(utf8Of(name)).find('?') == std::string::npos) name += script[1];
        names.push_back(utf8Of(name) + std::to_string(names.size()) + ".scv");
      }
    }
    return names;
  }

  [[nodiscard]] std::string pathOf(const std::string& name) const { return folder_ + "/" + name; }
  void put(const std::string& name, const std::string& bytes) {
    disk_.make(pathOf(name), bytes);
    expected_[name] = bytes;
  }
  void start(const std::string& name) {
    stopKeepingWork();  // as when the program is killed
    startNewContest();
    startKeepingWork(systemFiles());
    if (!openContest(operator_, pathOf(name))) faults_.push_back("does not open: " + name);
  }
  void expectSaved(const std::string& name) {
    expected_[name] = writeContest(currentContest());
    if (disk_.contentOf(pathOf(name)) != expected_[name]) faults_.push_back("not saved: " + name);
  }
  void type(std::int32_t reasons) {
    ScoreRecord& record = currentContest().scores[101][0];
    record.reasonsScore = reasons;
    scoreStored({{101, 0, record}, {}});
  }
  void tryName(const std::string& name) {
    operator_.said.clear();
    start(name);
    type(31);
    saveCurrent(operator_);
    expectSaved(name);
    type(32);
    start(name);
    if (operator_.said.size() != 1) faults_.push_back("no work brought back: " + name);
    if (scoreRecord(currentContest(), 101, 0).reasonsScore != 32) {
      faults_.push_back("work lost: " + name);
    }
    expectSaved(name);
    if (earlierSaves(systemFiles(), pathOf(name)).size() != 2) {
      faults_.push_back("no earlier saves: " + name);
    }
    operator_.chosen = pathOf("copy " + name);
    saveContestAs(operator_);
    expectSaved("copy " + name);
    if (operator_.said.size() != 1) faults_.push_back("a message: " + operator_.said.back());
  }

  std::string folder_;
  RawDisk disk_;
  std::vector<std::string> names_;
  std::map<std::string, std::string> expected_;
  std::vector<std::string> faults_;
  Operator operator_;
};

}  // namespace scorvane
