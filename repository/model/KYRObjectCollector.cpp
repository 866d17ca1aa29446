// Gathering by exact element type.
#include "repository/model/KYRObjectCollector.h"

#include "repository/model/KYRObject.h"

void KYRObjectCollector::visit(KYRObject& object) {
  if (object.getElementType() == elementType_) objects_.push_back(&object);
}
