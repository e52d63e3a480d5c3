// The operator scripts: each tests/scripts/*.txt runs on a machine of its own, and its transcript must equal
// the one that is kept beside it. Comments at the top of a script name the machine, relative to the root of
// the project:
//     # machine: host/machines/two_boards.reg
//     # language: 1031
//     # remote            (every device belongs to another machine)
// and one of this form anywhere makes a call of an operation fail, here the fifth one from then on:
//     # fail: DefineDosDeviceW 5
// If KEEP_TRANSCRIPTS is set in the environment, the transcripts are written instead.
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include <gtest/gtest.h>

#include "host/line/line_seat.h"
#include "host/session/session.h"
#include "host/worlds/simulated/tour.h"
#include "host/worlds/simulated/world.h"
#include "simulated/catalogue.h"

namespace {

const std::filesystem::path scripts = SOURCE_DIR "/tests/scripts";

std::string ContentOf(const std::filesystem::path& file) {
    std::ostringstream content;
    content << std::ifstream(file, std::ios::binary).rdbuf();
    return content.str();
}

std::vector<std::string> LinesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) {
        lines.push_back(line);
    }
    return lines;
}

// The rest of a line after "# name: "; empty if the line doesn't begin so.
std::string Said(const std::string& line, const std::string& name) {
    const std::string start = "# " + name + ": ";
    return line.starts_with(start) ? line.substr(start.size()) : std::string{};
}

class Script : public host::LineSource {
public:
    Script(std::vector<std::string> lines, host::World& world) : lines_(std::move(lines)), world_(world) {}

    std::optional<std::string> Next(const std::string&) override {
        if (next_ == lines_.size()) {
            return {};
        }
        const std::string& line = lines_[next_++];
        std::istringstream said(Said(line, "fail"));
        std::string operation;
        std::size_t call = 0;
        if (said >> operation >> call) {
            world_.File()->Fail(operation, call);
        }
        return line;
    }

private:
    std::vector<std::string> lines_;
    std::size_t next_ = 0;
    host::World& world_;
};

std::vector<std::string> Names() {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(scripts)) {
        if (entry.path().extension() == ".txt") {
            names.push_back(entry.path().stem().string());
        }
    }
    std::ranges::sort(names);
    return names;
}

class ScriptsTest : public testing::TestWithParam<std::string> {};

TEST_P(ScriptsTest, MatchesItsTranscript) {
    const std::vector<std::string> lines = LinesOf(ContentOf(scripts / (GetParam() + ".txt")));
    std::string file;
    host::MachineFile machine_file;
    sim::Machine machine;
    const auto top_end = std::ranges::find_if(lines, [](const auto& line) { return !line.starts_with('#'); });
    for (auto line = lines.begin(); line != top_end; ++line) {
        if (const std::string said = Said(*line, "machine"); !said.empty()) {
            file = SOURCE_DIR "/" + said;
        }
    }
    std::string error;
    ASSERT_TRUE(host::OpenMachineFile(file, machine_file, error)) << error;

    std::ostringstream out;
    {
        host::SimulatedWorld world(machine_file, machine);
        for (auto line = lines.begin(); line != top_end; ++line) {
            if (const std::string said = Said(*line, "language"); !said.empty()) {
                machine.language = static_cast<LANGID>(std::stoi(said));
            } else if (*line == "# remote") {
                std::ranges::for_each(machine.devices, [](sim::Device& device) { device.remote = true; });
            }
        }
        Script script(lines, world);
        host::LineSeat seat(script, out);
        host::Session(world, seat).Run();
    }
    EXPECT_TRUE(machine.open.empty());
    EXPECT_EQ(machine.misuse, std::vector<std::string>{});

    const std::filesystem::path kept = scripts / (GetParam() + ".out");
    if (std::getenv("KEEP_TRANSCRIPTS") != nullptr) {
        std::ofstream(kept, std::ios::binary) << out.str();
        return;
    }
    const std::vector<std::string> expected = LinesOf(ContentOf(kept)), got = LinesOf(out.str());
    const auto [left, right] = std::ranges::mismatch(expected, got);
    EXPECT_TRUE(left == expected.end() && right == got.end())
        << kept.string() << ':' << left - expected.begin() + 1
        << "\n  kept: " << (left == expected.end() ? "(end)" : *left)
        << "\n  now:  " << (right == got.end() ? "(end)" : *right);
}

// By the numbers of the controls, the same commands work in every language and lead to the same.
TEST(Tour, SortsAndRenamesInEveryLanguage) {
    std::string lines, ports;
    for (const std::string& line : host::TourOfSample()) {
        lines += line + '\n';
    }
    for (const sim::Catalogue* const catalogue : sim::Catalogues()) {
        host::MachineFile file;
        sim::Machine machine;
        std::string error;
        ASSERT_TRUE(host::OpenMachineFile({}, file, error)) << error;
        host::SimulatedWorld world(file, machine);
        machine.language = catalogue->language;
        std::istringstream tour(lines);
        std::ostringstream out;
        const std::unique_ptr<host::LineSource> script = host::LinesOf(tour);
        host::LineSeat seat(*script, out);
        EXPECT_EQ(host::Session(world, seat).Run(), 0) << out.str();
        const std::string last = out.str().substr(out.str().rfind("> ports"));
        EXPECT_NE(last.find("COM14"), std::string::npos);
        ports = ports.empty() ? last : ports;
        EXPECT_EQ(last, ports) << catalogue->language;
    }
}

INSTANTIATE_TEST_SUITE_P(Scripts, ScriptsTest, testing::ValuesIn(Names()),
                         [](const auto& test) { return test.param; });

} // namespace
