// The look of the HTML of a sheet.
#pragma once

#include <string_view>

namespace orby {

inline constexpr std::string_view SheetStyle = R"css(
:root {
  color-scheme: light dark;
  --paper: #ffffff; --ink: #1c2126; --soft: #59636e; --line: #d4dae0; --band: #f3f5f7; --link: #0b57a4;
  --holds: #1a6b34; --check: #8a5a00; --short: #b3261e; --uncomputed: #59636e;
}
@media (prefers-color-scheme: dark) {
  :root {
    --paper: #16191d; --ink: #e4e8ec; --soft: #9fa9b4; --line: #3a424b; --band: #20252b; --link: #82b7f0;
    --holds: #7ccf94; --check: #e6b450; --short: #ff9389; --uncomputed: #9fa9b4;
  }
}
* { box-sizing: border-box; }
body {
  margin: 0 auto; padding: 2.5rem 1.5rem 4rem; max-width: 54rem; overflow-wrap: break-word;
  background: var(--paper); color: var(--ink); font: 1rem/1.5 system-ui, "Segoe UI", "Helvetica Neue", sans-serif;
}
h1, h2, h3 { line-height: 1.25; break-after: avoid; }
h1 { margin: 0 0 .75rem; font-size: 1.9rem; }
h2 { margin: 2.75rem 0 .75rem; padding-bottom: .3rem; border-bottom: 2px solid var(--line); font-size: 1.35rem; }
h3 { margin: 0 0 .4rem; font-size: 1rem; }
h3 .number, h2 .number { color: var(--soft); font-weight: normal; padding-right: .5em; }
p { margin: .5rem 0; }
.kind { margin: 0; color: var(--soft); letter-spacing: .08em; text-transform: uppercase; font-size: .8rem; }
a { color: var(--link); text-decoration: none; }
a:hover, a:focus { text-decoration: underline; }
nav ol { margin: .5rem 0; padding-left: 2.2em; columns: 2 20rem; }
nav li { break-inside: avoid; }
table { border-collapse: collapse; margin: .75rem 0; font-variant-numeric: tabular-nums; }
th, td { padding: .25rem .75rem; border-bottom: 1px solid var(--line); text-align: left; vertical-align: top; }
thead th { background: var(--band); font-weight: 600; }
tbody th { font-weight: normal; }
thead { display: table-header-group; }
tr { break-inside: avoid; }
.facts th { padding-left: 0; color: var(--soft); white-space: nowrap; }
.facts td, .source { overflow-wrap: anywhere; }
.inputs, .symbols { width: 100%; }
.inputs th[scope=row] { width: 46%; }
.inputs .source, .details { color: var(--soft); font-size: .9rem; }
.symbols { margin-top: 1.5rem; font-size: .9rem; break-inside: avoid; }
.symbols caption { padding: .25rem 0; text-align: left; font-weight: 600; break-after: avoid; }
.symbols th:first-child, .symbols td:last-child { width: 6.5rem; }
.symbols th, .symbols td { padding-top: .1rem; padding-bottom: .1rem; }
.value { white-space: nowrap; }
.figures { break-inside: avoid; }
.figures td, .figures thead th + th { text-align: right; }
.total tbody tr:last-child > * { border-top: 2px solid var(--line); font-weight: 600; }
.step { margin: 1.25rem 0; break-inside: avoid; }
.formulas {
  display: grid; grid-template-columns: max-content minmax(0, 1fr); column-gap: .3em; row-gap: .6rem;
  align-items: baseline; margin: .4rem 0 .4rem 1.25rem; overflow-x: auto; overflow-y: hidden; padding-bottom: .15rem;
}
.formulas > .right { grid-column: 2; }
math { font-size: 1.1em; font-family: "Latin Modern Math", "STIX Two Math", "Cambria Math", "DejaVu Math TeX Gyre", math; }
mfrac > * { padding: .12em .2em; }
mtd { padding: .3em 0; text-align: left; }
mtd:first-child { padding-right: 1.5em; }
.details { margin: .4rem 0 0 1.25rem; padding: 0; list-style: none; }
.failure { margin: .4rem 0 .4rem 1.25rem; color: var(--short); font-weight: 600; }
.judgement {
  margin: 1rem 0; padding: .5rem .9rem; border-left: 5px solid currentColor; background: var(--band);
  font-weight: 600; break-inside: avoid; break-before: avoid;
}
.holds { color: var(--holds); }
.check { color: var(--check); }
.short { color: var(--short); }
.uncomputed { color: var(--uncomputed); }
@page { margin: 18mm 16mm 20mm; @bottom-right { content: counter(page) " / " counter(pages); font: 8pt sans-serif; } }
@media print {
  :root {
    color-scheme: light; font-size: 9.5pt;
    --paper: #ffffff; --ink: #000000; --soft: #444444; --line: #b5b5b5; --band: #f3f5f7; --link: #000000;
    --holds: #14562a; --check: #6e4700; --short: #9c1c15; --uncomputed: #444444;
  }
  body { max-width: none; padding: 0; }
  .formulas { overflow: visible; }
  .formulas.wide math { font-size: .75em; }
  .judgement, thead th { print-color-adjust: exact; -webkit-print-color-adjust: exact; }
  p { orphans: 3; widows: 3; }
}
)css";

}  // namespace orby
