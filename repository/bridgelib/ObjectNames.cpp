// Texts about objects, and their shapes.
#include "repository/bridgelib/KYRBridgeLib.h"
#include "repository/model/KYRDiagram.h"
#include "repository/model/KYRModelObject.h"

KYRString buildMultiplicity(int lower, int upper) {
  const auto text = [](int bound) { return bound == manyMultiplicity ? KYRString("*") : KYRString(bound); };
  return lower == upper ? text(lower) : text(lower) + ".." + text(upper);
}

const KYRString& getPhysicalName(const KYRModelObject* object) {
  if (object == nullptr) return KYRString::getEmptyString();
  return object->physicalName.isEmpty() ? object->getName() : object->physicalName;
}

KYRPresentationElement* getPresentationElement(KYRModelObject* object, KYRDiagram* diagram) {
  return diagram == nullptr ? nullptr : diagram->getPresentationElement(object);
}
