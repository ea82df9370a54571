// Marks the page that is shown in the list of pages.
const shown = location.pathname.split("/").pop() || "index.html";
for (const link of document.querySelectorAll("#side nav a")) {
    if (link.getAttribute("href") === shown) {
        link.setAttribute("aria-current", "page");
        link.scrollIntoView({ block: "nearest" });
    }
}
