"""Reads the files of write_samples as other programs do: .xls by their bytes, .xlsx as zipped XML. Where a spreadsheet
program is named as the second argument it opens both, and must show what our own .csv holds."""

import csv
import io
import os
import re
import subprocess
import sys
import tempfile
import zipfile
from pathlib import Path

from xls_reader import MERGECELLS, ROW, Workbook, stream_of

NUMBERS = [10, 20, -30.25, 0.8765432, 1 / 3, -0.5, 1234567.8, -9876.5, 0]
LOOKS = {(0, 0): "General B G", (0, 1): "General B G", (0, 2): "General B G", (0, 3): "General B G",
         (1, 0): "General B G W", (1, 1): "0", (1, 2): "0", (1, 3): "0.00",
         (2, 0): "General", (2, 1): "0.0000", (2, 2): "0.0000", (2, 3): "0.0", (3, 2): "General B G",
         (4, 0): "General", (4, 1): "General", (4, 2): "General",
         (5, 0): "General", (5, 1): "#,##0", (5, 2): "#,##0.00", (5, 3): "0"}
THOUSANDS = re.compile(r"-?\d{1,3}(,\d{3})+(\.\d+)?")
# Separator, quote, UTF-8, from the first line, in English, without more quotes, numbers and cells as they are shown.
AS_CSV = "csv:Text - txt - csv (StarCalc):44,34,76,1,,1033,false,true,true,false"


def write_samples(folder, **settings):
    scratch = folder / "scratch"
    scratch.mkdir(exist_ok=True)
    subprocess.run([sys.argv[1], folder], check=True, env={**os.environ, "TMPDIR": str(scratch), **settings})
    assert not list(scratch.iterdir()), "temporary files were left"


def write_german_samples(folder):
    """Writes them where numbers have a comma."""
    locales = folder / "locales"
    locales.mkdir()
    subprocess.run(["localedef", "-i", "de_DE", "-f", "UTF-8", locales / "de_DE.UTF-8"], check=True)
    write_samples(folder, LOCPATH=str(locales), LC_ALL="de_DE.UTF-8")


def rows_of(path):
    """The cells of a .csv file, texts without the apostrophe that keeps them from being formulas."""
    rows = csv.reader(io.StringIO(path.read_text(encoding="utf-8"), newline=""))
    return [[cell.removeprefix("'") for cell in row] for row in rows]


def check_xls(folder):
    for file in folder.glob("*.stream"):
        assert stream_of(file.read_bytes()).rstrip(b"\0") == b"x" * int(file.stem), file
    sample = Workbook((folder / "sample.xls").read_bytes())
    assert [value for value in sample.values.values() if isinstance(value, float)] == NUMBERS, sample.values
    assert sample.looks == LOOKS, sample.looks
    assert [body.hex() for _, body in sample.all(MERGECELLS)] == ["01000000000001000300"]
    lines = [body[6:8] for _, body in sample.all(ROW)]
    assert lines[1] > lines[0] == lines[2], lines
    for name, book in (("sample", sample), ("wide", Workbook((folder / "wide.xls").read_bytes()))):
        cells = {(i, j): cell for i, row in enumerate(rows_of(folder / f"{name}.csv"))
                 for j, cell in enumerate(row) if cell}
        assert book.values.keys() == cells.keys(), name
        for place, value in book.values.items():
            decimals = len(cells[place].partition(".")[2])
            shown = f"{value:.{decimals}f}" if isinstance(value, float) else value
            assert shown == cells[place], (name, place, value, cells[place])


def check_xlsx(folder):
    with zipfile.ZipFile(folder / "sample.xlsx") as package:
        sheet, strings, styles, core = (package.read(name).decode() for name in (
            "xl/worksheets/sheet1.xml", "xl/sharedStrings.xml", "xl/styles.xml", "docProps/core.xml"))
    numbers = [float(value) for value in re.findall(r'<c r="\w+"(?: s="\d+")?><v>([^<]*)</v>', sheet)]
    assert all(abs(a - b) < 1e-15 for a, b in zip(numbers, NUMBERS, strict=True)), numbers
    assert re.findall(r'<mergeCell ref="([^"]*)"', sheet) == ["B1:D1"] and '"C4"' in sheet, sheet
    assert all(text in strings for text in ("学校 😀", "=1+2", "two\nlines")) and "under" not in strings, strings
    assert 'formatCode="0.0000"' in styles and "1980-01-01T00:00:00Z" in core, (styles, core)


def check_with_program(program, folder):
    for ending in ("xls", "xlsx"):
        subprocess.run([program, f"-env:UserInstallation={(folder / 'profile').as_uri()}", "--headless",
                        "--convert-to", AS_CSV, "--outdir", folder / ending, *folder.glob(f"*.{ending}")],
                       check=True, capture_output=True, timeout=300)
        for name in ("sample.csv", "wide.csv"):
            found = [[cell.replace(",", "") if THOUSANDS.fullmatch(cell) else cell for cell in row]
                     for row in rows_of(folder / ending / name)]
            for row, (own, shown) in enumerate(zip(rows_of(folder / name), found, strict=True)):
                assert own == shown, (ending, name, row, own, shown)


with tempfile.TemporaryDirectory() as root:
    files = Path(root)
    write_samples(files)
    check_xls(files)
    check_xlsx(files)
    if len(sys.argv) > 2:
        write_german_samples(files)
        check_xlsx(files)
        check_with_program(sys.argv[2], files)
