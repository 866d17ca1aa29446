// The section, its index and what each entry gives.
#include "extension/ExtensionEA.h"

#include <memory>

#include "bridge/messages/KBI_UML2XMI.h"
#include "foundation/KYRException.h"
#include "foundation/KYRStringHashSet.h"
#include "uml/UMLCast.h"
#include "uml/UMLClasses.h"
#include "uml/UMLMadeObjects.h"
#include "xmi/UMLObjectTable.h"

namespace {

constexpr int tagCapacity = 10;  // tagged values of one object, as a rule

bool isTag(DocumentElement element, std::string_view tag) {
  return equalsIgnoringCase(element.tag().view(), tag);
}

// The tool writes "0" for what it leaves open. "00" is not "0".
bool isGiven(const KYRString& number) { return !number.isEmpty() && number.view() != "0"; }

}  // namespace

ExtensionEA::ExtensionEA(KYRLog* messageLog, UMLMadeObjects& madeObjects)
    : log(messageLog), made(madeObjects) {}

void ExtensionEA::read(const UMLObjectTable& objects, const KYRFile& file) {
  try {
    readSection(objects, file);
  } catch (const KYRException&) {
    throw;
  } catch (...) {
    KBI_UML2XMI::UML2_I_XML_ERROR.throwException("Unknown error");
  }
}

void ExtensionEA::readSection(const UMLObjectTable& objects, const KYRFile& file) {
  KYRDOM dom(log);
  KBI_UML2XMI::UML2_S_PARSING_EXTENSIONS.log(*log);
  reading.parse(dom, file);
  if (!reading) return;
  const DocumentElement section = findSection();
  if (!section) return;
  KBI_UML2XMI::UML2_S_PROCESSING_EXTENSIONS.log(*log);
  index(section);
  for (unsigned int i = 0; i < objects.getSlotCount(); ++i) {
    UMLElement& object = *objects.at(i);
    const auto entry = extensionElements.find(object.id.view());
    if (entry != extensionElements.end()) complete(object, reading.element(entry->second));
  }
}

// The first in document order, parent before children, which is the order of the nodes.
DocumentElement ExtensionEA::findSection() const {
  const XmlDocument& document = reading.document();
  const XmlDocument::Name extender = document.findName("extender");
  for (XmlDocument::Node node = 0; node < document.getNodeCount(); ++node) {
    if (!document.isElement(node)) continue;
    const DocumentElement element = reading.element(node);
    if (isTag(element, "xmi:Extension") &&
        equalsIgnoringCase(element.attribute(extender).view(), "Enterprise Architect")) {
      return element;
    }
  }
  return {};
}

// Entries may nest, and do: the section itself and everything below it counts.
void ExtensionEA::index(DocumentElement section) {
  const XmlDocument& document = reading.document();
  const XmlDocument::Name idref = document.findName("xmi:idref");
  const XmlDocument::Node end = document.getEnd(section.node());
  for (XmlDocument::Node node = section.node(); node < end; ++node) {
    if (!document.isElement(node)) continue;
    const KYRString& id = reading.element(node).attribute(idref);
    if (!id.isEmpty()) extensionElements.emplace(id.view(), node);
  }
}

void ExtensionEA::complete(UMLElement& object, DocumentElement entry) {
  switch (object.getKind()) {
    case UMLProperty::kind: {
      auto& property = *umlCast<UMLProperty>(&object);
      if (property.type == nullptr) property.type = readType(entry);
      readDefaultValue(property, entry);
      break;
    }
    case UMLParameter::kind: {
      auto& parameter = *umlCast<UMLParameter>(&object);
      if (parameter.type == nullptr) parameter.type = readType(entry);
      break;
    }
    case UMLClass::kind:
      if (equalsIgnoringCase(entry.attribute("xmi:type").view(), "uml:Boundary")) {
        umlCast<UMLClass>(&object)->isBoundary = true;
      }
      break;
    default:
      break;
  }
  readTags(object, entry);
  readDocumentation(object, entry);
}

UMLPrimitiveType* ExtensionEA::readType(DocumentElement entry) {
  const DocumentElement properties = entry.firstChild("properties");
  if (!properties) return nullptr;
  auto* const type = made.make<UMLPrimitiveType>(KYRString(), properties.attribute("type"));
  type->name = properties.attribute("type");
  const KYRString& length = properties.attribute("length");
  const KYRString& given = isGiven(length) ? length : properties.attribute("precision");
  if (isGiven(given)) type->length = given.getInt();
  if (const DocumentElement coords = entry.firstChild("coords")) {
    const KYRString& scale = coords.attribute("scale");
    if (isGiven(scale)) type->scale = scale.getInt();
  }
  return type;
}

// What the UML body gave is replaced, be the text empty.
void ExtensionEA::readDefaultValue(UMLProperty& property, DocumentElement entry) {
  const DocumentElement initial = entry.firstChild("initial");
  if (!initial) return;
  auto* const value = made.make<UMLLiteralString>(KYRString(), KYRString());
  value->value = initial.attribute("body");
  property.defaultValue = value;
}

void ExtensionEA::readTags(UMLElement& object, DocumentElement entry) {
  KYRStringHashSet seen(tagCapacity);
  for (DocumentElement tags = entry.firstChild(); tags; tags = tags.nextSibling()) {
    if (!isTag(tags, "tags")) continue;
    for (DocumentElement tag = tags.firstChild(); tag; tag = tag.nextSibling()) {
      if (!isTag(tag, "tag") || !seen.add(tag.attribute("name"))) continue;
      auto value = std::make_unique<UMLTaggedValue>(tag.attribute("name"), tag.attribute("value"));
      object.taggedValues.add(value.get(), false);
      value.release();  // owned by the object from here on
    }
  }
}

// The last text that is not empty wins.
void ExtensionEA::readDocumentation(UMLElement& object, DocumentElement entry) {
  for (DocumentElement child = entry.firstChild(); child; child = child.nextSibling()) {
    const KYRString* text = &KYRString::getEmptyString();
    if (isTag(child, "properties")) {
      text = &child.attribute("documentation");
    } else if (isTag(child, "documentation")) {
      text = &child.attribute("value");
    }
    if (!text->isEmpty()) object.documentation = *text;
  }
}
