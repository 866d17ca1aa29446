// SavedModelCounts: how much a saved model holds, for the summary of an import.
#pragma once

#include <cstdint>

class KYRStoreModel;

struct SavedModelCounts {
  /// What is in the model, counted in one walk.
  static SavedModelCounts of(const KYRStoreModel& model);

  SavedModelCounts& operator+=(const SavedModelCounts& other) noexcept;

  std::uint64_t packages = 0;
  std::uint64_t classes = 0;  // without the interfaces
  std::uint64_t interfaces = 0;
  std::uint64_t attributes = 0;
  std::uint64_t operations = 0;
  std::uint64_t arguments = 0;
  std::uint64_t associations = 0;
  std::uint64_t diagrams = 0;
};
