// Numbers are given on a walk of their own, since references also point forward.
#include "repository/storage/StoredNumbers.h"

#include <atomic>

#include "repository/storage/StoredWalk.h"

namespace {

constexpr int numberBits = 32;

std::uint64_t nextMark() noexcept {
  static std::atomic<std::uint32_t> last{0};
  constexpr std::uint64_t noPointer = std::uint64_t{1} << 31;  // the upper half is not the process's own
  return (noPointer | ++last) << numberBits;
}

}  // namespace

struct StoredNumbers::Numbering {
  StoredNumbers& numbers;
  void enter(const KYRObject& object, const StoredClass&) {
    numbers.objects_.emplaceBack(&object);
    object.scratch_ = numbers.mark_ | numbers.getCount();
  }
  void leave() {}
  void beginList(const StoredField&) {}
  void endList() {}
};

StoredNumbers::StoredNumbers(const KYRStoreModel& model, Use use)
    : mark_(nextMark()), isShared_(use == Use::shared) {
  Numbering numbering{*this};
  walkStored(model, numbering);
}

unsigned int StoredNumbers::get(const KYRObject* object) const noexcept {
  if (object == nullptr) return 0;
  const std::uint64_t kept = object->scratch_;
  const auto number = static_cast<unsigned int>(kept);
  if (!isShared_) return kept >> numberBits == mark_ >> numberBits ? number : 0;
  return number != 0 && number <= objects_.size() && objects_[number - 1] == object ? number : 0;
}
