# Reads cases as JSON, a list of [tool, text, result], lines ending in CR LF, and prints those that Python's own libraries see
# otherwise, with what they make of the text.
import base64, csv, html, io, json, sys, unicodedata, urllib.parse
from collections import Counter

lf = lambda text: text.replace("\r\n", "\n")


def table_of_csv(text):
    return list(csv.reader(io.StringIO(lf(text), newline="")))


expected = {
    "htmlEncoded": lambda t: html.escape(t, quote=True),
    "urlEncoded": lambda t: "\r\n".join(urllib.parse.quote(line, safe="-_.!~*'()") for line in t.split("\r\n")),
    "urlDecoded": urllib.parse.unquote,
    "base64Encoded": lambda t: base64.b64encode(lf(t).encode()).decode(),
    "base64Decoded": lambda t: base64.b64decode(t).decode().replace("\n", "\r\n"),
    "jsonEscaped": lambda t: json.dumps(lf(t), ensure_ascii=False)[1:-1],
    "unescapedString": lambda t: json.loads('"' + t + '"').replace("\n", "\r\n"),
    "unicodeEscaped": lambda t: "".join(c if c < "\x80" else json.dumps(c)[1:-1] for c in t),
    "composed": lambda t: unicodedata.normalize("NFC", t),
    "withoutDuplicates": lambda t: "\r\n".join(dict.fromkeys(t.split("\r\n"))),
    "countedLines": lambda t: "\r\n".join(
        f"{n}\t{line}" for line, n in Counter(l for l in t.split("\r\n") if l.strip(" \t")).most_common()),
}

wrong = []
for tool, text, result in json.load(sys.stdin):
    if tool == "csvTable":  # the cells of a table with tabs
        same = [line.split("\t") for line in text.split("\r\n")] == table_of_csv(result)
        want = table_of_csv(result)
    else:
        want = expected[tool](text)
        same = want == result
    if not same:
        wrong.append([tool, text, result, want])
print(json.dumps(wrong[:5]))
