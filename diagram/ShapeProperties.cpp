// Display properties. For some of them it only counts that they are there, and an absent property is not
// the same as one without a value: defaults stand for absent ones alone.
#include "diagram/ShapeProperties.h"

#include "bridge/state/KYROmgUml2XmiImportBridge.h"
#include "diagram/ShapeParts.h"

namespace {

constexpr const char* booleanProperty = "BooleanProperty";
constexpr const char* defaultFont = "Arial";
constexpr int defaultFontSize = 11;

// Bits of KYRPresentationElement::displayFlags.
constexpr int showOperations = 0x4;
constexpr int showAttributes = 0x18;
constexpr int showAttributeTypes = 0x100000;
constexpr int showAttributeStereotypes = 0x1800000;

}  // namespace

const KYRDOMElement* KYROmgUml2XmiImportBridge::findProperty(const KYRString& name,
                                                             const KYRString& propertyClass,
                                                             const KYRDOMElement* element) {
  const KYRDOMElement* const properties = element->getFirstElement("properties");
  if (properties == nullptr) return nullptr;
  const int count = properties->getElementCount("mdElement");
  for (int i = 0; i < count; ++i) {
    const KYRDOMElement* const property = properties->getElement("mdElement", i);
    if (isOfClass(property, propertyClass.view()) && shapeText(property, "propertyID").equals(name, false)) {
      return property;
    }
  }
  return nullptr;
}

int KYROmgUml2XmiImportBridge::readDisplayFlags(const KYRDOMElement* element) {
  const auto isPresent = [element](const char* name) {
    return findProperty(name, booleanProperty, element) != nullptr;
  };
  int flags = showOperations;
  if (!isPresent("SUPPRESS_CLASS_ATTRIBUTES")) flags |= showAttributes;
  if (!isPresent("SHOW_ATTRIBUTES_TYPE")) flags |= showAttributeTypes;
  if (!isPresent("SHOW_ATTRIBUTES_STEREOTYPE")) flags |= showAttributeStereotypes;
  return flags;
}

int KYROmgUml2XmiImportBridge::swapColor(int value) {
  constexpr unsigned int byte = 0xFF;
  const auto color = static_cast<unsigned int>(value);
  return static_cast<int>(((color & byte) << 16) | (color & (byte << 8)) | ((color >> 16) & byte));
}

bool readColor(const KYRDOMElement* element, const char* name, std::int32_t& color) {
  const KYRDOMElement* const property =
      KYROmgUml2XmiImportBridge::findProperty(name, "ColorProperty", element);
  if (property == nullptr) return false;
  const KYRString& value = shapeValue(property, "value");
  if (!value.isEmpty()) color = KYROmgUml2XmiImportBridge::swapColor(value.getInt());
  return true;
}

void readPen(const KYRDOMElement* element, KYRPresentationElement& target) {
  readColor(element, "PEN_COLOR", target.lineColor);
  const KYRDOMElement* const property =
      KYROmgUml2XmiImportBridge::findProperty("LINE_WIDTH", "NumberProperty", element);
  if (property == nullptr) return;
  const KYRString& value = shapeValue(property, "value");
  if (!value.isEmpty()) target.lineWidth = value.getInt();
}

void readFont(const KYRDOMElement* element, KYRPresentationElement& target) {
  const KYRDOMElement* const font = KYROmgUml2XmiImportBridge::findProperty("FONT", "FontProperty", element);
  if (font == nullptr) {
    target.fontName = defaultFont;
    target.fontSize = defaultFontSize;
    return;
  }
  if (const KYRDOMElement* name = font->getFirstElement("fontName")) target.fontName = name->getValue();
  const KYRString& size = shapeValue(font, "size");
  if (!size.isEmpty()) target.fontSize = size.getInt();
  const std::string_view style = shapeValue(font, "style").view();
  target.isBold = style == "1" || style == "3";
  target.isItalic = style == "2" || style == "3";
}
