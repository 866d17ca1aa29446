// UMLMadeObjects: owner of the UML objects that no element of the file stands for, such as the types
// and default values that a tool extension makes. They live until the pool goes, also when another
// object has taken their place.
#pragma once

#include <memory>
#include <utility>
#include <vector>

#include "uml/UMLElement.h"

class UMLMadeObjects {
 public:
  UMLMadeObjects() = default;
  UMLMadeObjects(const UMLMadeObjects&) = delete;
  UMLMadeObjects& operator=(const UMLMadeObjects&) = delete;

  /// A new object of that class, owned here.
  template <class Class>
  Class* make(KYRString id, KYRString name) {
    auto object = std::make_unique<Class>(std::move(id), std::move(name));
    Class* const result = object.get();
    objects_.push_back(std::move(object));
    return result;
  }
  unsigned int getCount() const noexcept { return static_cast<unsigned int>(objects_.size()); }
  /// The object at a position in order of making.
  UMLElement* at(unsigned int index) const noexcept { return objects_[index].get(); }

 private:
  std::vector<std::unique_ptr<UMLElement>> objects_;
};
