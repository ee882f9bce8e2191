"""Plays the scripts of golden/ in lorvane-cli and saves their reports: the text of every PDF is that of the text beside
the script, no page holds a table in part, and files stay small. Where a word processor is named as the third argument
it opens the rich text, and must show the same."""

import json
import re
import subprocess
import sys
import tempfile
from collections import Counter
from pathlib import Path

LARGEST = 200 * 1024
HOSTILE = "names_of_all_kinds"  # its names are broken within words
FOOT = re.compile(r"^Page \d+ of \d+$", re.MULTILINE)


def save_reports(program, scripts, folder):
    for script in scripts:
        lines = script.read_text(encoding="utf-8")
        for ending, tool in (("pdf", "PDF Save"), ("rtf", "RTF Save")):
            lines += f"\nfile {folder / script.stem}.{ending}\ntool {json.dumps(tool)}"
        subprocess.run([program, "drive"], input=lines, check=True, capture_output=True, text=True)


def parts_of(text, name):
    """The words in any order, since tables are read in many; the letters where words are broken. The currency is that
    of the system."""
    words = [word for word in text.replace("$", "").split() if not re.fullmatch("-+|=+", word)]
    return Counter("".join(words) if name == HOSTILE else words)


def assert_same(got, wanted, name):
    got, wanted = parts_of(got, name), parts_of(wanted, name)
    assert got == wanted, (name, got - wanted, wanted - got)


def assert_order(got, wanted, name):
    """The lines of paragraphs, one after the other; those of tables have wide gaps."""
    got, place = " ".join(got.replace("$", "").split()), 0
    for line in wanted.replace("$", "").splitlines():
        words = " ".join(line.split())
        if len(words) < 40 or line.count("  ") > 1 or line.startswith("---") or name == HOSTILE:
            continue
        found = got.find(words, place)
        assert found >= 0, (name, words)
        place = found + len(words)


def pages_of(pdf):
    text = subprocess.run(["pdftotext", "-raw", pdf, "-"], check=True, capture_output=True, text=True).stdout
    text = text.replace("\u202b", "").replace("\u202c", "")  # set by pdftotext around right-to-left letters
    pages = text.split("\f")[:-1]
    feet = [FOOT.findall(page) for page in pages]
    assert feet == [[f"Page {i} of {len(pages)}"] for i in range(1, len(pages) + 1)], (pdf, feet)
    return [re.sub(r"(?<=\w)-\n", "-", FOOT.sub("", page)).strip() for page in pages]


def check_pages(script, pages, golden):
    assert_same("\n".join(pages), golden, script.stem)
    assert_order("\n".join(pages), golden, script.stem)
    # The last row of the table of levels stands on the page of its head, and no heading at the foot of a page.
    heads = [len(re.findall(r"R-sq\b", page)) for page in pages]
    rows = [page.count("\n(Randomized)") for page in pages]
    assert heads == rows and sum(heads) == 2, (script, heads, rows)
    headings = {before for before, below in zip(golden.splitlines(), golden.splitlines()[1:])
                if re.fullmatch("-+", below) and len(before) == len(below)}
    ends = [page.splitlines()[-1] for page in pages]
    assert not headings.intersection(ends), (script, ends)


def convert_to_text(office, folder):
    subprocess.run([office, f"-env:UserInstallation={(folder / 'profile').as_uri()}", "--headless", "--convert-to",
                    "txt:Text (encoded):UTF8", "--outdir", folder, *folder.glob("*.rtf")],
                   check=True, capture_output=True, timeout=300)


with tempfile.TemporaryDirectory() as root:
    saved = Path(root)
    golden_scripts = sorted(Path(sys.argv[2]).glob("*.session"))
    assert len(golden_scripts) >= 24
    save_reports(sys.argv[1], golden_scripts, saved)
    if len(sys.argv) > 3:
        convert_to_text(sys.argv[3], saved)
    for played in golden_scripts:
        expected = played.with_suffix(".txt").read_text(encoding="utf-8")
        document = saved / f"{played.stem}.pdf"
        assert document.stat().st_size <= LARGEST, document
        check_pages(played, pages_of(document), expected)
        if len(sys.argv) > 3:
            read_back = (saved / f"{played.stem}.txt").read_text(encoding="utf-8-sig")
            assert_same(read_back, expected, played.stem)
            assert_order(read_back, expected, played.stem)
