// The picture of a class and what it is tied to: supertypes above, subtypes below, what it is associated
// with to the right (where it is the first end) and to the left (where it is another). The box of the class is
// as high as its neighbours beside it need, so every line to them is straight and no two cross.

const around = {
  boxWidth: 200, boxHeight: 34, ownWidth: 220, rowHeight: 54, gap: 280, level: 64, mostAbove: 5, mostBeside: 8, mostAttributes: 8, lineHeight: 16,
};

class Neighbourhood {
  constructor(fragments, class_) {
    this.fragments = fragments;
    this.class_ = class_;
    this.shapes = [];
  }

  content() {
    this.gather();
    if (this.above.length + this.below.length + this.left.length + this.right.length === 0) return null;
    return section("Neighbourhood", 0, make("div", { class: "picture around", tabindex: "0", role: "group", "aria-label": "Neighbourhood, scrollable" }, this.picture()));
  }

  gather() {
    const { class_ } = this;
    const { model } = this.fragments;
    const inherited = (class_) => ({ class_ });
    const realized = (class_) => ({ class_, isDashed: true });
    this.above = [...model.supertypes(class_).map(inherited), ...model.other(class_, "realizes", "realizationClass").map(realized)];
    this.below = [...model.subtypes(class_).map(inherited), ...model.other(class_, "realizedBy", "specificationClass").map(realized)];
    this.left = [];
    this.right = [];
    for (const { role, association, others } of model.associationsOf(class_)) {
      for (const other of others) {
        if (other.associatedClass === class_.id && association.roles[0] !== role) continue; // seen from its first end
        const neighbour = { class_: model.get(other.associatedClass), role, other, association };
        if (neighbour.class_ !== undefined) (association.roles[0] === role ? this.right : this.left).push(neighbour);
      }
    }
    const needed = (class_) => ({ class_, isDashed: true, isArrow: true });
    this.right.push(...model.other(class_, "suppliers", "supplierClass").map(needed));
    this.left.push(...model.other(class_, "clients", "clientClass").map(needed));
  }

  picture() {
    const beside = Math.max(shownCount(this.left, around.mostBeside), shownCount(this.right, around.mostBeside));
    const attributes = (this.class_.attributes || []).slice(0, around.mostAttributes);
    const leftOut = (this.class_.attributes || []).length - attributes.length;
    const textHeight = around.boxHeight + (attributes.length + (leftOut > 0 ? 1 : 0)) * around.lineHeight + (attributes.length > 0 ? 8 : 0);
    this.own = { width: around.ownWidth, height: Math.max(textHeight, beside * around.rowHeight) };
    this.own.x = -this.own.width / 2;
    this.own.y = 0;
    this.drawOwn(attributes, leftOut);
    this.drawRow(this.above, -around.level - around.boxHeight, true);
    this.drawRow(this.below, this.own.height + around.level, false);
    this.drawColumn(this.left, -1);
    this.drawColumn(this.right, 1);
    const left = -this.reach(this.left);
    const width = this.reach(this.right) - left;
    const top = this.above.length > 0 ? -around.level - around.boxHeight - 24 : -8;
    const height = this.own.height + (this.below.length > 0 ? around.level + around.boxHeight + 24 : 8) - top;
    const svg = draw("svg", { viewBox: [left, top, width, height].join(" "), role: "group",
      "aria-label": "Neighbourhood of " + plain(shorten(nameOf(this.class_), longestName)) }, this.shapes);
    // As large as it was laid out, and smaller where there is no room.
    svg.style.maxWidth = width + "px";
    return svg;
  }

  // How far the picture goes to the side of those neighbours.
  reach(beside) {
    const column = this.own.width / 2 + (beside.length > 0 ? around.gap + around.boxWidth : 0);
    const inRow = Math.max(shownCount(this.above, around.mostAbove), shownCount(this.below, around.mostAbove));
    return Math.max(column, inRow * (around.boxWidth + 16) / 2) + 8;
  }

  drawOwn(attributes, leftOut) {
    const { own } = this;
    const group = draw("g", { class: "own" }, draw("rect", { x: own.x, y: own.y, width: own.width, height: own.height, rx: 4 }),
      text(0, own.y + 22, fit(nameOf(this.class_), own.width - 16, "name"), "middle", "name"));
    let y = own.y + around.boxHeight + 17;
    if (attributes.length > 0) group.append(line(own.x, own.y + around.boxHeight, own.x + own.width, own.y + around.boxHeight));
    for (const attribute of attributes) {
      const type = this.fragments.model.get(attribute.type);
      const words = nameOf(attribute) + (type === undefined ? "" : ": " + nameOf(type));
      group.append(text(own.x + 10, y, fit(words, own.width - 20, "plain"), "start", ""));
      y += around.lineHeight;
    }
    if (leftOut > 0) group.append(text(own.x + 10, y, leftOut + " more", "start", "label"));
    this.shapes.push(group);
  }

  drawBox(neighbour, x, y) {
    const name = nameOf(neighbour.class_);
    this.shapes.push(draw("a", { href: "#" + this.fragments.addresses.of(neighbour.class_) },
      draw("title", {}, shorten(name, longestName)),
      draw("rect", { x, y, width: around.boxWidth, height: around.boxHeight, rx: 4 }),
      text(x + around.boxWidth / 2, y + 22, fit(name, around.boxWidth - 12, "name"), "middle", "name")));
  }

  // Supertypes or subtypes: each with a line of its own to the class, the triangle at the supertype.
  drawRow(neighbours, y, isAbove) {
    const count = shownCount(neighbours, around.mostAbove);
    const step = around.boxWidth + 16;
    const near = isAbove ? this.own.y : this.own.y + this.own.height;
    const far = isAbove ? y + around.boxHeight : y;
    const middle = (near + far) / 2;
    for (let i = 0; i < count; ++i) {
      const x = (i - (count - 1) / 2) * step;
      const path = isAbove ? [[0, near], [0, middle], [x, middle], [x, far + 12]] : [[x, far], [x, middle], [0, middle], [0, near + 12]];
      this.shapes.push(polyline(path, neighbours[i].isDashed));
      const tip = isAbove ? [x, far] : [0, near];
      this.shapes.push(draw("polygon", { points: [tip, [tip[0] - 7, tip[1] + 12], [tip[0] + 7, tip[1] + 12]].join(" ") }));
      this.drawBox(neighbours[i], x - around.boxWidth / 2, y);
    }
    if (neighbours.length > count) {
      this.shapes.push(text(0, isAbove ? y - 8 : y + around.boxHeight + 18, neighbours.length - count + " more", "middle", "label"));
    }
  }

  drawColumn(neighbours, side) {
    const count = shownCount(neighbours, around.mostBeside);
    const near = side * this.own.width / 2;
    const far = near + side * around.gap;
    const rowHeight = this.own.height / Math.max(count, 1);
    for (let i = 0; i < count; ++i) {
      const y = this.own.y + rowHeight * (i + 0.5);
      const isMore = i === count - 1 && neighbours.length > count;
      if (isMore) {
        this.shapes.push(text(far + side * around.boxWidth / 2, y + 4, neighbours.length - count + 1 + " more", "middle", "label"));
        break;
      }
      this.drawTie(neighbours[i], near, far, y, side);
      this.drawBox(neighbours[i], side > 0 ? far : far - around.boxWidth, y - around.boxHeight / 2);
    }
  }

  drawTie(neighbour, near, far, y, side) {
    this.shapes.push(polyline([[near, y], [far, y]], neighbour.isDashed));
    if (neighbour.isArrow) {
      const tip = side > 0 ? far : near;
      this.shapes.push(polyline([[tip - 9, y - 5], [tip, y], [tip - 9, y + 5]], false));
      return;
    }
    if (neighbour.other.isAggregate) this.drawDiamond(near, y, side, neighbour.association.isComposite);
    if (neighbour.role.isAggregate) this.drawDiamond(far, y, -side, neighbour.association.isComposite);
    const label = (x, role, opposite, anchor) => {
      // Where the opposite end says nothing its room is there to be taken.
      const roomFor = (field) => (opposite[field] ? around.gap / 2 - 24 : around.gap - 40);
      if (role.name) this.shapes.push(text(x, y - 5, fit(role.name, roomFor("name"), "label"), anchor, "label"));
      if (role.multiplicity) this.shapes.push(text(x, y + 13, fit(role.multiplicity, roomFor("multiplicity"), "label"), anchor, "label"));
    };
    const { role, other } = neighbour;
    label(near + side * 18, role, other, side > 0 ? "start" : "end");
    label(far - side * 18, other, role, side > 0 ? "end" : "start");
  }

  drawDiamond(x, y, side, isFull) {
    const points = [[x, y], [x + side * 7, y - 5], [x + side * 14, y], [x + side * 7, y + 5]];
    this.shapes.push(draw("polygon", { class: isFull ? "full" : "", points: points.join(" ") }));
  }
}

function shownCount(neighbours, most) { return Math.min(neighbours.length, most); }

function text(x, y, content, anchor, class_) {
  return draw("text", { x, y, "text-anchor": anchor, class: class_ }, content);
}

function line(x1, y1, x2, y2) { return draw("line", { x1, y1, x2, y2 }); }

function polyline(points, isDashed) {
  return draw("polyline", { points: points.join(" "), class: isDashed ? "dashed" : "" });
}

// As much of a text as fits the width, by what letters of that kind need on average.
const letterWidths = { name: 7.6, label: 6.8, plain: 6.7 };
const wideLetter = 12.5;

function fit(content, width, kind) {
  let used = 0;
  for (let i = 0; i < content.length; ++i) {
    used += content.charCodeAt(i) < 0x2e80 ? letterWidths[kind] : wideLetter;
    if (used > width) return shorten(content, Math.max(i - 1, 1));
  }
  return content;
}
