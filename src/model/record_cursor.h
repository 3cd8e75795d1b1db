// Reads one contestant's records class by class.
#pragma once

#include "model/contest.h"

namespace scorvane {

/// Goes through the records in ascending order of classes, without a search per class. The records
/// must outlive it.
class RecordCursor {
 public:
  /// Null is a contestant without any record.
  explicit RecordCursor(const ClassScores* scores) {
    if (scores == nullptr) return;
    next_ = scores->begin();
    end_ = scores->end();
  }
  /// The record of a class, a blank one when it is missing. `classIndex` must not go back.
  const ScoreRecord& at(std::int32_t classIndex) {
    static const ScoreRecord blank;
    while (next_ != end_ && next_->first < classIndex) ++next_;
    return next_ != end_ && next_->first == classIndex ? next_->second : blank;
  }

 private:
  ClassScores::const_iterator next_{};
  ClassScores::const_iterator end_{};
};

}  // namespace scorvane
