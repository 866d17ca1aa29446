// The search over names and descriptions, worked by keys: "/" goes there, arrows choose, Enter opens, Escape leaves.

const searchedKinds = ["package", "class", "diagram", "schema", "type", "attribute", "operation", "value", "key", "association", "role"];
const mostFound = 60;
const ranks = 5; // the name is the query, begins with it, has a word that does, holds it; all words somewhere

class Search {
  constructor(fragments, input, list, status) {
    this.fragments = fragments;
    this.input = input;
    this.list = list;
    this.status = status;
    this.entries = null;
    this.found = [];
    this.chosen = -1;
    input.addEventListener("input", () => this.update());
    input.addEventListener("focus", () => { if (input.value !== "") this.update(); });
    input.addEventListener("keydown", (event) => this.press(event));
    list.addEventListener("pointerdown", (event) => event.preventDefault()); // the field keeps the focus
    list.addEventListener("click", (event) => {
      const option = event.target.closest("li");
      if (option !== null) this.open([...list.children].indexOf(option));
    });
    document.addEventListener("click", (event) => { if (!event.target.closest("#finder")) this.close(); });
    document.addEventListener("keydown", (event) => {
      const isTyping = event.target.closest("input") !== null;
      if (event.key !== "/" || isTyping || event.ctrlKey || event.metaKey || event.altKey) return;
      event.preventDefault();
      input.focus();
      input.select();
    });
  }

  prepare() {
    this.entries = [];
    const { model } = this.fragments;
    for (const object of model.objects.values()) {
      const rank = searchedKinds.indexOf(kindOf(object));
      if (rank < 0) continue;
      // The type that stands for a class is found as the class.
      if (object.associatedClass !== undefined && kindOf(object) === "type") continue;
      const notes = (object.notes || []).map((note) => note.noteText || "").join("\n");
      const name = (object.name || "").toLowerCase();
      const rest = [object.physicalName || "", object.description || "", notes].join("\n").toLowerCase();
      if (name !== "" || rest.length > 2) this.entries.push({ object, name, rest, rank });
    }
    this.entries.sort((first, second) => first.rank - second.rank);
  }

  update() {
    const query = this.input.value.trim().toLowerCase();
    if (query === "") return this.close();
    if (this.entries === null) this.prepare();
    const words = query.split(/\s+/);
    const buckets = Array.from({ length: ranks }, () => []);
    let count = 0;
    for (const entry of this.entries) {
      const rank = rankOf(entry, query, words);
      if (rank < 0) continue;
      ++count;
      if (buckets[rank].length < mostFound) buckets[rank].push(entry);
    }
    this.found = buckets.flat().slice(0, mostFound);
    this.show(words, count);
  }

  show(words, count) {
    this.list.replaceChildren(...this.found.map((entry, index) => this.makeOption(entry, words, index)));
    this.list.hidden = this.found.length === 0;
    this.input.setAttribute("aria-expanded", String(this.found.length > 0));
    this.status.textContent = count === 0 ? "Nothing found" : count > mostFound ? "The first " + mostFound + " of " + count : count + " found";
    if (this.found.length === 0) {
      this.list.replaceChildren(make("li", { role: "option", "aria-disabled": "true", "aria-selected": "false" }, "Nothing found"));
      this.list.hidden = false;
    } else if (count > mostFound) {
      this.list.append(make("li", { role: "option", "aria-disabled": "true", "aria-selected": "false", class: "faint" }, this.status.textContent));
    }
    this.choose(this.found.length > 0 ? 0 : -1);
  }

  makeOption({ object, name }, words, index) {
    const option = make("li", { role: "option", id: "found-" + index, "aria-selected": "false" },
      this.fragments.name(object), " ", make("span", { class: "chip" }, kindText(object)),
      make("span", { class: "where" }, this.place(object)));
    if (!words.every((word) => name.includes(word))) append(option, [make("span", { class: "excerpt" }, excerpt(object, words))]);
    return option;
  }

  place(object) {
    const names = [];
    for (let above = object.owner; above !== null && above.owner !== null && names.length < 4; above = above.owner) {
      names.push(shorten(nameOf(above), 60));
    }
    return names.reverse().join(" / ");
  }

  press(event) {
    if (event.key === "ArrowDown" || event.key === "ArrowUp") {
      const step = event.key === "ArrowDown" ? 1 : -1;
      if (this.found.length > 0) this.choose((this.chosen + step + this.found.length) % this.found.length);
    } else if (event.key === "Enter") {
      this.open(this.chosen);
    } else if (event.key === "Escape") {
      this.close();
    } else {
      return;
    }
    event.preventDefault();
  }

  choose(index) {
    const before = this.list.children[this.chosen];
    if (before) before.setAttribute("aria-selected", "false");
    this.chosen = index;
    const option = this.list.children[index];
    if (index < 0 || !option) return this.input.removeAttribute("aria-activedescendant");
    option.setAttribute("aria-selected", "true");
    option.scrollIntoView({ block: "nearest" });
    this.input.setAttribute("aria-activedescendant", option.id);
  }

  open(index) {
    if (index < 0 || index >= this.found.length) return;
    const { object } = this.found[index];
    this.close();
    this.input.blur();
    location.hash = "#" + this.fragments.addresses.of(pageObject(this.fragments.model, object));
  }

  close() {
    this.list.hidden = true;
    this.list.replaceChildren();
    this.found = [];
    this.chosen = -1;
    this.status.textContent = "";
    this.input.setAttribute("aria-expanded", "false");
    this.input.removeAttribute("aria-activedescendant");
  }
}

// Associations are shown with the class of their first end.
function pageObject(model, object) {
  const role = kindOf(object) === "association" ? (object.roles || [])[0] : kindOf(object) === "role" ? object : undefined;
  return role === undefined ? object : model.get(role.associatedClass) || object;
}

function rankOf({ name, rest }, query, words) {
  const at = name.indexOf(query);
  if (at === 0) return name.length === query.length ? 0 : 1;
  if (at > 0) return /[\p{L}\p{N}]/u.test(name[at - 1]) ? 3 : 2;
  return words.every((word) => name.includes(word) || rest.includes(word)) ? 4 : -1;
}

// A piece of the text in which one of the words stands.
function excerpt(object, words) {
  const texts = [object.description || "", object.physicalName || "", ...(object.notes || []).map((note) => note.noteText || "")];
  for (const content of texts) {
    const low = content.toLowerCase();
    for (const word of words) {
      const at = low.indexOf(word);
      if (at < 0) continue;
      const start = Math.max(0, at - 40);
      return (start > 0 ? "\u2026" : "") + shorten(content.slice(start, at + 160), 140).replace(/\s+/g, " ");
    }
  }
  return "";
}
