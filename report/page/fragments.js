// Pieces that several pages show: links, descriptions, types, notes, tagged values.

const longestName = 200;
const longestTitle = 1000;
const longestUnfolded = 1000;
const longestBeginning = 300;
const visibilities = ["public", "protected", "private", "package"];
const visibilitySigns = ["+", "#", "-", "~"];

class Fragments {
  constructor(model, addresses, pictures) {
    this.model = model;
    this.addresses = addresses;
    this.pictures = pictures;
  }

  link(object, text) {
    return make("a", { href: "#" + this.addresses.of(object) },
      make("bdi", {}, shorten(text === undefined ? nameOf(object) : text, longestName)));
  }

  name(object) { return make("bdi", {}, shorten(nameOf(object), longestName)); }

  // A link and what kind of thing it leads to.
  entry(object) {
    return [this.link(object), " ", make("span", { class: "chip" }, kindText(object)), this.beginning(object)];
  }

  beginning(object) {
    const text = shorten(readable(object.description || "").trim(), 140).replace(/\s+/g, " ");
    return text === "" ? null : make("span", { class: "faint" }, " ", text);
  }

  description(object) {
    return object.description ? make("div", { class: "text", dir: "auto" }, readable(object.description)) : null;
  }

  // The same where a list that follows must not be pushed away by it.
  foldedDescription(object) {
    const text = readable(object.description || "");
    if (text.length <= longestUnfolded) return this.description(object);
    return make("details", { class: "folded" }, make("summary", {}, shorten(text.trim(), longestBeginning).replace(/\s+/g, " ")),
      this.description(object));
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
    return type === undefined ? null : dataTypeText(type);
  }

  notes(object) {
    const notes = object.notes || [];
    return bulletList("Notes", notes, (note) => make("div", { class: "note" },
      note.name ? make("strong", {}, shorten(note.name, longestName)) : null,
      make("div", { class: "text", dir: "auto" }, readable(note.noteText || note.description || ""))));
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
const undefinedType = "undefined"; // says of a type that nothing is known

// Some tools keep texts as HTML documents. Of these the words are shown. It is a look at the characters, not
// a parse: what no parser for HTML ever sees cannot become more than text.
const skippedTags = new Set(["head", "style", "script"]);
const breakingTags = new Set(["br", "p", "div", "li", "tr", "ul", "ol", "h1", "h2", "h3", "/p", "/div", "/tr", "/ul", "/ol"]);
const characterNames = new Map(Object.entries({ lt: "<", gt: ">", amp: "&", quot: "\"", apos: "'", nbsp: " " }));

function readable(content) {
  if (!/^\s*<html\b/i.test(content)) return content;
  const words = [];
  let skipped = "";
  for (const piece of content.split("<").slice(1)) {
    const tag = /^\/?[a-z0-9]*/i.exec(piece)[0].toLowerCase();
    const end = piece.indexOf(">");
    if (skipped !== "" && tag !== "/" + skipped) continue;
    skipped = skippedTags.has(tag) ? tag : "";
    if (skipped !== "") continue;
    if (breakingTags.has(tag)) words.push("\n");
    words.push(end < 0 ? "<" + piece : piece.slice(end + 1));
  }
  const text = words.join("").replace(/&(#?[a-z0-9]{1,8});/gi, (whole, name) => characterOf(name.toLowerCase()) || whole);
  return text.split("\n").map((line) => line.trim()).filter((line) => line !== "").join("\n");
}

function characterOf(name) {
  if (!name.startsWith("#")) return characterNames.get(name);
  const number = name[1] === "x" ? parseInt(name.slice(2), 16) : parseInt(name.slice(1), 10);
  return number > 0 && number <= 0x10ffff ? String.fromCodePoint(number) : undefined;
}

function dataTypeText(type) {
  const dataType = type.dataType === undefinedType ? "" : type.dataType || "";
  if (!type.length) return dataType;
  return dataType + " (" + type.length + (type.scale ? ", " + type.scale : "") + ")";
}

function visibilityText(object) { return visibilities[object.visibility || 0]; }
