// The package of an element, and the diagrams that list it.
#include "repository/model/KYRModelElement.h"

#include "repository/model/KYRDesignPackage.h"
#include "repository/model/KYRDiagram.h"
#include "repository/model/KYRLinks.h"

KYRModelElement::~KYRModelElement() = default;

KYRDesignPackage* KYRModelElement::getDesignPackage() const {
  return dynamic_cast<KYRDesignPackage*>(getParent());
}

void KYRModelElement::unlink() {
  for (KYRDiagram* diagram : diagrams) KYRLinks::remove(diagram->modelElements, this);
  KYRLinks::clear(diagrams);
  KYRNamespaceElement::unlink();
}
