// Addresses: what stands behind the "#". A page is named by the names on the way to it, "class/Sales/Order",
// so an address survives another import of a changed file; a feature is "class/Sales/Order::number". What
// has no such name of its own (two of a name, or a very long one) goes by its id, "id/12".

const longestAddress = 300;
const pageKinds = new Set(["package", "class", "type", "schema", "diagram"]);
const fixedPages = new Set(["", "types", "schemas", "diagrams"]);
const featureLists = ["attributes", "operations", "keys", "typeValues"];

class Addresses {
  constructor(model) {
    this.model = model;
    this.pages = new Map(); // address -> object
    this.addresses = new Map(); // id -> address
    const paths = new Map([[model.root.id, ""]]);
    for (const object of model.objects.values()) {
      const kind = kindOf(object);
      if (!pageKinds.has(kind)) continue;
      const above = paths.get(object.owner.id);
      if (above === undefined || nameOf(object).length > longestAddress) continue;
      const path = above + "/" + encodeURIComponent(nameOf(object));
      if (path.length > longestAddress) continue;
      if (kind === "package") paths.set(object.id, path);
      if (this.pages.has(kind + path)) continue;
      this.pages.set(kind + path, object);
      this.addresses.set(object.id, kind + path);
    }
  }

  // Of a page, or of what is shown on one.
  of(object) {
    if (object === this.model.root) return "";
    if (pageKinds.has(kindOf(object))) return this.addresses.get(object.id) || "id/" + object.id;
    const name = object.name || "";
    const page = this.pageOf(object);
    const isNamed = name !== "" && name.length < longestAddress && this.feature(page, name) === object;
    return isNamed ? this.of(page) + "::" + encodeURIComponent(name) : "id/" + object.id;
  }

  pageOf(object) {
    let page = object;
    while (page.owner !== null && !pageKinds.has(kindOf(page))) page = page.owner;
    return page;
  }

  feature(page, name) {
    for (const list of featureLists) {
      const found = (page[list] || []).find((feature) => feature.name === name);
      if (found !== undefined) return found;
    }
    return undefined;
  }

  // The page that an address names, and what of it: null for an address that names nothing.
  find(address) {
    if (fixedPages.has(address)) return { fixed: address };
    if (address.startsWith("id/")) return this.findById(Number(address.slice(3)));
    const [path, name] = address.split("::");
    const page = this.pages.get(path) || this.pages.get(respell(path));
    if (page === undefined) return null;
    if (name === undefined) return { page };
    try {
      return { page, here: this.feature(page, decodeURIComponent(name)) };
    } catch {
      return { page };
    }
  }

  findById(id) {
    const object = this.model.get(id);
    if (object === undefined) return null;
    const page = this.pageOf(object);
    return page === object ? { page } : { page, here: object };
  }
}

// As we would write it: people and programs escape more, or less, than is needed.
function respell(path) {
  try {
    return path.split("/").map((part) => encodeURIComponent(decodeURIComponent(part))).join("/");
  } catch {
    return path;
  }
}
