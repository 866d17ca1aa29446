// Where the three tables come from: context and type rows are computed from the metamodel, the
// general rows are listed here.
#include "xmi/DispatchRows.h"

#include "uml/UMLClasses.h"
#include "uml/UMLMetamodel.h"
#include "uml/read/ClassPlan.h"
#include "xmi/XMINames.h"
#include "xmi/XMIParser.h"

namespace {

StartAction start(StartAction::Member member) { return {StartAction::Marker::call, member}; }
EndAction end(EndAction::Member member) { return {EndAction::Marker::call, member}; }
constexpr StartAction noStart = {};
constexpr EndAction noEnd = {};
constexpr StartAction skipStart = {StartAction::Marker::skip, nullptr};
constexpr EndAction skipEnd = {EndAction::Marker::skip, nullptr};
constexpr EndAction popEnd = {EndAction::Marker::pop, nullptr};

// Known wherever they stand and ignored: no warning, and their children are read as children of
// the enclosing object. Many have context rows too; here they stay silent in other parents.
constexpr const char* ignoredTags[] = {
    "packageImport",
    "ownedParameter",
    "ownedOperation",
    "ownedEnd",
    "outgoing",
    "node",
    "incoming",
    "importedPackage",
    "diagrams",
    "defaultValue",
    "covered",
    "body",
    "annotatedElement",
    "EAStub",
    "packagedElement",
    "edge",
    "node",
    "ownedBehavior",
    "fragment",
    "message",
    "lifeline",
    "nestedClassifier",
    "operand",
    "guard",
    "include",
    "extend",
    "region",
    "subvertex",
    "transition",
    "trigger",
    "input",
    "output",
    "group",
    "containedNode",
    "interruptingEdge",
    "containedEdge",
    "effect",
    "type",
    "end",
    "ownedConnector",
    "details",
    "language",
    "doActivity",
    "connectionPoint",
    "ownedPort",
    "operation",
    "behavior",
    "interfaceRealization",
    "realization",
    "nameExpression",
    "ownedAttribute",
    "memberEnd",
    "deprecatedReason",
    "TODO",
    "contact",
    "id",
    "hyperlinkText",
    "DataBook_Identifer",
    "GIM_RDI_field",
};

// Passed over with everything in them. Tool data in xmi:Extension is read by a second pass.
constexpr const char* skippedTags[] = {
    "eAnnotations",  "uml:Profile",         "uml:Extension",       "profileApplication",
    "xmi:Extension", "memberIncrementType", "customNumberingData",
};

TagHandler textRow(const UMLMetamodel::ScalarRow& field) {
  TagHandler row;
  row.tag = field.name;
  row.endAction = end(&XMIParser::storeText);
  row.kind = field.owner;
  row.field = &field;
  return row;
}

TagHandler childRow(const UMLMetamodel::LinkEnd& field, int linkKind) {
  TagHandler row;
  row.tag = field.role;
  row.startAction = start(&XMIParser::readChild);
  row.kind = field.owner;
  row.plan = &ClassPlan::of(field.target);
  row.linkKind = linkKind;
  return row;
}

std::vector<TagHandler> makeContextRows() {
  std::vector<TagHandler> rows;
  for (int kind = 0; kind < UMLLineage::kindCount; ++kind) {
    for (const UMLMetamodel::ScalarRow& field : UMLMetamodel::scalarRows) {
      if (field.owner == kind && field.textRow) rows.push_back(textRow(field));
    }
    int linkKind = 0;
    for (const UMLMetamodel::LinkRow& link : UMLMetamodel::linkRows) {
      for (const UMLMetamodel::LinkEnd* field : {&link.first, &link.second}) {
        if (field->role != nullptr && field->owner == kind) rows.push_back(childRow(*field, linkKind));
      }
      ++linkKind;
    }
  }
  rows.emplace_back();
  return rows;
}

std::vector<TagHandler> makeTypeRows() {
  std::vector<TagHandler> rows;
  int kind = 0;
  for (const UMLMetamodel::ClassRow& type : UMLMetamodel::classRows) {
    TagHandler row;
    row.tag = type.xmiType;
    row.endAction = popEnd;
    row.plan = &ClassPlan::of(kind);
    switch (kind) {
      case UMLModel::kind:
        row.startAction = start(&XMIParser::readModel);
        break;
      case UMLLiteralBoolean::kind:
      case UMLLiteralInteger::kind:
        row.startAction = start(&XMIParser::readLiteral);
        break;
      default:
        row.startAction = start(&XMIParser::readElement);
    }
    rows.push_back(row);
    ++kind;
  }
  rows.emplace_back();
  return rows;
}

void addGeneral(std::vector<TagHandler>& rows, const char* tag, StartAction startAction,
                EndAction endAction) {
  TagHandler row;
  row.tag = tag;
  row.startAction = startAction;
  row.endAction = endAction;
  rows.push_back(row);
}

std::vector<TagHandler> makeGeneralRows() {
  std::vector<TagHandler> rows;
  addGeneral(rows, "xmi:XMI", start(&XMIParser::captureNamespaces), noEnd);
  addGeneral(rows, "xmi:Documentation", start(&XMIParser::captureExporter), noEnd);
  addGeneral(rows, "xmi:exporter", noStart, end(&XMIParser::endExporter));
  addGeneral(rows, "exporter", noStart, end(&XMIParser::endExporter));
  addGeneral(rows, "xmi:exporterVersion", noStart, end(&XMIParser::endExporterVersion));
  addGeneral(rows, "exporterVersion", noStart, end(&XMIParser::endExporterVersion));
  for (const char* tag : ignoredTags) addGeneral(rows, tag, noStart, noEnd);
  for (const char* tag : skippedTags) addGeneral(rows, tag, skipStart, skipEnd);
  rows.emplace_back();
  return rows;
}

}  // namespace

DispatchRows::DispatchRows() : context(makeContextRows()), type(makeTypeRows()), general(makeGeneralRows()) {}

DispatchRows& DispatchRows::get() {
  static DispatchRows rows;
  return rows;
}

void DispatchRows::resetForTests() {
  // Only end actions are ever written, and every child row starts without one.
  for (TagHandler& row : get().context) {
    if (row.field == nullptr) row.endAction = noEnd;
  }
}
