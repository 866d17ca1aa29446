// Pieces that several pages show: links, descriptions, types, notes, tagged values.

const longestName = 200;
const longestTitle = 1000;
const visibilities = ["public", "protected", "private", "package"];
const visibilitySigns = ["+", "#", "-", "~"];

class Fragments {
  constructor(model, addresses) {
    this.model = model;
    this.addresses = addresses;
  }

  link(object, text) {
    return make("a", { href: "#" + this.addresses.of(object) },
      make("bdi", {}, shorten(text === undefined ? nameOf(object) : text, longestName)));
  }

  name(object) { return make("bdi", {}, shorten(nameOf(object), longestName)); }

  // A link and what kind of thing it leads to.
  entry(object) {
    return [this.link(object), " ", make("span", { class: "chip" }, kindText(object)), this.firstLine(object)];
  }

  firstLine(object) {
    const line = (object.description || "").trim().split("\n", 1)[0];
    return line === "" ? null : make("span", { class: "faint" }, " ", shorten(line, 120));
  }

  description(object) {
    return object.description ? make("div", { class: "text", dir: "auto" }, object.description) : null;
  }

  crumbs(object) {
    const links = [];
    for (let above = object.owner; above !== null; above = above.owner) {
      if (links.length === mostCrumbs) {
        links.push("\u2026");
        break;
      }
      links.push(this.link(above));
    }
    links.reverse();
    return make("nav", { class: "crumbs", "aria-label": "Where this stands" },
      links.map((link, index) => (index === 0 ? link : [" / ", link])));
  }

  title(object, isAbstract) {
    const heading = make("h1", {}, make("bdi", {}, shorten(nameOf(object), longestTitle)));
    if (isAbstract) heading.className = "abstract";
    return heading;
  }

  chips(...texts) {
    const filled = texts.filter(hasContent);
    return filled.length === 0 ? null
      : make("ul", { class: "chips" }, filled.map((text) => make("li", { class: "chip" }, text)));
  }

  // The type of a feature; that of a class leads to the class.
  type(id) {
    const type = this.model.get(id);
    if (type === undefined) return null;
    const class_ = this.model.get(type.associatedClass);
    if (class_ !== undefined) return this.link(class_, type.name);
    return this.link(type);
  }

  dataType(id) {
    const type = this.model.get(id);
    if (type === undefined || !type.dataType) return null;
    return dataTypeText(type);
  }

  notes(object) {
    const notes = object.notes || [];
    return bulletList("Notes", notes, (note) => make("div", { class: "note" },
      note.name ? make("strong", {}, shorten(note.name, longestName)) : null,
      make("div", { class: "text", dir: "auto" }, note.noteText || note.description || "")));
  }

  taggedValues(object) {
    return table("Tagged values", object.propertyValues || [], [
      ["Tag", (value) => make("bdi", {}, shorten(nameOf(this.model.get(value.propertyType) || {}), longestName)), true],
      ["Value", (value) => make("div", { class: "text", dir: "auto" }, value.value || "")],
    ]);
  }

  // What every page ends with.
  ending(object) {
    return [
      this.notes(object),
      this.taggedValues(object),
      facts("Source", [
        ["Physical name", object.physicalName && object.physicalName !== object.name ? object.physicalName : ""],
        ["Id in the source", object.sourceId],
      ]),
    ];
  }
}

const mostCrumbs = 12;

function dataTypeText(type) {
  if (!type.length) return type.dataType || "";
  return (type.dataType || "") + " (" + type.length + (type.scale ? ", " + type.scale : "") + ")";
}

function visibilityText(object) { return visibilities[object.visibility || 0]; }
