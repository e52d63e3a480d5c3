// The settings line by itself: what each field reads as, and how the line is cut.
#include <gtest/gtest.h>

#include "simulated/machine.h"
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
        {u"9600,even,80,2 x,xon", "9600 0 4 0 0 \"9600\""},
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
    for (u32 capacity = 5; capacity < 20; ++capacity) {
        WCHAR line[20] = u"9600";
        EXPECT_TRUE(ComposeSettingsLine(line, capacity, {9600, 0, 3, 2, 1}));
        EXPECT_EQ(sim::Text(line), sim::Text(u"9600,e,7,2 ,p").substr(0, capacity - 1));
    }
}

} // namespace
