// Drawing a class diagram.
#pragma once

#include <functional>
#include <string>

#include "repository/model/KYRClassDiagram.h"

/// The picture of the diagram: an SVG 1.1 document in UTF-8 that refers to nothing outside itself.
///
/// Each shape of a class is a box with name, attributes and operations as its display flags say, texts
/// clipped to the box. Associations are drawn with diamonds, and with the names and multiplicities
/// that their display flags ask for; generalizations with triangles, trees with their common trunk; an
/// association class is tied to its association by a dashed line. A box without a size gets one, and a
/// line without points joins its boxes. Any content gives a valid document; very long texts, and very
/// long lists of features, are cut off. Raises std::bad_alloc only.
KYR_EXPORT std::string drawSvg(const KYRClassDiagram& diagram);

/// The address that a box is a link to; empty for a box that is none.
using DrawnLinks = std::function<std::string(const KYRModelObject& subject)>;

/// The same, with boxes that are links.
KYR_EXPORT std::string drawSvg(const KYRClassDiagram& diagram, const DrawnLinks& links);
