// The picture of a class and what it is tied to, with boxes and lines where the program found them laid out by
// Graphviz. A class is one box, however often it is tied; lines of associations have the texts of both ends
// in the middle, with arrows that tell which end each belongs to.

class PlacedPictures {
  // The element that holds them, or null.
  constructor(element) {
    this.packed = element === null ? {} : JSON.parse(element.textContent);
  }
  of(class_) {
    return Object.hasOwn(this.packed, class_.id) ? unpackPicture(this.packed[class_.id]) : null;
  }
}

const pieces = new Map([..."ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/"].map((letter, index) => [letter, index]));

// Numbers as letters of base 64: five bits each, the lowest first, and a bit that says that more follow. The
// lowest bit of all is the sign.
function* numbersOf(packed) {
  let value = 0;
  let factor = 1;
  for (const letter of packed) {
    const piece = pieces.get(letter);
    value += (piece % 32) * factor;
    factor *= 32;
    if (piece >= 32) continue;
    yield value % 2 === 1 ? -(value - 1) / 2 : value / 2;
    value = 0;
    factor = 1;
  }
}

const ties = ["association", "generalization", "realization", "dependency"];

function unpackPicture(packed) {
  const numbers = numbersOf(packed);
  const next = () => numbers.next().value;
  let before = 0;
  const nextId = () => (before += next());
  const picture = { width: next(), height: next(), isUpright: next() === 1, boxes: [], lines: [] };
  const ownHeight = next();
  for (let count = next(); count > 0; --count) {
    picture.boxes.push({ id: nextId(), x: next(), y: next(), width: next(), height: around.boxHeight });
  }
  picture.boxes[0].height = ownHeight;
  for (let count = next(); count > 0; --count) {
    const line = { tie: ties[next()], points: [] };
    if (line.tie === "association") {
      Object.assign(line, { firstRole: nextId(), secondRole: nextId(), textWidth: next() });
      if (line.textWidth > 0) line.text = [next(), next()];
    }
    const curves = next();
    let [x, y] = [0, 0];
    for (let i = curves === 0 ? 2 : curves * 3 + 1; i > 0; --i) line.points.push([x += next(), y += next()]);
    picture.lines.push(line);
  }
  return picture;
}

class PlacedPicture {
  constructor(fragments, class_, placed) {
    this.fragments = fragments;
    this.class_ = class_;
    this.placed = placed;
  }

  draw() {
    const { placed, fragments } = this;
    const shapes = placed.lines.map((line) => this.line(line));
    placed.boxes.forEach((box, index) => {
      shapes.push(index === 0 ? ownBox(fragments.model, this.class_, box)
        : neighbourBox(fragments.addresses, fragments.model.get(box.id), box.x, box.y, box.width));
    });
    const edge = 8;
    return { shapes, left: -edge, top: -edge, width: placed.width + 2 * edge, height: placed.height + 2 * edge };
  }

  line(line) {
    const { points, tie } = line;
    const path = draw("path", { d: pathOf(points), class: tie === "realization" || tie === "dependency" ? "dashed" : "" });
    const start = [points[0], wayOf(points)];
    const end = [points[points.length - 1], wayOf([...points].reverse())];
    if (tie === "dependency") return [path, arrow(...end)];
    if (tie !== "association") return [path, triangle(...start)];
    const [first, second] = [line.firstRole, line.secondRole].map((id) => this.fragments.model.get(id));
    const isFull = first.owner.isComposite;
    // The part bears the flag, and the whole the diamond.
    return [path, second.isAggregate ? diamond(...start, isFull) : null, first.isAggregate ? diamond(...end, isFull) : null,
      line.text && this.texts(line, first, second)];
  }

  texts({ text: [x, y], textWidth }, first, second) {
    const [before, behind] = this.placed.isUpright ? ["\u25b4", "\u25be"] : ["\u25c2", "\u25b8"];
    const left = x - textWidth / 2;
    const room = textWidth - 12;
    const words = [first, second].map((role) => endWords(role, room));
    const anchors = this.placed.isUpright ? [[left, "start"], [left, "start"]] : [[left, "start"], [left + textWidth, "end"]];
    return [
      words[0] && text(anchors[0][0], y - 5, before + " " + words[0], anchors[0][1], "label"),
      words[1] && text(anchors[1][0], y + 11, this.placed.isUpright ? behind + " " + words[1] : words[1] + " " + behind, anchors[1][1], "label"),
    ];
  }
}

// Of a long name something is left out, of its multiplicity not.
function endWords({ name, multiplicity }, room) {
  if (!multiplicity) return name ? fit(name, room, "label") : "";
  const shown = fit(multiplicity, room, "label");
  const left = room - widthOf(" " + shown, "label");
  return name && left > 2 * letterWidths.label ? fit(name, left, "label") + " " + shown : shown;
}

function pathOf(points) {
  const [first, ...others] = points.map(([x, y]) => x + "," + y);
  return "M" + first + (others.length === 1 ? "L" : "C") + others.join(" ");
}

// The direction in which a line leaves its first point.
function wayOf(points) {
  const [x, y] = points[0];
  const next = points.find(([otherX, otherY]) => Math.hypot(otherX - x, otherY - y) >= 1);
  if (next === undefined) return [1, 0];
  const length = Math.hypot(next[0] - x, next[1] - y);
  return [(next[0] - x) / length, (next[1] - y) / length];
}
