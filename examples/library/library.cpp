#include <galley/galley.h>

#include <cstdio>
#include <string>

int main() {
    auto const sheet = galley::Sheet::parse("h1 { color: green } td { padding: 0 3ch 0 0 }");
    std::string rows;
    for (std::string const name : {"photos & films", "mail <2026>"}) {
        rows += "<tr><td>" + galley::escape(name) + "</td><td>saved</td></tr>";
    }
    auto const printed =
        galley::print("<h1>Hello, terminal</h1><table>" + rows + "</table>", sheet.value());
    if (!printed) std::fputs(printed.error().text().c_str(), stderr);
    return printed ? 0 : 1;
}
