// The page of a class or an interface.

const longestCell = 320;
const mostLinesInCell = 6;
const longestSummary = 160;

class ClassPage {
  constructor(fragments, class_, here) {
    this.fragments = fragments;
    this.model = fragments.model;
    this.class_ = class_;
    this.here = here;
    this.keysOf = this.readKeys();
  }

  content() {
    const { fragments, class_ } = this;
    const schema = this.model.get(class_.dataPackage);
    const tied = this.model.get(class_.association);
    return [
      fragments.crumbs(class_),
      fragments.title(class_, class_.isAbstract),
      fragments.chips(kindText(class_), class_.isAbstract ? "abstract" : "", visibilityText(class_),
        class_.isPhysicalClass ? "physical" : "", schema && ["in ", fragments.link(schema)],
        tied && ["class of the association " + shorten(nameOf(tied), longestName)]),
      fragments.description(class_),
      this.attributes(),
      new Neighbourhood(fragments, class_).content(),
      this.operations(),
      this.keys(),
      this.relations(),
      bulletList("Diagrams", this.model.side(class_, "diagrams"), (diagram) => fragments.link(diagram)),
      this.uses(),
      fragments.ending(class_),
    ];
  }

  // Attribute id -> what it is in keys.
  readKeys() {
    const parts = new Map();
    for (const key of this.class_.keys || []) {
      const text = key.class === "KYRForeignKey" ? "FK" : key.id === this.class_.primaryKey ? "PK" : key.isUnique ? "unique" : "key";
      for (const id of key.attributes || []) {
        if (!parts.has(id)) parts.set(id, new Set());
        parts.get(id).add(text);
      }
    }
    return parts;
  }

  attributes() {
    const { fragments } = this;
    return table("Attributes", this.class_.attributes || [], [
      ["Name", (attribute) => make("span", { class: "feature" }, this.featureName(attribute)), true],
      ["Type", (attribute) => fragments.type(attribute.type)],
      ["Data type", (attribute) => fragments.dataType(attribute.type)],
      ["Key", (attribute) => [...(this.keysOf.get(attribute.id) || [])].join(", ")],
      ["Initial value", (attribute) => attribute.initialValue && shorten(attribute.initialValue, longestName)],
      ["More", (attribute) => [attribute.isOptional ? "" : "required", attribute.isStatic ? "static" : "", attribute.isDerived ? "derived" : ""].filter(Boolean).join(", ")],
      ["Physical name", (attribute) => (attribute.physicalName !== attribute.name ? attribute.physicalName : "")],
      ["Description", (attribute) => this.annotations(attribute)],
    ], this.here);
  }

  featureName(feature) {
    return [make("span", { class: "faint", title: visibilityText(feature) }, visibilitySigns[feature.visibility || 0] + " "),
      this.fragments.name(feature)];
  }

  // Description, notes and tagged values of what has no page of its own; long ones wait to be opened.
  annotations(object) {
    const parts = this.annotationParts(object);
    if (parts.length === 0) return null;
    const text = readable(object.description || "");
    const lines = text.split("\n").length + (object.propertyValues || []).length;
    if (text.length <= longestCell && lines <= mostLinesInCell) return parts;
    const beginning = text === "" ? "Tagged values" : shorten(text, longestSummary).replace(/\s+/g, " ");
    return make("details", {}, make("summary", {}, beginning), parts);
  }

  annotationParts(object) {
    const { fragments } = this;
    const values = (object.propertyValues || []).map((value) => make("div", { class: "faint" },
      shorten(nameOf(this.model.get(value.propertyType) || {}), longestName) + ": ", value.value || ""));
    const notes = (object.notes || []).map((note) => make("div", { class: "text note", dir: "auto" }, readable(note.noteText || "")));
    return [fragments.description(object), notes, values].filter(hasContent);
  }

  operations() {
    const { fragments } = this;
    return table("Operations", this.class_.operations || [], [
      ["Operation", (operation) => [this.featureName(operation), "(", this.argumentList(operation), ")"], true],
      ["Returns", (operation) => fragments.type(operation.returnType)],
      ["More", (operation) => (operation.isStatic ? "static" : "")],
      ["Description", (operation) => this.annotations(operation)],
    ], this.here);
  }

  argumentList(operation) {
    const directions = ["", "", "out ", "inout ", "return "];
    return (operation.arguments || []).map((argument, index) => {
      const type = this.fragments.type(argument.type);
      return [index > 0 ? ", " : "", directions[argument.direction || 0] || "", this.fragments.name(argument), type && [": ", type]];
    });
  }

  keys() {
    const { fragments, class_ } = this;
    return table("Keys", class_.keys || [], [
      ["Key", (key) => fragments.name(key), true],
      ["Kind", (key) => (key.class === "KYRForeignKey" ? "foreign" : key.id === class_.primaryKey ? "primary" : key.isUnique ? "unique" : "candidate")],
      ["Attributes", (key) => (key.attributes || []).map((id) => nameOf(this.model.get(id) || {})).join(", ")],
      ["Refers to", (key) => this.referredKey(key)],
      ["Description", (key) => this.annotations(key)],
    ], this.here);
  }

  referredKey(key) {
    const referred = this.model.get(key.candidateKey);
    return referred === undefined ? null : [this.fragments.link(referred.owner), " ", this.fragments.name(referred)];
  }

  relations() {
    const { fragments, model, class_ } = this;
    const lists = [
      ["Supertypes", model.supertypes(class_)],
      ["Subtypes", model.subtypes(class_)],
      ["Realizes", model.other(class_, "realizes", "realizationClass")],
      ["Realized by", model.other(class_, "realizedBy", "specificationClass")],
      ["Depends on", model.other(class_, "suppliers", "supplierClass")],
      ["Needed by", model.other(class_, "clients", "clientClass")],
    ];
    return [
      lists.slice(0, 4).map(([title, classes]) => bulletList(title, classes, (other) => fragments.link(other), true)),
      this.associations(),
      lists.slice(4).map(([title, classes]) => bulletList(title, classes, (other) => fragments.link(other), true)),
    ];
  }

  associations() {
    const { fragments, model } = this;
    const ends = model.associationsOf(this.class_);
    return table("Associations", ends, [
      ["Other class", (end) => joined(end.others.map((other) => {
        const class_ = model.get(other.associatedClass);
        return class_ === undefined ? "(not in the model)" : fragments.link(class_);
      })), true],
      ["Its end", (end) => joined(end.others.map((other) => this.endText(other)))],
      ["This end", (end) => this.endText(end.role)],
      ["Association", (end) => this.associationText(end)],
      ["Description", (end) => this.annotations(end.association)],
    ], ends.find((end) => end.role === this.here));
  }

  associationText({ association, role, others }) {
    const kind = aggregation({ association, role, others });
    const parts = [association.name && this.fragments.name(association), kind && make("div", { class: "faint" }, kind)];
    return parts.filter(hasContent);
  }

  endText(role) {
    const parts = [role.name && this.fragments.name(role), role.multiplicity].filter(hasContent);
    return parts.length === 0 ? null : make("span", { class: "end" }, parts[0], parts.length > 1 ? [" ", parts[1]] : null);
  }

  uses() {
    const { fragments, model, class_ } = this;
    const features = model.side(class_, "classTypes").flatMap((type) => model.side(type, "typeUses"));
    return bulletList("Used as a type by", features, (feature) => featureLink(fragments, feature), true);
  }
}

function joined(parts) {
  return parts.filter(hasContent).map((part, index) => (index === 0 ? part : [", ", part]));
}

// The part bears the flag, and the whole the diamond.
function aggregation(end) {
  const kind = end.association.isComposite ? "composition" : "aggregation";
  if (end.others.some((other) => other.isAggregate)) return kind + " of parts";
  return end.role.isAggregate ? "part of a " + kind : "";
}

// A feature by the class that has it; an argument by its operation.
function featureLink(fragments, feature) {
  const above = kindOf(feature) === "argument" ? feature.owner : feature;
  return [fragments.link(above.owner), ".", fragments.link(above)];
}
