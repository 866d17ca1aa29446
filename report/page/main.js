// The start, and the way from an address to a page.

const pageMakers = {
  package: packagePage,
  class: (fragments, class_, here) => new ClassPage(fragments, class_, here).content(),
  type: typePage,
  schema: schemaPage,
  diagram: diagramPage,
  model: homePage,
};

const fixedMakers = {
  "": homePage,
  types: typesPage,
  schemas: (fragments) => listPage(fragments, "Schemas", "schema"),
  diagrams: (fragments) => listPage(fragments, "Diagrams", "diagram"),
};

class Report {
  constructor(model) {
    this.addresses = new Addresses(model);
    this.fragments = new Fragments(model, this.addresses, new PlacedPictures(document.getElementById("pictures")));
    this.main = document.getElementById("page");
    this.tree = new Tree(document.getElementById("tree"), this.fragments);
    this.search = new Search(this.fragments, document.getElementById("search"), document.getElementById("results"), document.getElementById("found"));
    this.modelName = plain(shorten(nameOf(model.root), longestName));
    document.getElementById("home").textContent = this.modelName;
    document.getElementById("skip").addEventListener("click", () => this.main.focus());
    this.prepareContents(document.getElementById("contents"), document.getElementById("tree"));
    addEventListener("hashchange", () => {
      this.show();
      this.main.focus({ preventScroll: true });
    });
    // What waits to be opened cannot be opened on paper.
    addEventListener("beforeprint", () => {
      for (const details of this.main.querySelectorAll("details")) details.open = true;
    });
    this.show();
  }

  // In a narrow window the tree waits behind a button, and goes when it has led somewhere.
  prepareContents(button, tree) {
    const set = (isOpen) => {
      tree.classList.toggle("open", isOpen);
      button.setAttribute("aria-expanded", String(isOpen));
      if (isOpen) this.tree.showMarked();
    };
    button.addEventListener("click", () => set(!tree.classList.contains("open")));
    addEventListener("hashchange", () => set(false));
  }

  show() {
    const address = location.hash.slice(1);
    const target = this.addresses.find(address);
    const { page, here, fixed } = target || {};
    // One address for one page, so that what is copied from the bar is the one that lasts.
    if (page !== undefined && address.startsWith("id/")) history.replaceState(null, "", "#" + this.addresses.of(here || page));
    this.main.replaceChildren(...append(new DocumentFragment(), [this.content(address, target)]).childNodes);
    const heading = page !== undefined ? plain(shorten(nameOf(page), longestName)) : this.main.querySelector("h1").textContent;
    document.title = heading === this.modelName ? heading : heading + " \u2013 " + this.modelName;
    this.tree.mark(page, fixed);
    const row = this.main.querySelector("tr.here");
    if (row === null) scrollTo(0, 0);
    else row.scrollIntoView({ block: "center" });
  }

  content(address, target) {
    if (target === null) return lostPage(address);
    if (target.fixed !== undefined) return fixedMakers[target.fixed](this.fragments);
    return pageMakers[kindOf(target.page)](this.fragments, target.page, target.here);
  }
}

function prepareTheme(button) {
  const root = document.documentElement;
  const isDark = () => (root.dataset.theme || (matchMedia("(prefers-color-scheme: dark)").matches ? "dark" : "light")) === "dark";
  const label = () => { button.textContent = isDark() ? "Light" : "Dark"; };
  button.addEventListener("click", () => {
    root.dataset.theme = isDark() ? "light" : "dark";
    label();
  });
  label();
}

prepareTheme(document.getElementById("theme"));
new Report(new Model(JSON.parse(document.getElementById("model").textContent)));
