#!/usr/bin/env python3
"""Pictures of the four dialogs from the real windows, on the sample machine.

    pictures.py FOLDER [LANGUAGE|all]

writes FOLDER/103.png and so on in English, FOLDER/103-1031.png in another language, and for `all` one sheet per dialog
with all languages side by side, FOLDER/103-all.png."""
import pathlib
import subprocess
import sys
import tempfile

from wine import DEFAULT_FONT, FONTS, ROOT, Prefix

ENGLISH = 1033
DIALOGS = [100, 101, 103, 104]


def take(folder, wanted):
    with Prefix() as prefix, tempfile.TemporaryDirectory() as place:
        prefix.import_machine(ROOT / "host/machines/sample.reg")
        languages = [int(word) for word in prefix.run("kvrfit.exe", "list")[0].split()]
        if wanted != "all":
            languages = [language for language in languages if language == int(wanted)]
        special = {language: font for font, group in FONTS.items() for language in group}
        for font in [DEFAULT_FONT, *FONTS]:
            group = [language for language in languages if special.get(language, DEFAULT_FONT) == font]
            if group:
                prefix.use_font(font)
                output, code = prefix.run("kvrpictures.exe", "Z:" + place.replace("/", "\\"), *group)
                if code:
                    raise RuntimeError(output.decode())
        folder.mkdir(parents=True, exist_ok=True)
        for dialog in DIALOGS:
            taken = [pathlib.Path(place) / f"{dialog}-{language}.bmp" for language in languages]
            if wanted == "all":
                labelled = []
                for picture in taken:
                    labelled.append(str(picture.with_suffix(".png")))
                    subprocess.run(["convert", str(picture), "-gravity", "south", "-background", "white", "-splice",
                                    "0x20", "-annotate", "+0+3", picture.stem[4:], labelled[-1]], check=True)
                made = folder / f"{dialog}-all.png"
                command = ["montage", *labelled, "-tile", "6x", "-geometry", "+6+6", "-gravity", "north", "-strip",
                           str(made)]
            else:
                made = folder / (f"{dialog}.png" if languages == [ENGLISH] else f"{dialog}-{languages[0]}.png")
                command = ["convert", str(taken[0]), "-strip", str(made)]
            subprocess.run(command, check=True)
            print(made)


if __name__ == "__main__":
    take(pathlib.Path(sys.argv[1]), sys.argv[2] if len(sys.argv) > 2 else str(ENGLISH))
