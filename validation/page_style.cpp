#include "validation/page.h"

namespace orvane::validation {
namespace {

constexpr const char* Style = R"css(
html { font: 10pt/1.4 "DejaVu Sans", "Noto Sans", Arial, sans-serif; color: #000; background: #fff; }
body { max-width: 178mm; margin: 0 auto; padding: 8mm 4mm; }
h1 { font-size: 20pt; line-height: 1.2; margin: 0 0 1mm; }
.subtitle { font-size: 11pt; margin: 0 0 6mm; }
h2 { font-size: 15pt; margin: 9mm 0 3mm; padding-bottom: 1mm; border-bottom: 1.5pt solid #000; }
h3 { font-size: 11pt; margin: 6mm 0 2mm; }
h2, h3, caption { break-after: avoid; }
p { margin: 0 0 2.5mm; orphans: 3; widows: 3; }
a { color: inherit; }
ul, ol { margin: 0 0 3mm; padding-left: 6mm; }
.conclusion { border: 2pt solid #000; padding: 3mm 4mm; margin: 0 0 5mm; }
.conclusion p { margin: 0 0 1mm; }
.verdict { font-size: 16pt; font-weight: bold; }
.quick { border: 1pt dashed #000; padding: 2mm 4mm; margin: 0 0 5mm; font-weight: bold; }
nav ol { list-style: none; padding: 0; margin: 0; columns: 2; }
nav li { margin: 0 0 1mm; }
table { border-collapse: collapse; width: 100%; margin: 1mm 0 4mm; font-size: 8.5pt; line-height: 1.3; }
caption { text-align: left; font-style: italic; padding: 0 0 1mm; }
th, td { border: 0.5pt solid #666; padding: 0.8mm 1.6mm; text-align: left; vertical-align: top; overflow-wrap: break-word; }
td.long { overflow-wrap: anywhere; }
table.wide { font-size: 7pt; }
table.wide th, table.wide td { padding: 0.6mm 0.8mm; }
thead th { background: #e8e8e8; border-bottom: 1.2pt solid #000; overflow-wrap: break-word; }
thead { display: table-header-group; }
tr, figure, table.short, .conclusion, .signatures { break-inside: avoid; }
td.figure { white-space: nowrap; overflow-wrap: normal; }
td.result { white-space: nowrap; width: 22%; }
.libraries td { font-size: 7.5pt; padding-top: 0.3mm; padding-bottom: 0.3mm; }
.hash { font: 7pt/1.3 "DejaVu Sans Mono", monospace; }
figure { margin: 3mm 0 5mm; }
figure svg { display: block; max-width: 100%; height: auto; }
figcaption { font-size: 8.5pt; font-style: italic; margin-top: 1mm; }
.check { border-left: 2pt solid #999; padding-left: 3mm; margin: 0 0 5mm; }
.check.bad { border-left: 5pt solid #000; }
.outcome { font-weight: bold; break-after: avoid; }
.reasons { font-weight: bold; }
.file { display: inline-block; width: 31%; margin: 0 0 1mm; font-size: 8.5pt; }
.signatures td { height: 13mm; }
@media print {
  body { max-width: none; padding: 0; }
  #identity, #requirements, #statistics, #concealment, #conclusion { break-before: page; }
  a { text-decoration: none; }
}
@page { size: A4; margin: 18mm 16mm 18mm 16mm;
  @bottom-right { content: "Page " counter(page) " of " counter(pages); font: 8pt "DejaVu Sans", Arial, sans-serif; }
  @bottom-left { content: "FOOTER"; font: 8pt "DejaVu Sans", Arial, sans-serif; }
}
)css";

} // namespace

std::string PageStyle(const std::string& footer) {
    std::string style = Style;
    const std::string mark = "FOOTER";
    return style.replace(style.find(mark), mark.size(), footer);
}

} // namespace orvane::validation
