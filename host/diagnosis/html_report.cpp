#include "host/diagnosis/html_report.h"

#include <algorithm>
#include <map>

#include "host/diagnosis/board_table.h"
#include "host/diagnosis/number_map.h"
#include "host/diagnosis/number_ranges.h"
#include "host/diagnosis/ports_table.h"
#include "host/diagnosis/report.h"
#include "host/text.h"
#include "version.h"

namespace host {
namespace {

// A machine's history of gone devices runs into thousands, and a text in it may have any length; a ticket's
// attachment may not.
constexpr std::size_t most_rows = 500;
constexpr int widest_cell = 100, longest_text = 500;

// Contrast is at least 4.5 to 1 in each scheme; on paper everything is black.
constexpr const char* head = R"(<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>Report on )";
constexpr const char* style = R"(</title>
<style>
:root { color-scheme: light dark; --ink: #1b1f24; --ground: #ffffff; --soft: #f1f3f5; --line: #8a929c; --bad: #a3121f; --ok: #14532d; }
@media (prefers-color-scheme: dark) { :root { --ink: #e6e9ec; --ground: #16191d; --soft: #23282e; --line: #79828d; --bad: #ff9a9a; --ok: #86e0a5; } }
body { font: 16px/1.5 sans-serif; color: var(--ink); background: var(--ground); max-width: 60rem; margin: 0 auto; padding: 1rem; overflow-wrap: break-word; }
h1 { font-size: 1.5rem; } h2 { font-size: 1.2rem; margin-top: 2rem; } h3 { font-size: 1rem; }
table { border-collapse: collapse; } th, td { border: 1px solid var(--line); padding: .2rem .5rem; text-align: left; vertical-align: top; }
th { background: var(--soft); } caption { text-align: left; font-weight: bold; padding: .3rem 0; }
.wide { overflow-x: auto; } pre, code { font: 14px/1.4 monospace; background: var(--soft); } pre { padding: .5rem; white-space: pre-wrap; }
.serious { color: var(--bad); font-weight: bold; } .minor { font-weight: bold; } svg { max-width: 100%; height: auto; }
svg rect { fill: var(--ground); stroke: var(--line); } svg text { fill: var(--ink); font: 13px monospace; text-anchor: middle; }
svg .live { fill: var(--soft); } svg .conflict { stroke: var(--bad); stroke-width: 3; } svg .free { stroke-dasharray: 2 2; }
@media print { :root { --ink: #000; --ground: #fff; --soft: #fff; --line: #000; --bad: #000; --ok: #000; } table { font-size: 11px; } .wide { overflow: visible; } h2, caption { break-after: avoid; } tr, svg { break-inside: avoid; } }
</style>
</head>
<body>
<main>
)";

// Text from a machine as text, whatever it holds.
std::string Html(std::string_view text, int columns = longest_text) {
    std::string html;
    for (const char letter : CutTo(Escaped(text), columns)) {
        switch (letter) {
        case '&':
            html += "&amp;";
            break;
        case '<':
            html += "&lt;";
            break;
        case '>':
            html += "&gt;";
            break;
        case '"':
            html += "&quot;";
            break;
        default:
            html += letter;
        }
    }
    return html;
}

std::string Heading(const char* text) {
    return std::string{"<h2>"} + text + "</h2>\n";
}

template <class Cells> std::string HtmlRow(const Cells& cells, const char* tag) {
    std::string row = "<tr>";
    for (const std::string& cell : cells) {
        row += std::string{'<'} + tag + (std::string_view(tag) == "th" ? " scope=\"col\">" : ">") +
               Html(cell, widest_cell) + "</" + tag + '>';
    }
    return row + "</tr>\n";
}

// What is said below a list that is longer than what is shown of it.
std::string CutNote(std::size_t shown, std::size_t all) {
    return all <= shown ? std::string()
                        : "<p>The first " + std::to_string(shown) + " of " + std::to_string(all) + ".</p>\n";
}

// The first row has the headings.
template <class Rows>
std::string HtmlTable(const std::string& caption, const Rows& rows, std::size_t most = most_rows) {
    std::string table = "<div class=\"wide\"><table>\n<caption>" + Html(caption, widest_cell) +
                        "</caption>\n<thead>" + HtmlRow(rows.front(), "th") + "</thead>\n<tbody>\n";
    for (std::size_t row = 1; row < rows.size() && row <= most; ++row) {
        table += HtmlRow(rows[row], "td");
    }
    return table + "</tbody>\n</table></div>\n" + CutNote(most, rows.size() - 1);
}

std::string FindingsPart(const Records& records, const std::vector<Finding>& findings) {
    std::string html = Heading("What is wrong, and what mends it");
    html += findings.empty() ? "<p>" + Summary(records, findings) + "</p>\n" : "<ol>\n";
    for (std::size_t index = 0; index < findings.size() && index < most_rows; ++index) {
        const Finding& finding = findings[index];
        html += std::string{"<li><span class=\""} + NameOf(finding.severity) + "\">" +
                NameOf(finding.severity) + ":</span> " + Html(finding.sentence) + ' ' + finding.effect +
                (finding.remedy.empty() ? "" : ' ' + Html(finding.remedy));
        if (!finding.command.empty()) {
            html += " <code>" + Html(finding.command) + "</code>" + (finding.safe ? " (safe)" : "");
        }
        html += "</li>\n";
    }
    return html + (findings.empty() ? "" : "</ol>\n") + CutNote(most_rows, findings.size());
}

const char* ClassOf(NumberState state) {
    return state == NumberState::Conflict ? "conflict"
           : state == NumberState::Live   ? "live"
           : state == NumberState::Free   ? "free"
                                          : "other";
}

std::string NumbersPart(const Records& records) {
    constexpr unsigned cell = 26;
    const std::string width = std::to_string(cell * (map_columns + 2)),
                      height = std::to_string(cell * mapped_numbers / map_columns + 2);
    std::string html = Heading("The 256 COM numbers") + "<svg viewBox=\"-50 -1 " + width + ' ' + height +
                       "\" width=\"" + width +
                       "\" role=\"img\" aria-labelledby=\"map\"><title id=\"map\">COM1 to COM256 in rows of "
                       "16; the list below "
                       "says the same in words</title>\n";
    std::map<NumberState, std::vector<unsigned long>> numbers;
    for (unsigned number = 1; number <= mapped_numbers; ++number) {
        const NumberState state = StateOf(records, number);
        numbers[state].push_back(number);
        const unsigned x = (number - 1) % map_columns * cell, y = (number - 1) / map_columns * cell;
        html += x != 0
                    ? ""
                    : "<text x=\"-25\" y=\"" + std::to_string(y + 17) + "\">" + ComName(number) + "</text>\n";
        html += "<g><title>" + ComName(number) + ": " + SignOf(state).name + "</title><rect class=\"" +
                ClassOf(state) + "\" x=\"" + std::to_string(x) + "\" y=\"" + std::to_string(y) +
                "\" width=\"24\" height=\"24\"/><text x=\"" + std::to_string(x + 12) + "\" y=\"" +
                std::to_string(y + 17) + "\">" + SignOf(state).letter + "</text></g>\n";
    }
    html += "</svg>\n<ul>\n";
    for (const auto& [state, its] : numbers) {
        html += std::string{"<li><code>"} + SignOf(state).letter + "</code> " + SignOf(state).name + ": " +
                RangesOf(its) + "</li>\n";
    }
    return html + "</ul>\n";
}

std::string BoardsPart(const Records& records) {
    std::string html = Heading("The boards");
    constexpr std::size_t most_boards = 16;
    std::size_t boards = 0, rows_left = most_rows;
    for (const DeviceRecord& device : records.devices) {
        if (device.role != Role::Board || ++boards > most_boards) {
            continue;
        }
        if (const BoardTable table = TableOfBoard(records, device); !table.cells.empty()) {
            html += HtmlTable(LabelOf(records, device), table.cells, rows_left);
            rows_left -= std::min(rows_left, table.cells.size() - 1);
        }
    }
    return html + (boards == 0 ? "<p>No board is known.</p>\n" : CutNote(most_boards, boards));
}

std::string PortsPart(const Records& records) {
    return Heading("The ports, and the places that hold their numbers") +
           HtmlTable("Ports", PortRows(records)) +
           "<p>In use without a device: " + Html(ClaimedWithoutDevice(records)) + ".</p>\n";
}

std::string ChangesPart(const ReportSource& source) {
    std::string html = Heading("What a patch would change") + "<p>" + Html(source.changes_by) + "</p>\n<pre>";
    for (std::size_t index = 0; index < source.changes.size() && index < most_rows; ++index) {
        html += Html(source.changes[index]) + '\n';
    }
    return html + "</pre>\n<p>An administrator imports the patch on that machine (a double click, or "
                  "<code>regedit /s FILE</code>) and restarts it. What was claimed in the COM port database "
                  "since the export "
                  "is lost by the import, so it is made from a fresh export.</p>\n";
}

} // namespace

std::string HtmlReport(const Records& records, const std::vector<Finding>& findings,
                       const ReportSource& source) {
    std::string html = head + Html(source.name) + style + "<h1>Report on " + Html(source.name) +
                       "</h1>\n<p>" + Html(Summary(records, findings)) + "</p>\n<dl>\n";
    const std::pair<const char*, std::string> facts[] = {
        {"Export of", source.date}, {"SHA-256", source.sha256}, {"Made by", "kvrhost " VERSION_TEXT}};
    for (const auto& [what, value] : facts) {
        html += value.empty() ? "" : std::string{"<dt>"} + what + "</dt><dd>" + Html(value) + "</dd>\n";
    }
    html += "</dl>\n";
    if (const auto missing = MissingPlaces(records.known); !missing.empty()) {
        html += "<p>Not known, and so not checked:</p>\n<ul>\n";
        for (const MissingPlace& place : missing) {
            html += "<li>" + Html(place.name) + ", in <code>" + Html(place.key) + "</code></li>\n";
        }
        html += "</ul>\n";
    }
    return html + FindingsPart(records, findings) + ChangesPart(source) + NumbersPart(records) +
           BoardsPart(records) + PortsPart(records) + "</main>\n</body>\n</html>\n";
}

} // namespace host
