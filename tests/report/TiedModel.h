// TiedModel: a model of classes that a test ties to each other.
#pragma once

#include <memory>
#include <string>

#include "repository/model/KYRAssociation.h"
#include "repository/model/KYRAssociationRole.h"
#include "repository/model/KYRAttribute.h"
#include "repository/model/KYRClass.h"
#include "repository/model/KYRDependency.h"
#include "repository/model/KYRDesignPackage.h"
#include "repository/model/KYRGeneralization.h"
#include "repository/model/KYRGeneralizationRole.h"
#include "repository/model/KYRRealization.h"
#include "repository/model/KYRStoreModel.h"

class TiedModel {
 public:
  TiedModel() : model_(std::make_unique<KYRStoreModel>()), package_(new KYRDesignPackage()) {
    package_->setName("Shop");
    model_->addDesignPackage(package_);
  }

  const KYRStoreModel& get() const { return *model_; }

  KYRClass& addClass(const std::string& name) {
    auto* const made = new KYRClass();
    made->setName(KYRString(name));
    package_->addNamespaceElementUniqueName(made, '/');
    return *made;
  }

  void inherit(KYRClass& super, KYRClass& sub) {
    auto* const generalization = new KYRGeneralization();
    auto* const superRole = new KYRGeneralizationRole();
    generalization->addSupertypeRole(superRole);
    superRole->addAssociatedClass(&super);
    auto* const subRole = new KYRGeneralizationRole();
    generalization->addSubtypeRole(subRole);
    subRole->addAssociatedClass(&sub);
    package_->addNamespaceElementUniqueName(generalization, '/');
  }

  void realize(KYRClass& interface_, KYRClass& implementing) {
    auto* const realization = new KYRRealization();
    realization->addRealizationClass(&interface_);
    realization->addSpecificationClass(&implementing);
    package_->addNamespaceElementUniqueName(realization, '/');
  }

  void depend(KYRClass& client, KYRClass& supplier) {
    auto* const dependency = new KYRDependency();
    dependency->addClientClass(&client);
    dependency->addSupplierClass(&supplier);
    package_->addNamespaceElementUniqueName(dependency, '/');
  }

  /// The first end is that of `first`.
  KYRAssociation& associate(KYRClass& first, KYRClass& second, const std::string& firstRole = "",
                            const std::string& secondRole = "") {
    auto* const association = new KYRAssociation();
    addRole(*association, first, firstRole);
    addRole(*association, second, secondRole);
    package_->addNamespaceElementUniqueName(association, '/');
    return *association;
  }

  static void addRole(KYRAssociation& association, KYRClass& end, const std::string& name) {
    auto* const role = new KYRAssociationRole();
    role->setName(KYRString(name));
    association.addAssociationRole(role);
    role->addAssociatedClass(&end);
  }

 private:
  std::unique_ptr<KYRStoreModel> model_;
  KYRDesignPackage* package_;  // of the model
};
