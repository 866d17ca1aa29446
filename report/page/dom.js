// Making elements. Text of the model becomes text nodes, never markup, and goes through `plain` on its way.

// Characters that would not be seen, or would turn the text around them: they are shown by their number.
const unseenCharacters =
  /[\u0000-\u0008\u000b-\u001f\u007f-\u009f\u061c\u200b\u200e\u200f\u2028-\u202e\u2060-\u2069\ufeff\ufff9-\ufffb]/g;

function plain(text) {
  return String(text).replace(/\r\n?/g, "\n").replace(unseenCharacters,
    (character) => "\\u" + character.charCodeAt(0).toString(16).padStart(4, "0"));
}

// The beginning of a text that may be very long; no character is cut in two.
function shorten(text, most) {
  if (text.length <= most) return text;
  const last = text.charCodeAt(most - 1);
  return text.slice(0, last >= 0xd800 && last <= 0xdbff ? most - 1 : most) + "\u2026";
}

function append(element, children) {
  for (const child of children) {
    if (Array.isArray(child)) append(element, child);
    else if (child instanceof Node) element.append(child);
    else if (child !== null && child !== undefined && child !== "") element.append(plain(child));
  }
  return element;
}

function make(name, attributes, ...children) {
  const element = document.createElement(name);
  for (const [key, value] of Object.entries(attributes)) element.setAttribute(key, value);
  return append(element, children);
}

function draw(name, attributes, ...children) {
  const element = document.createElementNS("http://www.w3.org/2000/svg", name);
  for (const [key, value] of Object.entries(attributes)) element.setAttribute(key, value);
  return append(element, children);
}

const rowsAtOnce = 200;
const mostLookedAt = 2000;

// Fills a list with what `makeEntry` makes of the items: some of them, and the next ones when asked for.
function fillList(list, items, makeEntry) {
  let shown = 0;
  const button = make("button", { type: "button", class: "more" });
  const showMore = () => {
    const end = Math.min(items.length, shown + rowsAtOnce);
    for (; shown < end; ++shown) list.append(makeEntry(items[shown]));
    button.textContent = "Show more (" + (items.length - shown) + " left)";
    button.hidden = shown === items.length;
  };
  button.addEventListener("click", showMore);
  showMore();
  // What an address points at must be there, however far down.
  const showUntil = (item) => {
    const at = items.indexOf(item);
    while (at >= shown) showMore();
  };
  return { button, showUntil };
}

function section(title, count, ...content) {
  const heading = make("h2", {}, title, count > 1 ? make("span", { class: "count" }, " (" + count + ")") : null);
  return make("section", {}, heading, content);
}

// Nothing for no items. Columns are pairs of a title and what makes the cell of an item; those that would be
// empty are left out when the table is short enough to look.
function table(title, items, columns, here) {
  if (items.length === 0) return null;
  const isFilled = (column) => items.length > mostLookedAt || column[2] === true || items.some((item) => hasContent(column[1](item)));
  const used = columns.filter(isFilled);
  const body = make("tbody", {});
  const list = fillList(body, items, (item) => {
    const row = make("tr", {}, used.map((column) => make("td", {}, column[1](item))));
    if (item === here) row.className = "here";
    return row;
  });
  if (here !== undefined) list.showUntil(here);
  const head = make("thead", {}, make("tr", {}, used.map((column) => make("th", { scope: "col" }, column[0]))));
  // What can be scrolled must be reached by keys too.
  const frame = make("div", { class: "wide", tabindex: "0", role: "group", "aria-label": title }, make("table", {}, head, body));
  return section(title, items.length, frame, list.button);
}

function hasContent(cell) {
  if (Array.isArray(cell)) return cell.some(hasContent);
  return cell !== null && cell !== undefined && cell !== "";
}

function bulletList(title, items, makeContent, isInColumns) {
  if (items.length === 0) return null;
  const list = make("ul", { class: isInColumns ? "plain columns" : "plain" });
  const { button } = fillList(list, items, (item) => make("li", {}, makeContent(item)));
  return section(title, items.length, list, button);
}

function facts(title, rows) {
  const filled = rows.filter((row) => hasContent(row[1]));
  if (filled.length === 0) return null;
  return section(title, 0, make("table", { class: "facts" }, make("tbody", {},
    filled.map((row) => make("tr", {}, make("th", { scope: "row" }, row[0]), make("td", {}, row[1]))))));
}
