// A design package and its diagrams.
#include "repository/model/KYRDesignPackage.h"

#include "repository/model/KYRDiagram.h"
#include "repository/model/KYRLinks.h"

KYRDesignPackage::~KYRDesignPackage() { dissolve(); }

bool KYRDesignPackage::addDiagramUniqueName(KYRDiagram* diagram, char separator) {
  return KYRLinks::ownUniqueName(diagrams, this, KYRLinks::required(diagram), separator);
}

bool KYRDesignPackage::addDiagram(KYRDiagram* diagram) {
  return KYRLinks::own(diagrams, this, KYRLinks::required(diagram));
}

void KYRDesignPackage::listOwned(KYROwnedLists& lists) const {
  KYRPackage::listOwned(lists);
  lists.add(KYRLinks::owned(diagrams));
}
