#include "epub/mrvepubstyles_p.h"

namespace {

constexpr char Typography[] = R"css(
h1, h2, h3, h4, h5, h6 {
    break-after: avoid;
    page-break-after: avoid;
    break-inside: avoid;
    hyphens: none;
    -webkit-hyphens: none;
    line-height: 1.25;
}
p, li {
    hyphens: auto;
    -webkit-hyphens: auto;
    widows: 2;
    orphans: 2;
}
ul, ol {
    margin: 0.75em 0;
    padding-inline-start: 2em;
}
li > ul, li > ol {
    margin: 0;
}
li > p {
    margin: 0 0 0.5em;
}
blockquote {
    margin: 1em 2em;
}
pre, code {
    hyphens: none;
    -webkit-hyphens: none;
}
pre {
    margin: 1em 0;
    font-size: 0.85em;
}
table {
    margin: 1em auto;
    border-collapse: collapse;
}
td, th {
    padding: 0.2em 0.5em;
    vertical-align: top;
    text-indent: 0;
}
figure, .figure {
    margin: 1em 0;
    text-align: center;
    break-inside: avoid;
    page-break-inside: avoid;
}
figcaption, .caption, caption {
    font-size: 0.85em;
    text-indent: 0;
}
hr {
    width: 30%;
    margin: 1.5em auto;
    border: 0;
    border-top: 1px solid;
}
)css";

constexpr char Classic[] = R"css(/* Classic: paragraphs are indented, but for the first one */

body {
    margin: 0 5%;
    line-height: 1.4;
}
p {
    margin: 0;
    text-indent: 1.5em;
}
h1 + p, h2 + p, h3 + p, h4 + p, h5 + p, h6 + p, hr + p, .scene-break + p, .blank + p, figure + p, table + p,
ul + p, ol + p, pre + p, div + p, section > p:first-child, aside > p:first-child,
li > p, td > p, th > p {
    text-indent: 0;
}
h1, h2 {
    margin: 2em 0 1em;
    text-align: center;
}
h3, h4, h5, h6 {
    margin: 1.5em 0 0.5em;
}
)css";

constexpr char Modern[] = R"css(/* Modern: space separates paragraphs */

body {
    margin: 0 5%;
    line-height: 1.5;
}
p {
    margin: 0 0 0.75em;
    text-indent: 0;
}
h1, h2, h3, h4, h5, h6 {
    margin: 1.5em 0 0.5em;
}
)css";

constexpr char Needed[] = R"css(/* What the pages need whatever they look like */

img {
    max-width: 100%;
    height: auto;
    background-color: #ffffff; /* of a drawing in black, on a page that is black */
}
img.float-left {
    float: left;
    margin: 0 1em 0.5em 0;
}
img.float-right {
    float: right;
    margin: 0 0 0.5em 1em;
}
img.middle {
    vertical-align: middle;
}
img.low {
    vertical-align: bottom;
}
pre {
    white-space: pre-wrap;
}
.spaced {
    white-space: pre-wrap;
}
pre.lines {
    font-family: inherit;
    font-size: 1em;
}
p.lines {
    white-space: pre-wrap;
    text-indent: 0;
}
sub, sup {
    line-height: 0;
}
table.ruled, table.ruled > * > tr > td, table.ruled > * > tr > th {
    border: 1px solid;
}
td.covered {
    display: none;
}
.scene-break {
    margin: 1em 0;
    text-indent: 0;
    text-align: center;
}
ol.counted, ul.counted {
    list-style-type: none;
}
.marker {
    display: inline-block;
    min-width: 1.5em;
    margin: 0 0 0 -1.8em;
    text-align: right;
    text-indent: 0;
}
.marker-right {
    display: inline-block;
    min-width: 1.5em;
    margin: 0 -1.8em 0 0;
    text-align: left;
    text-indent: 0;
}
li.checked {
    list-style-type: "\2611\20";
}
li.unchecked {
    list-style-type: "\2610\20";
}
nav ol {
    list-style-type: none;
}
.notes {
    margin-top: 2em;
    font-size: 0.9em;
}
.cover {
    text-align: center;
}
.cover img {
    max-height: 95vh;
}
.cover-title {
    margin-top: 25%;
}
.cover-subtitle {
    font-size: 1.2em;
    text-indent: 0;
}
.cover-publisher {
    margin-top: 6em;
    text-indent: 0;
}
.cover-author {
    margin-top: 2em;
    font-size: 1.2em;
    text-indent: 0;
}
)css";

} // namespace

QByteArray mrvEPubBaseSheet(MRVEPubOptions::StyleBase base)
{
    switch (base) {
    case MRVEPubOptions::Classic:
        return QByteArray(Classic) + Typography + '\n' + Needed;
    case MRVEPubOptions::Modern:
        return QByteArray(Modern) + Typography + '\n' + Needed;
    default:
        return Needed;
    }
}
