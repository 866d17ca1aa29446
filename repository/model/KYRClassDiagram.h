// KYRClassDiagram: a diagram of classes and their relations.
#pragma once

#include "repository/model/KYRDiagram.h"

class KYR_EXPORT KYRClassDiagram : public KYRDiagram {
 public:
  KYRClassDiagram() = default;
  ~KYRClassDiagram() override;
  int getElementType() const override { return KYRElementType::classDiagram; }
};
