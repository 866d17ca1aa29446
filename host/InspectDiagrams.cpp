// One walk over the nodes of the model. What stands inside a diagram is not searched.
#include "host/InspectDiagrams.h"

#include "extension/DocumentReading.h"

namespace {

// The model of the file, which stands below the root; none when the root itself is one.
DocumentElement modelOf(const DocumentReading& reading) { return reading.element(0).firstChild("uml:Model"); }

KYRString kindOf(DocumentElement diagram) {
  for (const char* tag : {"xmi:Extension", "diagramRepresentation", "diagram:DiagramRepresentationObject"}) {
    diagram = diagram.firstChild(tag);
    if (!diagram) return KYRString();
  }
  return diagram.attribute("umlType");
}

}  // namespace

InspectDiagrams::InspectDiagrams(KYRLog& log, const KYRFile& file) {
  KYRDOM dom(&log);
  DocumentReading reading;
  reading.parse(dom, file);
  if (!reading) return;
  const DocumentElement model = modelOf(reading);
  if (!model) return;
  const XmlDocument& document = reading.document();
  const XmlDocument::Name type = document.findName("xmi:type");
  const XmlDocument::Node end = document.getEnd(model.node());
  XmlDocument::Node node = model.node();
  while (node < end) {
    const bool isDiagram =
        document.isElement(node) && reading.element(node).attribute(type).equals("uml:Diagram", false);
    if (isDiagram) count(kindOf(reading.element(node)));
    node = isDiagram ? document.getEnd(node) : node + 1;
  }
}

void InspectDiagrams::count(const KYRString& name) {
  ++count_;
  const auto [place, isNew] = places_.try_emplace(std::string(name.view()), kinds_.size());
  if (isNew) kinds_.push_back({name, 0});
  ++kinds_[place->second].count;
}
