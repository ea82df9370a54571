// Marks the page that is shown in the list of pages, and searches the index that is made with the site.
"use strict";

const LONGEST_LIST = 30;

const field = document.getElementById("search");
const list = document.getElementById("found");

function markShownPage() {
    const shown = location.pathname.split("/").pop() || "index.html";
    const link = [...document.querySelectorAll("#side nav a")].find((each) => each.getAttribute("href") === shown);
    if (link) {
        link.setAttribute("aria-current", "page");
        link.scrollIntoView({ block: "nearest" });
    }
}

// 0 for what doesn't hold all words; more the better they fit.
function fitness([name, , purpose], words) {
    const lowName = name.toLowerCase();
    const lowPurpose = purpose.toLowerCase();
    let sum = 0;
    for (const word of words) {
        if (lowName.startsWith(word)) {
            sum += 3;
        } else if (lowName.includes(word)) {
            sum += 2;
        } else if (lowPurpose.includes(word)) {
            sum += 1;
        } else {
            return 0;
        }
    }
    return sum;
}

function itemFor([name, place, purpose]) {
    const link = document.createElement("a");
    link.href = place;
    link.append(Object.assign(document.createElement("b"), { textContent: name }));
    link.append(Object.assign(document.createElement("span"), { textContent: purpose }));
    const item = document.createElement("li");
    item.append(link);
    return item;
}

function search() {
    const words = field.value.toLowerCase().split(/\s+/).filter(Boolean);
    const found = searchIndex
        .map((entry) => ({ entry, fits: words.length > 0 ? fitness(entry, words) : 0 }))
        .filter(({ fits }) => fits > 0)
        .sort((one, other) => other.fits - one.fits || one.entry[0].length - other.entry[0].length)
        .slice(0, LONGEST_LIST);
    list.replaceChildren(...found.map(({ entry }) => itemFor(entry)));
    if (words.length > 0 && found.length === 0) {
        list.append(Object.assign(document.createElement("li"), { textContent: "Nothing has these words." }));
    }
    list.hidden = words.length === 0;
}

function close() {
    field.value = "";
    search();
}

markShownPage();
field.addEventListener("input", search);
field.form.addEventListener("submit", (event) => {
    event.preventDefault();
    list.querySelector("a")?.click();
});
list.addEventListener("click", (event) => {
    if (event.target.closest("a")) {
        close();
    }
});
document.addEventListener("keydown", (event) => {
    if (event.key === "Escape") {
        close();
    } else if (event.key === "/" && document.activeElement !== field) {
        event.preventDefault();
        field.focus();
    }
});
