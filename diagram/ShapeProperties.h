// The display properties of a shape, applied to what stands for it in the repository.
#pragma once

#include "foundation/KYRDOM.h"
#include "repository/model/KYRPresentationElement.h"

/// False when the shape has no colour of that name. One that has no value leaves `color` as it is.
bool readColor(const KYRDOMElement* element, const char* name, std::int32_t& color);
/// Colour and width of the pen, each only where the shape tells it.
void readPen(const KYRDOMElement* element, KYRPresentationElement& target);
/// The font of the shape, or the default one.
void readFont(const KYRDOMElement* element, KYRPresentationElement& target);
