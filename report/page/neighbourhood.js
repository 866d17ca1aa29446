// The picture of a class and what it is tied to: supertypes above, subtypes below, what it is associated
// with to the right (where it is the first end) and to the left (where it is another). The box of the class is
// as high as its neighbours beside it need, so every line to them is straight and no two cross. Where Graphviz has
// laid out the picture that one is shown instead.

class Neighbourhood {
  constructor(fragments, class_) {
    this.fragments = fragments;
    this.class_ = class_;
    this.shapes = [];
  }

  content() {
    this.gather();
    const count = this.above.length + this.below.length + this.left.length + this.right.length;
    if (count === 0) return null;
    const placed = this.fragments.pictures.of(this.class_);
    const picture = placed === null ? this.draw() : new PlacedPicture(this.fragments, this.class_, placed).draw();
    // The own picture tells at each side how many there are besides.
    const leftOut = placed === null ? 0 : count - placed.lines.length;
    return section("Neighbourhood", 0,
      make("div", { class: "picture around", tabindex: "0", role: "group", "aria-label": "Neighbourhood, scrollable" }, this.svg(picture)),
      leftOut > 0 ? make("p", { class: "faint" }, "Not in the picture: " + leftOut + " more, which stand in the lists.") : null);
  }

  svg({ shapes, left, top, width, height }) {
    const svg = draw("svg", { viewBox: [left, top, width, height].join(" "), role: "group",
      "aria-label": "Neighbourhood of " + plain(shorten(nameOf(this.class_), longestName)) }, shapes);
    // As large as it was laid out, and smaller where there is no room, down to letters that can still be read:
    // then it can be scrolled.
    svg.style.maxWidth = width + "px";
    svg.style.minWidth = width * around.smallest + "px";
    return svg;
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

  draw() {
    const beside = Math.max(shownCount(this.left, around.mostBeside), shownCount(this.right, around.mostBeside));
    const { attributes, leftOut } = shownAttributes(this.class_);
    const textHeight = around.boxHeight + (attributes.length + (leftOut > 0 ? 1 : 0)) * around.lineHeight + (attributes.length > 0 ? 8 : 0);
    this.own = { width: around.ownWidth, height: Math.max(textHeight, beside * around.rowHeight) };
    this.own.x = -this.own.width / 2;
    this.own.y = 0;
    this.shapes.push(ownBox(this.fragments.model, this.class_, this.own));
    this.drawRow(this.above, -around.level - around.boxHeight, true);
    this.drawRow(this.below, this.own.height + around.level, false);
    this.drawColumn(this.left, -1);
    this.drawColumn(this.right, 1);
    const left = -this.reach(this.left);
    const width = this.reach(this.right) - left;
    const top = this.above.length > 0 ? -around.level - around.boxHeight - 24 : -8;
    const height = this.own.height + (this.below.length > 0 ? around.level + around.boxHeight + 24 : 8) - top;
    return { shapes: this.shapes, left, top, width, height };
  }

  // How far the picture goes to the side of those neighbours.
  reach(beside) {
    const column = this.own.width / 2 + (beside.length > 0 ? around.gap + around.boxWidth : 0);
    const inRow = Math.max(shownCount(this.above, around.mostAbove), shownCount(this.below, around.mostAbove));
    return Math.max(column, inRow * (around.boxWidth + 16) / 2) + 8;
  }

  drawBox(neighbour, x, y) {
    this.shapes.push(neighbourBox(this.fragments.addresses, neighbour.class_, x, y, around.boxWidth));
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
      this.shapes.push(triangle(isAbove ? [x, far] : [0, near], [0, 1]));
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
      this.shapes.push(arrow([tip, y], [-1, 0]));
      return;
    }
    if (neighbour.other.isAggregate) this.shapes.push(diamond([near, y], [side, 0], neighbour.association.isComposite));
    if (neighbour.role.isAggregate) this.shapes.push(diamond([far, y], [-side, 0], neighbour.association.isComposite));
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
}

function shownCount(neighbours, most) { return Math.min(neighbours.length, most); }
