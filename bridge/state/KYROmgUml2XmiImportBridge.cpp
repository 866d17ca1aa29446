// Making and destroying the working state, and what all phases of the conversion share.
#include "bridge/state/KYROmgUml2XmiImportBridge.h"

#include "repository/KYRRepositoryMessages.h"
#include "repository/datatypes/KYRDataTypeConverter.h"
#include "repository/model/KYRNamespace.h"
#include "uml/UMLElement.h"

namespace {

// Nearly every object of a file has an id, so the table starts large; the others are for the few
// files that have diagrams or schemas.
constexpr int objectBuckets = 16384;
constexpr int recordBuckets = 1024;
constexpr int unplacedBuckets = 16;

}  // namespace

KYROmgUml2XmiImportBridge::KYROmgUml2XmiImportBridge(KYRLog* importLog)
    : log(importLog),
      objects(objectBuckets, KYRHashtable::Hashing::atFirstLookup),
      owners(recordBuckets),
      mdObjects(recordBuckets),
      unplacedObjects(unplacedBuckets) {}

KYROmgUml2XmiImportBridge::~KYROmgUml2XmiImportBridge() = default;

void KYROmgUml2XmiImportBridge::enter(KYRObject* object, UMLElement* element) {
  object->umlElement = element;
  element->repositoryObject = object;
  objects.addRecord(object);
}

void KYROmgUml2XmiImportBridge::place(std::unique_ptr<KYRNamespaceElement> object, KYRNamespace* space) {
  if (space == nullptr) {
    keepUnplaced(std::move(object));
    return;
  }
  space->addNamespaceElementUniqueName(object.get(), '/');
  object.release();  // ownership: the name space
}

void KYROmgUml2XmiImportBridge::keepUnplaced(std::unique_ptr<KYRObject> object) {
  unplacedObjects.add(object.get(), true, nullptr);
  object.release();  // ownership: destroyUnplaced, unless a container takes it before
}

void KYROmgUml2XmiImportBridge::countSteps(unsigned int steps) {
  stepCount += steps;
  if (stepCount > stepLimit) {
    KYRRepositoryMessages::CONVERSION_LIMIT.throwException(file.getName(),
                                                           KYRString(std::to_string(stepLimit)));
  }
}
