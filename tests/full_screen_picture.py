#!/usr/bin/env python3
"""Takes pictures of the full screen from the real one: a board's page after a sort with the changes below, the map of the
numbers, and a board's channels.

    full_screen_picture.py KVRHOST FOLDER"""
import html
import itertools
import pathlib
import sys

from terminal import Terminal

# Columns, rows, and the keys that lead to what is shown.
PICTURES = {"full_screen": (112, 42, ("enter", "alt-v", "space", "esc")),
            "numbers": (80, 30, ("^n", "right", "right", "right", "right", "right", "right", "right", "right")),
            "board": (80, 24, ("^b", "down"))}
WIDE, HIGH = 8.4, 16  # of a cell
COLOURS = {"default": "#d8dee9", "black": "#2e3440", "white": "#ffffff", "blue": "#3b5b92", "cyan": "#88c0d0",
           "brown": "#ebcb8b"}
GROUND = "#1e222a"
NO_BREAK = "\u00a0"  # a blank that no reader of the picture leaves out


def look(cell):
    ink, ground = COLOURS[cell.fg], GROUND if cell.bg == "default" else COLOURS[cell.bg]
    return (*((ground, ink) if cell.reverse else (ink, ground)), cell.bold, cell.underscore)


def picture(screen):
    lines = [f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {screen.columns * WIDE:g} {screen.lines * HIGH}" '
             f'font-family="DejaVu Sans Mono, Menlo, Consolas, monospace" font-size="14">',
             f'<rect width="100%" height="100%" fill="{GROUND}"/>']
    for row in range(screen.lines):
        cells = [screen.buffer[row][column] for column in range(screen.columns)]
        for (ink, ground, bold, underlined), run in itertools.groupby(range(screen.columns), lambda at: look(cells[at])):
            run = list(run)
            text = "".join(cells[at].data for at in run)
            place = f'x="{run[0] * WIDE:g}" y="{{}}"'
            if ground != GROUND:
                lines.append(f'<rect {place.format(row * HIGH)} width="{len(run) * WIDE:g}" height="{HIGH}" fill="{ground}"/>')
            if text.strip():
                lines.append(f'<text {place.format(row * HIGH + 13)} textLength="{len(run) * WIDE:g}" fill="{ink}"'
                             + ' font-weight="bold"' * bold + ' text-decoration="underline"' * underlined
                             + f'>{html.escape(text).replace(" ", NO_BREAK)}</text>')
    return "\n".join(lines + ["</svg>\n"])


def main(host, folder):
    for name, (columns, rows, pressed) in PICTURES.items():
        with Terminal(host, columns=columns, rows=rows) as terminal:
            terminal.wait("Devices")
            for key in pressed:
                terminal.see(key)
            pathlib.Path(folder, name + ".svg").write_text(picture(terminal.screen))


main(*sys.argv[1:])
