// The tree of packages at the side. What a package holds is listed when it is opened.

const deepestRevealed = 100; // lists in lists, which a browser lays out all at once

class Tree {
  constructor(place, fragments) {
    this.fragments = fragments;
    this.nodes = new Map(); // id -> what was made for the object
    const { model } = fragments;
    const shortcuts = [["", "Overview"], ["types", "Types"], ["schemas", "Schemas"], ["diagrams", "Diagrams"]];
    const kindOfShortcut = { types: "type", schemas: "schema", diagrams: "diagram" };
    const used = shortcuts.filter(([address]) => address === "" || model.ofKind(kindOfShortcut[address]).length > 0);
    this.shortcuts = new Map();
    const list = make("ul", {}, used.map(([address, title]) => {
      const link = make("a", { href: "#" + address }, title);
      this.shortcuts.set(address, link);
      return make("li", {}, make("div", { class: "row" }, link));
    }));
    this.top = make("ul", {});
    this.topList = fillList(this.top, model.root.designPackages || [], (package_) => this.makeEntry(package_));
    place.append(list, make("hr", {}), this.top, this.topList.button);
    const packages = model.root.designPackages || [];
    if (packages.length === 1) this.nodes.get(packages[0].id).open?.();
  }

  makeEntry(object) {
    const link = this.fragments.link(object);
    const row = make("div", { class: "row" });
    const entry = make("li", {}, row);
    const node = { link, open: null, list: null };
    this.nodes.set(object.id, node);
    const inner = entriesOf(object);
    if (inner.length === 0) {
      row.append(make("span", { class: "leaf", "aria-hidden": "true" }, signOf(object)), link);
      return entry;
    }
    const toggle = make("button", { type: "button", class: "toggle", "aria-expanded": "false",
      "aria-label": "Contents of " + shorten(nameOf(object), longestName) });
    let list = null;
    const set = (isOpen) => {
      if (isOpen && list === null) {
        list = make("ul", {});
        node.list = fillList(list, inner, (child) => this.makeEntry(child));
        entry.append(list, node.list.button);
      }
      toggle.setAttribute("aria-expanded", String(isOpen));
      list.hidden = !isOpen;
      node.list.button.classList.toggle("unseen", !isOpen);
    };
    node.open = () => set(true);
    toggle.addEventListener("click", () => set(toggle.getAttribute("aria-expanded") === "false"));
    row.append(toggle, link);
    return entry;
  }

  // Opens the way to the object and marks it; an address of a list marks its link.
  mark(object, address) {
    if (this.marked) this.marked.removeAttribute("aria-current");
    this.marked = object === undefined ? this.shortcuts.get(address) : this.reveal(object);
    if (this.marked === undefined) return;
    this.marked.setAttribute("aria-current", "page");
    this.showMarked();
  }

  showMarked() {
    if (this.marked) this.marked.scrollIntoView({ block: "nearest" });
  }

  reveal(object) {
    if (object.owner === this.fragments.model.root && kindOf(object) !== "package") {
      return this.shortcuts.get({ type: "types", schema: "schemas" }[kindOf(object)] || "");
    }
    const way = [];
    for (let at = object; at.owner !== null; at = at.owner) way.push(at);
    if (way.length > deepestRevealed) return undefined;
    let list = this.topList;
    for (const at of way.reverse()) {
      list.showUntil(at);
      const node = this.nodes.get(at.id);
      if (node === undefined) return undefined; // in a schema, which the tree does not show
      if (at === object) return node.link;
      if (node.open !== null) node.open();
      list = node.list;
      if (list === null) return undefined;
    }
    return undefined;
  }
}

function entriesOf(object) {
  if (kindOf(object) !== "package") return [];
  const elements = object.elements || [];
  const ofKind = (kind) => elements.filter((element) => kindOf(element) === kind);
  return [...ofKind("package"), ...(object.diagrams || []), ...ofKind("class")];
}

function signOf(object) {
  if (kindOf(object) === "diagram") return "\u25a6";
  if (kindOf(object) === "package") return "";
  return isInterface(object) ? "I" : "C";
}
