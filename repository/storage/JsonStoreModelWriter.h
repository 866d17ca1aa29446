// JsonStoreModelWriter: the JSON format of saved models; docs/saved-format.md describes it.
#pragma once

#include <memory>

#include "repository/storage/BlockOutput.h"
#include "repository/storage/StoreModelWriter.h"

class KYR_EXPORT JsonStoreModelWriter : public StoreModelWriter {
 public:
  /// What the file says of its format.
  static constexpr std::string_view formatName = "kyr-store-model";
  static constexpr int formatVersion = 1;

  explicit JsonStoreModelWriter(BlockSink& sink);
  ~JsonStoreModelWriter() override;

  void beginDocument(const KYRStoreModel& model) override;
  void endDocument() override;
  void beginObject(unsigned int id, std::string_view className) override;
  void endObject() override;
  void beginList(std::string_view name) override;
  void endList() override;
  void text(std::string_view name, std::string_view value) override;
  void number(std::string_view name, std::int64_t value) override;
  void flag(std::string_view name) override;
  void reference(std::string_view name, unsigned int id) override;
  void beginReferences(std::string_view name) override;
  void reference(unsigned int id) override;
  void endReferences() override;
  void beginPropertyValues() override;
  void propertyValue(unsigned int propertyType, std::string_view value) override;
  void endPropertyValues() override;

 private:
  class Lines;
  void writeOrigin(const KYRMetadataOrigin& origin);

  BlockOutput output_;
  std::unique_ptr<Lines> json_;
};
