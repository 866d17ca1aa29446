// PhaseReport: `--timing`, where the time of a command goes.
#pragma once

#include "foundation/KYRPhaseTimes.h"

class JsonOut;
class TextOut;

class PhaseReport {
 public:
  /// While it lives, phases enter their times when `isWanted`.
  explicit PhaseReport(bool isWanted) noexcept;
  PhaseReport(const PhaseReport&) = delete;
  PhaseReport& operator=(const PhaseReport&) = delete;
  ~PhaseReport();

  /// One line a phase; nothing unless wanted.
  void write(TextOut& out) const;
  /// The member "phases" of the object that is open; nothing unless wanted.
  void write(JsonOut& json) const;

 private:
  KYRPhaseTimes times_;
  const bool isWanted_;
};
