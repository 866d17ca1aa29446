// The scalar rows of the metamodel.
#include "foundation/ShownText.h"
#include "uml/UMLClasses.h"
#include "uml/UMLKindPool.h"
#include "uml/UMLMetamodel.h"

namespace UMLMetamodel {
namespace {

// Only "TRUE" in any case is true.
bool isTrue(const KYRString& value) { return equalsIgnoringCase(value.view(), "TRUE"); }

template <class Owner, class Value>
struct Field {
  using OwnerType = Owner;
  using ValueType = Value;
};
template <class Owner, class Value>
Field<Owner, Value> describe(Value Owner::*);

template <auto Member>
using OwnerOf = typename decltype(describe(Member))::OwnerType;
template <auto Member>
using ValueOf = typename decltype(describe(Member))::ValueType;

template <class Value>
constexpr bool isText = std::is_same_v<Value, KYRString> || std::is_same_v<Value, SeldomText>;

template <auto Member>
const ValueOf<Member>& read(const void* owner) {
  return static_cast<const OwnerOf<Member>*>(owner)->*Member;
}

template <auto Member>
void set(void* owner, const KYRString& value, [[maybe_unused]] UMLKindPool& kinds) {
  using Value = ValueOf<Member>;
  Value& field = static_cast<OwnerOf<Member>*>(owner)->*Member;
  if constexpr (std::is_same_v<Value, bool>) {
    field = isTrue(value);
  } else if constexpr (std::is_same_v<Value, int>) {
    field = value.getInt();
  } else if constexpr (isText<Value>) {
    field = shownText(value);
  } else {
    // A missing attribute leaves the field null, which is not the same as the first literal.
    if (!value.isEmpty()) field = kinds.make<std::remove_pointer_t<Value>>(value);
  }
}

template <auto Member>
int getNumber(const void* owner) {
  using Value = ValueOf<Member>;
  if constexpr (std::is_pointer_v<Value>) {
    const auto* const kind = read<Member>(owner);
    return kind == nullptr ? -1 : kind->getValue();
  } else if constexpr (isText<Value>) {
    return 0;
  } else {
    return read<Member>(owner);
  }
}

template <auto Member>
const KYRString* getText(const void* owner) {
  if constexpr (isText<ValueOf<Member>>) {
    return &static_cast<const KYRString&>(read<Member>(owner));
  } else {
    return nullptr;
  }
}

template <auto Member>
constexpr ScalarRow scalar(const char* name) {
  using Value = ValueOf<Member>;
  constexpr FieldType type = std::is_same_v<Value, bool>  ? FieldType::boolean
                             : std::is_same_v<Value, int> ? FieldType::integer
                             : isText<Value>              ? FieldType::text
                                                          : FieldType::kind;
  return {name, OwnerOf<Member>::kind, type, false, &set<Member>, &getNumber<Member>, &getText<Member>};
}

// A scalar that can also be written as the text of a child element of its name.
template <auto Member>
constexpr ScalarRow text(const char* name) {
  ScalarRow row = scalar<Member>(name);
  row.textRow = true;
  return row;
}

}  // namespace

constinit const std::array<ScalarRow, scalarCount> scalarRows = {{
    text<&UMLComment::body>("body"),
    scalar<&UMLLiteralInteger::value>("value"),
    text<&UMLLiteralString::value>("value"),
    scalar<&UMLLiteralBoolean::value>("value"),
    text<&UMLElementImport::alias>("alias"),
    scalar<&UMLElementImport::visibility>("visibility"),
    scalar<&UMLFeature::isStatic>("isStatic"),
    scalar<&UMLRedefinableElement::isLeaf>("isLeaf"),
    scalar<&UMLGeneralization::isSubstitutable>("isSubstitutable"),
    text<&UMLParameter::default_>("default"),
    scalar<&UMLParameter::direction>("direction"),
    scalar<&UMLStructuralFeature::isReadOnly>("isReadOnly"),
    scalar<&UMLPackageImport::visibility>("visibility"),
    scalar<&UMLAssociation::isDerived>("isDerived"),
    scalar<&UMLLiteralUnlimitedNatural::value>("value"),
    text<&UMLExpression::symbol>("symbol"),
    scalar<&UMLBehavior::isReentrant>("isReentrant"),
    text<&UMLOpaqueExpression::body>("body"),
    text<&UMLOpaqueExpression::language>("language"),
    text<&UMLOpaqueBehavior::body>("body"),
    text<&UMLOpaqueBehavior::language>("language"),
    text<&UMLOpaqueAction::body>("body"),
    text<&UMLOpaqueAction::language>("language"),
    scalar<&UMLCallAction::isSynchronous>("isSynchronous"),
    scalar<&UMLMultiplicityElement::isOrdered>("isOrdered"),
    scalar<&UMLMultiplicityElement::isUnique>("isUnique"),
    scalar<&UMLMultiplicityElement::upper>("upper"),
    scalar<&UMLMultiplicityElement::lower>("lower"),
    scalar<&UMLActivity::isReadOnly>("isReadOnly"),
    text<&UMLNamedElement::name>("name"),
    text<&UMLNamedElement::qualifiedName>("qualifiedName"),
    scalar<&UMLNamedElement::visibility>("visibility"),
    scalar<&UMLPackageableElement::visibility>("visibility"),
    scalar<&UMLProperty::isDerived>("isDerived"),
    scalar<&UMLProperty::isReadOnly>("isReadOnly"),
    scalar<&UMLProperty::isDerivedUnion>("isDerivedUnion"),
    text<&UMLProperty::default_>("default"),
    scalar<&UMLProperty::isComposite>("isComposite"),
    scalar<&UMLProperty::aggregation>("aggregation"),
    scalar<&UMLMessage::messageKind>("messageKind"),
    scalar<&UMLMessage::messageSort>("messageSort"),
    scalar<&UMLClassifier::isAbstract>("isAbstract"),
    scalar<&UMLBehavioralFeature::isAbstract>("isAbstract"),
    scalar<&UMLBehavioralFeature::concurrency>("concurrency"),
    scalar<&UMLClass::isAbstract>("isAbstract"),
    scalar<&UMLClass::isActive>("isActive"),
    scalar<&UMLTimeEvent::isRelative>("isRelative"),
    scalar<&UMLOperation::isQuery>("isQuery"),
    scalar<&UMLOperation::isOrdered>("isOrdered"),
    scalar<&UMLOperation::isUnique>("isUnique"),
    scalar<&UMLOperation::lower>("lower"),
    scalar<&UMLOperation::upper>("upper"),
    text<&UMLModel::viewpoint>("viewpoint"),
    scalar<&UMLGeneralizationSet::isCovering>("isCovering"),
    scalar<&UMLGeneralizationSet::isDisjoint>("isDisjoint"),
}};

constinit const std::array<ScalarRow, plainFieldCount> plainFieldRows = {{
    scalar<&UMLElement::documentation>("documentation"),
    scalar<&UMLElement::elementName>("elementName"),
    scalar<&UMLType::length>("length"),
    scalar<&UMLType::scale>("scale"),
    scalar<&UMLClass::isBoundary>("isBoundary"),
    scalar<&UMLModel::exporter>("exporter"),
    scalar<&UMLModel::exporterVersion>("exporterVersion"),
    scalar<&UMLModel::umlVersion>("umlVersion"),
}};

}  // namespace UMLMetamodel
