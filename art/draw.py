#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Draws the images of the library: 16 by 16 pixels, GIF, from the parts in sprites.txt.

    art/draw.py src/frontend/images docs/images.html   the images, and the sheet that shows them all
"""
import base64
import pathlib
import sys

COLOURS = {
    "k": 0x2B2B2B, "K": 0x2B2B2B, "w": 0xFFFFFF, "g": 0xD0D0D0, "G": 0x808080, "r": 0xC8342E, "o": 0xD9730D,
    "y": 0xF2B90F, "b": 0x2F6FD0, "n": 0x2E8B3D, "s": 0xF4C79B, "h": 0x5B3A1E, "H": 0xA85A1E,
}
ORANGE, BLUE, GREEN = (0xF2A33C, 0xC77A12), (0x5B93E6, 0x2A5DB0), (0x5DB56A, 0x2E7D3A)
PURPLE, RED, GREY = (0xA678D6, 0x7448A8), (0xE0736B, 0xA8352E), (0xB8B8B8, 0x808080)
SAND, STEEL, GLASS = (0xF5D77A, 0xC9A23A), (0x9FB4C8, 0x64798D), (0xCFE6FA, 0x8A5A2B)
SIZE = 16


def read_sprites(path):
    sprites, name = {}, None
    for line in path.read_text(encoding="utf-8").splitlines():
        if line.startswith("#") or not line:
            name = None
        elif name is None:
            name = line
            sprites[name] = []
        else:
            sprites[name].append(line)
    for name, rows in sprites.items():
        if any(len(row) != len(rows[0]) for row in rows):
            raise SystemExit(f"sprites.txt: the rows of {name} differ in length")
    return sprites


SPRITES = read_sprites(pathlib.Path(__file__).with_name("sprites.txt"))


class Image:
    def __init__(self):
        self.pixels = [[None] * SIZE for _ in range(SIZE)]

    def put(self, sprite, colours=GREY, left=0, top=0):
        for y, row in enumerate(SPRITES[sprite]):
            for x, letter in enumerate(row):
                if letter != ".":
                    self.pixels[top + y][left + x] = (
                        colours["CD".index(letter)] if letter in "CD" else COLOURS[letter])
        return self

    def grey(self):
        """What is there but cannot be used: washed out."""
        def pale(colour):
            if colour is None:
                return None
            light = (299 * (colour >> 16) + 587 * (colour >> 8 & 255) + 114 * (colour & 255)) // 1000
            return (110 + light * 145 // 255) * 0x010101
        self.pixels = [[pale(p) for p in row] for row in self.pixels]
        return self

    def flipped(self):
        self.pixels.reverse()
        return self

    def gif(self):
        used = sorted({p for row in self.pixels for p in row if p is not None})
        bits = max(2, len(used).bit_length())
        palette = b"".join(p.to_bytes(3, "big") for p in [0xFF00FF] + used).ljust(3 << bits, b"\0")
        codes = [0 if p is None else used.index(p) + 1 for row in self.pixels for p in row]
        data = compress(codes, bits)
        return (b"GIF89a" + SIZE.to_bytes(2, "little") * 2 + bytes([0x80 | (bits - 1), 0, 0]) + palette +
                b"\x21\xf9\x04\x01\0\0\0\0" + b"\x2c" + b"\0\0" * 2 + SIZE.to_bytes(2, "little") * 2 + b"\0" +
                bytes([bits]) + b"".join(bytes([len(data[i:i + 255])]) + data[i:i + 255]
                                         for i in range(0, len(data), 255)) + b"\0;")


def compress(codes, bits):
    """The codes in the LZW form of GIF."""
    clear, end = 1 << bits, (1 << bits) + 1
    out, room, width = 0, 0, bits + 1
    table = {(code,): code for code in range(clear)}

    def emit(code):
        nonlocal out, room
        out |= code << room
        room += width

    emit(clear)
    word = ()
    for code in codes:
        if word + (code,) in table:
            word += (code,)
            continue
        emit(table[word])
        table[word + (code,)] = len(table) + 2
        if len(table) + 2 > 1 << width:
            width += 1
        word = (code,)
    emit(table[word])
    emit(end)
    return out.to_bytes((room + 7) // 8, "little")


def person(who, colours, mark=None, favourite=False):
    image = Image().put(who, colours)
    if mark:
        image.put(mark, left=9, top=9)
    if favourite:
        image.put("small_star", left=9, top=0)
    return image


def images():
    prospect, customer, supplier = (ORANGE, "question_mark"), (BLUE, "letter_k"), (GREEN, "letter_l")
    private, staff = (PURPLE, "small_house"), (RED, "badge")
    both = (("M", "man"), ("F", "woman"))
    yield "Interessentenstamm", Image().put("building", ORANGE).put("question_mark", left=9, top=9)
    for letter, who in both:
        yield "InteressentenAnsprechpartner" + letter, person(who, *prospect)
    yield "Kundenstamm", Image().put("building", BLUE).put("letter_k", left=9, top=9)
    for letter, who in both:
        yield "KundenAnsprechpartner" + letter, person(who, *customer)
    yield "Lieferantenstamm", Image().put("truck", GREEN)
    for letter, who in both:
        yield "LieferantenAnsprechpartner" + letter, person(who, *supplier)
    for letter, who in both:
        yield "Privatadresse" + letter, person(who, *private)
    for letter, who in both:
        yield "Personalstamm" + letter, person(who, *staff)
    yield "Zusatzadressen", Image().put("cards")
    for name, sprite, colours in (("Phone", "phone", RED), ("Fax", "fax", SAND), ("MobilePhone", "mobile", STEEL),
                                  ("EMail", "letter", SAND), ("Homepage", "globe", BLUE)):
        yield name, Image().put(sprite, colours)
        yield name + "Grey", Image().put(sprite, colours).grey()
    yield "Addressbook", Image().put("book", RED)
    yield "SearchContact", Image().put("man", BLUE).put("small_glass", GLASS, 8, 8)
    yield "Favorites", Image().put("star")
    yield "HyperlinkCursor", Image().put("hand")
    for role, group in (("Interessenten", prospect), ("Kunden", customer), ("Lieferanten", supplier)):
        for letter, who in both:
            yield role + "Ansprechpartner" + letter + "Favorite", person(who, *group, favourite=True)
    for name, sprite, colours in (("Birthdaycake", "cake", ORANGE), ("Home", "house", RED)):
        yield name, Image().put(sprite, colours)
        yield name + "Grey", Image().put(sprite, colours).grey()
    yield "ArrowUp", Image().put("arrow", GREEN)
    yield "ArrowDown", Image().put("arrow", RED).flipped()
    yield "Details", Image().put("details", BLUE)
    yield "ContractFolder", Image().put("folder", SAND).put("paragraph", left=5, top=6)
    yield "ContractNode1", Image().put("sheet").put("seal", left=7, top=10)
    yield "ContractNode2", Image().put("second_sheet").put("sheet").put("paragraph", left=6, top=8)
    yield "Search", Image().put("glass", GLASS)
    yield "SearchCategory", Image().put("tag", PURPLE).put("small_glass", GLASS, 8, 8)
    yield "Category", Image().put("tag", PURPLE)


def main():
    folder, sheet = map(pathlib.Path, sys.argv[1:3])
    folder.mkdir(parents=True, exist_ok=True)
    cells = []
    for number, (name, image) in enumerate(images(), 1):
        data = image.gif()
        (folder / f"{number:02}-{name}.gif").write_bytes(data)
        source = base64.b64encode(data).decode()
        cells.append(f'<figure><img src="data:image/gif;base64,{source}" alt=""><img class="large" '
                     f'src="data:image/gif;base64,{source}" alt="{name}"><figcaption>{number} zqImg{name}'
                     "</figcaption></figure>")
    sheet.write_text("""<!DOCTYPE html>
<html lang="en"><meta charset="utf-8"><title>Images</title>
<style>
body { font: 12px sans-serif } main { display: flex; flex-wrap: wrap; gap: 12px }
figure { margin: 0; width: 180px } .large { width: 64px; margin-left: 8px; image-rendering: pixelated }
</style>
<h1>The images of <code>Constants::GetImage</code></h1>
<main>
""" + "\n".join(cells) + "\n</main>\n</html>\n", encoding="utf-8")


if __name__ == "__main__":
    main()
