#include "tools/Html.h"

namespace OrmoNitf {

namespace {

constexpr const char* STYLE = R"(
:root { color-scheme: light dark; --page: #fdfdfc; --ink: #1d2329; --soft: #5b6670; --line: #d6dadd; --band: #f1f3f4;
  --link: #0b5cad; --bad: #b3261e; --odd: #8a5a00; --shape: #0b5cad; }
@media (prefers-color-scheme: dark) { :root { --page: #15181b; --ink: #e3e6e8; --soft: #9aa4ac; --line: #343a40;
  --band: #1e2327; --link: #7db4ee; --bad: #ff8a80; --odd: #f0c060; --shape: #7db4ee; } }
* { box-sizing: border-box; }
body { margin: 0 auto; padding: 0 1.2rem 4rem; max-width: 68rem; background: var(--page); color: var(--ink);
  font: 1rem/1.5 system-ui, sans-serif; }
h1 { font-size: 1.5rem; margin: 1rem 0 .3rem; overflow-wrap: anywhere; }
h2 { font-size: 1.2rem; margin: 2.2rem 0 .6rem; border-bottom: 1px solid var(--line); }
h3 { font-size: 1rem; margin: 1.2rem 0 .3rem; }
p { margin: .3rem 0; }
a { color: var(--link); }
nav { display: flex; flex-wrap: wrap; gap: 0 1.2rem; margin: .6rem 0; }
.marking { margin: 0 -1.2rem; padding: .15rem; text-align: center; font-weight: 600; color: #fff; background: #555; }
.U { background: #2e7d32; } .C { background: #1565c0; } .S { background: #b71c1c; } .T { background: #d35400; }
.soft { color: var(--soft); } .ERROR, .FATAL { color: var(--bad); } .WARN { color: var(--odd); }
table { border-collapse: collapse; width: 100%; font-size: .9rem; }
th, td { text-align: left; vertical-align: top; padding: .2rem .6rem .2rem 0; border-bottom: 1px solid var(--line);
  overflow-wrap: anywhere; }
th { color: var(--soft); font-weight: 600; }
td.name { white-space: nowrap; } td.value { width: 34%; }
td.value, code { font-family: ui-monospace, monospace; font-size: .85rem; white-space: pre-wrap; }
details { margin: .3rem 0; } details details { margin-left: 1rem; }
summary { cursor: pointer; padding: .2rem .4rem; background: var(--band); border-radius: .25rem; overflow-wrap: anywhere; }
details > div { padding: .3rem 0 .5rem .4rem; overflow-x: auto; }
figure { margin: .6rem 0; } figcaption { color: var(--soft); font-size: .9rem; }
img, svg { max-width: 100%; height: auto; }
img { border: 1px solid var(--line); background: #808080; }
svg.map { background: var(--band); border: 1px solid var(--line); }
svg.map .grid { stroke: var(--line); fill: none; } svg.map text { fill: var(--soft); font: 11px system-ui, sans-serif; }
svg.map path { stroke: var(--shape); fill: var(--shape); fill-opacity: .18; stroke-width: 1.5; }
svg.map text.label { fill: var(--ink); text-anchor: middle; }
#search { width: 100%; max-width: 30rem; padding: .35rem .6rem; font: inherit; color: inherit; background: var(--band);
  border: 1px solid var(--line); border-radius: .25rem; }
[hidden] { display: none !important; }
@media print { #search { display: none; } }
)";

constexpr const char* SCRIPT = R"page(
(function () {
  var box = document.getElementById("search");
  if (!box) { return; }
  box.hidden = false;
  var parts = Array.prototype.slice.call(document.querySelectorAll("details.part")).reverse();
  box.addEventListener("input", function () {
    var wanted = box.value.toLowerCase().trim();
    parts.forEach(function (part) {
      var table = part.querySelector(":scope > div > table");
      var any = part.querySelector(":scope > div > details.part:not([hidden])") !== null;
      var isNamed = part.querySelector(":scope > summary").textContent.toLowerCase().indexOf(wanted) >= 0;
      if (table) {
        Array.prototype.forEach.call(table.querySelectorAll("tr.field"), function (row) {
          row.hidden = !isNamed && row.textContent.toLowerCase().indexOf(wanted) < 0;
          any = any || !row.hidden;
        });
      }
      part.hidden = !(any || isNamed);
      part.open = wanted !== "" && !part.hidden;
    });
  });
})();
)page";

}  // namespace

std::string Html(std::string_view aText)
{
    std::string text;
    for (const char character : aText) {
        switch (character) {
            case '&':
                text += "&amp;";
                break;
            case '<':
                text += "&lt;";
                break;
            case '>':
                text += "&gt;";
                break;
            case '"':
                text += "&quot;";
                break;
            case '\'':
                text += "&#39;";
                break;
            default:
                text += character;
        }
    }
    // Two code points that UTF-8 can write and XML must not have.
    for (const char* const none : {"\xEF\xBF\xBE", "\xEF\xBF\xBF"}) {
        for (std::size_t at = 0; (at = text.find(none, at)) != std::string::npos;) {
            text.replace(at, 3, "?");
        }
    }
    return text;
}

std::string HtmlPage(const std::string& aTitle, const std::string& aBody)
{
    return "<!DOCTYPE html>\n<html xmlns=\"http://www.w3.org/1999/xhtml\" lang=\"en\">\n<head>\n<meta "
           "charset=\"utf-8\"/>\n"
           "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\"/>\n"
           "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; img-src data:; style-src "
           "'unsafe-inline'; script-src 'unsafe-inline'\"/>\n<title>" +
           Html(aTitle) + "</title>\n<style>" + STYLE + "</style>\n</head>\n<body>\n" + aBody + "<script>//<![CDATA[" +
           SCRIPT + "//]]></script>\n</body>\n</html>\n";
}

}  // namespace OrmoNitf
