// Lays tables that do not fit into their containers out as galley does. A cell is 8 pixels wide. Goes
// with frames.html, which knows styles.
"use strict";

// The width of the content box of the block that holds an element.
function available(element) {
  let block = element.parentElement;
  while (styleOf(block).display == "inline") block = block.parentElement;
  return block.clientWidth - sum(block, ["paddingLeft", "paddingRight"]);
}

// What `measure` says of a table while that is as narrow as its columns can be.
function atLeastWidth(table, measure) {
  const declarations = table.style.cssText;
  for (const property of ["min-width", "max-width"]) {
    table.style.setProperty(property, "0", "important");
  }
  const measured = measure();
  table.style.cssText = declarations;
  return measured;
}

function leastWidth(table) {
  const width = atLeastWidth(table, () => table.getBoundingClientRect().width);
  // An auto margin is less than nothing where the table is too wide.
  const margins = ["marginLeft", "marginRight"].map(side => Math.max(0, sum(table, [side])));
  return width + margins[0] + margins[1];
}

function withDisplay(ancestor, display) {
  return [...ancestor.querySelectorAll("*")].filter(each => styleOf(each).display == display);
}

// The innermost table around a cell.
function tableAround(cell) {
  let table = cell.parentElement;
  while (styleOf(table).display != "table" && table.parentElement) table = table.parentElement;
  return table;
}

// How wide a cell's content is at least, with the limits of its style, in pixels.
function contentWidth(cell) {
  const declarations = cell.style.cssText;
  for (const [property, value] of [["display", "block"], ["position", "absolute"],
                                   ["width", "min-content"]]) {
    cell.style.setProperty(property, value, "important");
  }
  const width = parseFloat(styleOf(cell).width);
  cell.style.cssText = declarations;
  return width;
}

function hasFixedColumns(table) {
  return styleOf(table).tableLayout == "fixed"
      && table.computedStyleMap().get("width").toString() != "auto";
}

function hasSharedPadding(cell) {
  const style = cell.computedStyleMap();
  return ["padding-left", "padding-right"].some(side => style.get(side).unit == "percent");
}

function setAll(elements, property, value) {
  elements.forEach(element => element.style.setProperty(property, value, "important"));
}

// Makes cells at least as wide as without parted words, or as a number of whole cells, the largest
// for which a table fits. `whole` is in pixels.
function keepWords(table, cells, whole) {
  const own = cells.map(cell => parseFloat(styleOf(cell).minWidth) || 0);
  const raise = level => cells.forEach((cell, i) => {
    setAll([cell], "min-width", `${Math.max(own[i], Math.min(whole[i], 8 * level))}px`);
  });
  let level = 0;
  for (let above = Math.ceil(Math.max(0, ...whole) / 8); level < above;) {
    const middle = level + Math.ceil((above - level) / 2);
    raise(middle);
    if (leastWidth(table) <= available(table) + 0.5) level = middle;
    else above = middle - 1;
  }
  raise(level);
}

function ownOf(table, display) {
  return withDisplay(table, display).filter(part => tableAround(part) == table);
}

// Lets words in cells of a table break anywhere, and in tables within. Its captions stay as they are.
// Returns what takes that back.
function partWords(table) {
  const captions = ownOf(table, "table-caption");
  const wrapping = captions.map(caption => styleOf(caption).overflowWrap);
  const parted = [table, ...["table", "table-cell"].flatMap(kind => withDisplay(table, kind))];
  const before = [...parted, ...captions].map(element => [element, element.style.cssText]);
  setAll(parted, "overflow-wrap", "anywhere");
  captions.forEach((caption, i) => setAll([caption], "overflow-wrap", wrapping[i]));
  return () => before.forEach(([element, css]) => { element.style.cssText = css; });
}

// A table whose least width exceeds its container is laid out as if words in its cells could break
// anywhere, also in those that have no element, but for what there is room for, and not at all where
// it would not fit for all that. Words in the tables within can, too, but that makes no cell around
// them wider.
function fitTables(page) {
  const tables = withDisplay(page, "table");
  const isTooWide = table => leastWidth(table) > available(table) + 0.5;
  if (!tables.some(isTooWide)) return;
  const whole = new Map(withDisplay(page, "table-cell").map(cell => [cell, contentWidth(cell)]));
  const fitted = [];
  for (const table of tables) {
    const isWithin = fitted.some(outer => outer.contains(table));
    if (!isWithin && !isTooWide(table)) continue;
    const cells = ownOf(table, "table-cell");
    const captions = ownOf(table, "table-caption");
    const within = withDisplay(table, "table");
    const takeBack = isWithin ? null : partWords(table);
    if (hasFixedColumns(table)) {
      fitted.push(table);
      continue;
    }
    setAll(captions, "display", "none");
    if (!isWithin && isTooWide(table)) {
      takeBack();
      continue;
    }
    fitted.push(table);
    keepWords(table, cells, cells.map(cell => whole.get(cell)));
    captions.forEach(caption => caption.style.removeProperty("display"));
    // Such padding would change with what is set here.
    if (cells.some(hasSharedPadding)) page.documentElement.setAttribute("data-unasked", "");
    if (within.length == 0) continue;
    const widths = cells.map(cell => styleOf(cell).width);
    for (const limit of ["min-width", "max-width"]) {
      cells.forEach((cell, i) => setAll([cell], limit, widths[i]));
    }
  }
}
