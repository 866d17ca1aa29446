// The link rows of the metamodel: its associations, each with its name and two ends.
#include "uml/UMLClasses.h"
#include "uml/UMLMetamodel.h"

namespace UMLMetamodel {
namespace {

// Owner and target class of a reference field.
template <class Owner, class Target, bool IsList>
struct Reference {
  using OwnerType = Owner;
  using TargetType = Target;
  static constexpr bool isList = IsList;
};
template <class Owner, class Target>
Reference<Owner, Target, false> describe(Target* Owner::*);
template <class Owner, class Target, class Container>
Reference<Owner, Target, true> describe(Borrowed<Target, Container> Owner::*);

template <auto Field>
using ReferenceOf = decltype(describe(Field));
template <auto Field>
using OwnerOf = typename ReferenceOf<Field>::OwnerType;
template <auto Field>
using TargetOf = typename ReferenceOf<Field>::TargetType;

template <auto Field>
const auto& read(const void* owner) {
  return static_cast<const OwnerOf<Field>*>(owner)->*Field;
}

template <auto Field>
void set(void* owner, void* target) {
  static_cast<OwnerOf<Field>*>(owner)->*Field = static_cast<TargetOf<Field>*>(target);
}

template <auto Field, auto Adder>
void add(void* owner, void* target) {
  (static_cast<OwnerOf<Field>*>(owner)->*Adder)(static_cast<TargetOf<Field>*>(target));
}

template <auto Field>
unsigned int count(const void* owner) {
  if constexpr (ReferenceOf<Field>::isList) {
    return read<Field>(owner).count();
  } else {
    return read<Field>(owner) == nullptr ? 0 : 1;
  }
}

template <auto Field>
UMLElement* at(const void* owner, unsigned int index) {
  if constexpr (ReferenceOf<Field>::isList) {
    return read<Field>(owner).at(index);
  } else {
    return index == 0 ? read<Field>(owner) : nullptr;
  }
}

// An end whose class holds one object: the last link wins.
template <auto Field>
constexpr LinkEnd one(const char* role) {
  return {role, OwnerOf<Field>::kind, TargetOf<Field>::kind, false,
          true, &set<Field>,          &count<Field>,         &at<Field>};
}

// An end whose class holds a list, filled through its adder.
template <auto Field, auto Adder>
constexpr LinkEnd list(const char* role) {
  return {role, OwnerOf<Field>::kind, TargetOf<Field>::kind, true,
          true, &add<Field, Adder>,   &count<Field>,         &at<Field>};
}

// An end for which the class declares no field.
template <class Owner, class Target>
constexpr LinkEnd none() {
  return {nullptr, Owner::kind, Target::kind, false, false, nullptr, nullptr, nullptr};
}

// The two ends must name each other's classes; a field picked up from a base fails here.
template <class First, class Second>
consteval LinkRow link(const char* name, LinkEnd first, LinkEnd second) {
  if (first.owner != First::kind || first.target != Second::kind) throw "first end of another class";
  if (second.owner != Second::kind || second.target != First::kind) throw "second end of another class";
  return {name, first, second};
}

}  // namespace

constinit const std::array<LinkRow, linkKindCount> linkRows = {{
    link<UMLElement, UMLElement>(
        "UML_A_OWNEDELEMENT_OWNER",
        list<&UMLElement::ownedElement, &UMLElement::addOwnedElement>("ownedElement").withoutNestedRow(),
        one<&UMLElement::owner>("owner").withoutNestedRow()),
    link<UMLDirectedRelationship, UMLElement>(
        "UML_A_SOURCE_DIRECTEDRELATIONSHIP",
        list<&UMLDirectedRelationship::source, &UMLDirectedRelationship::addSource>("source"),
        none<UMLElement, UMLDirectedRelationship>()),
    link<UMLDirectedRelationship, UMLElement>(
        "UML_A_TARGET_DIRECTEDRELATIONSHIP",
        list<&UMLDirectedRelationship::target, &UMLDirectedRelationship::addTarget>("target"),
        none<UMLElement, UMLDirectedRelationship>()),
    link<UMLConstraint, UMLElement>(
        "UML_A_CONSTRAINEDELEMENT_CONSTRAINT",
        list<&UMLConstraint::constrainedElement, &UMLConstraint::addConstrainedElement>("constrainedElement"),
        none<UMLElement, UMLConstraint>()),
    link<UMLTypedElement, UMLType>("UML_A_TYPE_TYPEDELEMENT", one<&UMLTypedElement::type>("type"),
                                   none<UMLType, UMLTypedElement>()),
    link<UMLClassifier, UMLGeneralization>(
        "UML_A_GENERALIZATION_SPECIFIC",
        list<&UMLClassifier::generalization, &UMLClassifier::addGeneralization>("generalization"),
        one<&UMLGeneralization::specific>("specific")),
    link<UMLGeneralization, UMLClassifier>("UML_A_GENERAL_GENERALIZATION",
                                           one<&UMLGeneralization::general>("general"),
                                           none<UMLClassifier, UMLGeneralization>()),
    link<UMLClassifier, UMLFeature>(
        "UML_A_FEATURE_FEATURINGCLASSIFIER",
        list<&UMLClassifier::feature, &UMLClassifier::addFeature>("feature"),
        list<&UMLFeature::featuringClassifier, &UMLFeature::addFeaturingClassifier>("featuringClassifier")),
    link<UMLBehavioralFeature, UMLParameter>(
        "UML_A_OWNEDPARAMETER_OWNERFORMALPARAM",
        list<&UMLBehavioralFeature::ownedParameter, &UMLBehavioralFeature::addOwnedParameter>(
            "ownedParameter"),
        none<UMLParameter, UMLBehavioralFeature>()),
    link<UMLInstanceSpecification, UMLClassifier>(
        "UML_A_CLASSIFIER_INSTANCESPECIFICATION",
        list<&UMLInstanceSpecification::classifier, &UMLInstanceSpecification::addClassifier>("classifier"),
        none<UMLClassifier, UMLInstanceSpecification>()),
    link<UMLInstanceSpecification, UMLSlot>(
        "UML_A_SLOT_OWNINGINSTANCE",
        list<&UMLInstanceSpecification::slot, &UMLInstanceSpecification::addSlot>("slot"),
        one<&UMLSlot::owningInstance>("owningInstance")),
    link<UMLSlot, UMLStructuralFeature>("UML_A_DEFININGFEATURE_SLOT",
                                        one<&UMLSlot::definingFeature>("definingFeature"),
                                        none<UMLStructuralFeature, UMLSlot>()),
    link<UMLComment, UMLElement>(
        "UML_A_ANNOTATEDELEMENT_COMMENT",
        list<&UMLComment::annotatedElement, &UMLComment::addAnnotatedElement>("annotatedElement"),
        none<UMLElement, UMLComment>()),
    link<UMLElement, UMLComment>(
        "UML_A_OWNEDCOMMENT_OWNINGELEMENT",
        list<&UMLElement::ownedComment, &UMLElement::addOwnedComment>("ownedComment").withoutNestedRow(),
        none<UMLComment, UMLElement>()),
    link<UMLElementImport, UMLPackageableElement>("UML_A_IMPORTEDELEMENT_ELEMENTIMPORT",
                                                  one<&UMLElementImport::importedElement>("importedElement"),
                                                  none<UMLPackageableElement, UMLElementImport>()),
    link<UMLClassifier, UMLNamedElement>(
        "UML_A_INHERITEDMEMBER_CLASSIFIER",
        list<&UMLClassifier::inheritedMember, &UMLClassifier::addInheritedMember>("inheritedMember"),
        none<UMLNamedElement, UMLClassifier>()),
    link<UMLClass, UMLClassifier>(
        "UML_A_NESTEDCLASSIFIER_CLASS",
        list<&UMLClass::nestedClassifier, &UMLClass::addNestedClassifier>("nestedClassifier"),
        none<UMLClassifier, UMLClass>()),
    link<UMLClass, UMLProperty>(
        "UML_A_OWNEDATTRIBUTE_CLASS",
        list<&UMLClass::ownedAttribute, &UMLClass::addOwnedAttribute>("ownedAttribute"),
        one<&UMLProperty::class_>("class")),
    link<UMLClass, UMLOperation>(
        "UML_A_OWNEDOPERATION_CLASS",
        list<&UMLClass::ownedOperation, &UMLClass::addOwnedOperation>("ownedOperation"),
        one<&UMLOperation::class_>("class")),
    link<UMLOperation, UMLConstraint>(
        "UML_A_PRECONDITION_PRECONTEXT",
        list<&UMLOperation::precondition, &UMLOperation::addPrecondition>("precondition"),
        none<UMLConstraint, UMLOperation>()),
    link<UMLOperation, UMLConstraint>(
        "UML_A_POSTCONDITION_POSTCONTEXT",
        list<&UMLOperation::postcondition, &UMLOperation::addPostcondition>("postcondition"),
        none<UMLConstraint, UMLOperation>()),
    link<UMLOperation, UMLOperation>(
        "UML_A_REDEFINEDOPERATION_OPERATION",
        list<&UMLOperation::redefinedOperation, &UMLOperation::addRedefinedOperation>("redefinedOperation"),
        none<UMLOperation, UMLOperation>()),
    link<UMLProperty, UMLProperty>(
        "UML_A_REDEFINEDPROPERTY_PROPERTY",
        list<&UMLProperty::redefinedProperty, &UMLProperty::addRedefinedProperty>("redefinedProperty"),
        none<UMLProperty, UMLProperty>()),
    link<UMLAssociation, UMLProperty>(
        "UML_A_OWNEDEND_OWNINGASSOCIATION",
        list<&UMLAssociation::ownedEnd, &UMLAssociation::addOwnedEnd>("ownedEnd"),
        one<&UMLProperty::owningAssociation>("owningAssociation")),
    link<UMLDataType, UMLProperty>(
        "UML_A_OWNEDATTRIBUTE_DATATYPE",
        list<&UMLDataType::ownedAttribute, &UMLDataType::addOwnedAttribute>("ownedAttribute"),
        one<&UMLProperty::datatype>("datatype")),
    link<UMLDataType, UMLOperation>(
        "UML_A_OWNEDOPERATION_DATATYPE",
        list<&UMLDataType::ownedOperation, &UMLDataType::addOwnedOperation>("ownedOperation"),
        one<&UMLOperation::datatype>("datatype")),
    link<UMLEnumeration, UMLEnumerationLiteral>(
        "UML_A_OWNEDLITERAL_ENUMERATION",
        list<&UMLEnumeration::ownedLiteral, &UMLEnumeration::addOwnedLiteral>("ownedLiteral"),
        one<&UMLEnumerationLiteral::enumeration>("enumeration")),
    link<UMLNamespace, UMLElementImport>(
        "UML_A_ELEMENTIMPORT_IMPORTINGNAMESPACE",
        list<&UMLNamespace::elementImport, &UMLNamespace::addElementImport>("elementImport"),
        one<&UMLElementImport::importingNamespace>("importingNamespace")),
    link<UMLNamespace, UMLPackageImport>(
        "UML_A_PACKAGEIMPORT_IMPORTINGNAMESPACE",
        list<&UMLNamespace::packageImport, &UMLNamespace::addPackageImport>("packageImport"),
        one<&UMLPackageImport::importingNamespace>("importingNamespace")),
    link<UMLPackageImport, UMLPackage>("UML_A_IMPORTEDPACKAGE_PACKAGEIMPORT",
                                       one<&UMLPackageImport::importedPackage>("importedPackage"),
                                       none<UMLPackage, UMLPackageImport>()),
    link<UMLClassifier, UMLClassifier>(
        "UML_A_REDEFINEDCLASSIFIER_CLASSIFIER",
        list<&UMLClassifier::redefinedClassifier, &UMLClassifier::addRedefinedClassifier>(
            "redefinedClassifier"),
        none<UMLClassifier, UMLClassifier>()),
    link<UMLConstraint, UMLValueSpecification>("UML_A_SPECIFICATION_OWNINGCONSTRAINT",
                                               one<&UMLConstraint::specification>("specification"),
                                               none<UMLValueSpecification, UMLConstraint>()),
    link<UMLParameter, UMLValueSpecification>("UML_A_DEFAULTVALUE_OWNINGPARAMETER",
                                              one<&UMLParameter::defaultValue>("defaultValue"),
                                              none<UMLValueSpecification, UMLParameter>()),
    link<UMLProperty, UMLValueSpecification>("UML_A_DEFAULTVALUE_OWNINGPROPERTY",
                                             one<&UMLProperty::defaultValue>("defaultValue"),
                                             none<UMLValueSpecification, UMLProperty>()),
    link<UMLNamespace, UMLConstraint>(
        "UML_A_OWNEDRULE_CONTEXT", list<&UMLNamespace::ownedRule, &UMLNamespace::addOwnedRule>("ownedRule"),
        one<&UMLConstraint::context>("context")),
    link<UMLNamespace, UMLNamedElement>("UML_A_MEMBER_NAMESPACE",
                                        list<&UMLNamespace::member, &UMLNamespace::addMember>("member"),
                                        none<UMLNamedElement, UMLNamespace>()),
    link<UMLRelationship, UMLElement>(
        "UML_A_RELATEDELEMENT_RELATIONSHIP",
        list<&UMLRelationship::relatedElement, &UMLRelationship::addRelatedElement>("relatedElement"),
        none<UMLElement, UMLRelationship>()),
    link<UMLAssociation, UMLType>("UML_A_ENDTYPE_ASSOCIATION",
                                  list<&UMLAssociation::endType, &UMLAssociation::addEndType>("endType"),
                                  none<UMLType, UMLAssociation>()),
    link<UMLMultiplicityElement, UMLValueSpecification>(
        "UML_A_UPPERVALUE_OWNINGUPPER", one<&UMLMultiplicityElement::upperValue>("upperValue"),
        none<UMLValueSpecification, UMLMultiplicityElement>()),
    link<UMLMultiplicityElement, UMLValueSpecification>(
        "UML_A_LOWERVALUE_OWNINGLOWER", one<&UMLMultiplicityElement::lowerValue>("lowerValue"),
        none<UMLValueSpecification, UMLMultiplicityElement>()),
    link<UMLPackageMerge, UMLPackage>(
        "UML_A_RECEIVINGPACKAGE_PACKAGEMERGE", one<&UMLPackageMerge::receivingPackage>("receivingPackage"),
        list<&UMLPackage::packageMerge, &UMLPackage::addPackageMerge>("packageMerge")),
    link<UMLPackageMerge, UMLPackage>("UML_A_MERGEDPACKAGE_PACKAGEMERGE",
                                      one<&UMLPackageMerge::mergedPackage>("mergedPackage"),
                                      none<UMLPackage, UMLPackageMerge>()),
    link<UMLInstanceValue, UMLInstanceSpecification>("UML_A_INSTANCE_INSTANCEVALUE",
                                                     one<&UMLInstanceValue::instance>("instance"),
                                                     none<UMLInstanceSpecification, UMLInstanceValue>()),
    link<UMLSlot, UMLValueSpecification>("UML_A_VALUE_OWNINGSLOT",
                                         list<&UMLSlot::value, &UMLSlot::addValue>("value"),
                                         none<UMLValueSpecification, UMLSlot>()),
    link<UMLInstanceSpecification, UMLValueSpecification>(
        "UML_A_SPECIFICATION_OWNINGINSTANCESPEC",
        one<&UMLInstanceSpecification::specification>("specification"),
        none<UMLValueSpecification, UMLInstanceSpecification>()),
    link<UMLPackage, UMLPackageableElement>(
        "UML_A_PACKAGEDELEMENT_OWNINGPACKAGE",
        list<&UMLPackage::packagedElement, &UMLPackage::addPackagedElement>("packagedElement"),
        none<UMLPackageableElement, UMLPackage>()),
    link<UMLNamespace, UMLPackageableElement>(
        "UML_A_IMPORTEDMEMBER_NAMESPACE",
        list<&UMLNamespace::importedMember, &UMLNamespace::addImportedMember>("importedMember"),
        none<UMLPackageableElement, UMLNamespace>()),
    link<UMLProperty, UMLProperty>("UML_A_OPPOSITE_PROPERTY", one<&UMLProperty::opposite>("opposite"),
                                   none<UMLProperty, UMLProperty>()),
    link<UMLProperty, UMLProperty>(
        "UML_A_SUBSETTEDPROPERTY_PROPERTY",
        list<&UMLProperty::subsettedProperty, &UMLProperty::addSubsettedProperty>("subsettedProperty"),
        none<UMLProperty, UMLProperty>()),
    link<UMLAssociation, UMLProperty>(
        "UML_A_MEMBEREND_ASSOCIATION",
        list<&UMLAssociation::memberEnd, &UMLAssociation::addMemberEnd>("memberEnd"),
        one<&UMLProperty::association>("association")),
    link<UMLPackage, UMLType>("UML_A_OWNEDTYPE_PACKAGE",
                              list<&UMLPackage::ownedType, &UMLPackage::addOwnedType>("ownedType"),
                              one<&UMLType::package>("package")),
    link<UMLPackage, UMLPackage>(
        "UML_A_NESTEDPACKAGE_NESTINGPACKAGE",
        list<&UMLPackage::nestedPackage, &UMLPackage::addNestedPackage>("nestedPackage"),
        one<&UMLPackage::nestingPackage>("nestingPackage").withoutNestedRow()),
    link<UMLRedefinableElement, UMLRedefinableElement>(
        "UML_A_REDEFINEDELEMENT_REDEFINABLEELEMENT",
        list<&UMLRedefinableElement::redefinedElement, &UMLRedefinableElement::addRedefinedElement>(
            "redefinedElement"),
        none<UMLRedefinableElement, UMLRedefinableElement>()),
    link<UMLRedefinableElement, UMLClassifier>(
        "UML_A_REDEFINITIONCONTEXT_REDEFINABLEELEMENT",
        list<&UMLRedefinableElement::redefinitionContext, &UMLRedefinableElement::addRedefinitionContext>(
            "redefinitionContext"),
        none<UMLClassifier, UMLRedefinableElement>()),
    link<UMLClassifier, UMLClassifier>("UML_A_GENERAL_CLASSIFIER",
                                       list<&UMLClassifier::general, &UMLClassifier::addGeneral>("general"),
                                       none<UMLClassifier, UMLClassifier>()),
    link<UMLClass, UMLClass>("UML_A_SUPERCLASS_CLASS",
                             list<&UMLClass::superClass, &UMLClass::addSuperClass>("superClass"),
                             none<UMLClass, UMLClass>()),
    link<UMLOperation, UMLConstraint>("UML_A_BODYCONDITION_BODYCONTEXT",
                                      one<&UMLOperation::bodyCondition>("bodyCondition"),
                                      none<UMLConstraint, UMLOperation>()),
    link<UMLOperation, UMLType>("UML_A_TYPE_OPERATION", one<&UMLOperation::type>("type"),
                                none<UMLType, UMLOperation>()),
    link<UMLOperation, UMLParameter>(
        "UML_A_OWNEDPARAMETER_OPERATION",
        list<&UMLOperation::ownedParameter, &UMLOperation::addOwnedParameter>("ownedParameter"),
        one<&UMLParameter::operation>("operation")),
    link<UMLExpression, UMLValueSpecification>(
        "UML_A_OPERAND_EXPRESSION", list<&UMLExpression::operand, &UMLExpression::addOperand>("operand"),
        none<UMLValueSpecification, UMLExpression>()),
    link<UMLOperation, UMLType>(
        "UML_A_RAISEDEXCEPTION_OPERATION",
        list<&UMLOperation::raisedException, &UMLOperation::addRaisedException>("raisedException"),
        none<UMLType, UMLOperation>()),
    link<UMLAssociation, UMLProperty>(
        "UML_A_NAVIGABLEOWNEDEND_ASSOCIATION",
        list<&UMLAssociation::navigableOwnedEnd, &UMLAssociation::addNavigableOwnedEnd>("navigableOwnedEnd"),
        none<UMLProperty, UMLAssociation>()),
    link<UMLBehavioredClassifier, UMLBehavior>(
        "UML_A_BEHAVIOREDCLASSIFIER_OWNEDBEHAVIOR",
        list<&UMLBehavioredClassifier::ownedBehavior, &UMLBehavioredClassifier::addOwnedBehavior>(
            "ownedBehavior"),
        none<UMLBehavior, UMLBehavioredClassifier>()),
    link<UMLBehavioredClassifier, UMLBehavior>(
        "UML_A_CLASSIFIERBEHAVIOR_BEHAVIOREDCLASSIFIER",
        one<&UMLBehavioredClassifier::classifierBehavior>("classifierBehavior"),
        none<UMLBehavior, UMLBehavioredClassifier>()),
    link<UMLBehavior, UMLBehavior>(
        "UML_A_REDEFINEDBEHAVIOR_BEHAVIOR",
        list<&UMLBehavior::redefinedBehavior, &UMLBehavior::addRedefinedBehavior>("redefinedBehavior"),
        none<UMLBehavior, UMLBehavior>()),
    link<UMLBehavioralFeature, UMLBehavior>(
        "UML_A_METHOD_SPECIFICATION",
        list<&UMLBehavioralFeature::method, &UMLBehavioralFeature::addMethod>("method"),
        one<&UMLBehavior::specification>("specification")),
    link<UMLBehavior, UMLParameter>(
        "UML_A_BEHAVIOR_OWNEDPARAMETER",
        list<&UMLBehavior::ownedParameter, &UMLBehavior::addOwnedParameter>("ownedParameter"),
        none<UMLParameter, UMLBehavior>()),
    link<UMLOpaqueExpression, UMLParameter>("UML_A_RESULT_OPAQUEEXPRESSION",
                                            one<&UMLOpaqueExpression::result>("result"),
                                            none<UMLParameter, UMLOpaqueExpression>()),
    link<UMLOpaqueExpression, UMLBehavior>("UML_A_BEHAVIOR_OPAQUEEXPRESSION",
                                           one<&UMLOpaqueExpression::behavior>("behavior"),
                                           none<UMLBehavior, UMLOpaqueExpression>()),
    link<UMLBehavior, UMLBehavioredClassifier>("UML_A_CONTEXT_BEHAVIOR",
                                               one<&UMLBehavior::context>("context"),
                                               none<UMLBehavioredClassifier, UMLBehavior>()),
    link<UMLBehavior, UMLConstraint>(
        "UML_A_PRECONDITION_BEHAVIOR",
        list<&UMLBehavior::precondition, &UMLBehavior::addPrecondition>("precondition"),
        none<UMLConstraint, UMLBehavior>()),
    link<UMLBehavior, UMLConstraint>(
        "UML_A_POSTCONDITION_BEHAVIOR",
        list<&UMLBehavior::postcondition, &UMLBehavior::addPostcondition>("postcondition"),
        none<UMLConstraint, UMLBehavior>()),
    link<UMLCallBehaviorAction, UMLBehavior>("UML_A_BEHAVIOR_CALLBEHAVIORACTION",
                                             one<&UMLCallBehaviorAction::behavior>("behavior"),
                                             none<UMLBehavior, UMLCallBehaviorAction>()),
    link<UMLCallOperationAction, UMLOperation>("UML_A_OPERATION_CALLOPERATIONACTION",
                                               one<&UMLCallOperationAction::operation>("operation"),
                                               none<UMLOperation, UMLCallOperationAction>()),
    link<UMLCallOperationAction, UMLInputPin>("UML_A_TARGET_CALLOPERATIONACTION",
                                              one<&UMLCallOperationAction::target>("target"),
                                              none<UMLInputPin, UMLCallOperationAction>()),
    link<UMLSendSignalAction, UMLInputPin>("UML_A_TARGET_SENDSIGNALACTION",
                                           one<&UMLSendSignalAction::target>("target"),
                                           none<UMLInputPin, UMLSendSignalAction>()),
    link<UMLSendSignalAction, UMLSignal>("UML_A_SIGNAL_SENDSIGNALACTION",
                                         one<&UMLSendSignalAction::signal>("signal"),
                                         none<UMLSignal, UMLSendSignalAction>()),
    link<UMLCallAction, UMLOutputPin>("UML_A_RESULT_CALLACTION",
                                      list<&UMLCallAction::result, &UMLCallAction::addResult>("result"),
                                      none<UMLOutputPin, UMLCallAction>()),
    link<UMLInvocationAction, UMLInputPin>(
        "UML_A_ARGUMENT_INVOCATIONACTION",
        list<&UMLInvocationAction::argument, &UMLInvocationAction::addArgument>("argument"),
        none<UMLInputPin, UMLInvocationAction>()),
    link<UMLAction, UMLOutputPin>("UML_A_ACTION_OUTPUT",
                                  list<&UMLAction::output, &UMLAction::addOutput>("output"),
                                  none<UMLOutputPin, UMLAction>()),
    link<UMLAction, UMLInputPin>("UML_A_ACTION_INPUT", list<&UMLAction::input, &UMLAction::addInput>("input"),
                                 none<UMLInputPin, UMLAction>()),
    link<UMLValuePin, UMLValueSpecification>("UML_A_VALUE_VALUEPIN", one<&UMLValuePin::value>("value"),
                                             none<UMLValueSpecification, UMLValuePin>()),
    link<UMLAction, UMLClassifier>("UML_A_CONTEXT_ACTION", one<&UMLAction::context>("context"),
                                   none<UMLClassifier, UMLAction>()),
    link<UMLOpaqueAction, UMLInputPin>(
        "UML_A_INPUTVALUE_OPAQUEACTION",
        list<&UMLOpaqueAction::inputValue, &UMLOpaqueAction::addInputValue>("inputValue"),
        none<UMLInputPin, UMLOpaqueAction>()),
    link<UMLOpaqueAction, UMLOutputPin>(
        "UML_A_OUTPUTVALUE_OPAQUEACTION",
        list<&UMLOpaqueAction::outputValue, &UMLOpaqueAction::addOutputValue>("outputValue"),
        none<UMLOutputPin, UMLOpaqueAction>()),
    link<UMLActivity, UMLActivityNode>("UML_A_NODE_ACTIVITY",
                                       list<&UMLActivity::node, &UMLActivity::addNode>("node"),
                                       one<&UMLActivityNode::activity>("activity")),
    link<UMLActivityGroup, UMLActivityNode>(
        "UML_A_CONTAINEDNODE_INGROUP",
        list<&UMLActivityGroup::containedNode, &UMLActivityGroup::addContainedNode>("containedNode"),
        list<&UMLActivityNode::inGroup, &UMLActivityNode::addInGroup>("inGroup")),
    link<UMLActivity, UMLActivityGroup>("UML_A_GROUP_INACTIVITY",
                                        list<&UMLActivity::group, &UMLActivity::addGroup>("group"),
                                        one<&UMLActivityGroup::inActivity>("inActivity")),
    link<UMLActivityGroup, UMLActivityGroup>(
        "UML_A_SUBGROUP_SUPERGROUP",
        list<&UMLActivityGroup::subgroup, &UMLActivityGroup::addSubgroup>("subgroup"),
        one<&UMLActivityGroup::superGroup>("superGroup").withoutNestedRow()),
    link<UMLActivityEdge, UMLActivity>("UML_A_ACTIVITY_EDGE", one<&UMLActivityEdge::activity>("activity"),
                                       list<&UMLActivity::edge, &UMLActivity::addEdge>("edge")),
    link<UMLActivityNode, UMLActivityEdge>(
        "UML_A_OUTGOING_SOURCE", list<&UMLActivityNode::outgoing, &UMLActivityNode::addOutgoing>("outgoing"),
        one<&UMLActivityEdge::source>("source")),
    link<UMLActivityEdge, UMLActivityNode>(
        "UML_A_TARGET_INCOMING", one<&UMLActivityEdge::target>("target"),
        list<&UMLActivityNode::incoming, &UMLActivityNode::addIncoming>("incoming")),
    link<UMLActivityGroup, UMLActivityEdge>(
        "UML_A_CONTAINEDEDGE_INGROUP",
        list<&UMLActivityGroup::containedEdge, &UMLActivityGroup::addContainedEdge>("containedEdge"),
        list<&UMLActivityEdge::inGroup, &UMLActivityEdge::addInGroup>("inGroup")),
    link<UMLActivityParameterNode, UMLParameter>("UML_A_PARAMETER_ACTIVITYPARAMETERNODE",
                                                 one<&UMLActivityParameterNode::parameter>("parameter"),
                                                 none<UMLParameter, UMLActivityParameterNode>()),
    link<UMLActivityNode, UMLActivityNode>(
        "UML_A_REDEFINEDNODE_ACTIVITYNODE",
        list<&UMLActivityNode::redefinedNode, &UMLActivityNode::addRedefinedNode>("redefinedNode"),
        none<UMLActivityNode, UMLActivityNode>()),
    link<UMLActivityEdge, UMLActivityEdge>(
        "UML_A_REDEFINEDEDGE_ACTIVITYEDGE",
        list<&UMLActivityEdge::redefinedEdge, &UMLActivityEdge::addRedefinedEdge>("redefinedEdge"),
        none<UMLActivityEdge, UMLActivityEdge>()),
    link<UMLAbstraction, UMLOpaqueExpression>("UML_A_MAPPING_ABSTRACTION",
                                              one<&UMLAbstraction::mapping>("mapping"),
                                              none<UMLOpaqueExpression, UMLAbstraction>()),
    link<UMLSubstitution, UMLClassifier>("UML_A_CONTRACT_SUBSTITUTION",
                                         one<&UMLSubstitution::contract>("contract"),
                                         none<UMLClassifier, UMLSubstitution>()),
    link<UMLClassifier, UMLSubstitution>(
        "UML_A_SUBSTITUTION_SUBSTITUTINGCLASSIFIER",
        list<&UMLClassifier::substitution, &UMLClassifier::addSubstitution>("substitution"),
        one<&UMLSubstitution::substitutingClassifier>("substitutingClassifier")),
    link<UMLDependency, UMLNamedElement>(
        "UML_A_SUPPLIERDEPENDENCY_SUPPLIER",
        list<&UMLDependency::supplier, &UMLDependency::addSupplier>("supplier"),
        none<UMLNamedElement, UMLDependency>()),
    link<UMLNamedElement, UMLDependency>(
        "UML_A_CLIENTDEPENDENCY_CLIENT",
        list<&UMLNamedElement::clientDependency, &UMLNamedElement::addClientDependency>("clientDependency"),
        list<&UMLDependency::client, &UMLDependency::addClient>("client")),
    link<UMLNamespace, UMLNamedElement>(
        "UML_A_OWNEDMEMBER_NAMESPACE",
        list<&UMLNamespace::ownedMember, &UMLNamespace::addOwnedMember>("ownedMember"),
        one<&UMLNamedElement::namespace_>("namespace").withoutNestedRow()),
    link<UMLInterface, UMLProperty>(
        "UML_A_INTERFACE_OWNEDATTRIBUTE",
        list<&UMLInterface::ownedAttribute, &UMLInterface::addOwnedAttribute>("ownedAttribute"),
        none<UMLProperty, UMLInterface>()),
    link<UMLOperation, UMLInterface>(
        "UML_A_INTERFACE_OWNEDOPERATION", one<&UMLOperation::interface>("interface"),
        list<&UMLInterface::ownedOperation, &UMLInterface::addOwnedOperation>("ownedOperation")),
    link<UMLInterfaceRealization, UMLInterface>("UML_A_CONTRACT_INTERFACEREALIZATION",
                                                one<&UMLInterfaceRealization::contract>("contract"),
                                                none<UMLInterface, UMLInterfaceRealization>()),
    link<UMLBehavioredClassifier, UMLInterfaceRealization>(
        "UML_A_INTERFACEREALIZATION_IMPLEMENTINGCLASSIFIER",
        list<&UMLBehavioredClassifier::interfaceRealization,
             &UMLBehavioredClassifier::addInterfaceRealization>("interfaceRealization"),
        one<&UMLInterfaceRealization::implementingClassifier>("implementingClassifier")),
    link<UMLInterface, UMLClassifier>(
        "UML_A_NESTEDCLASSIFIER_INTERFACE",
        list<&UMLInterface::nestedClassifier, &UMLInterface::addNestedClassifier>("nestedClassifier"),
        none<UMLClassifier, UMLInterface>()),
    link<UMLInterface, UMLInterface>(
        "UML_A_INTERFACE_REDEFINEDINTERFACE",
        list<&UMLInterface::redefinedInterface, &UMLInterface::addRedefinedInterface>("redefinedInterface"),
        none<UMLInterface, UMLInterface>()),
    link<UMLConnector, UMLAssociation>("UML_A_TYPE_CONNECTOR", one<&UMLConnector::type>("type"),
                                       none<UMLAssociation, UMLConnector>()),
    link<UMLStructuredClassifier, UMLProperty>(
        "UML_A_OWNEDATTRIBUTE_STRUCTUREDCLASSIFIER",
        list<&UMLStructuredClassifier::ownedAttribute, &UMLStructuredClassifier::addOwnedAttribute>(
            "ownedAttribute"),
        none<UMLProperty, UMLStructuredClassifier>()),
    link<UMLStructuredClassifier, UMLProperty>(
        "UML_A_PART_STRUCTUREDCLASSIFIER",
        list<&UMLStructuredClassifier::part, &UMLStructuredClassifier::addPart>("part"),
        none<UMLProperty, UMLStructuredClassifier>()),
    link<UMLStructuredClassifier, UMLConnectableElement>(
        "UML_A_ROLE_STRUCTUREDCLASSIFIER",
        list<&UMLStructuredClassifier::role, &UMLStructuredClassifier::addRole>("role"),
        none<UMLConnectableElement, UMLStructuredClassifier>()),
    link<UMLStructuredClassifier, UMLConnector>(
        "UML_A_OWNEDCONNECTOR_STRUCTUREDCLASSIFIER",
        list<&UMLStructuredClassifier::ownedConnector, &UMLStructuredClassifier::addOwnedConnector>(
            "ownedConnector"),
        none<UMLConnector, UMLStructuredClassifier>()),
    link<UMLConnector, UMLConnector>(
        "UML_A_REDEFINEDCONNECTOR_CONNECTOR",
        list<&UMLConnector::redefinedConnector, &UMLConnector::addRedefinedConnector>("redefinedConnector"),
        none<UMLConnector, UMLConnector>()),
    link<UMLConnector, UMLConnectorEnd>("UML_A_END_CONNECTOR",
                                        list<&UMLConnector::end, &UMLConnector::addEnd>("end"),
                                        none<UMLConnectorEnd, UMLConnector>()),
    link<UMLConnectorEnd, UMLProperty>("UML_A_DEFININGEND_CONNECTOREND",
                                       one<&UMLConnectorEnd::definingEnd>("definingEnd"),
                                       none<UMLProperty, UMLConnectorEnd>()),
    link<UMLConnectableElement, UMLConnectorEnd>(
        "UML_A_END_ROLE", list<&UMLConnectableElement::end, &UMLConnectableElement::addEnd>("end"),
        one<&UMLConnectorEnd::role>("role")),
    link<UMLClassifier, UMLProperty>(
        "UML_A_ATTRIBUTE_CLASSIFIER",
        list<&UMLClassifier::attribute, &UMLClassifier::addAttribute>("attribute"),
        none<UMLProperty, UMLClassifier>()),
    link<UMLInteractionFragment, UMLLifeline>(
        "UML_A_COVERED_COVEREDBY",
        list<&UMLInteractionFragment::covered, &UMLInteractionFragment::addCovered>("covered"),
        list<&UMLLifeline::coveredBy, &UMLLifeline::addCoveredBy>("coveredBy")),
    link<UMLExecutionSpecification, UMLOccurrenceSpecification>(
        "UML_A_EXECUTIONSPECIFICATION_START", one<&UMLExecutionSpecification::start>("start"),
        none<UMLOccurrenceSpecification, UMLExecutionSpecification>()),
    link<UMLExecutionSpecification, UMLOccurrenceSpecification>(
        "UML_A_EXECUTIONSPECIFICATION_FINISH", one<&UMLExecutionSpecification::finish>("finish"),
        none<UMLOccurrenceSpecification, UMLExecutionSpecification>()),
    link<UMLLifeline, UMLConnectableElement>("UML_A_LIFELINE_REPRESENTS",
                                             one<&UMLLifeline::represents>("represents"),
                                             none<UMLConnectableElement, UMLLifeline>()),
    link<UMLInteraction, UMLLifeline>(
        "UML_A_LIFELINE_INTERACTION",
        list<&UMLInteraction::lifeline, &UMLInteraction::addLifeline>("lifeline"),
        one<&UMLLifeline::interaction>("interaction")),
    link<UMLMessage, UMLMessageEnd>("UML_A_RECEIVEEVENT_MESSAGE",
                                    one<&UMLMessage::receiveEvent>("receiveEvent"),
                                    none<UMLMessageEnd, UMLMessage>()),
    link<UMLMessage, UMLMessageEnd>("UML_A_SENDEVENT_MESSAGE", one<&UMLMessage::sendEvent>("sendEvent"),
                                    none<UMLMessageEnd, UMLMessage>()),
    link<UMLOccurrenceSpecification, UMLLifeline>("UML_A_EVENTS_COVERED",
                                                  one<&UMLOccurrenceSpecification::covered>("covered"),
                                                  none<UMLLifeline, UMLOccurrenceSpecification>()),
    link<UMLLifeline, UMLValueSpecification>("UML_A_SELECTOR_LIFELINE",
                                             one<&UMLLifeline::selector>("selector"),
                                             none<UMLValueSpecification, UMLLifeline>()),
    link<UMLMessage, UMLConnector>("UML_A_CONNECTOR_MESSAGE", one<&UMLMessage::connector>("connector"),
                                   none<UMLConnector, UMLMessage>()),
    link<UMLInteraction, UMLMessage>("UML_A_MESSAGE_INTERACTION",
                                     list<&UMLInteraction::message, &UMLInteraction::addMessage>("message"),
                                     one<&UMLMessage::interaction>("interaction")),
    link<UMLGeneralOrdering, UMLOccurrenceSpecification>(
        "UML_A_BEFORE_TOAFTER", one<&UMLGeneralOrdering::before>("before"),
        list<&UMLOccurrenceSpecification::toAfter, &UMLOccurrenceSpecification::addToAfter>("toAfter")),
    link<UMLOccurrenceSpecification, UMLGeneralOrdering>(
        "UML_A_TOBEFORE_AFTER",
        list<&UMLOccurrenceSpecification::toBefore, &UMLOccurrenceSpecification::addToBefore>("toBefore"),
        one<&UMLGeneralOrdering::after>("after")),
    link<UMLMessage, UMLValueSpecification>("UML_A_ARGUMENT_MESSAGE",
                                            list<&UMLMessage::argument, &UMLMessage::addArgument>("argument"),
                                            none<UMLValueSpecification, UMLMessage>()),
    link<UMLStateInvariant, UMLConstraint>("UML_A_INVARIANT_STATEINVARIANT",
                                           one<&UMLStateInvariant::invariant>("invariant"),
                                           none<UMLConstraint, UMLStateInvariant>()),
    link<UMLStateInvariant, UMLLifeline>("UML_A_STATEINVARIANT_COVERED",
                                         one<&UMLStateInvariant::covered>("covered"),
                                         none<UMLLifeline, UMLStateInvariant>()),
    link<UMLInteractionFragment, UMLGeneralOrdering>(
        "UML_A_GENERALORDERING_INTERACTIONFRAGMENT",
        list<&UMLInteractionFragment::generalOrdering, &UMLInteractionFragment::addGeneralOrdering>(
            "generalOrdering"),
        none<UMLGeneralOrdering, UMLInteractionFragment>()),
    link<UMLInteractionFragment, UMLInteraction>(
        "UML_A_ENCLOSINGINTERACTION_FRAGMENT",
        one<&UMLInteractionFragment::enclosingInteraction>("enclosingInteraction"),
        list<&UMLInteraction::fragment, &UMLInteraction::addFragment>("fragment")),
    link<UMLBehaviorExecutionSpecification, UMLBehavior>(
        "UML_A_BEHAVIOR_BEHAVIOREXECUTIONSPECIFICATION",
        one<&UMLBehaviorExecutionSpecification::behavior>("behavior"),
        none<UMLBehavior, UMLBehaviorExecutionSpecification>()),
    link<UMLActionExecutionSpecification, UMLAction>("UML_A_ACTION_ACTIONEXECUTIONSPECIFICATION",
                                                     one<&UMLActionExecutionSpecification::action>("action"),
                                                     none<UMLAction, UMLActionExecutionSpecification>()),
    link<UMLMessage, UMLNamedElement>("UML_A_SIGNATURE_MESSAGE", one<&UMLMessage::signature>("signature"),
                                      none<UMLNamedElement, UMLMessage>()),
    link<UMLSendOperationEvent, UMLOperation>("UML_A_OPERATION_SENDOPERATIONEVENT",
                                              one<&UMLSendOperationEvent::operation>("operation"),
                                              none<UMLOperation, UMLSendOperationEvent>()),
    link<UMLSendSignalEvent, UMLSignal>("UML_A_SIGNAL_SENDSIGNALEVENT",
                                        one<&UMLSendSignalEvent::signal>("signal"),
                                        none<UMLSignal, UMLSendSignalEvent>()),
    link<UMLMessageEnd, UMLMessage>("UML_A_MESSAGE_MESSAGEEND", one<&UMLMessageEnd::message>("message"),
                                    none<UMLMessage, UMLMessageEnd>()),
    link<UMLOccurrenceSpecification, UMLEvent>("UML_A_EVENT_OCCURRENCESPECIFICATION",
                                               one<&UMLOccurrenceSpecification::event>("event"),
                                               none<UMLEvent, UMLOccurrenceSpecification>()),
    link<UMLInteraction, UMLAction>("UML_A_ACTION_INTERACTION",
                                    list<&UMLInteraction::action, &UMLInteraction::addAction>("action"),
                                    none<UMLAction, UMLInteraction>()),
    link<UMLExecutionOccurrenceSpecification, UMLExecutionSpecification>(
        "UML_A_EXECUTION_EXECUTIONOCCURRENCESPECIFICATION",
        one<&UMLExecutionOccurrenceSpecification::execution>("execution"),
        none<UMLExecutionSpecification, UMLExecutionOccurrenceSpecification>()),
    link<UMLExecutionOccurrenceSpecification, UMLExecutionEvent>(
        "UML_A_EVENT_EXECUTIONOCCURRENCESPECIFICATION",
        one<&UMLExecutionOccurrenceSpecification::event>("event"),
        none<UMLExecutionEvent, UMLExecutionOccurrenceSpecification>()),
    link<UMLReceiveOperationEvent, UMLOperation>("UML_A_OPERATION_RECEIVEOPERATIONEVENT",
                                                 one<&UMLReceiveOperationEvent::operation>("operation"),
                                                 none<UMLOperation, UMLReceiveOperationEvent>()),
    link<UMLReceiveSignalEvent, UMLSignal>("UML_A_SIGNAL_RECEIVESIGNALEVENT",
                                           one<&UMLReceiveSignalEvent::signal>("signal"),
                                           none<UMLSignal, UMLReceiveSignalEvent>()),
    link<UMLInclude, UMLUseCase>("UML_A_INCLUDINGCASE_INCLUDE",
                                 one<&UMLInclude::includingCase>("includingCase"),
                                 list<&UMLUseCase::include, &UMLUseCase::addInclude>("include")),
    link<UMLInclude, UMLUseCase>("UML_A_ADDITION_INCLUDE", one<&UMLInclude::addition>("addition"),
                                 none<UMLUseCase, UMLInclude>()),
    link<UMLExtend, UMLUseCase>("UML_A_EXTENDEDCASE_EXTEND", one<&UMLExtend::extendedCase>("extendedCase"),
                                none<UMLUseCase, UMLExtend>()),
    link<UMLExtend, UMLUseCase>("UML_A_EXTENSION_EXTEND", one<&UMLExtend::extension>("extension"),
                                list<&UMLUseCase::extend, &UMLUseCase::addExtend>("extend")),
    link<UMLUseCase, UMLExtensionPoint>(
        "UML_A_EXTENSIONPOINT_USECASE",
        list<&UMLUseCase::extensionPoint, &UMLUseCase::addExtensionPoint>("extensionPoint"),
        one<&UMLExtensionPoint::useCase>("useCase")),
    link<UMLExtend, UMLConstraint>("UML_A_CONDITION_EXTEND", one<&UMLExtend::condition>("condition"),
                                   none<UMLConstraint, UMLExtend>()),
    link<UMLExtend, UMLExtensionPoint>(
        "UML_A_EXTENSIONLOCATION_EXTENSION",
        list<&UMLExtend::extensionLocation, &UMLExtend::addExtensionLocation>("extensionLocation"),
        none<UMLExtensionPoint, UMLExtend>()),
    link<UMLClassifier, UMLUseCase>(
        "UML_A_OWNEDUSECASE_CLASSIFIER",
        list<&UMLClassifier::ownedUseCase, &UMLClassifier::addOwnedUseCase>("ownedUseCase"),
        none<UMLUseCase, UMLClassifier>()),
    link<UMLUseCase, UMLClassifier>(
        "UML_A_SUBJECT_USECASE", list<&UMLUseCase::subject, &UMLUseCase::addSubject>("subject"),
        list<&UMLClassifier::useCase, &UMLClassifier::addUseCase>("useCase").withoutNestedRow()),
    link<UMLReception, UMLSignal>("UML_A_RECEPTION_SIGNAL", one<&UMLReception::signal>("signal"),
                                  none<UMLSignal, UMLReception>()),
    link<UMLCallEvent, UMLOperation>("UML_A_OPERATION_CALLEVENT", one<&UMLCallEvent::operation>("operation"),
                                     none<UMLOperation, UMLCallEvent>()),
    link<UMLSignalEvent, UMLSignal>("UML_A_SIGNAL_SIGNALEVENT", one<&UMLSignalEvent::signal>("signal"),
                                    none<UMLSignal, UMLSignalEvent>()),
    link<UMLInterface, UMLReception>(
        "UML_A_OWNEDRECEPTION_INTERFACE",
        list<&UMLInterface::ownedReception, &UMLInterface::addOwnedReception>("ownedReception"),
        none<UMLReception, UMLInterface>()),
    link<UMLClass, UMLReception>(
        "UML_A_OWNEDRECEPTION_CLASS",
        list<&UMLClass::ownedReception, &UMLClass::addOwnedReception>("ownedReception"),
        none<UMLReception, UMLClass>()),
    link<UMLTimeEvent, UMLValueSpecification>("UML_A_WHEN_TIMEEVENT", one<&UMLTimeEvent::when>("when"),
                                              none<UMLValueSpecification, UMLTimeEvent>()),
    link<UMLChangeEvent, UMLValueSpecification>("UML_A_CHANGEEXPRESSION_CHANGEEVENT",
                                                one<&UMLChangeEvent::changeExpression>("changeExpression"),
                                                none<UMLValueSpecification, UMLChangeEvent>()),
    link<UMLBehavioralFeature, UMLType>(
        "UML_A_RAISEDEXCEPTION_BEHAVIORALFEATURE",
        list<&UMLBehavioralFeature::raisedException, &UMLBehavioralFeature::addRaisedException>(
            "raisedException"),
        none<UMLType, UMLBehavioralFeature>()),
    link<UMLSignal, UMLProperty>(
        "UML_A_OWNEDATTRIBUTE_OWNINGSIGNAL",
        list<&UMLSignal::ownedAttribute, &UMLSignal::addOwnedAttribute>("ownedAttribute"),
        none<UMLProperty, UMLSignal>()),
    link<UMLBehavioredClassifier, UMLTrigger>(
        "UML_A_OWNEDTRIGGER_BEHAVIOREDCLASSIFIER",
        list<&UMLBehavioredClassifier::ownedTrigger, &UMLBehavioredClassifier::addOwnedTrigger>(
            "ownedTrigger"),
        none<UMLTrigger, UMLBehavioredClassifier>()),
    link<UMLTrigger, UMLEvent>("UML_A_EVENT_TRIGGER", one<&UMLTrigger::event>("event"),
                               none<UMLEvent, UMLTrigger>()),
    link<UMLGeneralization, UMLGeneralizationSet>(
        "UML_A_GENERALIZATIONSET_GENERALIZATION",
        list<&UMLGeneralization::generalizationSet, &UMLGeneralization::addGeneralizationSet>(
            "generalizationSet"),
        list<&UMLGeneralizationSet::generalization, &UMLGeneralizationSet::addGeneralization>(
            "generalization")),
}};

}  // namespace UMLMetamodel
