// Draws the diagrams of a page, and draws them anew when the reader switches between light and dark.
// The drawing script is large, so only pages with a diagram load it.
(() => {
  const diagrams = Array.from(document.querySelectorAll(".diagram"));
  if (diagrams.length === 0) return;
  const texts = diagrams.map((diagram) => diagram.textContent);

  const draw = () => {
    const dark = document.body.getAttribute("data-md-color-scheme") === "slate";
    mermaid.initialize({
      startOnLoad: false,
      securityLevel: "strict",
      fontFamily: "inherit",
      theme: dark ? "dark" : "neutral",
    });
    diagrams.forEach((diagram, i) => {
      diagram.textContent = texts[i];
      diagram.removeAttribute("data-processed");
    });
    mermaid.run({ nodes: diagrams });
  };

  const script = document.createElement("script");
  script.src = new URL("mermaid.tiny.js", document.currentScript.src);
  script.addEventListener("load", () => {
    draw();
    new MutationObserver(draw).observe(document.body, { attributeFilter: ["data-md-color-scheme"] });
  });
  document.head.append(script);
})();
