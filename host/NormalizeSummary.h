// NormalizeSummary: what the normalising step has done, as words for people and as JSON.
#pragma once

#include <string>

#include "host/JsonOut.h"
#include "normalize/NormalizeReport.h"
#include "normalize/Normalizer.h"

class KYRLog;
class TextOut;

/// How a command line asks for the step: not at all, in its usual extent, or with all rules.
struct NormalizeChoice {
  bool isWanted() const noexcept { return !value.empty(); }
  Normalizer::Extent getExtent() const noexcept {
    return value == all ? Normalizer::Extent::all : Normalizer::Extent::usual;
  }
  static constexpr const char* usual = "usual";
  static constexpr const char* all = "all";
  std::string value;  // as given
};

namespace NormalizeSummary {

/// "roots 9, untyped elements 1203": the rules that have changed something, in their order; empty when none
/// has.
std::string describe(const NormalizeReport& report);
/// The reasons for which a reader may miss something in the file as it was written, in the order of the
/// rules.
std::string describeReasons(const NormalizeReport& report);
/// The same as a line, also when there is nothing.
void toText(TextOut& out, const NormalizeReport& report);
/// One object with a member for each rule that has changed something.
void toJson(JsonOut& json, const NormalizeReport& report);
/// Logs what somebody should know besides the counts.
void logNotes(KYRLog& log, const NormalizeReport& report);

}  // namespace NormalizeSummary
