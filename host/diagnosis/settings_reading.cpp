#include "host/diagnosis/settings_reading.h"

#include <algorithm>
#include <array>
#include <span>
#include <vector>

#include "host/text.h"

namespace host {
namespace {

constexpr std::string_view speeds[] = {"75",    "110",   "134",    "150",    "300",    "600",    "1200",
                                       "1800",  "2400",  "4800",   "7200",   "9600",   "14400",  "19200",
                                       "38400", "57600", "115200", "128000", "230400", "460800", "921600"};
constexpr std::string_view parities[] = {"e", "o", "n", "m", "s"};
constexpr std::string_view data_bits[] = {"4", "5", "6", "7", "8"};
constexpr std::string_view stop_bits[] = {"1", "1.5", "2"};
constexpr std::string_view flows[] = {"x", "p"};

constexpr std::size_t longest_line = 80;

enum class Match { WholeField, FirstLetter };

// One field: its possible values, and what is shown for any other. An empty field shows that too, but is not
// wrong.
struct Field {
    const char* name;
    std::span<const std::string_view> known;
    Match match;
    const char* otherwise;
};
constexpr Field fields[] = {{"parity", parities, Match::FirstLetter, "none"},
                            {"number of data bits", data_bits, Match::FirstLetter, "8"},
                            {"number of stop bits", stop_bits, Match::WholeField, "1"},
                            {"flow control", flows, Match::FirstLetter, "none"}};

std::string_view Trimmed(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

std::string_view TakeField(std::string_view& rest) {
    const std::string_view field = rest.substr(0, rest.find(','));
    rest.remove_prefix(std::min(field.size() + 1, rest.size()));
    return field;
}

std::string Wrong(const std::string& name, std::string_view field, std::string_view shown) {
    return "the " + name + " is " + Quoted(field) + ", which the page does not know: it shows " +
           std::string{shown};
}

// The page searches its list for the first speed that begins with the text.
std::string MisreadSpeed(std::string_view field) {
    if (std::ranges::find(speeds, field) != std::end(speeds)) {
        return {};
    }
    const auto found = std::ranges::find_if(
        speeds, [&](std::string_view speed) { return !field.empty() && speed.starts_with(field); });
    return Wrong("speed", field, found == std::end(speeds) ? speeds[0] : *found);
}

} // namespace

std::string Misread(std::string_view line) {
    if (line.size() > longest_line) {
        return "the page ignores what follows " + std::to_string(longest_line) + " characters";
    }
    std::string_view rest = Trimmed(line);
    if (rest.empty()) {
        return {}; // gets the default line
    }
    if (std::string wrong = MisreadSpeed(TakeField(rest)); !wrong.empty()) {
        return wrong;
    }
    for (const Field& field : fields) {
        const std::string_view text = Trimmed(TakeField(rest));
        if (text.empty()) {
            continue;
        }
        const auto known = std::ranges::find_if(field.known, [&](std::string_view each) {
            return field.match == Match::WholeField ? text == each : text.starts_with(each);
        });
        if (known == field.known.end()) {
            return Wrong(field.name, text, field.otherwise);
        }
        if (*known != text) {
            return Wrong(field.name, text, *known);
        }
    }
    return {};
}

} // namespace host
