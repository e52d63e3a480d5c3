#!/usr/bin/env python3
"""Takes a picture of the full screen from the real one: a board's page after a sort, with the changes below.

    full_screen_picture.py KVRHOST PICTURE.svg"""
import html
import itertools
import pathlib
import sys

from terminal import Terminal

COLUMNS, ROWS = 112, 42
WIDE, HIGH = 8.4, 16  # of a cell
COLOURS = {"default": "#d8dee9", "black": "#2e3440", "white": "#ffffff", "blue": "#3b5b92", "cyan": "#88c0d0",
           "brown": "#ebcb8b"}
GROUND = "#1e222a"


def look(cell):
    ink, ground = COLOURS[cell.fg], GROUND if cell.bg == "default" else COLOURS[cell.bg]
    return (*((ground, ink) if cell.reverse else (ink, ground)), cell.bold, cell.underscore)


def picture(screen):
    lines = [f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {COLUMNS * WIDE:g} {ROWS * HIGH}" '
             f'font-family="DejaVu Sans Mono, Menlo, Consolas, monospace" font-size="14" xml:space="preserve">',
             f'<rect width="100%" height="100%" fill="{GROUND}"/>']
    for row in range(ROWS):
        cells = [screen.buffer[row][column] for column in range(COLUMNS)]
        for (ink, ground, bold, underlined), run in itertools.groupby(range(COLUMNS), lambda at: look(cells[at])):
            run = list(run)
            text = "".join(cells[at].data for at in run)
            place = f'x="{run[0] * WIDE:g}" y="{{}}"'
            if ground != GROUND:
                lines.append(f'<rect {place.format(row * HIGH)} width="{len(run) * WIDE:g}" height="{HIGH}" fill="{ground}"/>')
            if text.strip():
                lines.append(f'<text {place.format(row * HIGH + 13)} textLength="{len(run) * WIDE:g}" fill="{ink}"'
                             + ' font-weight="bold"' * bold + ' text-decoration="underline"' * underlined
                             + f'>{html.escape(text)}</text>')
    return "\n".join(lines + ["</svg>\n"])


def main(host, file):
    with Terminal(host, columns=COLUMNS, rows=ROWS) as terminal:
        terminal.wait("Multi-function PCI", "F1 help")
        terminal.press("enter")
        terminal.wait("Port Control")
        terminal.press("alt-v")
        terminal.wait("UART Feature")
        terminal.press("space")
        terminal.wait("The last change outside")
        terminal.press("esc")
        terminal.wait("COM3 (port1)", gone=["UART Feature"])
        terminal.settle()
        pathlib.Path(file).write_text(picture(terminal.screen))


main(*sys.argv[1:])
