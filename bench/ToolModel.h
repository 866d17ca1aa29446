// One generated model in one tool's manner of writing. A file is written as
//   open, writePackage for each package, close the model, each tool section over all packages, close,
// and its size is steered by counting what the sections of a package will take while its body is
// written.
#pragma once

#include <cstdint>
#include <memory>
#include <string_view>

#include "bench/ModelPlan.h"
#include "bench/XmlWriter.h"

namespace bench {

class ToolModel {
 public:
  explicit ToolModel(std::uint64_t seed) : plan(seed) {}
  virtual ~ToolModel() = default;
  ToolModel(const ToolModel&) = delete;
  ToolModel& operator=(const ToolModel&) = delete;

  /// The mark around attribute values.
  virtual char quote() const { return '"'; }
  virtual void open(XmlWriter& writer) = 0;
  virtual void writePackage(XmlWriter& writer, std::uint32_t package) = 0;
  virtual void closeModel(XmlWriter& writer) = 0;
  /// Number of the tool's own sections after the model.
  virtual unsigned sections() const { return 0; }
  virtual void openSection(XmlWriter&, unsigned) {}
  virtual void writeSection(XmlWriter&, unsigned, std::uint32_t) {}
  virtual void closeSection(XmlWriter&, unsigned) {}
  virtual void close(XmlWriter& writer) = 0;

 protected:
  /// What an id stands for; the numbers only have to differ.
  enum IdKind : std::uint64_t {
    groupId,
    packageId,
    classId,
    attributeId,
    operationId,
    parameterId,
    literalId,
    associationId,
    generalizationId,
    sourceEndId,
    targetEndId,
    lowerId,
    upperId,
    defaultId,
    commentId,
    diagramId,
    shapeId,
    otherId
  };

  const ModelPlan plan;
};

std::unique_ptr<ToolModel> makePlainModel(std::uint64_t seed);
std::unique_ptr<ToolModel> makeEnterpriseArchitectModel(std::uint64_t seed);
std::unique_ptr<ToolModel> makeMagicDrawModel(std::uint64_t seed);

/// Writes a file of about `size` bytes, whole packages only.
void generateModel(ToolModel& model, std::uint64_t size, XmlWriter& writer);

}  // namespace bench
