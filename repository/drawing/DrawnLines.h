// The lines of a diagram.
//
// An association is three presentation elements: its own, with name, font and pen, and one for each of
// two roles, which run from the middle to the classes and follow it in the order of its ends. A
// generalization has a line for its supertype, one for each subtype, and a marker where they meet.
#pragma once

#include <unordered_map>
#include <vector>

#include "repository/drawing/DrawnBoxes.h"
#include "repository/drawing/DrawnLabels.h"
#include "repository/drawing/SvgDocument.h"
#include "repository/model/KYRAssociation.h"
#include "repository/model/KYRAssociationRole.h"
#include "repository/model/KYRClass.h"
#include "repository/model/KYRClassDiagram.h"
#include "repository/model/KYRGeneralizationRole.h"
#include "repository/model/KYRRelationshipProjection.h"

class DrawnLines {
 public:
  DrawnLines(SvgDocument& document, const DrawnBoxes& boxes, const KYRClassDiagram& diagram);
  void draw();

 private:
  struct Association {
    const KYRAssociation* subject;
    const KYRRelationshipProjection* line;  // null when only roles are drawn
    std::vector<const KYRRelationshipProjection*> roles;
  };

  void gather(const KYRRelationshipProjection& line);
  Association& openAssociation(const KYRAssociation& subject);
  void drawAssociation(const Association& association);
  DrawnPath drawRole(const Association& association, std::size_t index, DrawnPoint middle);
  void addLabel(const KYRPresentationElement& style, std::string text, DrawnLabels::Places places);
  void drawPath(const DrawnPath& path, const SvgDocument::Pen& pen);
  void drawGeneralization(const KYRRelationshipProjection& line, const KYRGeneralizationRole& role);
  void drawTriangle(DrawnPath& path, const SvgDocument::Pen& pen);
  DrawnPoint middleOf(const Association& association) const;

  SvgDocument& document_;
  const DrawnBoxes& boxes_;
  const KYRClassDiagram& diagram_;
  DrawnLabels labels_;
  std::vector<Association> associations_;
  std::unordered_map<const KYRAssociation*, std::size_t> latest_;  // its last entry in associations_
};
