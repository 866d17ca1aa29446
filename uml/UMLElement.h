// UMLElement: root of the UML classes, the memory form of one XMI file.
//
// One class for each metaclass of UML 2 that the reader knows, 117 in all, as plain records with
// public fields. Every base is a virtual base, at every level: however many paths lead to UMLElement,
// an object has one `id`, one `owner` and one `ownedElement` list. Pointers and lists borrow; all
// objects belong to the parser that made them and die together. What reads and links them is
// stated once, in uml/UMLMetamodel.h.
#pragma once

#include <utility>

#include "foundation/Borrowed.h"
#include "foundation/KYRString.h"
#include "foundation/SeldomText.h"
#include "uml/UMLForward.h"
#include "uml/UMLLineage.h"
#include "uml/UMLTaggedValue.h"

class KYRObject;

/// What every UML class has beyond its fields: its number, the two kind tests, the constructor for
/// objects of exactly this class, and the one that serves as a virtual base.
#define UML_CLASS_IDENTITY(Class, number)                                                        \
  static constexpr int kind = number;                                                            \
  Class(KYRString xmiId, KYRString label) : UMLElement(std::move(xmiId), std::move(label)) {}    \
  int getKind() const noexcept override { return kind; }                                         \
  bool isKindOf(int other) const noexcept override { return UMLLineage::isKindOf(kind, other); } \
                                                                                                 \
 protected:                                                                                      \
  Class() = default;                                                                             \
                                                                                                 \
 public:

class UMLElement {
 public:
  static constexpr int kind = 0;
  /// `xmiId` and `label` (the attribute "name") are taken over when moved in: a borrowed text that is moved
  /// stays borrowed, one that is copied owns its characters.
  UMLElement(KYRString xmiId, KYRString label) : id(std::move(xmiId)), elementName(std::move(label)) {}
  UMLElement(const UMLElement&) = delete;
  UMLElement& operator=(const UMLElement&) = delete;
  virtual ~UMLElement() = default;
  /// The number of the object's own class, 0 to 116.
  virtual int getKind() const noexcept { return kind; }
  /// True for the object's own kind and those of all its bases.
  virtual bool isKindOf(int other) const noexcept { return UMLLineage::isKindOf(kind, other); }

  KYRString id;                           // xmi:id
  SeldomText documentation;               // written by the tool extensions
  KYRString elementName;                  // the attribute "name", also of elements that are no named elements
  KYRObject* repositoryObject = nullptr;  // what the conversion made of it
  Borrowed<UMLTaggedValue, KYROrderedVector> taggedValues;  // the parser frees them before the element
  Borrowed<UMLElement, KYRVector> ownedElement;
  UMLElement* owner = nullptr;
  Borrowed<UMLComment, KYRVector> ownedComment;

  // Position in the order of reading; of use only for objects that the parser read.
  unsigned int readingNumber = 0;

  bool addOwnedElement(UMLElement* entry) { return ownedElement.add(entry); }
  bool addOwnedComment(UMLComment* entry) { return ownedComment.add(entry); }

 protected:
  UMLElement() = default;
};
