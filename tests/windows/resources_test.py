#!/usr/bin/env python3
"""The dialogs and strings in the built library: every language has the same numbers and kinds.

The folder of the build is KVR_WINDOWS_BUILD, or build/windows."""
import os
import pathlib
import re
import unittest

import pe

ROOT = pathlib.Path(__file__).resolve().parents[2]
LIBRARY = pathlib.Path(os.environ.get("KVR_WINDOWS_BUILD", ROOT / "build" / "windows")) / "kvrpagex64.dll"

ENGLISH = 1033
DIALOGS = [100, 101, 103, 104]
# String to the units of the buffer that it is loaded into, terminator included.
LIMITS = {0: 200, 1: 30, 5: 512, 11: 258, 12: 258, 13: 258, 19: 200, 52: 260, 53: 260, 57: 512, 61: 512, 62: 40,
          70: 260, 71: 260, 72: 260, 74: 260}
LIST_LENGTHS = {11: 5, 12: 3, 13: 3}
EAST_ASIAN = {1028, 1041, 1042, 2052}


def placeholders(text):
    return re.findall(r"%.?", text)


class Resources(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.dialogs, cls.strings = {}, {}
        for (kind, name, language), data in pe.Image(LIBRARY).resources().items():
            if kind == pe.RT_DIALOG:
                cls.dialogs.setdefault(language, {})[name] = pe.dialog(data)
            elif kind == pe.RT_STRING:
                cls.strings.setdefault(language, {}).update(pe.strings(name, data))
        # One file per language, named by its number.
        files = (ROOT / "src/resources/languages").glob("*.h")
        cls.languages = sorted(int(file.name.split("_")[0]) for file in files)

    def each(self):
        for language in self.languages:
            for number, dialog in self.dialogs[language].items():
                yield dialog, self.dialogs[ENGLISH][number], (language, number)

    def test_every_language_is_there_and_no_other(self):
        self.assertEqual(sorted(self.dialogs), self.languages)
        self.assertEqual(sorted(self.strings), self.languages)
        for language in self.languages:
            self.assertEqual(sorted(self.dialogs[language]), DIALOGS, language)
            self.assertEqual(sorted(self.strings[language]), sorted(LIMITS), language)

    def test_controls_have_the_numbers_kinds_and_styles_of_english(self):
        for dialog, english, where in self.each():
            self.assertEqual([(c.id, c.kind, c.style, c.text == "") for c in dialog.controls],
                             [(c.id, c.kind, c.style, c.text == "") for c in english.controls], where)
            self.assertEqual((dialog.style, dialog.font, dialog.weight),
                             (english.style, english.font, english.weight), where)
            self.assertNotEqual(dialog.title, "", where)

    def test_controls_lie_within_their_dialog(self):
        for dialog, _, where in self.each():
            for c in dialog.controls:
                height = 14 if c.kind == "COMBOBOX" else c.cy
                self.assertTrue(c.x >= 0 and c.y >= 0 and c.x + c.cx <= dialog.cx and c.y + height <= dialog.cy,
                                (where, c))

    def test_placeholders_are_those_of_english(self):
        for dialog, english, where in self.each():
            for mine, theirs in zip(dialog.controls, english.controls):
                self.assertEqual(placeholders(mine.text), placeholders(theirs.text), (where, mine.id))
        for language in self.languages:
            for number, text in self.strings[language].items():
                self.assertEqual(placeholders(text), placeholders(self.strings[ENGLISH][number]), (language, number))

    def test_one_letter_reaches_one_control(self):
        for dialog, _, where in self.each():
            letters = []
            for c in dialog.controls:
                marks = re.findall("&(.?)", c.text)
                self.assertLessEqual(len(marks), 1, (where, c.text))
                self.assertNotIn("", marks, (where, c.text))
                if where[0] in EAST_ASIAN and marks:
                    self.assertRegex(c.text, r"\(&[A-Z]\)", where)
                letters += (mark.lower() for mark in marks)
            self.assertEqual(sorted(letters), sorted(set(letters)), where)

    def test_strings_fit_their_buffers_and_their_readers(self):
        for language in self.languages:
            with self.subTest(language=language):
                for number, text in self.strings[language].items():
                    self.assertLess(len(text.encode("utf-16-le")) // 2, LIMITS[number], number)
                    blanks = " " if number == 62 else ""
                    self.assertEqual(text, blanks + text.strip(" "), number)
                for number, count in LIST_LENGTHS.items():
                    text = self.strings[language][number]
                    self.assertEqual((text[0], text.count(",")), (",", count), number)
                    self.assertNotIn("", [item.strip() for item in text[1:].split(",")], number)
                self.assertEqual(self.strings[language][12], ",1,1.5,2")


if __name__ == "__main__":
    unittest.main()
