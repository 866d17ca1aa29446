// KYRStoreModel: the model that a bridge builds and a host keeps.
#pragma once

#include <memory>
#include <vector>

#include "repository/model/KYRModel.h"
#include "repository/model/KYRStoreType.h"

/// The destructor frees all that the model holds.
class KYR_EXPORT KYRStoreModel : public KYRModel {
 public:
  KYRStoreType storeType;
  /// The data store that the model is made for, as its constant is called, such as "ORACLE", and its
  /// version; both empty until setDataStore.
  KYRString dataStore;
  KYRString dataStoreVersion;
  KYRCollection<KYRDesignPackage> designPackages;  // owned: the top packages
  KYRCollection<KYRDataPackage> dataPackages;      // owned

  KYRStoreModel() = default;
  ~KYRStoreModel() override;
  int getElementType() const override { return KYRElementType::model; }
  /// Adds a top package as it is named: two may share a name. Raises a KYRException for null.
  void addDesignPackage(KYRDesignPackage* package);
  /// Adds a data package. Raises a KYRException when the model holds another one of exactly that
  /// name; the package then still belongs to the caller.
  void addDataPackage(KYRDataPackage* package);
  /// Keeps what characters live in that texts of the model only show (KYRString::borrow), until all
  /// objects of the model are gone. What was kept before is kept as well.
  void keepTexts(std::shared_ptr<const void> texts);

 protected:
  void listOwned(KYROwnedLists& lists) const override;

 private:
  std::vector<std::shared_ptr<const void>> texts_;
};
