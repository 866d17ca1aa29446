// The last step of a parse: the tool's private data. The one file of the reader that knows the
// extensions, which stand above it.
#include "extension/Extension.h"
#include "extension/ExtensionEA.h"
#include "uml/UMLNamespaces.h"
#include "xmi/XMIParser.h"

void XMIParser::runToolExtension() {
  if (model == nullptr) return;
  if (model->exporter.equals("Enterprise Architect", false)) {
    ExtensionEA(log, madeObjects).read(objects, file);
  } else {
    Extension(log, madeObjects).read(objects, file);
  }
}
