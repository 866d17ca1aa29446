// Saving and loading: the ties between the files, RapidJSON, and what knows models.
#include "repository/storage/StoreModelFile.h"

#include <rapidjson/error/en.h>
#include <rapidjson/reader.h>

#include <string>

#include "foundation/KYRPhaseTimes.h"
#include "repository/KYRRepositoryMessages.h"
#include "repository/storage/BackgroundSink.h"
#include "repository/storage/BlockInput.h"
#include "repository/storage/JsonAllocator.h"
#include "repository/storage/JsonStoreModelWriter.h"
#include "repository/storage/ReplacedFile.h"
#include "repository/storage/SavedModelBuilder.h"
#include "repository/storage/SqlStoreModelWriter.h"
#include "repository/storage/SqliteModelFile.h"

namespace {

// Receives RapidJSON's events, which bear these names. All return true: what is refused is raised.
class JsonEvents {
 public:
  JsonEvents(const KYRString& path, const BlockInput& input) : input_(input), builder_(path, offset_) {}

  bool Null() { return accept({SavedValue::Kind::other, {}, 0}); }
  bool Bool(bool value) { return accept({SavedValue::Kind::flag, {}, value ? 1 : 0}); }
  bool Int(int value) { return Int64(value); }
  bool Uint(unsigned int value) { return Int64(value); }
  bool Int64(std::int64_t value) { return accept({SavedValue::Kind::number, {}, value}); }
  bool Uint64(std::uint64_t) { return Null(); }  // beyond all numbers of the format
  bool Double(double) { return Null(); }
  bool RawNumber(const char*, rapidjson::SizeType, bool) { return Null(); }
  bool String(const char* text, rapidjson::SizeType length, bool) {
    return accept({SavedValue::Kind::text, {text, length}, 0});
  }
  bool Key(const char* text, rapidjson::SizeType length, bool) {
    return at().enterMember({text, length}), true;
  }
  bool StartObject() { return at().beginObject(), true; }
  bool EndObject(rapidjson::SizeType) { return at().endObject(), true; }
  bool StartArray() { return at().beginList(), true; }
  bool EndArray(rapidjson::SizeType) { return at().endList(), true; }
  std::unique_ptr<KYRStoreModel> finish() { return at().finish(); }

 private:
  bool accept(const SavedValue& value) { return at().accept(value), true; }
  SavedModelBuilder& at() {
    offset_ = input_.Tell();
    return builder_;
  }

  const BlockInput& input_;
  std::uint64_t offset_ = 0;
  SavedModelBuilder builder_;
};

[[noreturn]] void refuseJson(const KYRFile& file, std::size_t offset, rapidjson::ParseErrorCode error) {
  const std::string digits = std::to_string(offset);
  KYRRepositoryMessages::NOT_JSON.throwException(file.getPath(), KYRString(std::string_view(digits)),
                                                 KYRString(rapidjson::GetParseError_En(error)));
}

template <class Writer>
void writeAsText(const KYRStoreModel& model, BlockSink& sink) {
  Writer writer(sink);
  writeStoreModel(model, writer);
}

void saveAsText(const KYRFile& file, const KYRStoreModel& model, StoreModelFormat format) {
  ReplacedFile output(file);
  BackgroundSink background(output);
  writeStoreModelText(model, format, background);
  background.finish();
  output.commit();
}

}  // namespace

void saveStoreModelFile(const KYRFile& file, const KYRStoreModel& model, StoreModelFormat format) {
  const KYRPhaseTimer timer(KYRPhase::save);
  if (format == StoreModelFormat::sqlite) return saveSqliteModel(file, model);
  saveAsText(file, model, format);
}

void writeStoreModelText(const KYRStoreModel& model, StoreModelFormat format, BlockSink& sink) {
  if (format == StoreModelFormat::sql) return writeAsText<SqlStoreModelWriter>(model, sink);
  writeAsText<JsonStoreModelWriter>(model, sink);
}

void saveStoreModelFile(const KYRFile& file, const KYRStoreModel& model) {
  saveStoreModelFile(file, model, StoreModelFormat::json);
}

void appendStoreModelFile(const KYRFile& file, const KYRStoreModel& model) {
  const KYRPhaseTimer timer(KYRPhase::save);
  appendSqliteModel(file, model);
}

std::unique_ptr<KYRStoreModel> loadStoreModel(const KYRFile& file) {
  constexpr unsigned int flags = rapidjson::kParseIterativeFlag | rapidjson::kParseValidateEncodingFlag;
  BlockInput input(file);
  JsonEvents events(file.getPath(), input);
  rapidjson::GenericReader<rapidjson::UTF8<>, rapidjson::UTF8<>, JsonAllocator> reader;
  const rapidjson::ParseResult result = reader.Parse<flags>(input, events);
  if (result.IsError()) refuseJson(file, result.Offset(), result.Code());
  // RapidJSON takes a zero byte for the end.
  if (!input.isAtEnd()) refuseJson(file, input.Tell(), rapidjson::kParseErrorDocumentRootNotSingular);
  return events.finish();
}
