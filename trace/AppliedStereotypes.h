// AppliedStereotypes: the stereotypes of a file, which stand as elements beside the model and name what they
// are applied to by its id, in an attribute such as base_Class.
#pragma once

#include <cstdint>
#include <vector>

#include "extension/DocumentReading.h"
#include "foundation/KYRDOM.h"

class KYROmgUml2XmiImportBridge;

class AppliedStereotypes {
 public:
  struct Application {
    KYRString tag;
    KYRString id;  // of what it is applied to
    std::uint64_t line;
  };

  /// Nothing is read again as long as the reader that has read the file lives.
  explicit AppliedStereotypes(const KYROmgUml2XmiImportBridge& bridge);
  /// Those whose id no element of the file has, whether or not that is an element of the model.
  std::vector<Application> findThoseOfNothing() const;

 private:
  std::vector<Application> collect() const;

  KYRDOM dom_;
  DocumentReading reading_;
};
