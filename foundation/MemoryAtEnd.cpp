// The list of what was left, which is left as well.
#include "foundation/MemoryAtEnd.h"

#include <atomic>
#include <mutex>
#include <new>
#include <vector>

namespace {

std::atomic<bool> isLeft = false;
std::atomic<bool> isNeeded = false;

// One that never ends: a destructor would take from leak detection what shows that nothing has leaked.
struct LeftObjects {
  std::mutex mutex;
  std::vector<const void*> objects;
};

LeftObjects& leftObjects() {
  static auto* const left = new LeftObjects();
  return *left;
}

}  // namespace

void MemoryAtEnd::leaveToSystem(bool left) noexcept { isLeft = left; }

void MemoryAtEnd::needMemory(bool needed) noexcept { isNeeded = needed; }

bool MemoryAtEnd::isLeftToSystem() noexcept { return isLeft && !isNeeded; }

bool MemoryAtEnd::keep(const void* object) noexcept {
  if (object == nullptr) return false;
  try {
    LeftObjects& left = leftObjects();
    const std::lock_guard<std::mutex> lock(left.mutex);
    left.objects.push_back(object);
    return true;
  } catch (const std::bad_alloc&) {
    return false;
  }
}
