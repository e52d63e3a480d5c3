// The settings line alone: blanks, commas, what each field reads as, and every selection written and read
// back.
#include <gtest/gtest.h>

#include "platform/simulated/machine.h"
#include "uart_page/settings_line.h"

namespace {

// "baud parity data stop flow", the last four by index, and the text that selects the baud rate.
std::string Read(sim::Text line) {
    const WCHAR* baud_text = nullptr;
    const PortSettings read = ParseSettingsLine(line.data(), baud_text);
    std::string fields = std::to_string(read.BaudRate);
    for (const u32 index :
         {read.ParityIndex, read.DataBitsIndex, read.StopBitsIndex, read.FlowControlIndex}) {
        fields += ' ' + std::to_string(index);
    }
    return fields + " \"" + sim::ToUtf8(baud_text) + '"';
}

TEST(SettingsLine, OnlyBlanksAreTrimmed) {
    for (const auto& [text, trimmed] :
         std::initializer_list<std::pair<sim::Text, sim::Text>>{{u"", u""},
                                                                {u"   ", u""},
                                                                {u"a", u"a"},
                                                                {u"  a b  ", u"a b"},
                                                                {u"\t a\u00A0 ", u"\t a\u00A0"}}) {
        sim::Text line = text;
        TrimBlanks(line.data());
        EXPECT_EQ(line.c_str(), trimmed);
    }
}

TEST(SettingsLine, TheFirstOccurrenceOrTheTerminatorIsFound) {
    sim::Text text = u"COCOM1,,";
    for (const auto& [wanted, place] : std::initializer_list<std::pair<const WCHAR*, int>>{
             {u",", 6}, {u"COM", 2}, {u",,", 6}, {u",,,", 8}, {u"x", 8}, {u"COCOM1,,,", 8}}) {
        EXPECT_EQ(ScanComma(text.data(), wanted) - text.data(), place);
    }
}

TEST(SettingsLine, EveryFieldHasItsFallback) {
    const std::pair<const char16_t*, const char*> cases[] = {
        {u"", "150 2 4 0 2 \"\""},
        {u"9600", "9600 2 4 0 2 \"9600\""},
        {u",n,8,1", "150 2 4 0 2 \"\""},
        {u",,,,,,,,", "150 2 4 0 2 \"\""},
        {u"9600 ,n,8,1", "9600 2 4 0 2 \"9600 \""},
        {u"x9600,e", "0 0 4 0 2 \"x9600\""},
        {u"4294976896,o", "9600 1 4 0 2 \"4294976896\""}, // modulo 2 to the power 32
        {u"9600,E,a,1.50,X", "9600 2 4 0 2 \"9600\""},
        {u"9600,even,80,2x,xon", "9600 0 4 0 0 \"9600\""},
        {u"9600,mark,3,1.5,p", "9600 3 4 1 1 \"9600\""},
        {u"9600, s , 4 , 2 , p ,x", "9600 4 0 2 1 \"9600\""},
        {u"9600,\te,9,\t2,\tx", "9600 2 4 0 2 \"9600\""},
        {u"115200,e,7,1.5,x", "115200 0 3 1 0 \"115200\""},
        {u"19200,n,8,2 ,p", "19200 2 4 2 1 \"19200\""},
        {u"9600,o,8,2  ", "9600 1 4 2 2 \"9600\""},
        {u"9600,n,8,1 ,", "9600 2 4 0 2 \"9600\""},
    };
    for (const auto& [line, fields] : cases) {
        EXPECT_EQ(Read(line), fields) << sim::ToUtf8(line);
    }
}

TEST(SettingsLine, IsComposedWithItsBlanksAndCutAtItsCapacity) {
    const std::pair<PortSettings, const char16_t*> cases[] = {{{0, 2, 4, 0, 2}, u"9600,n,8,1 "},
                                                              {{0, 0, 3, 1, 0}, u"9600,e,7,1.5,x"},
                                                              {{0, 3, 0, 2, 1}, u"9600,m,4,2 ,p"},
                                                              {{0, 1, 4, 2, 2}, u"9600,o,8,2  "}};
    for (const auto& [settings, composed] : cases) {
        WCHAR line[SettingsLineCapacity] = u"9600";
        ComposeSettingsLine(line, SettingsLineCapacity, settings);
        EXPECT_EQ(sim::Text(line), composed);
    }
    for (u32 capacity = 5; capacity < 20; ++capacity) {
        WCHAR line[20] = u"9600";
        ComposeSettingsLine(line, capacity, {9600, 0, 3, 1, 1});
        EXPECT_EQ(sim::Text(line), sim::Text(u"9600,e,7,1.5,p").substr(0, capacity - 1));
    }
}

TEST(SettingsLine, AnIndexBeyondItsTableIsRefused) {
    const PortSettings last = {9600, 4, 4, 2, 2};
    for (u32 PortSettings::*index : {&PortSettings::ParityIndex, &PortSettings::DataBitsIndex,
                                     &PortSettings::StopBitsIndex, &PortSettings::FlowControlIndex}) {
        WCHAR line[20] = u"9600";
        PortSettings settings = last;
        EXPECT_TRUE(ComposeSettingsLine(line, ARRAYSIZE(line), settings));
        ++(settings.*index);
        EXPECT_FALSE(ComposeSettingsLine(line, ARRAYSIZE(line), settings));
    }
}

} // namespace
