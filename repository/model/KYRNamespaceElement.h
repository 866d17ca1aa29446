// KYRNamespaceElement: an object that can stand in a name space, and in a schema.
#pragma once

#include "repository/model/KYRModelObject.h"

class KYR_EXPORT KYRNamespaceElement : public KYRModelObject {
 public:
  /// The schema or data package that the element is in; referred to. Null outside any.
  KYRDataPackage* dataPackage = nullptr;
  ~KYRNamespaceElement() override;

  virtual KYRDataPackage* getDataPackage() const;
  /// Puts the element in a data package; it leaves the one that it was in. Raises a KYRException
  /// when the package holds another object of exactly that name; the element then stays where it was.
  virtual void addDataPackage(KYRDataPackage* package);

 protected:
  KYRNamespaceElement() = default;
  void unlink() override;
  void leaveNames() override;
  void joinNames() override;
};
