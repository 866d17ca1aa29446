// KYRPresentationElement: a shape or a line on a diagram.
#pragma once

#include <cstdint>

#include "repository/model/KYRObject.h"

/// Positions and sizes are in repository units, colours are 0x00BBGGRR.
class KYR_EXPORT KYRPresentationElement : public KYRObject {
 public:
  std::int32_t backgroundColor = 0;
  std::int32_t displayFlags = 0;  // which compartments or labels show
  std::int32_t fontColor = 0;
  std::int32_t fontSize = 0;
  KYRString fontName;
  bool isBold = false;
  bool isItalic = false;
  std::int32_t lineColor = 0;
  std::int32_t lineWidth = 0;
  std::int32_t width = 0;
  std::int32_t height = 0;
  std::int32_t x = 0;  // of the centre
  std::int32_t y = 0;
  /// The object that is shown; referred to. Null after it has been deleted.
  KYRModelObject* subject = nullptr;
  ~KYRPresentationElement() override;

  /// The diagram that owns the element; null when none does.
  KYRDiagram* getDiagram() const;
  /// Makes the diagram the owner: the same as KYRDiagram::addPresentationElement.
  void addDiagram(KYRDiagram* diagram);
  /// Sets what is shown, in place of what was set before.
  void addSubjectModelObject(KYRModelObject* object);

 protected:
  KYRPresentationElement() = default;
  void leavingOwner() override;
  void unlink() override;

 private:
  friend class KYRModelObject;
  void forgetSubject() noexcept;
};
