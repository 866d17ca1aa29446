// The words for the rules, one row for each.
#include "host/NormalizeSummary.h"

#include <array>

#include "foundation/KYRLog.h"
#include "host/KYRHostMessages.h"
#include "host/KYRHostTexts.h"
#include "host/TextOut.h"

namespace {

struct Words {
  const char* key;  // in JSON
  const HostText<0>& name;
  const HostText<0>& reason;
};

using namespace KYRHostTexts;

const std::array<Words, NormalizeReport::ruleCount> words = {{
    {"prefixes", RULE_PREFIXES, REASON_PREFIXES},
    {"typeAttributes", RULE_TYPE_ATTRIBUTE, REASON_TYPE_ATTRIBUTE},
    {"typedReferences", RULE_TYPED_REFERENCE, REASON_TYPED_REFERENCE},
    {"replacedTypes", RULE_REPLACED_TYPE, REASON_REPLACED_TYPE},
    {"documentation", RULE_DOCUMENTATION, REASON_DOCUMENTATION},
    {"profilePackages", RULE_PROFILE_PACKAGE, REASON_REPLACED_TYPE},
    {"componentClasses", RULE_COMPONENT_CLASS, REASON_REPLACED_TYPE},
    {"localHrefs", RULE_LOCAL_HREF, REASON_LOCAL_HREF},
    {"roots", RULE_ROOTS, REASON_ROOTS},
    {"packageContents", RULE_PACKAGE_CONTENT, REASON_PACKAGE_CONTENT},
    {"nestedClassifiers", RULE_NESTED_CLASSIFIER, REASON_PACKAGE_CONTENT},
    {"ids", RULE_IDS, REASON_IDS},
    {"idLists", RULE_ID_LIST, REASON_ID_LIST},
    {"scalarElements", RULE_SCALAR_ELEMENT, REASON_SCALAR_ELEMENT},
    {"declaredTypes", RULE_DECLARED_TYPE, REASON_DECLARED_TYPE},
    {"attributeOrder", RULE_ATTRIBUTE_ORDER, REASON_ATTRIBUTE_ORDER},
}};

void appendTo(std::string& list, std::string_view entry) {
  if (!list.empty()) list += ", ";
  list += entry;
}

}  // namespace

std::string NormalizeSummary::describe(const NormalizeReport& report) {
  std::string list;
  for (std::size_t rule = 0; rule < words.size(); ++rule) {
    const std::uint64_t fired = report.tallies[rule].fired;
    if (fired != 0)
      appendTo(list, std::string(words[rule].name.getText().view()) + ' ' + std::to_string(fired));
  }
  return list;
}

std::string NormalizeSummary::describeReasons(const NormalizeReport& report) {
  std::string list;
  for (std::size_t rule = 0; rule < words.size(); ++rule) {
    if (report.tallies[rule].matters) appendTo(list, words[rule].reason.getText().view());
  }
  return list;
}

void NormalizeSummary::toText(TextOut& out, const NormalizeReport& report) {
  const std::string done = describe(report);
  if (done.empty()) {
    out.line(SUMMARY_NOT_NORMALIZED);
  } else {
    out.line(SUMMARY_NORMALIZED, done);
  }
}

void NormalizeSummary::toJson(JsonOut& json, const NormalizeReport& report) {
  json.beginObject();
  for (std::size_t rule = 0; rule < words.size(); ++rule) {
    if (report.tallies[rule].fired != 0) json.key(words[rule].key).number(report.tallies[rule].fired);
  }
  json.endObject();
}

void NormalizeSummary::logNotes(KYRLog& log, const NormalizeReport& report) {
  if (report.of(NormalizeRule::documentation).fired != 0) KYRHostMessages::TOOL_NAME_FOUND.log(log);
  if (report.attributeRings != 0) {
    KYRHostMessages::ATTRIBUTE_RINGS.log(log, KYRString(std::to_string(report.attributeRings)));
  }
}
