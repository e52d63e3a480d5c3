#include "tests/trace_reader.h"

#include <fstream>
#include <map>
#include <regex>
#include <sstream>

#include <gtest/gtest.h>

namespace {

// A line that the trace can contain, and the operations that write it: all, or those whose names begin with
// the part before a '*'.
struct Row {
    std::string format;
    std::regex line; // its first group is the value of the first %s
    std::set<std::string> names;
    bool seen = false;
};

std::regex PatternOf(const std::string& format) {
    static const std::pair<std::regex, const char*> steps[] = {
        {std::regex(R"([\\^$.|?*+()\[\]{}])"), R"(\$&)"},
        {std::regex("%w?s"), R"(([\s\S]*))"},
        {std::regex("%(I64)?d"), R"(-?\d+)"},
        {std::regex("%03d"), R"(-?\d{3,})"},
        {std::regex("%08X"), "[0-9A-F]{8,}"},
        {std::regex("%p"), "[0-9A-F]{16,}"}};
    std::string pattern = format;
    for (const auto& [what, with] : steps) {
        pattern = std::regex_replace(pattern, what, with);
    }
    return std::regex(pattern + '\n');
}

// Each format is at the beginning of a line, with its operations below it.
std::vector<Row> Table() {
    std::vector<Row> table;
    std::ifstream file(SOURCE_DIR "/tests/trace_formats.txt");
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with("    ")) {
            std::istringstream names(line);
            table.back().names.insert(std::istream_iterator<std::string>(names), {});
        } else if (!line.starts_with(';')) {
            table.push_back({line, PatternOf(line), {}});
        }
    }
    return table;
}

std::vector<Row>& Rows() {
    static std::vector<Row> table = Table();
    return table;
}

bool IsAmong(const std::string& name, const std::set<std::string>& names) {
    return names.contains(name) || (name.starts_with("Kavro_Reg") && names.contains("Kavro_Reg*"));
}

// The row that a line matches, or null, and the line's name. Most lines occur again and again.
const std::pair<const Row*, std::string>& Recognised(std::string_view line) {
    static std::map<std::string, std::pair<const Row*, std::string>, std::less<>> known;
    const auto place = known.find(line);
    if (place != known.end()) {
        return place->second;
    }
    for (Row& row : Rows()) {
        std::match_results<std::string_view::const_iterator> parts;
        if (std::regex_match(line.begin(), line.end(), parts, row.line)) {
            const std::string name = parts.size() > 1 ? parts[1].str() : "";
            if (row.names.empty() || IsAmong(name, row.names)) {
                row.seen = true;
                return known[std::string(line)] = {&row, name};
            }
        }
    }
    return known[std::string(line)] = {};
}

} // namespace

void TraceReader::Read(std::string_view line) {
    if (open_.empty() && line.starts_with(" - ")) {
        return; // of a helper that a test calls directly
    }
    const auto& [found, name] = Recognised(line);
    if (found == nullptr) {
        ADD_FAILURE() << "no line of the table, or of another operation: " << line;
        return;
    }
    const std::string& format = found->format;
    if (format.starts_with("----> ")) {
        open_.push_back(name);
    }
    if (found->names.empty()) {
        return;
    }
    if (!name.ends_with("DlgProc")) { // it opens nothing, because it gets every message
        EXPECT_EQ(name, open_.empty() ? "" : open_.back()) << line;
    }
    if (format.starts_with("<---- ") && !open_.empty()) {
        open_.pop_back();
    }
}

std::set<std::string> TraceReader::Unseen() {
    std::set<std::string> unseen;
    for (const Row& row : Rows()) {
        if (!row.seen) {
            unseen.insert(row.format);
        }
    }
    return unseen;
}
