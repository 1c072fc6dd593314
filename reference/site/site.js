// Search in the index that the build made (search-index.js), and a button on each code block that copies it.
"use strict";

(function () {
    const box = document.getElementById("search");
    const list = document.getElementById("found");
    const top = document.documentElement.dataset.top; // the path to the first page
    const LIMIT = 12;

    // Every word must occur; words in headings have a higher weight.
    function score(entry, words) {
        let sum = 0;
        for (const word of words) {
            const inTitle = entry.search[0].includes(word), inText = entry.search[1].includes(word);
            if (!inTitle && !inText)
                return 0;
            sum += inTitle ? 10 : 1;
        }
        return sum;
    }

    function context(text, word) {
        const at = Math.max(text.toLowerCase().indexOf(word) - 30, 0);
        return (at > 0 ? "…" : "") + text.slice(at, at + 90) + (at + 90 < text.length ? "…" : "");
    }

    function show() {
        const words = box.value.toLowerCase().split(/\s+/).filter(Boolean);
        list.replaceChildren();
        if (words.length === 0)
            return;
        const found = window.searchIndex.map(entry => [score(entry, words), entry]).filter(each => each[0] > 0);
        found.sort((one, other) => other[0] - one[0]);
        for (const [, entry] of found.slice(0, LIMIT)) {
            const link = document.createElement("a");
            link.href = top + entry.target;
            link.append(Object.assign(document.createElement("b"), {textContent: entry.title}));
            link.append(context(entry.text, words[0]));
            list.append(link);
        }
        if (found.length === 0)
            list.append(Object.assign(document.createElement("p"), {textContent: "Nothing found."}));
    }

    for (const entry of window.searchIndex)
        entry.search = [entry.title.toLowerCase(), entry.text.toLowerCase()];
    box.addEventListener("input", show);
    document.addEventListener("keydown", event => {
        if (event.key === "/" && document.activeElement !== box) {
            event.preventDefault();
            box.focus();
        }
    });

    for (const block of document.querySelectorAll(".code")) {
        const button = Object.assign(document.createElement("button"), {textContent: "Copy", className: "copy"});
        button.addEventListener("click", () => {
            navigator.clipboard.writeText(block.querySelector("pre").innerText);
            button.textContent = "Copied";
        });
        block.prepend(button);
    }
})();
