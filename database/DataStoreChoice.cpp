// The target data store: what the profiles of the two tools say about it, and the converter that
// follows from it. A file without such a mark, or with one that no row of the table knows, is a
// logical model, and nothing is said about it.
#include <vector>

#include "bridge/state/KYROmgUml2XmiImportBridge.h"
#include "database/TargetDatabases.h"
#include "repository/datatypes/KYRDataTypeConstants.h"
#include "repository/datatypes/KYRDataTypeConverter.h"
#include "uml/UMLNamespaces.h"

namespace {

using Constants = KYRDataTypeConstants;

// Where the profile that is applied to a package is named, one first child below the other.
constexpr const char* profilePath[] = {"profileApplication", "appliedProfile", "xmi:Extension",
                                       "referenceExtension"};

// The first row that has this name in the column of the tool, or null.
const targetDatabaseInfo* findRow(const char* targetDatabaseInfo::*column, const KYRString& name) {
  if (name.isEmpty()) return nullptr;
  for (const targetDatabaseInfo* row = targetDatabases; row->*column != nullptr; ++row) {
    if (name.view() == row->*column) return row;
  }
  return nullptr;
}

// The element of that id among the packaged elements below `root` and `root` itself, children first.
// A loop with a list of its own: packages nest as deep as the file likes.
const KYRDOMElement* findPackage(const KYRDOMElement* root, const KYRString& id) {
  struct Open {
    const KYRDOMElement* element;
    int next;
  };
  const KYRString packagedElement("packagedElement");
  const KYRString idAttribute("xmi:id");
  std::vector<Open> open{{root, 0}};
  while (!open.empty()) {
    const KYRDOMElement* const element = open.back().element;
    if (const KYRDOMElement* child = element->getElement(packagedElement, open.back().next)) {
      ++open.back().next;
      open.push_back({child, 0});
    } else if (element->getAttribute(idAttribute).equals(id, false)) {
      return element;
    } else {
      open.pop_back();
    }
  }
  return nullptr;
}

const targetDatabaseInfo* findDatabaseOfEA(const KYRDOMElement& model) {
  const KYRDOMElement* const mark = model.getFirstElement("thecustomprofile:DBMS");
  return mark == nullptr ? nullptr : findRow(&targetDatabaseInfo::eaName, mark->getAttribute("DBMS"));
}

const targetDatabaseInfo* findDatabaseOfMagicDraw(const KYRDOMElement& root, const KYRDOMElement& model) {
  const KYRDOMElement* const mark = root.getFirstElement("SQLProfile:Database");
  if (mark == nullptr) return nullptr;
  const KYRString& id = mark->getAttribute("base_Package");
  if (id.isEmpty()) return nullptr;
  const KYRDOMElement* element = findPackage(&model, id);
  for (const char* step : profilePath) {
    if (element == nullptr) return nullptr;
    element = element->getFirstElement(step);
  }
  if (element == nullptr) return nullptr;
  return findRow(&targetDatabaseInfo::magicDrawName, element->getAttribute("referentPath"));
}

}  // namespace

const targetDatabaseInfo* KYROmgUml2XmiImportBridge::findTargetDatabase() const {
  if (domModel == nullptr) return nullptr;
  if (umlModel->exporter.equals("Enterprise Architect", false)) return findDatabaseOfEA(*domModel);
  if (umlModel->exporter.equals("MagicDraw UML", false)) return findDatabaseOfMagicDraw(*domRoot, *domModel);
  return nullptr;
}

void KYROmgUml2XmiImportBridge::chooseDataStore() {
  targetDataStore = findTargetDatabase();
  if (isPhysicalTarget()) {
    dataTypeConverter =
        std::make_unique<KYRDataTypeConverter>(*log, *targetDataStore, Constants::TOOL_KYRGENERIC);
    return;
  }
  const bool isEA = umlModel->exporter.equals("Enterprise Architect", false);
  const char* const store =
      isEA ? Constants::DATASTORE_OMG_UML_OMG_UML_SEA : Constants::DATASTORE_OMG_UML_OMG_UML;
  dataTypeConverter = std::make_unique<KYRDataTypeConverter>(*log, KYRDataStoreVersion(store, 1, 0, 0),
                                                             Constants::TOOL_OMG_UML);
}
