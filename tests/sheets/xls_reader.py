"""Reads .xls files from their bytes by the published format alone, and holds them to it on the way."""

from collections import namedtuple
from struct import calcsize, unpack_from

END, FAT, FREE = 0xFFFFFFFE, 0xFFFFFFFD, 0xFFFFFFFF
BOF, EOF, SST, CONTINUE, EXTSST, FONT, FORMAT, XF, BOUNDSHEET = 0x809, 0xA, 0xFC, 0x3C, 0xFF, 0x31, 0x41E, 0xE0, 0x85
INDEX, DIMENSIONS, DEFCOLWIDTH, ROW, DBCELL, MERGECELLS = 0x20B, 0x200, 0x55, 0x208, 0xD7, 0xE5
NUMBER, LABELSST, BLANK = 0x203, 0xFD, 0x201

Record = namedtuple("Record", "id body")


def all_of(code, data):
    return unpack_from(f"<{len(data) // calcsize(code)}{code}", data)


def stream_of(file):
    """The stream of a compound file, in which every sector belongs to one chain or to the FAT."""
    sectors = [file[at:at + 512] for at in range(512, len(file), 512)]
    assert file[:8].hex() == "d0cf11e0a1b11ae1" and len(file) % 512 == 0
    count, directory_start = unpack_from("<II", file, 44)
    used, unused = all_of("I", file[76:512])[:count], all_of("I", file[76:512])[count:]
    fat = all_of("I", b"".join(sectors[i] for i in used))
    assert set(unused) | set(fat[len(sectors):]) <= {FREE} and {fat[i] for i in used} == {FAT}
    owned = list(used)

    def chain(sector):
        while sector != END:
            owned.append(sector)
            yield sectors[sector]
            sector = fat[sector]

    directory = b"".join(chain(directory_start))
    entry = directory[128 * unpack_from("<I", directory, 76)[0]:][:128]
    assert entry[:unpack_from("<H", entry, 64)[0]].decode("utf-16-le") == "Workbook\0"
    start, size = unpack_from("<IQ", entry, 116)
    stream = b"".join(chain(start))
    assert sorted(owned) == list(range(len(sectors))) and size >= 4096 and 0 <= len(stream) - size < 512
    return stream[:size]


class Workbook:
    """What a file holds: records by their places, values and looks by row and column."""

    def __init__(self, file):
        stream, at, ends = stream_of(file), 0, 0
        self.records = {}
        while ends < 2:
            number, length = unpack_from("<HH", stream, at)
            assert length <= 8224
            self.records[at] = Record(number, stream[at + 4:at + 4 + length])
            ends += number == EOF
            at += 4 + length
        assert not stream[at:].strip(b"\0")
        self.texts = list(self.read_texts())
        self.values = dict(self.read_values())
        self.looks = dict(self.read_looks())
        self.check_places()

    def all(self, *ids):
        return [(place, record.body) for place, record in self.records.items() if record.id in ids]

    def one(self, number):
        (_, body), = self.all(number)
        return body

    def read_texts(self):
        """Each text with its place. A CONTINUE inside a text begins with the kind of its letters."""
        parts = iter(self.all(SST, CONTINUE))
        place, body = next(parts)
        at = 8
        for _ in range(unpack_from("<I", body, 4)[0]):
            if at == len(body):
                (place, body), at = next(parts), 0
            start, (letters, wide) = place + 4 + at, unpack_from("<HB", body, at)
            text, at = body[at + 3:at + 3 + 2 * letters], at + 3 + 2 * letters
            while len(text) < 2 * letters:
                place, body = next(parts)
                at = 1 + 2 * letters - len(text)
                text += body[1:at]
                assert body[0] == wide
            assert wide == 1
            yield start, text.decode("utf-16-le")
        assert at == len(body) and next(parts, None) is None

    def read_values(self):
        for _, body in self.all(NUMBER, LABELSST):
            is_number = len(body) == 14
            value = unpack_from("<d" if is_number else "<I", body, 6)[0]
            yield unpack_from("<HH", body), value if is_number else self.texts[value][1]

    def read_looks(self):
        """The format of a cell, and letters for bold, a ground and lines."""
        fonts, xfs = self.all(FONT), self.all(XF)
        formats = {unpack_from("<H", body)[0]: body[5:].decode("utf-16-le") for _, body in self.all(FORMAT)}
        for _, body in self.all(NUMBER, LABELSST, BLANK):
            xf = xfs[unpack_from("<H", body, 4)[0]][1]
            font, number = unpack_from("<HH", xf)
            is_bold = unpack_from("<H", fonts[font if font < 4 else font - 1][1], 6)[0] >= 700  # no font is number 4
            yield unpack_from("<HH", body), (formats.get(number, "General") + " B" * is_bold
                                             + " G" * (xf[17] >> 2 == 1) + " W" * (xf[6] >> 3 & 1))

    def check_places(self):
        """The places that records tell of others are theirs."""
        sheet = self.records[unpack_from("<I", self.one(BOUNDSHEET))[0]]
        assert sheet.id == BOF and unpack_from("<H", sheet.body, 2)[0] == 0x10
        _, _, rows, widths, *blocks = all_of("I", self.one(INDEX))
        assert self.records[widths].id == DEFCOLWIDTH and blocks == [place for place, _ in self.all(DBCELL)]
        assert rows == unpack_from("<I", self.one(DIMENSIONS), 4)[0] == len(self.all(ROW))
        row = 0
        for place, body in self.all(DBCELL):
            first_row = place - unpack_from("<I", body)[0]
            assert unpack_from("<H", self.records[first_row].body)[0] == row and self.records[first_row].id == ROW
            cells = first_row + 20
            for offset in all_of("H", body[4:]):
                cells += offset
                is_empty = (self.all(ROW)[row][1])[2:6] == bytes(4)
                assert is_empty or unpack_from("<H", self.records[cells].body)[0] == row
                row += 1
        assert row == rows
        bucket = unpack_from("<H", self.one(EXTSST))[0]
        places = [unpack_from("<IH", self.one(EXTSST), at) for at in range(2, len(self.one(EXTSST)), 8)]
        assert [place for place, _ in places] == [place for place, _ in self.texts[::bucket]]
        assert all(self.records[place - offset].id in (SST, CONTINUE) for place, offset in places)
