#pragma once

#include <string_view>

/// A document of the dialect web, and a sheet, in which there is something of every kind.
namespace galley::WebDocument {

inline constexpr std::string_view markup = R"(<html>
<head><title>none</title><style media="screen">.late { color: #123456 }</style></head>
<body>
<h1 id="top">A heading that goes over two lines</h1>
<p class="a b">Some <b>bold <i>and italic</i></b>, a <a href="https://example.org/">link over a
line</a>, <q>a <q>quotation</q></q>, x<sub>1</sub>, caf&eacute; &#x2014; &unknown; &amp;<br/>漢字と
かな。한글, soft&shy;hyphen&shy;ation, e&#x301;&#x301; <img alt="an image" src="a"/></p>
<pre>  kept
	tab</pre>
<div style="border: double; padding: 1lh 2ch; text-align: justify; color: teal">in a box of text
that is justified<p>a paragraph in it</p>and <b>a <div>block in an inline</div> element</b></div>
<ul><li>one<ol start="9" type="i"><li>deeper</li><li value="40"/></ol></li><li>two</li></ul>
<dl><dt>term</dt><dd>definition</dd></dl>
<table class="grid"><caption>a caption</caption><colgroup><col width="9"/><col/></colgroup>
<thead><tr><th colspan="2">head</th><th>end</th></tr></thead>
<tfoot><tr><td>foot</td></tr></tfoot>
<tr><td rowspan="2">spans two rows</td><td>b</td><td>c</td></tr>
<tr><td>d</td><td><table><tr><td>nested</td><td>table</td></tr></table></td></tr></table>
<td>a loose cell</td><unknown fancy="1">unknown</unknown>
<p class="late" align="left" style="text-transform: uppercase; colour: red">last</p><hr/>
</body></html>)";

inline constexpr std::string_view css = R"(
/* of every kind */ @import "other"; @media (min-width: 20ch) { .a { text-indent: 2ch } }
body > p:first-child, p.b:nth-child(2n+1), #top { background: #ffe !important; font: serif }
.grid { border-collapse: collapse } .grid td { border: thin solid; border-left: "|" }
p:last-child { margin: 1lh auto; width: 50%; white-space: pre-wrap } li::marker { x: y }
li { list-style: square inside; } ol > li { list-style: upper-roman } p { color: inherit; a: b } }
)";

}  // namespace galley::WebDocument
