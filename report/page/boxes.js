// What all pictures around a class are made of: boxes, texts that fit, and the ends of lines.

const around = {
  boxWidth: 200, boxHeight: 34, ownWidth: 220, rowHeight: 54, gap: 280, level: 64, mostAbove: 5, mostBeside: 8, mostAttributes: 8, lineHeight: 16, smallest: 0.65,
};

// The box of the class itself, with its first attributes.
function ownBox(model, class_, { x, y, width, height }) {
  const { attributes, leftOut } = shownAttributes(class_);
  const group = draw("g", { class: "own" }, draw("rect", { x, y, width, height, rx: 4 }),
    text(x + width / 2, y + 22, fit(nameOf(class_), width - 16, "name"), "middle", "name"));
  let row = y + around.boxHeight + 17;
  if (attributes.length > 0) group.append(line(x, y + around.boxHeight, x + width, y + around.boxHeight));
  for (const attribute of attributes) {
    const type = model.get(attribute.type);
    const words = nameOf(attribute) + (type === undefined ? "" : ": " + nameOf(type));
    group.append(text(x + 10, row, fit(words, width - 18, "plain"), "start", ""));
    row += around.lineHeight;
  }
  if (leftOut > 0) group.append(text(x + 10, row, leftOut + " more", "start", "label"));
  return group;
}

function shownAttributes(class_) {
  const attributes = (class_.attributes || []).slice(0, around.mostAttributes);
  return { attributes, leftOut: (class_.attributes || []).length - attributes.length };
}

// The box of another class, which leads to its page.
function neighbourBox(addresses, class_, x, y, width) {
  const name = nameOf(class_);
  return draw("a", { href: "#" + addresses.of(class_) },
    draw("title", {}, shorten(name, longestName)),
    draw("rect", { x, y, width, height: around.boxHeight, rx: 4 }),
    text(x + width / 2, y + 22, fit(name, width - 12, "name"), "middle", "name"));
}

function text(x, y, content, anchor, class_) {
  return draw("text", { x, y, "text-anchor": anchor, class: class_ }, content);
}

function line(x1, y1, x2, y2) { return draw("line", { x1, y1, x2, y2 }); }

function polyline(points, isDashed) {
  return draw("polyline", { points: points.join(" "), class: isDashed ? "dashed" : "" });
}

// Ends of lines: the tip is at the box, and the way on leads along a direction of length 1.
function triangle(tip, way) { return draw("polygon", { points: outline(tip, way, [[12, 7], [12, -7]]) }); }
function diamond(tip, way, isFull) {
  return draw("polygon", { class: isFull ? "full" : "", points: outline(tip, way, [[7, 5], [14, 0], [7, -5]]) });
}
function arrow(tip, way) {
  const [first, second] = [[9, 5], [9, -5]].map((corner) => turned(tip, way, corner));
  return polyline([first, tip, second], false);
}
function outline(tip, way, corners) { return [tip, ...corners.map((corner) => turned(tip, way, corner))].join(" "); }
function turned([x, y], [wayX, wayY], [along, beside]) {
  return [x + wayX * along - wayY * beside, y + wayY * along + wayX * beside].map((value) => Math.round(value * 10) / 10);
}

// What a letter needs, by what wide fonts have: a small one, and others as parts of it.
const letterWidths = { name: 8, label: 6.6, plain: 7.2 };
const wideLetter = 12.5; // of the scripts of East Asia and beyond

function letterWidth(content, index, kind) {
  if (content.charCodeAt(index) >= 0x2e80) return wideLetter;
  const letter = content[index];
  return letterWidths[kind] * (/[MWmw@%]/.test(letter) ? 1.5 : /[A-Z]/.test(letter) ? 1.16 : /[ijltf.,:;'|!()[\] ]/.test(letter) ? 0.6 : 1);
}

function widthOf(content, kind) {
  let width = 0;
  for (let i = 0; i < content.length; ++i) width += letterWidth(content, i, kind);
  return width;
}

// As much of a text as fits the width.
function fit(content, width, kind) {
  let used = 0;
  for (let i = 0; i < content.length; ++i) {
    used += letterWidth(content, i, kind);
    if (used > width) return shorten(content, Math.max(i - 1, 1));
  }
  return content;
}
