// UML activities, their nodes, edges and groups (UML 2.5, clause 15).
#pragma once

#include "uml/UMLBehaviors.h"
#include "uml/UMLElement.h"
#include "uml/UMLNamespaces.h"

class UMLActivity : public virtual UMLBehavior {
 public:
  UML_CLASS_IDENTITY(UMLActivity, 57)

  Borrowed<UMLActivityNode, KYRVector> node;
  Borrowed<UMLActivityGroup, KYRVector> group;
  bool isReadOnly = false;
  Borrowed<UMLActivityEdge, KYRVector> edge;

  bool addNode(UMLActivityNode* entry) { return node.add(entry); }
  bool addGroup(UMLActivityGroup* entry) { return group.add(entry); }
  bool addEdge(UMLActivityEdge* entry) { return edge.add(entry); }
};

class UMLActivityNode : public virtual UMLRedefinableElement {
 public:
  UML_CLASS_IDENTITY(UMLActivityNode, 55)

  UMLActivity* activity = nullptr;
  Borrowed<UMLActivityGroup, KYRVector> inGroup;
  Borrowed<UMLActivityEdge, KYRVector> outgoing;
  Borrowed<UMLActivityEdge, KYRVector> incoming;
  Borrowed<UMLActivityNode, KYRVector> redefinedNode;

  bool addInGroup(UMLActivityGroup* entry) { return inGroup.add(entry); }
  bool addOutgoing(UMLActivityEdge* entry) { return outgoing.add(entry); }
  bool addIncoming(UMLActivityEdge* entry) { return incoming.add(entry); }
  bool addRedefinedNode(UMLActivityNode* entry) { return redefinedNode.add(entry); }
};

class UMLControlNode : public virtual UMLActivityNode {
 public:
  UML_CLASS_IDENTITY(UMLControlNode, 47)
};

class UMLInitialNode : public virtual UMLControlNode {
 public:
  UML_CLASS_IDENTITY(UMLInitialNode, 51)
};

class UMLActivityFinalNode : public virtual UMLControlNode {
 public:
  UML_CLASS_IDENTITY(UMLActivityFinalNode, 52)
};

class UMLObjectNode : public virtual UMLActivityNode, public virtual UMLTypedElement {
 public:
  UML_CLASS_IDENTITY(UMLObjectNode, 46)
};

class UMLActivityParameterNode : public virtual UMLObjectNode {
 public:
  UML_CLASS_IDENTITY(UMLActivityParameterNode, 54)

  UMLParameter* parameter = nullptr;
};

class UMLActivityEdge : public virtual UMLRedefinableElement {
 public:
  UML_CLASS_IDENTITY(UMLActivityEdge, 48)

  UMLActivity* activity = nullptr;
  UMLActivityNode* source = nullptr;
  UMLActivityNode* target = nullptr;
  Borrowed<UMLActivityGroup, KYRVector> inGroup;
  Borrowed<UMLActivityEdge, KYRVector> redefinedEdge;

  bool addInGroup(UMLActivityGroup* entry) { return inGroup.add(entry); }
  bool addRedefinedEdge(UMLActivityEdge* entry) { return redefinedEdge.add(entry); }
};

class UMLControlFlow : public virtual UMLActivityEdge {
 public:
  UML_CLASS_IDENTITY(UMLControlFlow, 49)
};

class UMLObjectFlow : public virtual UMLActivityEdge {
 public:
  UML_CLASS_IDENTITY(UMLObjectFlow, 50)
};

class UMLActivityGroup : public virtual UMLElement {
 public:
  UML_CLASS_IDENTITY(UMLActivityGroup, 53)

  Borrowed<UMLActivityNode, KYRVector> containedNode;
  UMLActivity* inActivity = nullptr;
  Borrowed<UMLActivityGroup, KYRVector> subgroup;
  UMLActivityGroup* superGroup = nullptr;
  Borrowed<UMLActivityEdge, KYRVector> containedEdge;

  bool addContainedNode(UMLActivityNode* entry) { return containedNode.add(entry); }
  bool addSubgroup(UMLActivityGroup* entry) { return subgroup.add(entry); }
  bool addContainedEdge(UMLActivityEdge* entry) { return containedEdge.add(entry); }
};
