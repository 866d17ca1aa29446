// What a generated model holds, whatever tool's manner it is written in. The plan of a class follows
// from the seed and the class's number alone, so a writer can describe the same class twice (in the
// model and in a tool's section) without keeping it in memory.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace bench {

inline constexpr std::uint32_t classesInPackage = 8;
inline constexpr std::uint32_t packagesInGroup = 8;
inline constexpr std::uint32_t primitiveCount = 6;

/// The type of a feature: one of the primitive types or a class, by number.
struct FeatureType {
  bool isPrimitive = true;
  std::uint32_t number = 0;
};

struct AttributePlan {
  std::string name;
  FeatureType type;
  std::string_view visibility;
  bool isMany = false;
  bool isStatic = false;
  bool hasDefault = false;
  std::uint32_t documentationWords = 0;
};

struct ParameterPlan {
  std::string name;
  FeatureType type;
  std::string_view direction;
};

struct OperationPlan {
  std::string name;
  std::string_view visibility;
  std::vector<ParameterPlan> parameters;
  std::uint32_t documentationWords = 0;
};

enum class ClassKind : std::uint8_t { plainClass, interfaceClass, enumeration };

struct ClassPlan {
  std::uint32_t number = 0;
  ClassKind kind = ClassKind::plainClass;
  std::string name;
  std::vector<AttributePlan> attributes;
  std::vector<OperationPlan> operations;
  std::vector<std::string> literals;
  std::optional<std::uint32_t> general;  ///< number of the class that this one specialises
  std::optional<std::uint32_t> partner;  ///< number of the class at the far end of an association
  bool isAbstract = false;
  std::uint32_t documentationWords = 0;
  std::uint32_t tags = 0;
};

class ModelPlan {
 public:
  explicit ModelPlan(std::uint64_t start) : seed(start) {}

  ClassPlan classAt(std::uint32_t number) const;
  std::string className(std::uint32_t number) const;
  ClassKind kindOf(std::uint32_t number) const;
  /// `words` words that follow from the seed and `place`.
  std::string prose(std::uint64_t place, std::uint32_t words) const;
  /// A number for an id: the same for the same three places.
  std::uint64_t idNumber(std::uint64_t what, std::uint64_t owner, std::uint64_t part) const;

  static std::string_view primitiveName(std::uint32_t number);

 private:
  std::uint32_t classToReferTo(std::uint32_t from, std::uint64_t choice) const;
  FeatureType featureType(std::uint32_t from, std::uint64_t choice) const;

  std::uint64_t seed;
};

}  // namespace bench
