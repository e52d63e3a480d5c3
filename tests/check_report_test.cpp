// The reports of kvrcheck, read and compared.
#include <gtest/gtest.h>

#include "check/comparison.h"

namespace {

using check::Report;

Report Read(const std::string& text) {
    Report report;
    std::string error;
    EXPECT_TRUE(check::ReadReport(text, report, error)) << error;
    return report;
}

const std::string heading = "name\texpected\tseen\n";
const std::string some = heading + "about.windows\t-\t10.0.1\na\t4 of 4\t4 of 4\nb\tat most 4\t5\nc\t-\tx\n";

TEST(CheckReport, ReadsWhatIsWritten) {
    Report written{
        {{"about.windows", "-", "10.0.1"}, {"a", "4 of 4", "4 of\t4\r\n"}, {"b", "at most 4", "-3"}}, true};
    const Report read = Read("\xEF\xBB\xBF" + check::TextOf(written));
    ASSERT_EQ(read.facts.size(), 3U);
    EXPECT_EQ(read.facts[1].seen, "4 of 4  ");
    EXPECT_TRUE(read.whole);
    EXPECT_EQ(check::ClosingLine(read), "1 of 2 held");
    written.whole = false;
    EXPECT_FALSE(Read(check::TextOf(written)).whole);
    EXPECT_TRUE(Read(heading + "a\tx\tx\r\n1 of 1 held\r\n\r\n").whole);
}

TEST(CheckReport, RefusesWhatIsNoReport) {
    for (const auto& [text, reason] : {std::pair<std::string, std::string>{"", "no report"},
                                       {"\xEF\xBB", "no report"},
                                       {heading, "no report"},
                                       {"Windows Registry Editor", "no report"},
                                       {heading + "a\tx", "line 2"},
                                       {heading + "a\tx\ty\tz", "line 2"},
                                       {heading + "a\tx\ty\na\tx\ty\n", "line 3 tells a fact again"},
                                       {some + "4 of 4 held\n", "does not count"},
                                       {some + "1 of 2 held\nd\t-\t1\n", "behind the end"}}) {
        Report report;
        std::string error;
        EXPECT_FALSE(check::ReadReport(text, report, error)) << text;
        EXPECT_NE(error.find(reason), std::string::npos) << error;
    }
}

TEST(CheckReport, HoldsOnlyWhatWasExpected) {
    for (const auto& [expected, seen, verdict] :
         {std::tuple{"x", "x", check::Verdict::Held},
          {"x", "xy", check::Verdict::NotHeld},
          {"-", "x", check::Verdict::Told},
          {"at most 4", "4", check::Verdict::Held},
          {"at most 4", "5", check::Verdict::NotHeld},
          {"at most 4", "", check::Verdict::NotHeld},
          {"at most 4", "99999999999999999999", check::Verdict::NotHeld},
          {"at most x", "1", check::Verdict::NotHeld}}) {
        EXPECT_EQ(check::VerdictOf({"a", expected, seen}), verdict) << expected << ' ' << seen;
    }
}

TEST(CheckReport, TellsTheWorstFirst) {
    const Report wine = Read(some + "d\tx\tz\ne\tx\tx\nf\t-\t1\n2 of 4 held\n");
    const Report here =
        Read(heading + "about.windows\t-\t11\nc\t-\ty\nd\tx\tx\ng\t-\t1\nf\t-\t1\nb\tat most 4\t4\n"
                       "a\t4 of 4\t3 of 4\n");
    std::string weights;
    for (const check::Difference& difference : check::Compare(here, wine)) {
        weights += std::to_string(static_cast<int>(difference.weight)) + ' ';
    }
    EXPECT_EQ(weights, "0 1 2 2 3 4 ");
    const std::vector<std::string> lines = check::ComparisonLines(here, check::Compare(here, wine));
    EXPECT_EQ(lines[0], "windows: 11");
    EXPECT_EQ(lines[1], "2 of 3 held; the check did not come to its end");
    EXPECT_EQ(lines[2], "does not hold: a: expected 4 of 4, seen 3 of 4; on Wine 4 of 4");
    EXPECT_EQ(lines[3], "not looked at: e");
    EXPECT_EQ(check::ComparisonLines(wine, {}).back(), "all as on Wine");
    const Report with_devices = Read(some + "devices.a\tx\tx\ndevices.b\tx\tx\n");
    EXPECT_EQ(check::Compare(Read(some), with_devices).size(), 1u);
}

TEST(CheckReport, TheKeptOneIsWhole) {
    EXPECT_TRUE(Read(std::string(check::WineReport())).whole);
}

} // namespace
