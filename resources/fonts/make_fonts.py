#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
"""Make the application fonts "Tessan" and "TessanCd".

The outlines come from Roboto and Roboto Condensed; characters that these lack are copied from
DejaVu Sans. Each font is cut down to the characters that a calculator for levels, powers and
voltages shows, and renamed, as the licences of the sources ask. Equal sources give equal bytes.

usage: make_fonts.py OUTPUT_FOLDER QT FONT...

QT is the generation of Qt that will draw with the fonts, 5 or 6. The FONTs are the source files named
in STYLES, in any order. The output folder receives the eight fonts.
"""

import sys
from pathlib import Path
from typing import NamedTuple

from fontTools.pens.recordingPen import DecomposingRecordingPen
from fontTools.pens.transformPen import TransformPen
from fontTools.pens.ttGlyphPen import TTGlyphPen
from fontTools.subset import Options, Subsetter
from fontTools.ttLib import TTFont
from fontTools.ttLib.tables.ttProgram import Program

VERSION = "3.2"

# fsSelection and macStyle bits
FS_ITALIC, FS_BOLD, FS_REGULAR = 0x01, 0x20, 0x40
MAC_BOLD, MAC_ITALIC = 0x01, 0x02


class Style(NamedTuple):
    """One style of a family: where it comes from and how it presents itself."""

    family: str
    name: str
    source: str
    filler: str
    weight: int
    selection: int
    mac_style: int

    @property
    def file_name(self) -> str:
        return f"{self.family}_v3_{self.name}_02.ttf"


def family_styles(family: str, source: str) -> list:
    sans, sans_bold = "DejaVuSans.ttf", "DejaVuSans-Bold.ttf"
    return [
        Style(family, "Bold", f"{source}-Bold.ttf", sans_bold, 700, FS_BOLD, MAC_BOLD),
        Style(family, "Italic", f"{source}-Italic.ttf", sans, 400, FS_ITALIC, MAC_ITALIC),
        Style(family, "Light", f"{source}-Light.ttf", sans, 300, 0, 0),
        Style(family, "Regular", f"{source}-Regular.ttf", sans, 400, FS_REGULAR, 0),
    ]


STYLES = family_styles("Tessan", "Roboto") + family_styles("TessanCd", "RobotoCondensed")

# A character in none of the sources is an error, so the blocks leave out what no source has.
BLOCKS = [
    (0x0020, 0x007E),  # Basic Latin
    (0x00A0, 0x017F),  # Latin-1, Latin Extended-A
    (0x0384, 0x038A),  # Greek
    (0x038C, 0x038C),
    (0x038E, 0x03A1),
    (0x03A3, 0x03CE),
    (0x03D1, 0x03D1),  # theta, upsilon, phi and pi symbols
    (0x03D5, 0x03D6),
    (0x2000, 0x200A),  # spaces: en, em, figure, punctuation, thin, hair ...
    (0x2010, 0x2016),  # hyphens, dashes, double bar
    (0x2018, 0x201E),  # quotation marks
    (0x2070, 0x2071),  # superscripts
    (0x2074, 0x208E),  # superscripts, subscripts
    (0x2190, 0x2199),  # arrows
]
SINGLES = (
    "†‡•…‰′″‹›⁄€№™ℓ"
    "ₙ"
    "\u2026\u202F\u205F"  # ellipsis, narrow no-break space, mathematical space
    "\u2126\u212B"  # ohm sign, angstrom sign
    "⇄⇆⇒⇔↔↺↻"
    "∂∆∏∑−∓∕∗∘∙√∝∞∟∠∡∥∫∼≃≅≈≙≠≡≤≥≪≫⊥⋅"
    "⌀⌫⌦⏎"
    "■□▲△▶▷▼▽◀◁◆◇○●◦"
    "☰⚠✓✔✕✗✘"
    "\uFFFD"
)
# Kerning and accents are kept; figures are of equal width without any feature.
FEATURES = ["kern", "mark", "mkmk", "ccmp", "locl"]


def wanted_characters() -> set:
    return {c for first, last in BLOCKS for c in range(first, last + 1)} | set(map(ord, SINGLES))


def subset(font: TTFont, characters: set) -> None:
    options = Options()
    options.layout_features = FEATURES
    options.hinting = False
    options.glyph_names = False
    options.notdef_outline = True
    options.name_IDs = ["*"]
    options.recalc_timestamp = False
    options.drop_tables += ["DSIG", "FFTM", "gasp"]
    subsetter = Subsetter(options)
    subsetter.populate(unicodes=characters)
    subsetter.subset(font)


def copy_glyph(source: TTFont, character: int, target: TTFont) -> None:
    """Copy one glyph without hints or components, scaled to the target's units."""
    scale = target["head"].unitsPerEm / source["head"].unitsPerEm
    source_name = source.getBestCmap()[character]
    recording = DecomposingRecordingPen(source.getGlyphSet())
    source.getGlyphSet()[source_name].draw(recording)
    pen = TTGlyphPen(None)
    recording.replay(TransformPen(pen, (scale, 0, 0, scale, 0, 0)))
    glyph = pen.glyph()
    glyph.program = Program()
    glyph.recalcBounds(target["glyf"])

    name = f"uni{character:04X}"
    width = round(source["hmtx"][source_name][0] * scale)
    target.setGlyphOrder(target.getGlyphOrder() + [name])
    target["glyf"].glyphs[name] = glyph
    target["glyf"].glyphOrder = target.getGlyphOrder()
    target["hmtx"][name] = (width, getattr(glyph, "xMin", 0))
    for table in target["cmap"].tables:
        if table.isUnicode():
            table.cmap[character] = name


def fill(font: TTFont, filler: TTFont, characters: set) -> None:
    for character in sorted(characters - set(font.getBestCmap())):
        if character not in filler.getBestCmap():
            sys.exit(f"make_fonts.py: no source has the character U+{character:04X}")
        copy_glyph(filler, character, font)


def widen_figure_space(font: TTFont) -> None:
    """The figure space lines up columns of figures, so it is as wide as one."""
    names = font.getBestCmap()
    width, bearing = font["hmtx"][names[ord("0")]][0], font["hmtx"][names[0x2007]][1]
    font["hmtx"][names[0x2007]] = (width, bearing)


def rename(font: TTFont, filler: TTFont, style: Style) -> None:
    """Give a new name table; copyright and licence texts of both sources are kept in it.

    The typographic family has all four styles. The plain one may have but one upright style that
    is not bold, or Windows confuses the two; so Light has a plain family of its own.
    """
    old, filler_old = font["name"], filler["name"]
    name = f"{style.family} {style.name}"
    plain = (name, "Regular") if style.name == "Light" else (style.family, style.name)
    records = {
        0: f"{old.getDebugName(0)}\n{filler_old.getDebugName(0)}",
        1: plain[0],
        2: plain[1],
        3: f"Vantrel:{name}:{VERSION}",
        4: name,
        5: f"Version {VERSION}",
        6: f"{style.family}-{style.name}",
        10: f"A modified font: {old.getDebugName(4)} ({old.getDebugName(5)}), cut down to fewer "
        f"characters and renamed, with glyphs added from {filler_old.getDebugName(4)} "
        f"({filler_old.getDebugName(5)}).",
        13: f"Outlines: {old.getDebugName(13)}\n\nAdded glyphs:\n{filler_old.getDebugName(13)}",
        14: old.getDebugName(14),
        16: style.family,
        17: style.name,
    }
    old.names = []
    for name_id, text in records.items():
        old.setName(text.strip(), name_id, 3, 1, 0x409)


def set_style(font: TTFont, style: Style) -> None:
    font["OS/2"].usWeightClass = style.weight
    font["OS/2"].fsSelection = style.selection
    font["OS/2"].achVendID = "VNTR"
    font["head"].macStyle = style.mac_style


def keep_line_height(font: TTFont) -> None:
    """Makes lines in Qt 6 as high as in Qt 5 on Linux.

    Qt 5 takes the height of a line from the table hhea and rounds it up, Qt 6 takes it from OS/2 and
    rounds it to the nearest. So the values there are those of hhea and the little that rounds up at
    the sizes in the style sheets.
    """
    font["OS/2"].usWinAscent = font["hhea"].ascent + 9
    font["OS/2"].usWinDescent = -font["hhea"].descent + 12


def make_font(style: Style, sources: dict, folder: Path, qt: str) -> None:
    font = TTFont(sources[style.source], recalcTimestamp=False)
    filler = TTFont(sources[style.filler], recalcTimestamp=False)
    characters = wanted_characters()
    subset(font, characters)
    fill(font, filler, characters)
    widen_figure_space(font)
    rename(font, filler, style)
    set_style(font, style)
    if qt == "6":
        keep_line_height(font)
    font["OS/2"].recalcUnicodeRanges(font)
    font.save(folder / style.file_name)


def main(arguments: list) -> None:
    if len(arguments) < 3:
        sys.exit(__doc__)
    folder = Path(arguments[0])
    sources = {Path(path).name: path for path in arguments[2:]}
    missing = {name for style in STYLES for name in (style.source, style.filler)} - set(sources)
    if missing:
        sys.exit(f"make_fonts.py: not given: {', '.join(sorted(missing))}")
    folder.mkdir(parents=True, exist_ok=True)
    for style in STYLES:
        make_font(style, sources, folder, arguments[1])


if __name__ == "__main__":
    main(sys.argv[1:])
