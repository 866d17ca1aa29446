// The model of a page is the saved model, without the shapes of diagrams and with the same ids.
#include "report/ReportModelWriter.h"

#include <gtest/gtest.h>
#include <rapidjson/document.h>

#include <map>

#include "tests/report/TextSink.h"
#include "tests/repository/FullModel.h"

namespace {

template <class Writer>
rapidjson::Document write(const KYRStoreModel& model) {
  TextSink sink;
  Writer writer(sink);
  writeStoreModel(model, writer);
  rapidjson::Document document;
  document.Parse(sink.text.data(), sink.text.size());
  EXPECT_FALSE(document.HasParseError());
  return document;
}

std::map<unsigned int, std::string> classesById(const rapidjson::Document& document) {
  std::map<unsigned int, std::string> classes;
  std::vector<const rapidjson::Value*> waiting = {&document};
  while (!waiting.empty()) {
    const rapidjson::Value& value = *waiting.back();
    waiting.pop_back();
    if (value.IsArray()) {
      for (const auto& entry : value.GetArray()) waiting.push_back(&entry);
    } else if (value.IsObject()) {
      if (value.HasMember("class")) classes[value["id"].GetUint()] = value["class"].GetString();
      for (const auto& member : value.GetObject()) waiting.push_back(&member.value);
    }
  }
  return classes;
}

}  // namespace

TEST(ReportModelWriter, OnlyTheShapesAreLeftOutAndIdsStay) {
  const auto model = makeFullModel();
  auto expected = classesById(write<JsonStoreModelWriter>(*model));
  const std::size_t all = expected.size();
  std::erase_if(expected, [](const auto& entry) { return entry.second.ends_with("Projection"); });
  ASSERT_LT(expected.size(), all);
  EXPECT_EQ(classesById(write<ReportModelWriter>(*model)), expected);
}

TEST(ReportModelWriter, AnObjectHasTheSameMembers) {
  const auto model = makeFullModel();
  const auto saved = write<JsonStoreModelWriter>(*model);
  const auto page = write<ReportModelWriter>(*model);
  const auto types = [](const rapidjson::Document& document) -> const rapidjson::Value& {
    return document["model"]["types"];
  };
  EXPECT_EQ(types(page), types(saved));
  EXPECT_EQ(page["origins"], saved["origins"]);
}
