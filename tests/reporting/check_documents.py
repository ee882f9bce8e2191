"""Reads the documents of write_documents with readers that refuse what is not well formed. Where a word processor is
named as the second argument it opens the rich text, and must show the same words on the pages where they belong."""

import json
import re
import subprocess
import sys
import tempfile
import unicodedata
from collections import Counter
from html.parser import HTMLParser
from pathlib import Path

# What is written, and what is to be read: nothing that steers a program stays.
TEXTS = {
    "{\\b bold} \\ }{": None, "<b>&amp;</b> \"'": None, "学校 😀 𝔘 ß": None, "e\u0301 שָׁלוֹם العربية": None,
    "two\n\nlines": None, "Name" * 50: None, "学生e\u0301" * 9: None, "one two three four five six seven": None,
    "\u202eevil\x1b[31m\x07\r\t": "\\u202eevil\\x1b[31m\\x07\\r\\t", b"\xff\xc3": "\\xff\\xc3",
}
SHOWN = [shown or text for text, shown in TEXTS.items()]
TABLE = """\
                                 Size
               Number of units  of the  Variation   Covariates            Cost per unit
              Treated  Control    ICC    in means  # Cov  R-sq   Model  Treated  Control
----------------------------------------------------------------------------------------
Schools            15       15    0.10      137.2      1  0.50  Random   $2,500   $1,500
(Randomized)
Classes             3        3    0.05       97.0      0  0.00   Fixed     $300     $300
(Nested)
Students           20       20              400.0      1  0.40  Random      $20      $20
(Nested)
"""
SMALL = f"""\
Executive summary
=================

Design
------
The schools are randomized (see table).

{TABLE}
The number of units is:
Schools 15 (Treated) + 15 (Control)

{TABLE}

Detailed report
===============


{TABLE}
{TABLE}"""
RTF = re.compile(r"\\u(?P<unit>-?\d+)\?|\\(?P<sign>[\\{}*])|\\(?P<word>[a-z]+)(?P<number>-?\d+)? ?|(?P<group>[{}])|"
                 r"(?P<letter>[\x20-\x7e])|\n")
OWN_GROUPS = {"fonttbl", "colortbl", "stylesheet", "info", "footer"}


class Rtf:
    """Paragraphs, and the cells of tables in their rows with their right edges; words are counted."""

    def __init__(self, text):
        self.paragraphs, self.rows, self.words, self.title = [], [], Counter(), ""
        units, cells, edges, merged, open_groups, end = [], [], [], [], [], 0
        while end < len(text) - 1:
            token = RTF.match(text, end)
            assert token, text[end:end + 40]
            end, word = token.end(), token["word"]
            self.words[word] += 1
            if token["group"] == "{":
                open_groups.append(open_groups[-1] if open_groups else "text")
            elif token["group"]:
                open_groups.pop()
                assert open_groups or text[end:] == "\n", text[end:end + 40]
            elif word in OWN_GROUPS or word == "title":
                open_groups[-1] = word
            elif open_groups[-1] == "title":
                self.title += self.letters(token).decode("utf-16-le")
            elif open_groups[-1] != "text":
                continue
            elif word in ("par", "cell"):
                (cells if word == "cell" else self.paragraphs).append(b"".join(units).decode("utf-16-le"))
                units = []
            elif word in ("clvmgf", "clvmrg"):
                merged.append((word, len(edges)))
            elif word == "cellx":
                edges.append(int(token["number"]))
            elif word == "row":
                assert len(edges) == len(cells) and edges == sorted(set(edges)), (edges, cells)
                self.rows.append((cells, edges, merged))
                cells, edges, merged = [], [], []
            else:
                units.append(self.letters(token))
        assert not open_groups and not any(units) and not cells

    @staticmethod
    def letters(token):
        if token["unit"]:
            return (int(token["unit"]) % 0x10000).to_bytes(2, "little")
        sign = "\n" if token["word"] == "line" else token["sign"] or token["letter"] or ""
        return sign.encode("utf-16-le")


class Html(HTMLParser):
    """Paragraphs and the cells of tables, each with its attributes; tags are closed in their order."""

    def __init__(self, text):
        super().__init__()
        self.paragraphs, self.cells, self.open_tags = [], [], []
        self.feed(text)
        assert not self.open_tags

    def handle_starttag(self, tag, attrs):
        if tag == "br":
            self.handle_data("\n")
        elif tag in ("p", "h1", "h2"):
            self.paragraphs.append("")
        elif tag == "td":
            self.cells.append(("", dict(attrs)))
        if tag not in ("br", "meta", "col"):
            self.open_tags.append(tag)

    def handle_endtag(self, tag):
        assert self.open_tags.pop() == tag

    def handle_data(self, data):
        if "td" in self.open_tags:
            self.cells[-1] = (self.cells[-1][0] + data, self.cells[-1][1])
        elif self.open_tags[-1:] not in ([], ["table"]):
            self.paragraphs[-1] += data


def words_of(text):
    """The words in any order, without rules."""
    return Counter(word for word in text.split() if not re.fullmatch("-+|=+", word))


def width_of(text):
    return sum(0 if unicodedata.category(letter) == "Mn" else 2 if unicodedata.east_asian_width(letter) == "W" else 1
               for letter in text)


def read(folder, name, kind):
    return (folder / f"{name}.{kind}").read_text(encoding="utf-8").removeprefix("\ufeff")


def check_small(folder):
    assert read(folder, "small", "txt") == SMALL, read(folder, "small", "txt")
    rtf, html = Rtf(read(folder, "small", "rtf")), Html(read(folder, "small", "html"))
    assert rtf.title == "Läns-kurs {1}"
    assert words_of(" ".join(rtf.paragraphs + [cell for row in rtf.rows for cell in row[0]])) == words_of(SMALL)
    # Thin lines: where a page begins with a table, between tables, at the end.
    assert [i for i, text in enumerate(rtf.paragraphs) if not text] == [5, 6, 7], rtf.paragraphs
    # A page of a table that may stand elsewhere is left to the program.
    assert rtf.words["pagebb"] == 2 and rtf.words["outlinelevel"] == 3 + 2, rtf.words
    assert [cell for row in rtf.rows for i, cell in enumerate(row[0]) if ("clvmrg", i) not in row[2]] == [
        cell for cell, _ in html.cells]
    top, below = (row[1:] for row in rtf.rows[:2])
    assert [edge in below[0] for edge in top[0]] == [True] * 7 and top[0][-1] == 9360, (top, below)
    assert top[1] == [("clvmgf", i) for i in (0, 2, 3, 5)] and below[1] == [("clvmrg", i) for i in (0, 3, 4, 7)]
    spans = [(cell, attrs.get("colspan"), attrs.get("rowspan")) for cell, attrs in html.cells[:5]]
    assert spans == [("", None, "2"), ("Number of units", "2", None), ("Size\nof the\nICC", None, "2"),
                     ("Variation\nin means", None, "2"), ("Covariates", "2", None)], spans


def check_json(folder):
    sent = json.loads(read(folder, "small", "json"))
    start, end = sent.index(["StartTable"]), sent.index(["EndTable"])
    assert sent[:4] == [["FontSize", 14], ["FontBold", True], ["Paragraph", "Executive summary"], ["FontSize", 8]]
    assert sent[start + 1:start + 6] == [["AddTable", "100|100", "1|2"], ["TableCell", "ColWidth", 0, 1, "1.1in"],
                                         *(["TableCell", "ColWidth", 0, i, "0.63in"] for i in (2, 3)),
                                         ["TableCell", "ColWidth", 0, 4, "0.46in"]]
    cell = [command[1:2] + command[4:] for command in sent[start:end] if command[2:4] == [5, 10]]
    assert cell == [["Text", "0.40"], ["BackColor", [200, 0, 0]], ["ForeColor", [255, 255, 255]], ["Align", "right"]]
    hidden = [command[1:] for command in sent[start:end] if command[3:4] == [5] and command[1] in ("ColWidth", "Text")]
    assert hidden == [["ColWidth", 0, 5, "0in"]] and sent[-1] == ["EndDoc"], hidden
    assert ["TableCell", "ColSpan", 1, 6, 3] in sent and ["TableCell", "RowSpan", 1, 6, 2] in sent


def check_texts(folder):
    rtf, html = Rtf(read(folder, "texts", "rtf")), Html(read(folder, "texts", "html"))
    assert rtf.paragraphs[:-1] == html.paragraphs == SHOWN, (rtf.paragraphs, html.paragraphs)
    cells = [cell for text in SHOWN for cell in (text, "|")]
    assert [cell for row in rtf.rows for cell in row[0]] == [cell for cell, _ in html.cells] == cells
    text = read(folder, "texts", "txt")
    paragraphs = "".join(shown + "\n" for shown in SHOWN)
    assert text.startswith(paragraphs + "\n"), text
    assert "one two three four five six   |\nseven\n" in text, text
    table = text[len(paragraphs) + 1:].splitlines()
    ends = [width_of(line) for line in table if line.endswith("  |")]
    assert ends == [31] * len(SHOWN) and all(width_of(line) <= 31 for line in table), table
    letters = ["".join("".join(texts).split()) for texts in ([line.removesuffix("|") for line in table], SHOWN)]
    assert letters[0] == letters[1], table


def check_with_program(program, folder):
    def convert(kind, ending):
        subprocess.run([program, f"-env:UserInstallation={(folder / 'profile').as_uri()}", "--headless",
                        "--convert-to", kind, "--outdir", folder / "office", *folder.glob("*.rtf")],
                       check=True, capture_output=True, timeout=300)
        assert len(list((folder / "office").glob(f"*.{ending}"))) == 3

    convert("txt:Text (encoded):UTF8", "txt")
    convert("pdf", "pdf")
    for name in ("small", "pages"):
        assert words_of(read(folder, f"office/{name}", "txt")) == words_of(read(folder, name, "txt")), name
    letters = "".join(read(folder, "office/texts", "txt").split())
    assert letters == "".join("".join(SHOWN + [cell for text in SHOWN for cell in (text, "|")]).split()), letters
    # On the small pages the second table finds room below the first, on the others it does not.
    for name, tables in (("small", [2, 0, 2]), ("pages", [1, 1, 0, 2])):
        shown = subprocess.run(["pdftotext", folder / "office" / f"{name}.pdf", "-"], check=True,
                               capture_output=True, text=True).stdout.split("\f")[:-1]
        for word in ("Number of units", "(Randomized)", "Students"):
            assert [page.count(word) for page in shown] == tables, (name, word, shown)
        feet = [[f"Page {i} of {len(shown)}"] for i in range(1, len(shown) + 1)]
        assert [re.findall(r"Page .*", page) for page in shown] == feet, shown


with tempfile.TemporaryDirectory() as root:
    files = Path(root)
    subprocess.run([sys.argv[1], files, *TEXTS], check=True)
    check_small(files)
    check_json(files)
    check_texts(files)
    if len(sys.argv) > 2:
        check_with_program(sys.argv[2], files)
