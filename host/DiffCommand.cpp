// A comparison as lines to review, and as JSON.
#include "host/DiffCommand.h"

#include "host/ExitCode.h"
#include "host/JsonOut.h"
#include "host/KYRHostTexts.h"
#include "host/SavedModel.h"
#include "host/TextOut.h"
#include "repository/compare/ModelComparison.h"
#include "repository/storage/StoreModelFile.h"

namespace {

using Kind = ComparedValue::Kind;
using Pair = ModelComparison::Pair;

constexpr std::size_t longestText = 120;

std::string kindOf(const KYRObject& object) { return std::string(ModelComparison::kindOf(object)); }

std::string ownerPathOf(const KYRObject& object) {
  return object.getParent() == nullptr ? std::string() : ModelComparison::pathOf(*object.getParent());
}

std::string quoted(std::string_view text) { return "'" + TerminalText::shorten(text, longestText) + "'"; }

std::string textOf(const ComparedValue& value) {
  switch (value.kind) {
    case Kind::text:
      return quoted(value.text);
    case Kind::number:
      return std::to_string(value.number);
    case Kind::flag:
      return std::string(
          (value.number != 0 ? KYRHostTexts::DIFF_YES : KYRHostTexts::DIFF_NO).toString().view());
    case Kind::objects: {
      std::string texts;
      for (const KYRObject* object : value.objects) {
        if (!texts.empty()) texts += ", ";
        texts += quoted(ModelComparison::pathOf(*object));
      }
      return texts;
    }
    case Kind::none:
      break;
  }
  return std::string(KYRHostTexts::DIFF_NOTHING.toString().view());
}

void valueToJson(JsonOut& json, const ComparedValue& value) {
  switch (value.kind) {
    case Kind::none:
      json.null();
      break;
    case Kind::text:
      json.text(value.text);
      break;
    case Kind::number:
      json.integer(static_cast<int>(value.number));
      break;
    case Kind::flag:
      json.boolean(value.number != 0);
      break;
    case Kind::objects:
      json.beginArray();
      for (const KYRObject* object : value.objects) json.text(ModelComparison::pathOf(*object));
      json.endArray();
      break;
  }
}

void objectToJson(JsonOut& json, const KYRObject& object) {
  json.beginObject();
  json.key("kind").text(kindOf(object));
  json.key("path").text(ModelComparison::pathOf(object));
  json.key("sourceId").text(object.sourceId);
}

void singlesToJson(JsonOut& json, const std::vector<ModelComparison::Single>& singles) {
  json.beginArray();
  for (const ModelComparison::Single& single : singles) {
    objectToJson(json, *single.object);
    json.key("holds").number(single.held);
    json.endObject();
  }
  json.endArray();
}

void pairsToJson(JsonOut& json, const std::vector<Pair>& pairs) {
  json.beginArray();
  for (const Pair& pair : pairs) {
    objectToJson(json, *pair.after);
    json.key("oldPath").text(ModelComparison::pathOf(*pair.before));
    json.endObject();
  }
  json.endArray();
}

void changesToJson(JsonOut& json, const std::vector<ModelComparison::Change>& changes) {
  json.beginArray();
  for (const ModelComparison::Change& change : changes) {
    objectToJson(json, *change.objects.after);
    json.key("fields").beginArray();
    for (const ComparedField& field : change.fields) {
      json.beginObject();
      json.key(field.isProperty ? "property" : "field").text(field.name);
      valueToJson(json.key("old"), field.before);
      valueToJson(json.key("new"), field.after);
      json.endObject();
    }
    json.endArray();
    json.endObject();
  }
  json.endArray();
}

void singlesToText(TextOut& out, const std::vector<ModelComparison::Single>& singles, const HostText<2>& line,
                   const HostText<3>& lineWithMore) {
  for (const ModelComparison::Single& single : singles) {
    const std::string path = ModelComparison::pathOf(*single.object);
    if (single.held == 0) {
      out.line(line, kindOf(*single.object), path);
    } else {
      out.line(lineWithMore, kindOf(*single.object), path, single.held);
    }
  }
}

}  // namespace

int DiffCommand::run() {
  const auto before = SavedModel::load(settings_.before);
  const auto after = SavedModel::load(settings_.after);
  const ModelComparison comparison(*before, *after);
  if (settings_.isJson) {
    writeJson(comparison);
  } else {
    writeText(comparison);
  }
  return comparison.isEqual() ? ExitCode::done : ExitCode::different;
}

void DiffCommand::writeText(const ModelComparison& comparison) {
  using namespace KYRHostTexts;
  TextOut out(output_);
  if (comparison.isEqual()) return out.line(DIFF_EQUAL);
  singlesToText(out, comparison.getRemoved(), DIFF_REMOVED, DIFF_REMOVED_WITH);
  singlesToText(out, comparison.getAdded(), DIFF_ADDED, DIFF_ADDED_WITH);
  for (const Pair& pair : comparison.getRenamed()) {
    out.line(DIFF_RENAMED, kindOf(*pair.after), ModelComparison::pathOf(*pair.after),
             quoted(pair.before->getName().view()), quoted(pair.after->getName().view()));
  }
  for (const Pair& pair : comparison.getMoved()) {
    out.line(DIFF_MOVED, kindOf(*pair.after), ModelComparison::pathOf(*pair.after),
             quoted(ownerPathOf(*pair.before)), quoted(ownerPathOf(*pair.after)));
  }
  for (const ModelComparison::Change& change : comparison.getChanged()) {
    out.line(DIFF_CHANGED, kindOf(*change.objects.after), ModelComparison::pathOf(*change.objects.after));
    for (const ComparedField& field : change.fields) {
      out.line(field.isProperty ? DIFF_PROPERTY : DIFF_FIELD, field.name, textOf(field.before),
               textOf(field.after));
    }
  }
  out.line(DIFF_SUMMARY, comparison.getRemoved().size(), comparison.getAdded().size(),
           comparison.getRenamed().size(), comparison.getMoved().size(), comparison.getChanged().size());
}

void DiffCommand::writeJson(const ModelComparison& comparison) {
  JsonOut json;
  json.beginObject();
  json.key("old").text(settings_.before);
  json.key("new").text(settings_.after);
  json.key("equal").boolean(comparison.isEqual());
  singlesToJson(json.key("removed"), comparison.getRemoved());
  singlesToJson(json.key("added"), comparison.getAdded());
  pairsToJson(json.key("renamed"), comparison.getRenamed());
  pairsToJson(json.key("moved"), comparison.getMoved());
  changesToJson(json.key("changed"), comparison.getChanged());
  json.endObject();
  output_.write(json.endLine());
}
