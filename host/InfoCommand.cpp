// The self-description of the plug-in, as text and as JSON.
#include "host/InfoCommand.h"

#include "foundation/KYROption.h"
#include "host/InspectCatalogue.h"
#include "host/JsonOut.h"
#include "host/KYRHostTexts.h"
#include "host/PluginLibrary.h"
#include "host/TextOut.h"
#include "host/TypeTableReport.h"
#include "repository/plugin/KYRBridgeSpecification.h"
#include "repository/plugin/KYRDataStoreList.h"
#include "repository/plugin/KYRImportBridgeDllInterface.h"

namespace {

constexpr const char* bridgeName = "OmgUml2XmiImport";

/// What a plug-in answers to all questions of its interface.
struct PluginFacts {
  explicit PluginFacts(KYRImportBridgeDllInterface& plugin)
      : buildVersion(plugin.getBuildVersion()), mapping(plugin.getMappingSpecificationXmlFile()) {
    plugin.getSpecification(bridgeName, specification);
    plugin.getOptionList(options);
    plugin.getDataStoreList(dataStores);
  }

  KYRString buildVersion;
  KYRString mapping;
  KYRBridgeSpecification specification;
  KYROptionList options;
  KYRDataStoreList dataStores;
};

KYRString versionOf(const KYRDataStoreList::Row& store) {
  return KYRString(store.majorVersion) + "." + KYRString(store.minorVersion) + "." +
         KYRString(store.releaseVersion);
}

// A line for a fact that there is.
void factToText(TextOut& out, const HostText<1>& label, const KYRString& value) {
  if (!value.isEmpty()) out.line(label, value);
}

void optionToText(TextOut& out, const KYROption& option) {
  using namespace KYRHostTexts;
  out.line(INFO_OPTION, option.getIdentifier(), option.getDisplayName());
  if (option.isMandatory()) out.line(INFO_OPTION_MANDATORY);
  factToText(out, INFO_OPTION_DEFAULT, option.getDefaultValue());
  KYRString extensions;
  for (const KYRString& extension : option.getFileExtensions()) {
    if (!extensions.isEmpty()) extensions += " ";
    extensions += extension;
  }
  factToText(out, INFO_OPTION_EXTENSIONS, extensions);
  out.paragraph("");
  out.paragraph(option.getDescription().view());
  out.paragraph("");
}

void optionToJson(JsonOut& json, const KYROption& option) {
  json.beginObject();
  json.key("identifier").text(option.getIdentifier());
  json.key("name").text(option.getDisplayName());
  json.key("type").text(option.getType() == OptionType::file ? "file" : "text");
  json.key("mandatory").boolean(option.isMandatory());
  json.key("default").text(option.getDefaultValue());
  json.key("description").text(option.getDescription());
  json.key("extensions").beginArray();
  for (const KYRString& extension : option.getFileExtensions()) json.text(extension);
  json.endArray();
  json.endObject();
}

void storeToJson(JsonOut& json, const KYRDataStoreList::Row& store) {
  json.beginObject();
  json.key("name").text(store.name);
  json.key("dataStore").text(store.dataStore);
  json.key("version").text(versionOf(store));
  json.endObject();
}

void messageToJson(JsonOut& json, const KYRMessageLiteral& message) {
  json.beginObject();
  json.key("code").text(message.getCode());
  json.key("level").text(KYRLogLevel::toName(message.getLevel()));
  json.key("text").text(message.getText());
  json.endObject();
}

}  // namespace

void InfoCommand::run() {
  if (settings_.listsTypes) {
    writeTypes();
    return;
  }
  library_.load(settings_.plugin);
  if (settings_.isJson) {
    writeJson();
  } else {
    writeText();
  }
}

void InfoCommand::writeTypes() {
  const TypeTableReport report(settings_.store);
  if (settings_.isJson) {
    report.writeJson(output_);
  } else {
    report.writeText(output_);
  }
}

void InfoCommand::writeText() {
  using namespace KYRHostTexts;
  const PluginFacts facts(library_.getPlugin());
  const KYRBridgeSpecification& specification = facts.specification;
  TextOut out(output_);
  out.line(INFO_VERSION, facts.buildVersion);
  out.line(INFO_PLUGIN, library_.getPath());
  factToText(out, INFO_TOOL, specification.getToolName());
  factToText(out, INFO_TOOL_VERSIONS, specification.getToolVersions());
  factToText(out, INFO_VENDOR, specification.getVendorName());
  factToText(out, INFO_WEB, specification.getToolWeb());
  factToText(out, INFO_METHODOLOGY, specification.getMethodologySummary());
  out.line(INFO_MAPPING, facts.mapping);
  out.paragraph("");
  out.line(INFO_DESCRIPTION);
  out.paragraph("");
  out.paragraph(specification.getDescription().view());
  out.paragraph("");
  out.line(INFO_OPTIONS);
  for (unsigned int i = 0; i < facts.options.getCount(); ++i) optionToText(out, *facts.options.getAt(i));
  out.line(INFO_DATA_STORES);
  for (unsigned int i = 0; i < facts.dataStores.getCount(); ++i) {
    const KYRDataStoreList::Row& store = *facts.dataStores.getAt(i);
    out.line(INFO_DATA_STORE, store.dataStore, versionOf(store), store.name);
  }
  out.paragraph("");
  out.line(INFO_MESSAGES);
  for (const KYRMessageLiteral* const message : importMessages()) {
    out.line(INFO_MESSAGE, message->getCode(), KYRLogLevel::toName(message->getLevel()), message->getText());
  }
}

void InfoCommand::writeJson() {
  const PluginFacts facts(library_.getPlugin());
  const KYRBridgeSpecification& specification = facts.specification;
  JsonOut json;
  json.beginObject();
  json.key("version").text(facts.buildVersion);
  json.key("plugin").text(library_.getPath());
  json.key("specification").beginObject();
  json.key("tool").text(specification.getToolName());
  json.key("toolVersions").text(specification.getToolVersions());
  json.key("vendor").text(specification.getVendorName());
  json.key("web").text(specification.getToolWeb());
  json.key("methodology").text(specification.getMethodologySummary());
  json.key("buildVersion").text(specification.getBuildVersion());
  json.key("retired").boolean(specification.isRetired());
  json.endObject();
  json.key("description").text(specification.getDescription());
  json.key("mapping").text(facts.mapping);
  json.key("options").beginArray();
  for (unsigned int i = 0; i < facts.options.getCount(); ++i) optionToJson(json, *facts.options.getAt(i));
  json.endArray();
  json.key("dataStores").beginArray();
  for (unsigned int i = 0; i < facts.dataStores.getCount(); ++i)
    storeToJson(json, *facts.dataStores.getAt(i));
  json.endArray();
  json.key("messages").beginArray();
  for (const KYRMessageLiteral* const message : importMessages()) messageToJson(json, *message);
  json.endArray();
  json.endObject();
  output_.write(json.endLine());
}
