// TypeTableReport: `kyr info --types`, the type names of each data store and what they are in a model.
//
// The tables are the library's, so no plug-in is asked.
#pragma once

#include <span>
#include <string>

#include "host/Output.h"
#include "repository/datatypes/KYRDataStores.h"

class TypeTableReport {
 public:
  /// All data stores for an empty name, else the one of that name, if there is one.
  explicit TypeTableReport(const std::string& store);

  void writeText(Output& output) const;
  void writeJson(Output& output) const;

 private:
  std::span<const KYRKnownDataStore> stores_;
};
