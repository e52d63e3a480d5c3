#include "host/full_screen/full_screen.h"

#include "host/full_screen/numbers_view.h"
#include "host/text.h"

namespace host {
namespace {

bool Leaves(const Event& event) {
    return IsControl(event, leave) || (event.kind == Event::Kind::Function && event.function == 10);
}

} // namespace

void FullScreen::SitBefore(Session& session) {
    session_ = &session;
    devices_.Read(session.world());
    session.Trace();
}

std::optional<std::string> FullScreen::Next(const std::string&) {
    if (shown_actions_ != session_->actions().size()) {
        Refresh();
    }
    Draw();
    const Event event = NextEvent();
    if (Leaves(event)) {
        return {};
    }
    if (event.kind == Event::Kind::End) {
        session_->Abandon();
        return std::string{};
    }
    if (event.kind == Event::Kind::Function || event.kind == Event::Kind::Control) {
        return TakeCommon(event);
    }
    if (view_) {
        return TakeView(event);
    }
    if (session_->windows().empty()) {
        return TakeDeviceEvent(event);
    }
    if (event.kind != Event::Kind::Resize) {
        front_.Take(*session_, event);
    }
    return std::string{};
}

// The next event; a click on a hint is the event of its key. Nothing is operated that can't be seen.
Event FullScreen::NextEvent() {
    const Event event = terminal_.Next();
    if (IsTooSmall() && event.kind != Event::Kind::End && !Leaves(event)) {
        return {};
    }
    if (event.kind == Event::Kind::Resize || event.kind == Event::Kind::Release) {
        return event; // which is nobody's answer to what has been said
    }
    message_.clear();
    if (event.kind == Event::Kind::Press) {
        for (const PlacedHint& placed : placed_hints_) {
            if (placed.cells.Has(event.column, event.row - (terminal_.rows() - foot_))) {
                return placed.hint->event;
            }
        }
    }
    return event;
}

void FullScreen::Done(const std::string& command) {
    const Lines told = std::exchange(told_, {});
    if (told.size() == 1) {
        message_ = told.front();
    } else if (!told.empty()) {
        ShowText(command, [told] { return std::vector<Paragraph>{{told, {}}}; });
    }
    Refresh();
}

// --- Events ---

std::string FullScreen::TakeCommon(const Event& event) {
    const std::string device = std::to_string(devices_.Selected());
    if (IsControl(event, save)) {
        Save();
    } else if (IsControl(event, numbers)) {
        view_ = std::make_unique<NumbersView>(session_->world());
    } else if (IsControl(event, board)) {
        ShowText(
            "The board of device " + device, [this, device] { return Board(device); }, 1);
    }
    if (event.kind == Event::Kind::Control) {
        return {};
    }
    switch (event.function) {
    case 1:
        ShowText("Help", [this] { return Help(); });
        break;
    case 2:
        ShowOutput("Ports", "ports", 1);
        break;
    case 3:
        ShowOutput("The store of device " + device, "store " + device);
        break;
    case 5:
    case 9: // the pane goes on with it
        tracing_ = event.function == 9;
        ShowText(tracing_ ? "Trace of the last action" : "Journal", [this] { return Journal(); });
        break;
    case 6:
        return AskLine("command: ", {}, true).value_or("");
    case 7:
        ShowText("What is wrong", [this] { return Findings(); });
        break;
    case 8:
        ShowOutput("What differs from the machine as it was read", "changes");
        break;
    default:
        break;
    }
    return {};
}

std::string FullScreen::TakeView(const Event& event) {
    const bool is_key = event.kind == Event::Kind::Key;
    if (is_key && event.key.letter == '/') {
        AskFind();
        return {};
    }
    if (is_key && event.key.letter == 'n' && !searched_.empty()) {
        message_ = view_->Find(searched_) ? "" : "not found: " + searched_;
        return {};
    }
    View::Outcome outcome = view_->Take(event, Body());
    if (outcome.closes || outcome.command.starts_with("open")) {
        view_.reset();
    }
    return outcome.command;
}

std::string FullScreen::TakeDeviceEvent(const Event& event) {
    if (event.kind == Event::Kind::Key && event.key.letter == '/') {
        AskFind();
        return {};
    }
    return devices_.Take(event, Body()) ? "open " + std::to_string(devices_.Selected()) : std::string{};
}

} // namespace host
