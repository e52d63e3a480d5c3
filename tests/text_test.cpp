// How the host measures, compares and shows text.
#include <gtest/gtest.h>

#include "host/screen/canvas.h"
#include "host/text.h"
#include "simulated/machine.h"

namespace {

TEST(Text, TakesTheColumnsOfItsScripts) {
    for (const auto& [text, columns] : {std::pair{"COM7", 4},
                                        {"é", 1},
                                        {"e\u0301", 1},
                                        {"ポート", 6},
                                        {"한글", 4},
                                        {"ทั้งหมด", 5},
                                        {"מתקדם", 5},
                                        {"\U0001F5A8\U0001F600", 3}}) {
        EXPECT_EQ(host::Columns(text), columns) << text;
    }
    EXPECT_EQ(host::CutTo("ポート番号", 6), "ポー…");
    EXPECT_EQ(host::CutTo("e\u0301e\u0301e\u0301", 2), "e\u0301…");
}

TEST(Text, IsFoldedInEveryAlphabetWithSmallLetters) {
    EXPECT_EQ(host::Folded("COM1 ÄŁŐŸ ΣΏ ЙЁ Ա"), "com1 äłőÿ σώ йё ա");
    EXPECT_EQ(host::Folded("ßİ 港"), "ßİ 港");
    // The system compares names in the same way, except for signs that are no letters of their own.
    std::u16string others;
    for (char16_t unit = 1; unit < 0xD800; ++unit) {
        const std::u16string folded = FromUtf8(host::Folded(ToUtf8(std::u16string(1, unit))));
        if (folded.size() != 1 || sim::Upper(folded[0]) != sim::Upper(unit)) {
            others += unit;
        }
    }
    EXPECT_EQ(ToUtf8(others), "\u03F4\u1E9E\u2126\u212A\u212B");
}

TEST(Text, NeverCommandsATerminalOrTurnsItsDirection) {
    EXPECT_EQ(host::Escaped("a\r\n\x1B[2J\u0085"), "a\\r\\n\\x1B[2J\\x85");
    EXPECT_EQ(host::Escaped("COM1\u202E7MOC\u2066\u200E\u061C\u200B"),
              "COM1\\u{202E}7MOC\\u{2066}\\u{200E}\\u{61C}\\u{200B}");
    EXPECT_EQ(host::Shown("\u202B&תכונות\u202C"), "תכונות");
    EXPECT_EQ(host::NameOf("\u200F&ABC...\u200F"), "abc");
}

TEST(Canvas, CutsWideCharactersAtItsEdges) {
    host::Canvas canvas(8, 2);
    canvas.Write(0, 0, "ポートポート", 8);
    canvas.Write(0, 1, "x", 1);
    canvas.Write(1, 7, "ポ", 2);
    canvas.Write(1, -1, "ポe\u0301", 3);
    EXPECT_EQ(canvas.Lines(host::Charset::Utf8), (std::vector<std::string>{" xート…", " e\u0301"}));
    host::Canvas part(4, 2);
    part.Lay(0, 0, canvas, {3, 0, 4, 1});
    part.Frame({0, 1, 2, 1}, true);
    EXPECT_EQ(part.Lines(host::Charset::Ascii), (std::vector<std::string>{" ト.", "##"}));
}

} // namespace
