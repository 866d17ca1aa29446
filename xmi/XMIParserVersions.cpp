// Which tool wrote the file, and which UML and XMI versions it declares. No second pass: the root and
// the documentation element come before the model in a normal file.
#include "bridge/messages/KBI_UML2XMI.h"
#include "xmi/NamespaceVersions.h"
#include "xmi/XMINames.h"
#include "xmi/XMIParser.h"

// A value found on the root wins over one on the model element, and a file whose model element is
// its root still works.
void XMIParser::captureNamespaces(const TagHandler&, const KYRString&, const KYRStringArray& attributes) {
  if (umlVersion.isEmpty()) umlVersion = getAttribute(attributes, XMINames::umlNamespace);
  if (xmiVersion.isEmpty()) xmiVersion = getAttribute(attributes, XMINames::xmiNamespace);
}

// Without the attribute the children of the element tell.
void XMIParser::captureExporter(const TagHandler&, const KYRString&, const KYRStringArray& attributes) {
  const KYRString& name = getAttribute(attributes, XMINames::exporter);
  if (name.isEmpty()) return;
  exporter = name;
  exporterVersion = getAttribute(attributes, XMINames::exporterVersion);
}

void XMIParser::endExporter(const TagHandler&, const KYRString&) {
  if (!text.isEmpty()) exporter = text;
}

void XMIParser::endExporterVersion(const TagHandler&, const KYRString&) {
  if (!text.isEmpty()) exporterVersion = text;
}

KYRString XMIParser::umlVersionOf(const KYRString& uri) { return KYRString(NamespaceVersions::uml(uri)); }

KYRString XMIParser::xmiVersionOf(const KYRString& uri) { return KYRString(NamespaceVersions::xmi(uri)); }

void XMIParser::detectVersions() {
  struct Version {
    KYRString& field;
    KYRString found;
    const char* name;  // as the messages spell it
  };
  for (const Version& version : {Version{umlVersion, umlVersionOf(umlVersion), "UML"},
                                 Version{xmiVersion, xmiVersionOf(xmiVersion), "xmi"}}) {
    version.field = version.found;
    if (version.field.isEmpty()) {
      KBI_UML2XMI::UML2_I_CAN_NOT_DETECT.log(*log, version.name);
    } else {
      KBI_UML2XMI::UML2_I_DETECTED_VERSION.log(*log, version.name, version.field);
    }
  }
}
