// Machine files for the tests: reads one that must be correct, and makes values for one.
#pragma once

#include <cstring>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "host/machine_file/machine_file.h"

namespace machine_files {

using Bytes = std::vector<BYTE>;

inline const std::string first_line = "Windows Registry Editor Version 5.00\n";

inline host::MachineFile Read(const std::string& bytes) {
    std::istringstream in(bytes);
    host::MachineFile file;
    host::Problem problem;
    EXPECT_TRUE(host::LoadMachine(in, "some.reg", file, problem))
        << problem.line << ": expected " << problem.expected << "\n"
        << bytes;
    return file;
}

inline sim::Machine Loaded(const std::string& bytes) {
    sim::Machine machine;
    host::GiveMachine(Read(bytes), machine);
    return machine;
}

// A file that no other test writes, because tests run at the same time.
inline std::string OwnFile(const std::string& suffix) {
    return testing::TempDir() + testing::UnitTest::GetInstance()->current_test_info()->name() + suffix;
}

inline std::string ContentOf(const std::string& path) {
    std::ostringstream content;
    content << std::ifstream(path, std::ios::binary).rdbuf();
    return content.str();
}

// The lines of a file as written.
inline std::string Lines(const std::string& utf16) {
    sim::Text text(utf16.size() / sizeof(WCHAR), u' ');
    std::memcpy(text.data(), utf16.data(), utf16.size());
    std::string lines = sim::ToUtf8(text.substr(1));
    std::erase(lines, '\r');
    return lines;
}

// A text with its terminator.
inline Bytes BytesOf(const sim::Text& text) {
    Bytes bytes((text.size() + 1) * sizeof(WCHAR));
    std::memcpy(bytes.data(), text.data(), text.size() * sizeof(WCHAR));
    return bytes;
}

} // namespace machine_files
