// UML interactions (UML 2.5, clause 17).
#pragma once

#include "uml/UMLBehaviors.h"
#include "uml/UMLElement.h"
#include "uml/UMLKinds.h"
#include "uml/UMLNamespaces.h"

class UMLInteractionFragment : public virtual UMLNamedElement {
 public:
  UML_CLASS_IDENTITY(UMLInteractionFragment, 75)

  Borrowed<UMLLifeline, KYRVector> covered;
  Borrowed<UMLGeneralOrdering, KYRVector> generalOrdering;
  UMLInteraction* enclosingInteraction = nullptr;

  bool addCovered(UMLLifeline* entry) { return covered.add(entry); }
  bool addGeneralOrdering(UMLGeneralOrdering* entry) { return generalOrdering.add(entry); }
};

class UMLInteraction : public virtual UMLInteractionFragment, public virtual UMLBehavior {
 public:
  UML_CLASS_IDENTITY(UMLInteraction, 73)

  Borrowed<UMLLifeline, KYRVector> lifeline;
  Borrowed<UMLMessage, KYRVector> message;
  Borrowed<UMLInteractionFragment, KYROrderedVector> fragment;
  Borrowed<UMLAction, KYRVector> action;

  bool addLifeline(UMLLifeline* entry) { return lifeline.add(entry); }
  bool addMessage(UMLMessage* entry) { return message.add(entry); }
  bool addFragment(UMLInteractionFragment* entry) { return fragment.add(entry); }
  bool addAction(UMLAction* entry) { return action.add(entry); }
};

class UMLLifeline : public virtual UMLNamedElement {
 public:
  UML_CLASS_IDENTITY(UMLLifeline, 74)

  Borrowed<UMLInteractionFragment, KYRVector> coveredBy;
  UMLConnectableElement* represents = nullptr;
  UMLInteraction* interaction = nullptr;
  UMLValueSpecification* selector = nullptr;

  bool addCoveredBy(UMLInteractionFragment* entry) { return coveredBy.add(entry); }
};

class UMLMessage : public virtual UMLNamedElement {
 public:
  UML_CLASS_IDENTITY(UMLMessage, 76)

  UMLMessageKind* messageKind = nullptr;
  UMLMessageSort* messageSort = nullptr;
  UMLMessageEnd* receiveEvent = nullptr;
  UMLMessageEnd* sendEvent = nullptr;
  UMLConnector* connector = nullptr;
  UMLInteraction* interaction = nullptr;
  Borrowed<UMLValueSpecification, KYROrderedVector> argument;
  UMLNamedElement* signature = nullptr;

  bool addArgument(UMLValueSpecification* entry) { return argument.add(entry); }
};

class UMLMessageEnd : public virtual UMLNamedElement {
 public:
  UML_CLASS_IDENTITY(UMLMessageEnd, 80)

  UMLMessage* message = nullptr;
};

class UMLGeneralOrdering : public virtual UMLNamedElement {
 public:
  UML_CLASS_IDENTITY(UMLGeneralOrdering, 77)

  UMLOccurrenceSpecification* before = nullptr;
  UMLOccurrenceSpecification* after = nullptr;
};

class UMLOccurrenceSpecification : public virtual UMLInteractionFragment {
 public:
  UML_CLASS_IDENTITY(UMLOccurrenceSpecification, 79)

  UMLLifeline* covered = nullptr;
  Borrowed<UMLGeneralOrdering, KYRVector> toAfter;
  Borrowed<UMLGeneralOrdering, KYRVector> toBefore;
  UMLEvent* event = nullptr;

  bool addToAfter(UMLGeneralOrdering* entry) { return toAfter.add(entry); }
  bool addToBefore(UMLGeneralOrdering* entry) { return toBefore.add(entry); }
};

class UMLMessageOccurrenceSpecification : public virtual UMLMessageEnd,
                                          public virtual UMLOccurrenceSpecification {
 public:
  UML_CLASS_IDENTITY(UMLMessageOccurrenceSpecification, 89)
};

class UMLExecutionOccurrenceSpecification : public virtual UMLOccurrenceSpecification {
 public:
  UML_CLASS_IDENTITY(UMLExecutionOccurrenceSpecification, 90)

  UMLExecutionSpecification* execution = nullptr;
  UMLExecutionEvent* event = nullptr;
};

class UMLExecutionSpecification : public virtual UMLInteractionFragment {
 public:
  UML_CLASS_IDENTITY(UMLExecutionSpecification, 78)

  UMLOccurrenceSpecification* start = nullptr;
  UMLOccurrenceSpecification* finish = nullptr;
};

class UMLActionExecutionSpecification : public virtual UMLExecutionSpecification {
 public:
  UML_CLASS_IDENTITY(UMLActionExecutionSpecification, 82)

  UMLAction* action = nullptr;
};

class UMLBehaviorExecutionSpecification : public virtual UMLExecutionSpecification {
 public:
  UML_CLASS_IDENTITY(UMLBehaviorExecutionSpecification, 83)

  UMLBehavior* behavior = nullptr;
};

class UMLStateInvariant : public virtual UMLInteractionFragment {
 public:
  UML_CLASS_IDENTITY(UMLStateInvariant, 81)

  UMLConstraint* invariant = nullptr;
  UMLLifeline* covered = nullptr;
};
