// The walk over the objects, and what each element gives.
#include "extension/Extension.h"

#include <memory>

#include "bridge/messages/KBI_UML2XMI.h"
#include "extension/HrefText.h"
#include "extension/StandardTypes.h"
#include "foundation/KYRException.h"
#include "repository/datatypes/KYRDataTypeConstants.h"
#include "uml/UMLCast.h"
#include "uml/UMLClasses.h"
#include "uml/UMLMadeObjects.h"
#include "xmi/UMLObjectTable.h"

namespace {

// The tool's name and a blank, behind which its version stands.
constexpr const char* extenderPrefix = "MagicDraw UML ";
// Packed projects cannot be read as a file.
constexpr const char* packedFile = ".mdzip";

bool isCustomProperties(const KYRString& source) { return source.equals("custom properties", false); }

// Whether any element of the file holds something that an object could get. Most plain files hold
// nothing, and need no index then.
bool hasToolData(const XmlDocument& document) {
  const XmlDocument::Name href = document.findName("href");
  const XmlDocument::Name source = document.findName("source");
  const XmlDocument::Name type = document.findName("type");
  const XmlDocument::Name extension = document.findName("xmi:Extension");
  for (XmlDocument::Node node = 0; node < document.getNodeCount(); ++node) {
    if (!document.isElement(node)) continue;
    const XmlDocument::Name name = document.getName(node);
    const DocumentElement element(document, node);
    if (name == extension || (name == type && !element.attribute(href).isEmpty())) return true;
    if (source != XmlDocument::textName && isCustomProperties(element.attribute(source))) return true;
  }
  return false;
}

KYRDataStoreVersion umlDataStore() {
  return KYRDataStoreVersion(KYRDataTypeConstants::DATASTORE_OMG_UML_OMG_UML, 1, 0, 0);
}

}  // namespace

Extension::Extension(KYRLog* messageLog, UMLMadeObjects& madeObjects)
    : converter(*messageLog, umlDataStore(), KYRDataTypeConstants::TOOL_OMG_UML),
      log(messageLog),
      made(madeObjects),
      dom(messageLog) {}

void Extension::read(UMLObjectTable& objects, const KYRFile& file) {
  try {
    readDocument(objects, file);
  } catch (const KYRException&) {
    throw;
  } catch (...) {
    KBI_UML2XMI::UML2_I_XML_ERROR.throwException("Unknown error");
  }
}

void Extension::readDocument(UMLObjectTable& objects, const KYRFile& file) {
  KBI_UML2XMI::UML2_S_PARSING_EXTENSIONS.log(*log);
  reading.parse(dom, file);
  if (!reading) return;
  KBI_UML2XMI::UML2_S_PROCESSING_EXTENSIONS.log(*log);
  if (!hasToolData(reading.document())) return;
  ElementIndex elements(reading.document(), objects.getCount());
  ModuleFile module(log, dom, file);
  for (unsigned int i = 0; i < objects.getSlotCount(); ++i) {
    UMLElement& object = *objects.at(i);
    if (const DocumentElement element = elements.find(object)) complete(object, element, module);
  }
}

// A property whose type is read here does not get its multiplicity read.
void Extension::complete(UMLElement& object, DocumentElement element, ModuleFile& module) {
  if (object.getKind() == UMLProperty::kind) {
    auto& property = *umlCast<UMLProperty>(&object);
    if (property.type == nullptr) {
      property.type = readType(element, module);
    } else if (property.association != nullptr) {
      readMultiplicity(property, element);
    }
  } else if (object.getKind() == UMLParameter::kind) {
    auto& parameter = *umlCast<UMLParameter>(&object);
    if (parameter.type == nullptr) parameter.type = readType(element, module);
  }
  readCustomProperties(object, element);
}

UMLPrimitiveType* Extension::readType(DocumentElement element, ModuleFile& module) {
  const DocumentElement type = element.firstChild("type");
  return type ? resolve(type.attribute("href"), module) : nullptr;
}

// The converter is asked first: a fragment that is a known type name opens no file.
UMLPrimitiveType* Extension::resolve(const KYRString& hrefText, ModuleFile& module) {
  HrefText href(hrefText);
  KYRString name;
  if (!KYRDataTypeConverter::isUndefined(converter.getImportTypeName(href.fragment))) {
    name = href.fragment;
    href.fragment = StandardTypes::idOf(name);
  } else {
    name = nameInModule(href.filePart, href.fragment, module);
    if (name.isEmpty()) name = StandardTypes::nameOf(href.fragment);
  }
  if (name.isEmpty()) return nullptr;
  auto* const type = made.make<UMLPrimitiveType>(href.fragment, name);
  type->name = name;
  return type;
}

KYRString Extension::nameInModule(const KYRString& filePart, const KYRString& fragment, ModuleFile& module) {
  if (filePart.endsWith(packedFile, false) || !module.open(filePart)) return KYRString();
  const DocumentElement element = module.find(fragment);
  if (!element) return KYRString();
  const KYRString& name = element.attribute("name");
  const int point = name.reverseFind(".", name.getLength());
  return point < 0 ? name : name.mid(static_cast<unsigned int>(point) + 1);
}

// A later section overwrites an earlier one.
void Extension::readMultiplicity(UMLProperty& property, DocumentElement element) {
  for (DocumentElement section = element.firstChild(); section; section = section.nextSibling()) {
    if (section.tag().view() != "xmi:Extension") continue;
    if (!section.attribute("extender").startsWith(extenderPrefix, false)) continue;
    const DocumentElement carrier = section.firstChild("modelExtension");
    if (!carrier) continue;
    if (const DocumentElement lower = carrier.firstChild("lowerValue")) {
      if (UMLValueSpecification* const bound = readBound(lower)) property.lowerValue = bound;
    }
    if (const DocumentElement upper = carrier.firstChild("upperValue")) {
      if (UMLValueSpecification* const bound = readBound(upper)) property.upperValue = bound;
    }
  }
}

UMLValueSpecification* Extension::readBound(DocumentElement bound) {
  const KYRString& type = bound.attribute("xmi:type");
  const KYRString& id = bound.attribute("xmi:id");
  const KYRString& name = bound.attribute("name");
  const KYRString& value = bound.attribute("value");
  if (type.equals("uml:LiteralInteger", false)) {
    auto* const literal = made.make<UMLLiteralInteger>(id, name);
    literal->name = name;
    literal->value = value.getInt();
    return literal;
  }
  if (type.equals("uml:LiteralUnlimitedNatural", false)) {
    auto* const literal = made.make<UMLLiteralUnlimitedNatural>(id, name);
    literal->name = name;
    literal->value = value;
    return literal;
  }
  return nullptr;
}

// All are kept, two of one name as well.
void Extension::readCustomProperties(UMLElement& object, DocumentElement element) {
  for (DocumentElement child = element.firstChild(); child; child = child.nextSibling()) {
    if (!isCustomProperties(child.attribute("source"))) continue;
    for (DocumentElement details = child.firstChild(); details; details = details.nextSibling()) {
      if (!details.tag().equals("details", false)) continue;
      auto value = std::make_unique<UMLTaggedValue>(details.attribute("key"), details.attribute("value"));
      object.taggedValues.add(value.get(), false);
      value.release();  // owned by the object from here on
    }
  }
}
