// The walk over packages. It is a loop: packages can nest as deep as a file's references make them.
//
// What the walk meets is told by exact kind, so a subclass does not pass for its base, and what no
// test matches is passed over in silence.
#include <unordered_set>

#include "bridge/state/KYROmgUml2XmiImportBridge.h"
#include "foundation/ShownText.h"
#include "repository/model/KYRDesignPackage.h"
#include "repository/model/KYRStoreModel.h"
#include "uml/UMLCast.h"
#include "uml/UMLClassifiers.h"

namespace {

// A package whose nested packages are being converted.
struct OpenPackage {
  UMLPackage* element;
  std::unique_ptr<KYRDesignPackage> object;
  std::vector<UMLNamedElement*> members;
  std::vector<UMLPackage*> packages;  // of the members
  std::size_t next = 0;               // of the packages
};

template <class Visit>
void visitMembers(const UMLPackage& package, Visit visit) {
  if (package.packagedElement.isEmpty()) {
    for (UMLNamedElement* member : package.ownedMember) visit(member);
  } else {
    for (UMLPackageableElement* member : package.packagedElement) visit(member);
  }
}

std::size_t countMembers(const UMLPackage& package) {
  return package.packagedElement.isEmpty() ? package.ownedMember.count() : package.packagedElement.count();
}

bool isTypeOfValues(const UMLNamedElement& member) {
  return member.getKind() == UMLEnumeration::kind || member.getKind() == UMLPrimitiveType::kind;
}

}  // namespace

std::vector<UMLNamedElement*> KYROmgUml2XmiImportBridge::getMembers(UMLPackage* package) {
  std::vector<UMLNamedElement*> members;
  members.reserve(countMembers(*package));
  visitMembers(*package, [&members](UMLNamedElement* member) { members.push_back(member); });
  return members;
}

void KYROmgUml2XmiImportBridge::convertTopLevel() {
  const std::vector<UMLNamedElement*> members = getMembers(umlModel);
  countSteps(static_cast<unsigned int>(members.size()));
  for (UMLNamedElement* member : members) {
    if (member == nullptr) continue;
    if (isTypeOfValues(*member)) {
      convertType(umlCast<UMLType>(member));  // at the top even without a name
    } else if (member->getKind() != UMLPackage::kind) {
      convertMember(member, rootOwner);
    } else if (rootOwner != nullptr) {
      place(convertPackage(umlCast<UMLPackage>(member)), rootOwner);
    } else {
      std::unique_ptr<KYRDesignPackage> package = convertPackage(umlCast<UMLPackage>(member));
      storeModel->addDesignPackage(package.get());
      package.release();  // ownership: the store model
    }
  }
}

// A whole subtree of packages is finished before any class of its level.
std::unique_ptr<KYRDesignPackage> KYROmgUml2XmiImportBridge::convertPackage(UMLPackage* package) {
  std::vector<OpenPackage> open;
  std::unordered_set<const UMLPackage*> openElements;
  // All members are read once here, since in a large package each of them lies far from the one before.
  const auto enterPackage = [&](UMLPackage* element) {
    open.push_back({element, createPackage(element), {}, {}});
    OpenPackage& entered = open.back();
    entered.members.reserve(countMembers(*element));
    visitMembers(*element, [&entered](UMLNamedElement* member) {
      entered.members.push_back(member);
      if (member == nullptr || member->getKind() != UMLPackage::kind) return;
      entered.packages.push_back(umlCast<UMLPackage>(member));
    });
    openElements.insert(element);
    countSteps(static_cast<unsigned int>(2 * entered.members.size()) + 1);
  };
  enterPackage(package);
  for (;;) {
    if (open.back().next < open.back().packages.size()) {
      UMLPackage* const nested = open.back().packages[open.back().next++];
      // Packages that hold each other by reference: the one met again is passed over.
      if (openElements.count(nested) == 0) enterPackage(nested);
      continue;
    }
    OpenPackage done = std::move(open.back());
    open.pop_back();
    openElements.erase(done.element);
    for (UMLNamedElement* member : done.members) {
      if (member != nullptr) convertMember(member, done.object.get());
    }
    if (open.empty()) return std::move(done.object);
    place(std::move(done.object), open.back().object.get());
  }
}

std::unique_ptr<KYRDesignPackage> KYROmgUml2XmiImportBridge::createPackage(UMLPackage* element) {
  auto package = std::make_unique<KYRDesignPackage>();
  package->takeName(shownText(element->name));
  package->isModelPackage = true;
  package->sourceId = shownText(element->id);
  applyElementMetadata(package.get(), element);
  enter(package.get(), element);
  return package;
}

void KYROmgUml2XmiImportBridge::convertMember(UMLNamedElement* member, KYRDesignPackage* package) {
  const bool hasName = !member->name.isEmpty();
  switch (member->getKind()) {
    case UMLClass::kind:
      if (hasName) convertClass(umlCast<UMLClass>(member), package);
      break;
    case UMLInterface::kind:
      if (hasName) convertInterface(umlCast<UMLInterface>(member), package);
      break;
    case UMLAssociationClass::kind:
      convertClass(umlCast<UMLClass>(member), package);
      pendingAssociations.add(umlCast<UMLAssociation>(member), false);
      break;
    case UMLAssociation::kind:
      pendingAssociations.add(umlCast<UMLAssociation>(member), false);
      break;
    case UMLEnumeration::kind:
    case UMLPrimitiveType::kind:
      if (hasName) convertType(umlCast<UMLType>(member));
      break;
    case UMLDependency::kind:
      pendingDependencies.add(umlCast<UMLDependency>(member), false);
      break;
    default:
      break;
  }
}
