// A model as Enterprise Architect writes it: windows-1252, long ids made of a GUID, types as child
// elements, and a section of its own that says everything once more. Five of six elements of such a
// file stand in that section.
#pragma once

#include <string>
#include <string_view>

#include "bench/ToolModel.h"

namespace bench {

class EnterpriseArchitectModel final : public ToolModel {
 public:
  using ToolModel::ToolModel;

  void open(XmlWriter& writer) override;
  void writePackage(XmlWriter& writer, std::uint32_t package) override;
  void closeModel(XmlWriter& writer) override;
  unsigned sections() const override { return 2; }
  void openSection(XmlWriter& writer, unsigned section) override;
  void writeSection(XmlWriter& writer, unsigned section, std::uint32_t package) override;
  void closeSection(XmlWriter& writer, unsigned section) override;
  void close(XmlWriter& writer) override;

 private:
  std::string guid(std::uint64_t what, std::uint64_t owner, std::uint64_t part) const;
  std::string id(std::uint64_t what, std::uint64_t owner, std::uint64_t part = 0) const;
  std::string packageIdText(std::uint32_t package) const;
  std::string typeId(FeatureType type) const;
  std::string typeName(FeatureType type) const;

  void writeClass(XmlWriter& writer, const ClassPlan& each) const;
  void writeAttribute(XmlWriter& writer, const ClassPlan& owner, std::uint32_t position) const;
  void writeOperation(XmlWriter& writer, const ClassPlan& owner, std::uint32_t position) const;
  void writeAssociation(XmlWriter& writer, const ClassPlan& each) const;
  void writeBounds(XmlWriter& writer, const ClassPlan& owner, std::uint32_t position, bool isMany) const;

  void writeElementEntry(XmlWriter& writer, const ClassPlan& each) const;
  void writeAttributeEntry(XmlWriter& writer, const ClassPlan& owner, std::uint32_t position) const;
  void writeOperationEntry(XmlWriter& writer, const ClassPlan& owner, std::uint32_t position) const;
  void writePackageEntry(XmlWriter& writer, std::uint32_t package) const;
  void writeConnector(XmlWriter& writer, const std::string& ownId, std::string_view kind,
                      std::uint32_t source, std::uint32_t target) const;
  void writeTags(XmlWriter& writer, const ClassPlan& each) const;
  void writeDocumentation(XmlWriter& writer, std::uint64_t place, std::uint32_t words) const;

  bool isGroupOpen = false;
};

}  // namespace bench
