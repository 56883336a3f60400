# Writes html_names.cpp: python3 text/make_html_names.py > text/html_names.cpp
# The names and their characters are those of the HTML Living Standard, section "Named character references", as Python's
# library has them (html.entities). A name that counts without its semicolon too ends in "*", any other of HTML 4 in "!".
from html.entities import html5, name2codepoint

names = sorted({name.rstrip(";") for name in html5})
entries = [name + ("*" if name in html5 else "!" if name in name2codepoint else "") + " " + "+".join(f"{ord(c):X}" for c in html5[name + ";"]) for name in names]
lines, line = [], ""
for entry in entries:
    if len(line) + len(entry) + 1 > 119:
        lines.append(line)
        line = ""
    line += entry + ","
lines.append(line)
parts = ["\n".join(lines[i:i + 100]) for i in range(0, len(lines), 100)]
print("// SPDX-License-Identifier: MIT")
print("// Made by make_html_names.py, which says what stands here.")
print('#include "text/html_names.h"\n')
print("namespace tolvo {\n")
print("namespace {\n\nconstexpr QByteArrayView table =")
print("\n".join(f'    R"({part}\n)"' for part in parts) + ";")
print("\n} // namespace\n")
print("QByteArrayView htmlNameTable() {\n    return table;\n}\n")
print("} // namespace tolvo")
