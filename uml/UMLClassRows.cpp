// The class rows of the metamodel, and the lineages that follow from them.
#include "uml/UMLClasses.h"
#include "uml/UMLMetamodel.h"

namespace UMLMetamodel {
namespace {

template <class Class>
UMLElement* makeAt(void* place, KYRString id, KYRString name) {
  static_assert(alignof(Class) == alignof(void*));
  return new (place) Class(std::move(id), std::move(name));
}

template <class Class>
void* cast(UMLElement* element) {
  return dynamic_cast<Class*>(element);
}

// A row: the class, its direct bases in declared order, and its xmi:type.
template <class Class, class... Bases>
constexpr ClassRow row(const char* name, const char* xmiType) {
  static_assert((std::is_base_of_v<Bases, Class> && ...));
  static_assert(sizeof...(Bases) <= maxBases);
  return {name, xmiType, sizeof...(Bases), {Bases::kind...}, sizeof(Class), &makeAt<Class>, &cast<Class>};
}

}  // namespace

constexpr std::array<ClassRow, UMLLineage::kindCount> constantClassRows = {{
    row<UMLElement>("UMLElement", "uml:Element"),
    row<UMLComment, UMLElement>("UMLComment", "uml:Comment"),
    row<UMLDirectedRelationship, UMLRelationship>("UMLDirectedRelationship", "uml:DirectedRelationship"),
    row<UMLLiteralSpecification, UMLValueSpecification>("UMLLiteralSpecification",
                                                        "uml:LiteralSpecification"),
    row<UMLLiteralInteger, UMLLiteralSpecification>("UMLLiteralInteger", "uml:LiteralInteger"),
    row<UMLLiteralString, UMLLiteralSpecification>("UMLLiteralString", "uml:LiteralString"),
    row<UMLLiteralBoolean, UMLLiteralSpecification>("UMLLiteralBoolean", "uml:LiteralBoolean"),
    row<UMLLiteralNull, UMLLiteralSpecification>("UMLLiteralNull", "uml:LiteralNull"),
    row<UMLConstraint, UMLPackageableElement>("UMLConstraint", "uml:Constraint"),
    row<UMLElementImport, UMLDirectedRelationship>("UMLElementImport", "uml:ElementImport"),
    row<UMLTypedElement, UMLNamedElement>("UMLTypedElement", "uml:TypedElement"),
    row<UMLFeature, UMLRedefinableElement>("UMLFeature", "uml:Feature"),
    row<UMLRedefinableElement, UMLNamedElement>("UMLRedefinableElement", "uml:RedefinableElement"),
    row<UMLGeneralization, UMLDirectedRelationship>("UMLGeneralization", "uml:Generalization"),
    row<UMLParameter, UMLTypedElement, UMLMultiplicityElement>("UMLParameter", "uml:Parameter"),
    row<UMLStructuralFeature, UMLFeature, UMLTypedElement, UMLMultiplicityElement>("UMLStructuralFeature",
                                                                                   "uml:StructuralFeature"),
    row<UMLInstanceSpecification, UMLPackageableElement>("UMLInstanceSpecification",
                                                         "uml:InstanceSpecification"),
    row<UMLSlot, UMLElement>("UMLSlot", "uml:Slot"),
    row<UMLPackage, UMLPackageableElement, UMLNamespace>("UMLPackage", "uml:Package"),
    row<UMLPackageImport, UMLDirectedRelationship>("UMLPackageImport", "uml:PackageImport"),
    row<UMLDataType, UMLClassifier>("UMLDataType", "uml:DataType"),
    row<UMLEnumeration, UMLDataType>("UMLEnumeration", "uml:Enumeration"),
    row<UMLEnumerationLiteral, UMLInstanceSpecification>("UMLEnumerationLiteral", "uml:EnumerationLiteral"),
    row<UMLPrimitiveType, UMLDataType>("UMLPrimitiveType", "uml:PrimitiveType"),
    row<UMLAssociation, UMLRelationship, UMLClassifier>("UMLAssociation", "uml:Association"),
    row<UMLValueSpecification, UMLTypedElement, UMLPackageableElement>("UMLValueSpecification",
                                                                       "uml:ValueSpecification"),
    row<UMLRelationship, UMLElement>("UMLRelationship", "uml:Relationship"),
    row<UMLPackageMerge, UMLDirectedRelationship>("UMLPackageMerge", "uml:PackageMerge"),
    row<UMLInstanceValue, UMLValueSpecification>("UMLInstanceValue", "uml:InstanceValue"),
    row<UMLLiteralUnlimitedNatural, UMLLiteralSpecification>("UMLLiteralUnlimitedNatural",
                                                             "uml:LiteralUnlimitedNatural"),
    row<UMLType, UMLPackageableElement>("UMLType", "uml:Type"),
    row<UMLExpression, UMLValueSpecification>("UMLExpression", "uml:Expression"),
    row<UMLBehavior, UMLClass>("UMLBehavior", "uml:Behavior"),
    row<UMLOpaqueExpression, UMLValueSpecification>("UMLOpaqueExpression", "uml:OpaqueExpression"),
    row<UMLOpaqueBehavior, UMLBehavior>("UMLOpaqueBehavior", "uml:OpaqueBehavior"),
    row<UMLFunctionBehavior, UMLOpaqueBehavior>("UMLFunctionBehavior", "uml:FunctionBehavior"),
    row<UMLOpaqueAction, UMLAction>("UMLOpaqueAction", "uml:OpaqueAction"),
    row<UMLOutputPin, UMLPin>("UMLOutputPin", "uml:OutputPin"),
    row<UMLInputPin, UMLPin>("UMLInputPin", "uml:InputPin"),
    row<UMLInvocationAction, UMLAction>("UMLInvocationAction", "uml:InvocationAction"),
    row<UMLCallAction, UMLInvocationAction>("UMLCallAction", "uml:CallAction"),
    row<UMLSendSignalAction, UMLInvocationAction>("UMLSendSignalAction", "uml:SendSignalAction"),
    row<UMLCallOperationAction, UMLCallAction>("UMLCallOperationAction", "uml:CallOperationAction"),
    row<UMLCallBehaviorAction, UMLCallAction>("UMLCallBehaviorAction", "uml:CallBehaviorAction"),
    row<UMLMultiplicityElement, UMLElement>("UMLMultiplicityElement", "uml:MultiplicityElement"),
    row<UMLAction, UMLActivityNode>("UMLAction", "uml:Action"),
    row<UMLObjectNode, UMLActivityNode, UMLTypedElement>("UMLObjectNode", "uml:ObjectNode"),
    row<UMLControlNode, UMLActivityNode>("UMLControlNode", "uml:ControlNode"),
    row<UMLActivityEdge, UMLRedefinableElement>("UMLActivityEdge", "uml:ActivityEdge"),
    row<UMLControlFlow, UMLActivityEdge>("UMLControlFlow", "uml:ControlFlow"),
    row<UMLObjectFlow, UMLActivityEdge>("UMLObjectFlow", "uml:ObjectFlow"),
    row<UMLInitialNode, UMLControlNode>("UMLInitialNode", "uml:InitialNode"),
    row<UMLActivityFinalNode, UMLControlNode>("UMLActivityFinalNode", "uml:ActivityFinalNode"),
    row<UMLActivityGroup, UMLElement>("UMLActivityGroup", "uml:ActivityGroup"),
    row<UMLActivityParameterNode, UMLObjectNode>("UMLActivityParameterNode", "uml:ActivityParameterNode"),
    row<UMLActivityNode, UMLRedefinableElement>("UMLActivityNode", "uml:ActivityNode"),
    row<UMLPin, UMLMultiplicityElement, UMLObjectNode>("UMLPin", "uml:Pin"),
    row<UMLActivity, UMLBehavior>("UMLActivity", "uml:Activity"),
    row<UMLValuePin, UMLInputPin>("UMLValuePin", "uml:ValuePin"),
    row<UMLUsage, UMLDependency>("UMLUsage", "uml:Usage"),
    row<UMLAbstraction, UMLDependency>("UMLAbstraction", "uml:Abstraction"),
    row<UMLDependency, UMLDirectedRelationship, UMLPackageableElement>("UMLDependency", "uml:Dependency"),
    row<UMLRealization, UMLAbstraction>("UMLRealization", "uml:Realization"),
    row<UMLSubstitution, UMLRealization>("UMLSubstitution", "uml:Substitution"),
    row<UMLNamedElement, UMLElement>("UMLNamedElement", "uml:NamedElement"),
    row<UMLPackageableElement, UMLNamedElement>("UMLPackageableElement", "uml:PackageableElement"),
    row<UMLNamespace, UMLNamedElement>("UMLNamespace", "uml:Namespace"),
    row<UMLInterfaceRealization, UMLRealization>("UMLInterfaceRealization", "uml:InterfaceRealization"),
    row<UMLConnectorEnd, UMLMultiplicityElement>("UMLConnectorEnd", "uml:ConnectorEnd"),
    row<UMLConnector, UMLFeature>("UMLConnector", "uml:Connector"),
    row<UMLProperty, UMLConnectableElement, UMLStructuralFeature>("UMLProperty", "uml:Property"),
    row<UMLStructuredClassifier, UMLClassifier>("UMLStructuredClassifier", "uml:StructuredClassifier"),
    row<UMLConnectableElement, UMLTypedElement>("UMLConnectableElement", "uml:ConnectableElement"),
    row<UMLInteraction, UMLInteractionFragment, UMLBehavior>("UMLInteraction", "uml:Interaction"),
    row<UMLLifeline, UMLNamedElement>("UMLLifeline", "uml:Lifeline"),
    row<UMLInteractionFragment, UMLNamedElement>("UMLInteractionFragment", "uml:InteractionFragment"),
    row<UMLMessage, UMLNamedElement>("UMLMessage", "uml:Message"),
    row<UMLGeneralOrdering, UMLNamedElement>("UMLGeneralOrdering", "uml:GeneralOrdering"),
    row<UMLExecutionSpecification, UMLInteractionFragment>("UMLExecutionSpecification",
                                                           "uml:ExecutionSpecification"),
    row<UMLOccurrenceSpecification, UMLInteractionFragment>("UMLOccurrenceSpecification",
                                                            "uml:OccurrenceSpecification"),
    row<UMLMessageEnd, UMLNamedElement>("UMLMessageEnd", "uml:MessageEnd"),
    row<UMLStateInvariant, UMLInteractionFragment>("UMLStateInvariant", "uml:StateInvariant"),
    row<UMLActionExecutionSpecification, UMLExecutionSpecification>("UMLActionExecutionSpecification",
                                                                    "uml:ActionExecutionSpecification"),
    row<UMLBehaviorExecutionSpecification, UMLExecutionSpecification>("UMLBehaviorExecutionSpecification",
                                                                      "uml:BehaviorExecutionSpecification"),
    row<UMLExecutionEvent, UMLEvent>("UMLExecutionEvent", "uml:ExecutionEvent"),
    row<UMLCreationEvent, UMLEvent>("UMLCreationEvent", "uml:CreationEvent"),
    row<UMLDestructionEvent, UMLEvent>("UMLDestructionEvent", "uml:DestructionEvent"),
    row<UMLSendOperationEvent, UMLMessageEvent>("UMLSendOperationEvent", "uml:SendOperationEvent"),
    row<UMLSendSignalEvent, UMLMessageEvent>("UMLSendSignalEvent", "uml:SendSignalEvent"),
    row<UMLMessageOccurrenceSpecification, UMLMessageEnd, UMLOccurrenceSpecification>(
        "UMLMessageOccurrenceSpecification", "uml:MessageOccurrenceSpecification"),
    row<UMLExecutionOccurrenceSpecification, UMLOccurrenceSpecification>(
        "UMLExecutionOccurrenceSpecification", "uml:ExecutionOccurrenceSpecification"),
    row<UMLReceiveOperationEvent, UMLMessageEvent>("UMLReceiveOperationEvent", "uml:ReceiveOperationEvent"),
    row<UMLReceiveSignalEvent, UMLMessageEvent>("UMLReceiveSignalEvent", "uml:ReceiveSignalEvent"),
    row<UMLActor, UMLBehavioredClassifier>("UMLActor", "uml:Actor"),
    row<UMLExtend, UMLDirectedRelationship, UMLNamedElement>("UMLExtend", "uml:Extend"),
    row<UMLInclude, UMLDirectedRelationship, UMLNamedElement>("UMLInclude", "uml:Include"),
    row<UMLUseCase, UMLBehavioredClassifier>("UMLUseCase", "uml:UseCase"),
    row<UMLExtensionPoint, UMLRedefinableElement>("UMLExtensionPoint", "uml:ExtensionPoint"),
    row<UMLClassifier, UMLRedefinableElement, UMLType, UMLNamespace>("UMLClassifier", "uml:Classifier"),
    row<UMLBehavioralFeature, UMLFeature, UMLNamespace>("UMLBehavioralFeature", "uml:BehavioralFeature"),
    row<UMLCallEvent, UMLMessageEvent>("UMLCallEvent", "uml:CallEvent"),
    row<UMLChangeEvent, UMLEvent>("UMLChangeEvent", "uml:ChangeEvent"),
    row<UMLClass, UMLBehavioredClassifier>("UMLClass", "uml:Class"),
    row<UMLTrigger, UMLNamedElement>("UMLTrigger", "uml:Trigger"),
    row<UMLInterface, UMLClassifier>("UMLInterface", "uml:Interface"),
    row<UMLReception, UMLBehavioralFeature>("UMLReception", "uml:Reception"),
    row<UMLSignal, UMLClassifier>("UMLSignal", "uml:Signal"),
    row<UMLSignalEvent, UMLMessageEvent>("UMLSignalEvent", "uml:SignalEvent"),
    row<UMLTimeEvent, UMLEvent>("UMLTimeEvent", "uml:TimeEvent"),
    row<UMLMessageEvent, UMLEvent>("UMLMessageEvent", "uml:MessageEvent"),
    row<UMLAnyReceiveEvent, UMLMessageEvent>("UMLAnyReceiveEvent", "uml:AnyReceiveEvent"),
    row<UMLBehavioredClassifier, UMLClassifier>("UMLBehavioredClassifier", "uml:BehavioredClassifier"),
    row<UMLEvent, UMLPackageableElement>("UMLEvent", "uml:Event"),
    row<UMLOperation, UMLBehavioralFeature>("UMLOperation", "uml:Operation"),
    row<UMLModel, UMLPackage>("UMLModel", "uml:Model"),
    row<UMLGeneralizationSet, UMLPackageableElement>("UMLGeneralizationSet", "uml:GeneralizationSet"),
    row<UMLAssociationClass, UMLAssociation, UMLClass>("UMLAssociationClass", "uml:AssociationClass"),
}};
constinit const std::array<ClassRow, UMLLineage::kindCount> classRows = constantClassRows;

}  // namespace UMLMetamodel

namespace UMLLineage {
namespace {

// NOLINTNEXTLINE(misc-no-recursion): over the classes of the metamodel, while compiling
constexpr void include(Table& lineages, int kind, int other) {
  const auto bit = static_cast<unsigned int>(other);
  std::uint64_t& word = lineages.rows[kind].words[bit / 64];
  if ((word >> (bit % 64) & 1U) != 0) return;
  word |= std::uint64_t{1} << (bit % 64);
  const UMLMetamodel::ClassRow& row = UMLMetamodel::constantClassRows[bit];
  for (unsigned int i = 0; i < static_cast<unsigned int>(row.baseCount); ++i) {
    include(lineages, kind, row.bases[i]);
  }
}

constexpr Table computeLineages() {
  Table result = {};
  for (int kind = 0; kind < kindCount; ++kind) include(result, kind, kind);
  return result;
}

}  // namespace

constinit const Table table = computeLineages();

}  // namespace UMLLineage
