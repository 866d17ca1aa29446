// The roles of associations and generalizations.
#include <memory>

#include "repository/bridgelib/KYRBridgeLib.h"
#include "repository/model/KYRAssociation.h"
#include "repository/model/KYRAssociationRole.h"
#include "repository/model/KYRClass.h"
#include "repository/model/KYRGeneralization.h"
#include "repository/model/KYRGeneralizationRole.h"

namespace {

// Which side of a generalization a role stands on.
struct Side {
  KYRGeneralization* KYRGeneralizationRole::*generalization;
  KYRCollection<KYRGeneralizationRole> KYRGeneralization::*roles;
  void (KYRGeneralization::*add)(KYRGeneralizationRole*);
};

constexpr Side superSide = {&KYRGeneralizationRole::generalizationAsSupertype,
                            &KYRGeneralization::supertypeRoles, &KYRGeneralization::addSupertypeRole};
constexpr Side subSide = {&KYRGeneralizationRole::generalizationAsSubtype, &KYRGeneralization::subtypeRoles,
                          &KYRGeneralization::addSubtypeRole};

KYRGeneralizationRole* getRole(const Side& side, KYRGeneralization* generalization, KYRClass* end,
                               bool create) {
  if (generalization == nullptr || end == nullptr) return nullptr;
  const auto& ofGeneralization = generalization->*side.roles;
  const auto& ofClass = end->generalizationRoles;
  const auto& shorter = ofGeneralization.count() < ofClass.count() ? ofGeneralization : ofClass;
  for (KYRGeneralizationRole* role : shorter) {
    if (role->associatedClass == end && role->*side.generalization == generalization) return role;
  }
  if (!create) return nullptr;
  auto role = std::make_unique<KYRGeneralizationRole>();
  (generalization->*side.add)(role.get());
  KYRGeneralizationRole* const made = role.release();
  made->addAssociatedClass(end);
  return made;
}

}  // namespace

KYRGeneralizationRole* getSupertypeGeneralizationRole(KYRGeneralization* generalization, KYRClass* superClass,
                                                      bool create) {
  return getRole(superSide, generalization, superClass, create);
}

KYRGeneralizationRole* getSubtypeGeneralizationRole(KYRGeneralization* generalization, KYRClass* subClass,
                                                    bool create) {
  return getRole(subSide, generalization, subClass, create);
}

KYRAssociationRole* findReverseRole(KYRAssociationRole* role) {
  const KYRAssociation* const association = role == nullptr ? nullptr : role->getAssociation();
  if (association == nullptr) return nullptr;
  for (KYRAssociationRole* other : association->roles) {
    if (other != role) return other;
  }
  return nullptr;
}

void setSourceProperty(KYRAssociationRole* source, KYRAssociationRole* target) {
  if (source != nullptr) source->isSource = true;
  if (target != nullptr) target->isSource = false;
}
