// The table of reasons. A row stands at the position of its reason.
#include "foundation/KYRTraceReason.h"

#include <array>

#include "foundation/KYRStringArray.h"

namespace {

using Reason = KYRTraceReason;
using Row = KYRTraceReasons::Row;

constexpr KYRTraceOutcome absorbed = KYRTraceOutcome::absorbed;
constexpr KYRTraceOutcome lost = KYRTraceOutcome::lost;
constexpr KYRTraceOutcome noted = KYRTraceOutcome::noted;

std::array<Row, KYRTraceReasons::count>& rows() {
  static std::array<Row, KYRTraceReasons::count> table = {{
      {Reason::initialValue, absorbed, "initial-value", "It is the initial value of {0}."},
      {Reason::multiplicity, absorbed, "multiplicity", "It is a bound of the multiplicity of {0}."},
      {Reason::literalValue, absorbed, "literal-value", "It gives {0} its value or its type."},
      {Reason::returnType, absorbed, "return-type", "It tells the type that {0} returns."},
      {Reason::description, absorbed, "description", "Its text is the description or a note of {0}."},
      {Reason::mergedGeneralization, absorbed, "merged-generalization",
       "A superclass has one generalization for all its subclasses: it has joined {0}."},
      {Reason::sharedType, absorbed, "shared-type", "Types of one name are one type: it has become {0}."},
      {Reason::typeName, absorbed, "type-name",
       "Nothing is left of it but its name, which features that it types show as {0}."},
      {Reason::ownColumn, absorbed, "own-column",
       "It stands for a column that the class has under its own name, {0}."},

      {Reason::noId, lost, "no-id", "It has no xmi:id, so nothing can be tied to it, not even its owner."},
      {Reason::sameId, lost, "same-id", "Its xmi:id is already that of {0}, to which all references go."},
      {Reason::kindNotConverted, lost, "kind-not-converted", "Elements of its class are not converted."},
      {Reason::noName, lost, "no-name", "It has no name."},
      {Reason::boundary, lost, "boundary", "It is a frame drawn around others."},
      {Reason::noEndNames, lost, "no-end-names",
       "It has no name and cannot take one from its ends, since it owns none that has a class."},
      {Reason::emptyPackage, lost, "empty-package", "Nothing that it holds was converted."},
      {Reason::typeNotUsed, lost, "type-not-used",
       "A type of its class is converted only where a feature has it."},
      {Reason::sameLiteral, lost, "same-literal", "{0} has a value of that name already."},
      {Reason::valueKind, lost, "value-kind", "{0} takes no value from an element of this class."},
      {Reason::emptyValue, lost, "empty-value", "It tells {0} no value."},
      {Reason::emptyComment, lost, "empty-comment", "It has no text."},
      {Reason::noReturnType, lost, "no-return-type",
       "It says that {0} returns something, but not of what type."},
      {Reason::laterReturn, lost, "later-return", "{0} has a return parameter behind it, which counts."},

      {Reason::outsideModel, lost, "outside-model", "It stands in no element of the model."},
      {Reason::otherModel, lost, "other-model",
       "It is a model, and the import takes what the last one of the file holds, not models in models."},
      {Reason::ownerNotConverted, lost, "owner-not-converted", "It stands in {0}, which has no object."},
      {Reason::nestedClassifier, lost, "nested-classifier",
       "It stands in {0}, and only what stands in packages is converted."},
      {Reason::typeFeature, lost, "type-feature",
       "It stands in {0}, and types have neither attributes nor operations."},
      {Reason::otherPlace, lost, "other-place",
       "It stands in {0}, but not where the import looks for elements of its class."},
      {Reason::topInterface, lost, "top-interface",
       "It stands at the top of the model, where an interface by itself makes no package to stand in."},
      {Reason::noPlace, lost, "no-place", "It stands in {0}, whose object has nothing of the sort."},
      {Reason::noPackage, lost, "no-package",
       "It would have to stand beside a class that stands in no package."},

      {Reason::endMissing, lost, "end-missing", "It connects two things, and one is missing: {0}."},
      {Reason::endNotClass, lost, "end-not-class",
       "It connects classes, and {0} is of a class that does not count here."},
      {Reason::endNotConverted, lost, "end-not-converted", "It connects classes, and {0} has no object."},
      {Reason::associationNotConverted, lost, "association-not-converted",
       "It is an end of {0}, which has no object."},
      {Reason::noGeneralization, lost, "no-generalization",
       "None of the generalizations in it has an object."},
      {Reason::noTarget, lost, "no-target", "Nothing that it speaks of has an object that shows comments."},

      {Reason::unexplained, lost, "unexplained", "No reason is known."},

      {Reason::referenceNotFound, noted, "reference-not-found", "No element has the id '{0}'."},
      {Reason::referenceWrongClass, noted, "reference-wrong-class",
       "It refers to {0}, which is of a class that does not fit."},
      {Reason::typeUnknown, noted, "type-unknown",
       "Elements of this xmi:type are skipped, with all that they contain."},
      {Reason::tagIgnored, noted, "tag-ignored",
       "Elements of this tag are no part of the UML model as it is read; tools keep data of their own in "
       "such."},
      {Reason::stereotypeNotFound, noted, "stereotype-not-found",
       "A stereotype is applied to the id '{0}', which no element has."},
  }};
  return table;
}

}  // namespace

KYRTraceReasons::Row::Row(KYRTraceReason rowReason, KYRTraceOutcome rowOutcome, const char* code,
                          const char* sentence)
    : KYRParameterizedTextLiteral(code, sentence), reason(rowReason), outcome(rowOutcome) {}

KYRTraceReasons::Row::~Row() = default;

KYRString KYRTraceReasons::Row::tell(const KYRString& other) const {
  KYRStringArray arguments;
  arguments.add(other);
  return createParameterizedText(arguments);
}

const KYRTraceReasons::Row& KYRTraceReasons::get(KYRTraceReason reason) noexcept {
  return rows()[static_cast<std::size_t>(reason)];
}

const char* KYRTraceReasons::getName(KYRTraceOutcome outcome) noexcept {
  switch (outcome) {
    case KYRTraceOutcome::absorbed:
      return "absorbed";
    case KYRTraceOutcome::lost:
      return "lost";
    default:
      return "noted";
  }
}

KYRTraceReasons::KYRTraceReasons() : KYRTextLiteralsCollection("kyr", "KYRTRACE") {
  for (Row& row : rows()) add(&row);
  init();
}

const KYRTraceReasons& KYRTraceReasons::initLiterals() {
  static const KYRTraceReasons catalogue;
  return catalogue;
}
