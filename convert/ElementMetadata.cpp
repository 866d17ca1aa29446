// What every element brings along: documentation, comments and tagged values.
#include "bridge/state/KYROmgUml2XmiImportBridge.h"
#include "foundation/ShownText.h"
#include "repository/bridgelib/KYRBridgeLib.h"
#include "repository/model/KYRElement.h"
#include "repository/model/KYRNote.h"
#include "repository/model/KYRStoreModel.h"
#include "uml/UMLNamespaces.h"

namespace {

constexpr const char* userProperty = "USER";
constexpr const char* textDataType = "SQL_VARCHAR";

}  // namespace

void KYROmgUml2XmiImportBridge::applyElementMetadata(KYRElement* object, UMLElement* element) {
  countSteps(element->ownedComment.count() + element->taggedValues.count());
  if (!element->documentation.isEmpty()) object->description = shownText(element->documentation);
  if (!element->ownedComment.isEmpty()) convertComments(object, element, element->ownedComment);
  for (const UMLTaggedValue* tag : element->taggedValues) {
    KYRPropertyType* const type =
        fetchPropertyType(storeModel, object->getElementType(), tag->name, KYRDesignLevelType::physical,
                          userProperty, KYRString::getEmptyString(), textDataType, true);
    setPropertyValue(type, tag->value, object);
  }
}

// A single comment is the description of an element that has none; everything else becomes notes, so
// a comment never takes the place of documentation.
void KYROmgUml2XmiImportBridge::convertComments(KYRElement* object, UMLElement* element,
                                                const Borrowed<UMLComment>& comments) {
  std::vector<const UMLComment*> applicable;
  for (const UMLComment* comment : comments) {
    if (comment != nullptr && commentTargets_.appliesTo(*comment, *element)) applicable.push_back(comment);
  }
  if (object->description.isEmpty() && applicable.size() == 1) {
    object->description = shownText(applicable.front()->body);
    return;
  }
  for (const UMLComment* comment : applicable) {
    auto note = std::make_unique<KYRNote>();
    note->noteText = shownText(comment->body);
    object->addNote(note.get());
    note.release();  // ownership: the element
  }
}
