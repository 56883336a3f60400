# Reads cases as JSON, a list of [tool, text, result] or [tool, text, result, settings], lines ending in CR LF, and prints those
# that Python's own libraries see otherwise, with what they make of the text.
import base64, csv, html, io, json, quopri, re, shlex, sys, unicodedata, urllib.parse
from collections import Counter

lf = lambda text: text.replace("\r\n", "\n")


def table_of_csv(text):
    return list(csv.reader(io.StringIO(lf(text), newline="")))


def lines(change):
    """A tool of lines, for which a line end at the end of the text is not one more line."""
    def tool(text, *settings):
        whole = text.removesuffix("\r\n")
        made = change(whole.split("\r\n"), *settings) if text else []
        return "\r\n".join(made) + text[len(whole):] if made else ""
    return tool


def sort(rows, descending, ignore_case, unique, head, by_number):
    def number(row):
        found = re.match(r"[-+]?\d+", re.sub(r"[ \t]", "", row))
        return int(found[0]) if found else 0

    key = number if by_number else str.casefold if ignore_case else str
    made = sorted(rows[head:], key=key, reverse=descending)
    return rows[:head] + (list({key(row): row for row in made[::-1]}.values())[::-1] if unique else made)


def duplicates(rows, keep_last, ignore_case, ignore_blanks, neighbours, leave_blanks, counts):
    groups = []
    for row in rows:
        blank = leave_blanks and not row.strip()
        key = " ".join(row.split()) if ignore_blanks else row
        key = None if blank else key.casefold() if ignore_case else key
        same = [g for g in (groups[-1:] if neighbours else groups) if g[0] == key and not blank]
        if not same:
            groups.append([key, row, 1])
            continue
        same[0][2] += 1
        if keep_last:
            same[0][1] = row
            groups = [g for g in groups if g is not same[0]] + same
    return [f"{n}\t{row}" if counts and key is not None else row for key, row, n in groups]


def every(rows, drop, step, first):
    chosen = range(first - 1, len(rows), step)
    return [row for i, row in enumerate(rows) if (i in chosen) != drop]


def around(rows, start, step, width, skip_blanks):
    made = []
    for row in rows:
        number = format(start, f"0{width}d") if width else str(start)
        blank = skip_blanks and not row.strip()
        made.append(row if blank else f"<{number} {row}{number}>")
        start += 0 if blank else step
    return made


def parts(rows, join, trim, leave_out_empty):
    made = rows if join else [p for row in rows for p in row.split("," if trim else ", ")]
    made = [p.strip() if trim else p for p in made]
    made = [p for p in made if p or not leave_out_empty]
    return [", ".join(made)] if join and made else made


def reversed_words(text):
    def turned(line):
        words = line.strip()
        start = line.find(words) if words else len(line)
        return line[:start] + "".join(re.findall(r"\s+|\S+", words)[::-1]) + line[start + len(words):]
    return "\r\n".join(map(turned, text.split("\r\n")))


expected = {
    "sortedLines": lines(sort),
    "duplicates": lines(duplicates),
    "everyLine": lines(every),
    "around": lines(around),
    "parts": lines(parts),
    "reversed": reversed_words,
    "htmlEncoded": lambda t: html.escape(t, quote=True),
    "urlEncoded": lambda t: "\r\n".join(urllib.parse.quote(line, safe="-_.!~*'()") for line in t.split("\r\n")),
    "urlDecoded": urllib.parse.unquote,
    "base64Encoded": lambda t: base64.b64encode(lf(t).encode()).decode(),
    "base64Decoded": lambda t: base64.b64decode(t).decode().replace("\n", "\r\n"),
    "jsonEscaped": lambda t: json.dumps(lf(t), ensure_ascii=False)[1:-1],
    "unescapedString": lambda t: json.loads('"' + t + '"').replace("\n", "\r\n"),
    "htmlReferencesDecoded": html.unescape,
    "quotedPrintableDecoded": lambda t: quopri.decodestring(lf(t).encode()).decode().replace("\n", "\r\n"),
    "shellUnquoted": lambda t: shlex.split(t)[0],
    "unicodeEscaped": lambda t: "".join(c if c < "\x80" else json.dumps(c)[1:-1] for c in t),
    "composed": lambda t: unicodedata.normalize("NFC", t),
    "withoutDuplicates": lambda t: "\r\n".join(dict.fromkeys(t.split("\r\n"))),
    "countedLines": lambda t: "\r\n".join(
        f"{n}\t{line}" for line, n in Counter(l for l in t.split("\r\n") if l.strip(" \t")).most_common()),
}

wrong = []
for tool, text, result, *settings in json.load(sys.stdin):
    if tool == "csvTable":  # the cells of a table with tabs
        same = [line.split("\t") for line in text.split("\r\n")] == table_of_csv(result)
        want = table_of_csv(result)
    elif tool == "readTable":
        want = list(csv.reader(io.StringIO(text, newline=""), delimiter=settings[0][0]))
        same = want == json.loads(result)
    else:
        want = expected[tool](text, *(settings[0] if settings else []))
        same = want == result
    if not same:
        wrong.append([tool, text, result, want])
print(json.dumps(wrong[:5]))
