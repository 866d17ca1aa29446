// KYRElementType: the number of each class of the repository, and the class tree by number.
//
// The numbers below 200 are known to hosts; those from 201 on are given here and mean nothing
// outside a running program: a saved model names classes by name. No class has the number 40.
#pragma once

#include <cstdint>
#include <string_view>

#include "foundation/Export.h"

class KYR_EXPORT KYRElementType {
 public:
  static constexpr int model = 2;
  static constexpr int baseType = 4;
  static constexpr int derivedType = 5;
  static constexpr int designPackage = 9;
  static constexpr int class_ = 13;
  static constexpr int attribute = 14;
  static constexpr int association = 17;
  static constexpr int candidateKey = 21;
  static constexpr int operation = 23;
  static constexpr int argument = 24;
  static constexpr int generalizationRole = 155;

  static constexpr int object = 201;
  static constexpr int element = 202;
  static constexpr int modelObject = 203;
  static constexpr int namespaceElement = 204;
  static constexpr int modelElement = 205;
  static constexpr int classifier = 206;
  static constexpr int relationship = 207;
  static constexpr int namespace_ = 208;
  static constexpr int package = 209;
  static constexpr int feature = 210;
  static constexpr int structuralFeature = 211;
  static constexpr int key = 212;
  static constexpr int type = 213;
  static constexpr int diagram = 214;
  static constexpr int presentationElement = 215;
  static constexpr int dataPackage = 216;
  static constexpr int databaseSchema = 217;
  static constexpr int associationRole = 218;
  static constexpr int typeValue = 219;
  static constexpr int foreignKey = 220;
  static constexpr int classType = 221;
  static constexpr int classDiagram = 222;
  static constexpr int note = 223;
  static constexpr int projection = 224;
  static constexpr int relationshipProjection = 225;
  static constexpr int propertyType = 226;
  static constexpr int dependency = 227;
  static constexpr int generalization = 228;
  static constexpr int realization = 229;

  /// Raises for a number that `isValid` refuses.
  KYRElementType(int value)  // NOLINT(google-explicit-constructor): numbers are how callers spell it
      : value_(static_cast<std::uint16_t>(isValid(value))) {}
  operator int() const noexcept { return value_; }  // NOLINT(google-explicit-constructor)

  /// The number itself when a class bears it; raises a KYRException otherwise.
  static int isValid(int value);
  /// The name of the class of that number; null when no class bears it.
  static const char* getClassName(int value) noexcept;
  /// The number of the class of that name; 0 when there is none.
  static int findClass(std::string_view name) noexcept;
  /// The number of the base class; 0 at the root and for a number that no class bears.
  static int getBase(int value) noexcept;

 private:
  std::uint16_t value_;
};
