// What the function keys show over the whole screen.
#include "host/full_screen/full_screen.h"

#include "host/diagnosis/board_table.h"
#include "host/diagnosis/report.h"
#include "host/text.h"

namespace host {
namespace {

constexpr std::size_t mark_columns = 2; // before a line that stands for something; a table has blanks there

constexpr const char* help[] = {
    "At the foot of the screen stands what the keys do at the moment; a click there does the same.",
    "In a window they are Windows' own:",
    "  Tab, Shift-Tab     the next or the previous control",
    "  Alt and a letter   the control whose letter is underlined",
    "  Space              checks a box, presses a button",
    "  Enter              presses the button <in these>",
    "  Esc                cancels",
    "  arrows             move within a list, a slider, a group",
    "  F4, Alt-Down       opens and closes a combo's list",
    "  letters            find the item that begins with them; in the list of devices too",
    "The mouse clicks, drags a slider, and turns its wheel over a list.",
    "~ marks what is disabled, * what differs from what is stored, > the focus.",
    "Ctrl-L repaints the screen, Ctrl-Z stops the program.",
    "",
    "Commands, typed after F6 or at the prompt of --line:",
};

} // namespace

Lines FullScreen::OutputOf(const std::string& command) {
    Lines before = std::exchange(told_, {});
    session_->Execute(command);
    return std::exchange(told_, std::move(before));
}

void FullScreen::ShowText(const std::string& title, TextView::Source source, std::size_t headings) {
    view_ = std::make_unique<TextView>(title, std::move(source), headings);
}

void FullScreen::ShowOutput(const std::string& title, const std::string& command, std::size_t headings) {
    ShowText(
        title,
        [this, command] {
            return std::vector<Paragraph>{{OutputOf(command), {}}};
        },
        headings);
}

// Enter mends what is safe to mend, or else goes to the device.
std::vector<Paragraph> FullScreen::Findings() {
    const Records records = session_->world().Describe();
    const std::vector<Finding> findings = Diagnose(records);
    if (findings.empty()) {
        return {{DiagnosisLines(records, findings), {}}};
    }
    const int columns = terminal_.columns() - static_cast<int>(mark_columns);
    std::vector<Paragraph> paragraphs;
    for (const Finding& finding : findings) {
        const bool opens = !finding.subject.open.empty() && !finding.safe;
        paragraphs.push_back({FindingLines(finding, columns), opens ? "open " + AsWord(finding.subject.open)
                                                              : finding.safe ? finding.command
                                                                             : ""});
    }
    return paragraphs;
}

std::vector<Paragraph> FullScreen::Journal() {
    if (tracing_ ? session_->Trace().empty() : session_->actions().empty()) {
        return {{{tracing_ ? nothing_traced : nothing_changed}, {}}};
    }
    if (tracing_) {
        return {{session_->Trace(), {}}};
    }
    std::vector<Paragraph> actions;
    for (const Action& action : session_->actions()) {
        actions.push_back({{action.name + ':'}, {}});
        for (const std::string& change : action.changes) {
            actions.back().lines.push_back("  " + change);
        }
    }
    return actions;
}

std::vector<Paragraph> FullScreen::Board(const std::string& device) {
    const Records records = session_->world().Describe();
    const BoardTable table = TableOfBoard(records, session_->FindDevice(device));
    if (table.lines.empty()) {
        return {{{"This device belongs to no board that has a page."}, {}}};
    }
    std::vector<Paragraph> paragraphs;
    for (std::size_t row = 0; row < table.lines.size(); ++row) {
        const std::size_t listed = table.listed[row];
        // The view marks what can be chosen in the columns that the table leaves free, but not the headings.
        paragraphs.push_back({{row == 0 ? table.lines[row] : table.lines[row].substr(mark_columns)},
                              listed != 0 ? "open " + std::to_string(listed) : ""});
    }
    return paragraphs;
}

std::vector<Paragraph> FullScreen::Help() {
    std::vector<Paragraph> paragraphs;
    for (const char* const line : help) {
        paragraphs.push_back({BrokenAt(line, terminal_.columns()), {}});
    }
    paragraphs.push_back({OutputOf("help"), {}});
    return paragraphs;
}

// Shows what has changed since the devices and the view were read.
void FullScreen::Refresh() {
    shown_actions_ = session_->actions().size();
    devices_.Read(session_->world());
    if (view_) {
        view_->Renew();
    }
}

} // namespace host
