// ModelComparison: what has changed from one saved model to another.
//
// Objects are matched first by class and source id, then, inside owners that match, by class and name;
// those without a name by what else they hold. So a renamed package does not make everything in it look
// new, and models of tools that give new ids at each export can be compared as well. The cost is linear
// in the size of the models.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "repository/model/KYRStoreModel.h"

/// A value of one side.
struct ComparedValue {
  enum class Kind { none, text, number, flag, objects };
  Kind kind = Kind::none;
  std::string text;
  std::int64_t number = 0;
  /// Of a reference one, of a list of references all.
  std::vector<const KYRObject*> objects;
};

struct ComparedField {
  std::string name;
  /// Whether the name is that of a user property and not of a field.
  bool isProperty;
  ComparedValue before;
  ComparedValue after;
};

class KYR_EXPORT ModelComparison {
 public:
  /// An object of one side alone.
  struct Single {
    const KYRObject* object;
    /// How many objects it holds that are of this side alone, too. They are not told themselves.
    std::size_t held;
  };
  /// An object of both sides.
  struct Pair {
    const KYRObject* before;
    const KYRObject* after;
  };
  struct Change {
    Pair objects;
    std::vector<ComparedField> fields;
  };

  /// Both models are borrowed, and must not change as long as the comparison is used. When the model was
  /// made and where it comes from is not compared: that differs between any two imports.
  ModelComparison(const KYRStoreModel& before, const KYRStoreModel& after);

  bool isEqual() const noexcept;
  /// Each in the order of the document.
  const std::vector<Single>& getAdded() const noexcept { return added_; }
  const std::vector<Single>& getRemoved() const noexcept { return removed_; }
  const std::vector<Pair>& getRenamed() const noexcept { return renamed_; }
  /// Objects that have another owner.
  const std::vector<Pair>& getMoved() const noexcept { return moved_; }
  /// Objects with other values, name and owner aside.
  const std::vector<Change>& getChanged() const noexcept { return changed_; }
  /// How many candidates were looked at while objects were matched: what the cost grows with.
  std::uint64_t getSteps() const noexcept { return steps_; }

  /// The word for the class of an object, such as "class" or "candidate key".
  static std::string_view kindOf(const KYRObject& object);
  /// The names from below the model joined by "/"; an object without a name is shown by its kind in
  /// parentheses. The model itself has an empty path.
  static std::string pathOf(const KYRObject& object);

 private:
  class Work;

  std::vector<Single> added_;
  std::vector<Single> removed_;
  std::vector<Pair> renamed_;
  std::vector<Pair> moved_;
  std::vector<Change> changed_;
  std::uint64_t steps_ = 0;
};
