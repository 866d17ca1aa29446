// The counting behind the report. A tree and no hash, since the names come from the file.
#include "host/InspectReport.h"

#include <algorithm>

void InspectReport::Counter::count(const KYRString& name, const KYRString& position) {
  const auto known = positions.find(name.view());
  if (known != positions.end()) {
    ++entries[known->second].count;
    return;
  }
  positions.emplace(name.view(), entries.size());
  entries.push_back({std::string(name.view()), 1, position});
}

void InspectReport::skippedType(const KYRString& type, const KYRString& position) {
  skippedTypes_.count(type, position);
}

void InspectReport::unknownTag(const KYRString& tag, const KYRString& position) {
  unknownTags_.count(tag, position);
}

void InspectReport::link(const KYRString& first, const KYRString& second, int, LinkResult result) {
  switch (result) {
    case LinkResult::linked:
      ++resolved_;
      break;
    case LinkResult::firstMissing:
      missing(first);
      break;
    case LinkResult::secondMissing:
      missing(second);
      break;
    case LinkResult::wrongClass:
      ++unfitting_;
      break;
  }
}

void InspectReport::missing(const KYRString& id) {
  ++unresolved_;
  if (id.isEmpty()) {
    ++withoutId_;
  } else if (missingIds_.size() < listedIds &&
             std::find(missingIds_.begin(), missingIds_.end(), id) == missingIds_.end()) {
    missingIds_.push_back(id);
  }
}
