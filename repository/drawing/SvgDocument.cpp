// Elements, attributes and texts of SVG.
#include "repository/drawing/SvgDocument.h"

#include <charconv>

#include "repository/storage/Utf8.h"

namespace {

constexpr double margin = 10;
constexpr double largestSide = 16384;  // viewers refuse much larger pictures; the content is scaled then
constexpr int widestPen = 20;
constexpr const char* replacement = "\xEF\xBF\xBD";

void appendNumber(std::string& out, double number) {
  char digits[64];
  // Hundredths are finer than any screen.
  const double rounded = std::round(number * 100) / 100;
  const auto end = std::to_chars(digits, digits + sizeof digits, rounded == 0 ? 0.0 : rounded).ptr;
  out.append(digits, end);
}

void appendAttribute(std::string& out, const char* name, double number) {
  out.append(" ").append(name).append("=\"");
  appendNumber(out, number);
  out += '"';
}

void appendColor(std::string& out, const char* name, std::int32_t color) {
  constexpr const char* digits = "0123456789abcdef";
  const auto value = static_cast<std::uint32_t>(color);
  out.append(" ").append(name).append("=\"#");
  for (const unsigned int shift : {0U, 8U, 16U}) {  // red is the lowest byte
    out += digits[(value >> (shift + 4)) & 0xF];
    out += digits[(value >> shift) & 0xF];
  }
  out += '"';
}

bool isNoCharacter(std::string_view text, std::size_t at) {
  const std::string_view three = text.substr(at, 3);
  return three == "\xEF\xBF\xBE" || three == "\xEF\xBF\xBF";
}

void appendEscaped(std::string& out, std::string_view text) {
  std::string repaired;
  if (examineUtf8(text) == Utf8Shape::damaged) {
    repaired = repairUtf8(text);
    text = repaired;
  }
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char character = text[i];
    if (character == '&') {
      out += "&amp;";
    } else if (character == '<') {
      out += "&lt;";
    } else if (character == '>') {
      out += "&gt;";
    } else if (character == '"') {
      out += "&quot;";
    } else if (character == '\t' || character == '\n' || character == '\r') {
      out += ' ';
    } else if (static_cast<unsigned char>(character) < ' ') {
      out += replacement;
    } else if (isNoCharacter(text, i)) {
      out += replacement;
      i += 2;
    } else {
      out += character;
    }
  }
}

// A name is put between quotes of a style sheet, in which only plain characters mean themselves.
void appendFamily(std::string& out, std::string_view family) {
  std::string plain;
  for (const char character : family) {
    const bool isLetter = (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') ||
                          (character >= '0' && character <= '9');
    if (isLetter || character == ' ' || character == '-' || character == '_' || (character & 0x80) != 0) {
      plain += character;
    }
  }
  out += " font-family=\"";
  if (!plain.empty()) {
    out += '\'';
    appendEscaped(out, plain);
    out += "', ";
  }
  out += "sans-serif\"";
}

const char* nameOf(SvgDocument::Anchor anchor) {
  if (anchor == SvgDocument::Anchor::start) return "start";
  return anchor == SvgDocument::Anchor::middle ? "middle" : "end";
}

void appendBox(std::string& out, const DrawnBox& box) {
  appendAttribute(out, "x", box.left);
  appendAttribute(out, "y", box.top);
  appendAttribute(out, "width", box.width());
  appendAttribute(out, "height", box.height());
}

}  // namespace

void SvgDocument::rectangle(const DrawnBox& box, const Pen& pen, std::int32_t fill) {
  include({box.left, box.top});
  include({box.right, box.bottom});
  body_ += "<rect";
  appendBox(body_, box);
  appendColor(body_, "fill", fill);
  appendPen(pen);
  body_ += "/>\n";
}

void SvgDocument::path(const DrawnPath& points, const Pen& pen) {
  if (points.size() < 2) return;
  body_ += "<polyline";
  appendPoints(points);
  body_ += " fill=\"none\"";
  appendPen(pen);
  body_ += "/>\n";
}

void SvgDocument::polygon(const DrawnPath& points, const Pen& pen, std::int32_t fill) {
  body_ += "<polygon";
  appendPoints(points);
  appendColor(body_, "fill", fill);
  appendPen(pen);
  body_ += "/>\n";
}

void SvgDocument::text(DrawnPoint point, std::string_view content, const Font& font, Anchor anchor) {
  const double width = widthOf(content, font.size);
  const double left = anchor == Anchor::start ? 0 : anchor == Anchor::end ? width : width / 2;
  include({point.x - left, point.y - font.size});
  include({point.x - left + width, point.y});
  body_ += "<text";
  appendAttribute(body_, "x", point.x);
  appendAttribute(body_, "y", point.y);
  body_.append(" text-anchor=\"").append(nameOf(anchor)).append("\"");
  appendFamily(body_, font.family);
  appendAttribute(body_, "font-size", font.size);
  appendColor(body_, "fill", font.color);
  if (font.isBold) body_ += " font-weight=\"bold\"";
  if (font.isItalic) body_ += " font-style=\"italic\"";
  if (font.isUnderlined) body_ += " text-decoration=\"underline\"";
  body_ += '>';
  appendEscaped(body_, content);
  body_ += "</text>\n";
}

void SvgDocument::beginClip(const DrawnBox& box) {
  const std::string id = "clip" + std::to_string(++clipCount_);
  body_ += "<clipPath id=\"" + id + "\"><rect";
  appendBox(body_, box);
  body_ += "/></clipPath>\n<g clip-path=\"url(#" + id + ")\">\n";
  isClipping_ = true;
}

void SvgDocument::endClip() {
  body_ += "</g>\n";
  isClipping_ = false;
}

void SvgDocument::beginLink(std::string_view address) {
  body_ += "<a xlink:href=\"";
  appendEscaped(body_, address);
  body_ += "\">\n";
  hasLinks_ = true;
}

void SvgDocument::endLink() { body_ += "</a>\n"; }

std::string SvgDocument::finish(std::string_view title) {
  const double width = bounds_.width() + 2 * margin;
  const double height = bounds_.height() + 2 * margin;
  const double scale = std::min(1.0, largestSide / std::max(width, height));
  std::string document =
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
      "<svg xmlns=\"http://www.w3.org/2000/svg\" version=\"1.1\"";
  if (hasLinks_) document += " xmlns:xlink=\"http://www.w3.org/1999/xlink\"";
  appendAttribute(document, "width", std::max(width * scale, 1.0));
  appendAttribute(document, "height", std::max(height * scale, 1.0));
  document += " viewBox=\"";
  appendNumber(document, bounds_.left - margin);
  document += ' ';
  appendNumber(document, bounds_.top - margin);
  document += ' ';
  appendNumber(document, width);
  document += ' ';
  appendNumber(document, height);
  document += "\">\n<title>";
  appendEscaped(document, title);
  document += "</title>\n<rect";
  appendBox(document,
            {bounds_.left - margin, bounds_.top - margin, bounds_.right + margin, bounds_.bottom + margin});
  document += " fill=\"#ffffff\"/>\n";
  return document + body_ + "</svg>\n";
}

double SvgDocument::widthOf(std::string_view content, double size) {
  constexpr double narrow = 0.56;
  double width = 0;
  for (const char character : content) {
    const auto byte = static_cast<unsigned char>(character);
    if ((byte & 0xC0) == 0x80) continue;  // inside a character
    width += byte < 0xE0 ? narrow : 1;    // letters of three bytes and more are mostly wide ones
  }
  return width * size;
}

void SvgDocument::include(DrawnPoint point) {
  if (isClipping_) return;
  if (isEmpty_) bounds_ = {point.x, point.y, point.x, point.y};
  isEmpty_ = false;
  bounds_.left = std::min(bounds_.left, point.x);
  bounds_.top = std::min(bounds_.top, point.y);
  bounds_.right = std::max(bounds_.right, point.x);
  bounds_.bottom = std::max(bounds_.bottom, point.y);
}

void SvgDocument::appendPen(const Pen& pen) {
  appendColor(body_, "stroke", pen.color);
  appendAttribute(body_, "stroke-width", std::clamp(pen.width, 1, widestPen));
  if (pen.isDashed) body_ += " stroke-dasharray=\"6 4\"";
}

void SvgDocument::appendPoints(const DrawnPath& points) {
  body_ += " points=\"";
  bool isFirst = true;
  for (const DrawnPoint point : points) {
    include(point);
    if (!isFirst) body_ += ' ';
    isFirst = false;
    appendNumber(body_, point.x);
    body_ += ',';
    appendNumber(body_, point.y);
  }
  body_ += '"';
}
