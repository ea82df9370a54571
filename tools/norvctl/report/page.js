"use strict";

// Texts are collected at the first search: with a thousand devices that takes longer than to show the page.
const objects = Array.from(document.querySelectorAll(".object"));
const search = document.getElementById("search");
const hits = document.getElementById("hits");
const main = document.querySelector("main");
let texts = null;

function collectTexts() {
  texts = objects.map((object) => ({
    object,
    text: object.textContent.toLowerCase(),
    rows: Array.from(object.querySelectorAll("tbody tr"), (row) => ({ row, text: row.textContent.toLowerCase() })),
  }));
}

function showAll() {
  for (const row of main.querySelectorAll("tr.hit")) row.classList.remove("hit");
  for (const object of objects) object.hidden = false;
  hits.textContent = "";
}

function find(words) {
  let count = 0;
  for (const { object, text, rows } of texts) {
    const found = words.every((word) => text.includes(word));
    object.hidden = !found;
    let inRows = false;
    for (const { row, text: rowText } of rows) {
      const hit = found && words.some((word) => rowText.includes(word));
      row.classList.toggle("hit", hit);
      inRows = inRows || hit;
    }
    if (!found) continue;
    count += 1;
    if (inRows) object.open = true;
  }
  hits.textContent = count === 0 ? "nothing found" : count + " found";
}

function searchNow() {
  const words = search.value.toLowerCase().split(/\s+/).filter(Boolean);
  if (words.length === 0) {
    showAll();
    return;
  }
  if (texts === null) collectTexts();
  find(words);
}

let waiting = 0;
search.addEventListener("input", () => {
  clearTimeout(waiting);
  waiting = setTimeout(searchNow, 120);
});
document.querySelector(".bar form").addEventListener("submit", (event) => {
  event.preventDefault();
  searchNow();
});

function setAll(open) {
  for (const object of objects) if (!object.hidden) object.open = open;
}
document.getElementById("unfold").addEventListener("click", () => setAll(true));
document.getElementById("fold").addEventListener("click", () => setAll(false));

for (const name of ["only-differing", "only-changed"]) {
  const box = document.getElementById(name);
  if (box) box.addEventListener("change", () => main.classList.toggle(name, box.checked));
}

// A link leads to an object that may be folded, or hidden by the search.
function goToTarget() {
  const target = document.getElementById(location.hash.slice(1));
  if (!target || !target.classList.contains("object")) return;
  if (target.hidden) {
    search.value = "";
    showAll();
  }
  target.open = true;
  target.scrollIntoView();
}
window.addEventListener("hashchange", goToTarget);
goToTarget();

// Paper shows everything that isn't hidden.
let folded = [];
window.addEventListener("beforeprint", () => {
  folded = objects.filter((object) => !object.open);
  for (const object of folded) object.open = true;
});
window.addEventListener("afterprint", () => {
  for (const object of folded) object.open = false;
});

document.addEventListener("keydown", (event) => {
  if (event.key === "/" && document.activeElement !== search) {
    event.preventDefault();
    search.focus();
  }
});
