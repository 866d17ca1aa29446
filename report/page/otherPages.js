// The pages of packages, types, schemas and diagrams, the lists of them, and the first page.

function packagePage(fragments, package_) {
  const elements = package_.elements || [];
  const ofKind = (kind) => elements.filter((element) => kindOf(element) === kind);
  return [
    fragments.crumbs(package_),
    fragments.title(package_),
    fragments.chips("package", package_.isModelPackage ? "" : "made by the import"),
    fragments.foldedDescription(package_),
    bulletList("Packages", ofKind("package"), (inner) => fragments.entry(inner)),
    classTable(fragments, "Classes", ofKind("class")),
    bulletList("Diagrams", package_.diagrams || [], (diagram) => fragments.link(diagram)),
    table("Associations", ofKind("association"), [
      ["Association", (association) => association.name && fragments.name(association)],
      ["Ends", (association) => association.roles && association.roles.map((role, index) => [index > 0 ? " \u2014 " : "", roleText(fragments, role)]), true],
      ["Description", (association) => fragments.beginning(association)],
    ]),
    fragments.ending(package_),
  ];
}

function roleText(fragments, role) {
  const class_ = fragments.model.get(role.associatedClass);
  const text = [role.name ? shorten(role.name, longestName) : "", role.multiplicity || ""].filter(Boolean).join(" ");
  return [class_ === undefined ? "(not in the model)" : fragments.link(class_), text && make("span", { class: "faint" }, " " + text)];
}

function classTable(fragments, title, classes) {
  return table(title, classes, [
    ["Name", (class_) => fragments.link(class_), true],
    ["Kind", (class_) => kindText(class_) + (class_.isAbstract ? ", abstract" : "")],
    ["Attributes", (class_) => (class_.attributes || []).length || ""],
    ["Operations", (class_) => (class_.operations || []).length || ""],
    ["Description", (class_) => fragments.beginning(class_)],
  ]);
}

function typePage(fragments, type, here) {
  const { model } = fragments;
  const base = model.get(type.baseConcreteType);
  return [
    fragments.crumbs(type),
    fragments.title(type),
    fragments.chips(kindText(type), type.userDefined ? "user defined" : ""),
    fragments.description(type),
    facts("Data type", [
      ["Data type", dataTypeText(type)],
      ["Native data type", type.nativeDataType],
      ["Based on", base && fragments.link(base)],
    ]),
    table("Values", type.typeValues || [], [
      ["Name", (value) => fragments.name(value), true],
      ["Value", (value) => value.value && shorten(value.value, longestName)],
      ["Description", (value) => fragments.description(value)],
    ], here),
    bulletList("Types based on this one", model.side(type, "derivedTypes"), (derived) => fragments.link(derived), true),
    bulletList("Used by", model.side(type, "typeUses"), (feature) => featureLink(fragments, feature), true),
    fragments.ending(type),
  ];
}

function schemaPage(fragments, schema) {
  const held = (schema.elements || []).filter((element) => pageKinds.has(kindOf(element)));
  const members = fragments.model.side(schema, "members");
  return [
    fragments.crumbs(schema),
    fragments.title(schema),
    fragments.chips(kindText(schema)),
    fragments.description(schema),
    classTable(fragments, "Classes", members.filter((member) => kindOf(member) === "class")),
    bulletList("Elements", held, (element) => fragments.entry(element)),
    fragments.ending(schema),
  ];
}

function diagramPage(fragments, diagram) {
  const shown = (diagram.modelElements || []).map((id) => fragments.model.get(id))
    .filter((object) => object !== undefined && pageKinds.has(kindOf(object)));
  return [
    fragments.crumbs(diagram),
    fragments.title(diagram),
    fragments.chips("diagram"),
    fragments.description(diagram),
    picture(diagram),
    bulletList("On this diagram", [...new Set(shown)], (object) => fragments.entry(object)),
    fragments.ending(diagram),
  ];
}

const pictureElements = new Set(["svg", "title", "g", "a", "rect", "polyline", "polygon", "text", "clipPath"]);

// Our own drawing, read as XML. Whatever it held besides its few kinds of elements would be left out.
function picture(diagram) {
  const source = document.getElementById("diagram-" + diagram.id);
  if (source === null) return null;
  const parsed = new DOMParser().parseFromString(source.textContent, "image/svg+xml").documentElement;
  for (const element of [...parsed.querySelectorAll("*")]) {
    if (!pictureElements.has(element.localName)) element.remove();
  }
  // What is read out is the label; a title inside would be a second one, shown over every box.
  for (const title of [...parsed.querySelectorAll("title")]) title.remove();
  const boxes = parsed.querySelectorAll("rect").length - 1; // one is the ground
  if (boxes < 1) return make("p", { class: "faint" }, "The import found no shapes of classes for this diagram.");
  parsed.setAttribute("role", "group");
  parsed.setAttribute("aria-label", "Diagram " + plain(shorten(nameOf(diagram), longestName)));
  return make("div", { class: "picture paper", tabindex: "0", role: "group", "aria-label": "Picture" }, document.importNode(parsed, true));
}

function typesPage(fragments) {
  const types = fragments.model.ofKind("type").filter((type) => type.class !== "KYRClassType");
  const isBase = (type) => type.class === "KYRConcreteType"; // a data type as such, which others rest on
  const columns = [
    ["Name", (type) => fragments.link(type), true],
    ["Data type", (type) => dataTypeText(type)],
    ["Native data type", (type) => (type.nativeDataType !== type.name ? type.nativeDataType : "")],
    ["Values", (type) => (type.typeValues ? shorten(type.typeValues.slice(0, 8).map(nameOf).join(", "), 150) + (type.typeValues.length > 8 ? ", \u2026" : "") : "")],
    ["Description", (type) => fragments.beginning(type)],
  ];
  return [
    make("h1", {}, "Types"),
    table("Enumerations", types.filter((type) => type.typeValues), columns),
    table("Other types", types.filter((type) => !type.typeValues && !isBase(type)), columns),
    bulletList("Base types", types.filter((type) => !type.typeValues && isBase(type)), (type) => fragments.link(type), true),
  ];
}

function listPage(fragments, title, kind) {
  return [
    make("h1", {}, title),
    bulletList("All", fragments.model.ofKind(kind), (object) => [fragments.link(object),
      object.owner !== fragments.model.root ? make("span", { class: "faint" }, " in ", fragments.link(object.owner)) : null, fragments.beginning(object)]),
  ];
}

function homePage(fragments) {
  const { model } = fragments;
  const { saved, root } = model;
  const counts = new Map();
  for (const object of model.objects.values()) counts.set(kindText(object), (counts.get(kindText(object)) || 0) + 1);
  const counted = [["package", "packages"], ["class", "classes"], ["interface", "interfaces"], ["attribute", "attributes"],
    ["operation", "operations"], ["association", "associations"], ["generalization", "generalizations"],
    ["realization", "realizations"], ["dependency", "dependencies"], ["key", "keys"], ["foreign key", "foreign keys"],
    ["type", "types"], ["enumeration", "enumerations"], ["schema", "schemas"], ["data package", "data packages"],
    ["diagram", "diagrams"]];
  return [
    fragments.title(root),
    fragments.chips("model", saved.dataStore ? "data store " + saved.dataStore + (saved.dataStoreVersion ? " " + saved.dataStoreVersion : "") : ""),
    fragments.foldedDescription(root),
    bulletList("Packages", root.designPackages || [], (package_) => fragments.entry(package_)),
    bulletList("Diagrams", model.ofKind("diagram"), (diagram) => fragments.link(diagram), true),
    facts("Contents", counted.map(([kind, several]) => [counts.get(kind) === 1 ? kind : several, counts.get(kind)])),
    (saved.origins || []).map((origin) => facts("Origin", [
      ["File", origin.filePath],
      ["Tool", [origin.toolName, origin.toolVersion, origin.toolDetail].filter(Boolean).join(" ")],
      ["Format", [origin.formatName, origin.formatVersion].filter(Boolean).join(", ")],
      ["Encoding", origin.fileEncoding],
      ["Imported with", [origin.bridgeName, origin.buildVersion].filter(Boolean).join(" ")],
      ["Saved", saved.modificationTime],
    ])),
    importMessages(),
    fragments.ending(root),
  ];
}

// What the import said, when the page was given its log.
function importMessages() {
  const source = document.getElementById("messages");
  if (source === null) return null;
  return table("Messages of the import", JSON.parse(source.textContent), [
    ["Level", ([level]) => level],
    ["Code", ([, code]) => code],
    ["Message", ([, , text]) => make("div", { class: "text", dir: "auto" }, shorten(text, longestTitle)), true],
  ]);
}

function lostPage(address) {
  return [make("h1", {}, "Not here"), make("p", {}, "The model has nothing at \u201c" + shorten(address, 200) + "\u201d.")];
}
