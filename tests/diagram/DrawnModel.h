// DrawnModel: a small file of MagicDraw with one class diagram, imported.
//
// The model: classes "a", "b", "c" and interface "i" in package "p"; association "ab" with the ends "ea"
// at a and "eb" at b; association class "ac" between a and c; a is the superclass of b ("gb") and of c
// ("gc"); i has an own superclass relation "gi" with a.
#pragma once

#include <string>
#include <vector>

#include "repository/model/KYRClass.h"
#include "repository/model/KYRClassDiagram.h"
#include "repository/model/KYRGeneralization.h"
#include "repository/model/KYRGeneralizationRole.h"
#include "repository/model/KYRProjection.h"
#include "repository/model/KYRRelationshipProjection.h"
#include "tests/convert/ImportedModel.h"

inline std::string diagramElement(const std::string& id, const std::string& name,
                                  const std::string& type = "Class Diagram") {
  return "<ownedDiagram xmi:type='uml:Diagram' xmi:id='" + id + "' name='" + name +
         "'><xmi:Extension><diagramRepresentation><diagram:DiagramRepresentationObject umlType='" + type +
         "'/></diagramRepresentation></xmi:Extension></ownedDiagram>";
}

/// A shape or a line; `reference` is the id of what it shows.
inline std::string shape(const std::string& elementClass, const std::string& id, const std::string& reference,
                         const std::string& content = "") {
  return "<mdElement elementClass='" + elementClass + "' xmi:id='" + id + "'><elementID xmi:idref='" +
         reference + "'/>" + content + "</mdElement>";
}

inline std::string geometry(const std::string& numbers) { return "<geometry>" + numbers + "</geometry>"; }

/// The ids of the shapes that a line joins.
inline std::string ends(const std::string& first, const std::string& second) {
  return "<linkFirstEndID xmi:idref='" + first + "'/><linkSecondEndID xmi:idref='" + second + "'/>";
}

inline std::string valued(const std::string& tag, const std::string& value) {
  return "<" + tag + " xmi:value='" + value + "'/>";
}

inline std::string property(const std::string& propertyClass, const std::string& name,
                            const std::string& content = "") {
  return "<mdElement elementClass='" + propertyClass + "'><propertyID>" + name + "</propertyID>" + content +
         "</mdElement>";
}
inline std::string flag(const std::string& name) { return property("BooleanProperty", name); }
inline std::string color(const std::string& name, const std::string& value) {
  return property("ColorProperty", name, valued("value", value));
}
inline std::string lineWidth(const std::string& value) {
  return property("NumberProperty", "LINE_WIDTH", valued("value", value));
}
inline std::string properties(const std::string& content) {
  return "<properties>" + content + "</properties>";
}
inline std::string views(const std::string& shapes) { return "<mdOwnedViews>" + shapes + "</mdOwnedViews>"; }

/// The part of a file that holds the shapes of the diagram of that id.
inline std::string frame(const std::string& diagramId, const std::string& shapes) {
  return "<xmi:Extension><filePart>" + views(shape("DiagramFrame", "frame" + diagramId, diagramId) + shapes) +
         "</filePart></xmi:Extension>";
}

inline std::string generalization(const std::string& id, const std::string& general) {
  return "<generalization xmi:type='uml:Generalization' xmi:id='" + id + "' general='" + general + "'/>";
}

inline std::string ownedEnd(const std::string& id, const std::string& type) {
  return "<ownedEnd xmi:type='uml:Property' xmi:id='" + id + "' type='" + type + "'/>";
}

inline const std::string drawnElements =
    element("Class", "xmi:id='a' name='A'") +
    element("Class", "xmi:id='b' name='B'", generalization("gb", "a")) +
    element("Class", "xmi:id='c' name='C'", generalization("gc", "a")) +
    element("Interface", "xmi:id='i' name='I'", generalization("gi", "a")) +
    element("Association", "xmi:id='ab' name='knows'", ownedEnd("ea", "a") + ownedEnd("eb", "b")) +
    element("AssociationClass", "xmi:id='ac' name='AC'", ownedEnd("aca", "a") + ownedEnd("acc", "c"));

/// A whole file: what the package holds, and what stands behind the model.
inline std::string drawnFile(const std::string& packageContent, const std::string& behindModel,
                             const std::string& exporter = "MagicDraw UML") {
  std::string file = xmi(element("Package", "xmi:id='p' name='P'", packageContent), "Model",
                         "<xmi:Documentation exporter='" + exporter + "' exporterVersion='17.0'/>");
  const std::string end = "</xmi:XMI>";
  return file.substr(0, file.size() - end.size()) + behindModel + end;
}

/// Boxes of the classes; their ids are those of the classes in capitals.
inline const std::string boxes = shape("Class", "A", "a", geometry("100, 100, 50, 40")) +
                                 shape("Class", "B", "b", geometry("300, 100, 50, 40")) +
                                 shape("Class", "C", "c", geometry("100, 300, 50, 40"));

class DrawnModel : public ImportedModel {
 public:
  /// The model and one diagram, "d", of these shapes.
  explicit DrawnModel(const std::string& shapes)
      : ImportedModel(drawnFile(drawnElements + diagramElement("d", "D"), frame("d", shapes))) {}
  /// A file of any kind.
  static DrawnModel ofFile(const std::string& text) { return DrawnModel(text, 0); }

  KYRClassDiagram& diagram(const std::string& id = "d") const { return get<KYRClassDiagram>(id); }
  bool lists(const KYRModelElement& object) const { return diagram().modelElements.contains(&object); }
  /// All that the diagrams draw for the object of that id.
  template <class Shape>
  std::vector<Shape*> drawn(const std::string& id) const {
    return drawnFor<Shape>(get<KYRModelObject>(id));
  }
  template <class Shape>
  std::vector<Shape*> drawnFor(const KYRModelObject& object) const {
    std::vector<Shape*> found;
    for (KYRPresentationElement* presentation : object.presentationElements) {
      if (auto* const typed = dynamic_cast<Shape*>(presentation)) found.push_back(typed);
    }
    return found;
  }
  /// The only box that is drawn for the object; throws when there is none or another one.
  KYRProjection& box(const std::string& id) const { return only(drawn<KYRProjection>(id)); }
  KYRRelationshipProjection& line(const std::string& id) const {
    return only(drawn<KYRRelationshipProjection>(id));
  }
  std::string pointsOf(const std::string& id) const { return text(line(id).linePoints); }
  KYRGeneralization& generalizationOf(const std::string& roleId) const {
    return *get<KYRGeneralizationRole>(roleId).generalizationAsSubtype;
  }
  KYRRelationshipProjection& superLine(const std::string& roleId) const {
    return only(drawnFor<KYRRelationshipProjection>(*generalizationOf(roleId).supertypeRoles[0]));
  }
  KYRProjection& marker(const std::string& roleId) const {
    return only(drawnFor<KYRProjection>(generalizationOf(roleId)));
  }
  std::size_t drawingCount() const { return diagram().diagramElements.count(); }

  template <class Shape>
  static Shape& only(const std::vector<Shape*>& shapes) {
    if (shapes.size() != 1) throw std::runtime_error("drawn " + std::to_string(shapes.size()) + " times");
    return *shapes[0];
  }

 private:
  DrawnModel(const std::string& text, int) : ImportedModel(text) {}
};
