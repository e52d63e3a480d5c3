#include "host/session/completion.h"

#include <algorithm>

#include "host/session/command.h"
#include "host/session/session.h"
#include "host/text.h"

namespace host {
namespace {

// Whether the command applies to such a control.
bool IsFor(std::string_view command, Kind kind) {
    switch (kind) {
    case Kind::Button:
        return command == "click";
    case Kind::Check:
        return command == "click" || command == "check" || command == "uncheck";
    case Kind::Combo:
    case Kind::List:
        return command == "pick";
    case Kind::Slider:
        return command == "slide";
    default:
        return false;
    }
}

Words DeviceNames(Session& session) {
    Words names;
    for (const DeviceRecord& device : session.world().Describe().devices) {
        if (device.listed != 0) {
            names.push_back(std::to_string(device.listed));
            if (std::string port = StoredText(device.store, "PortName"); !port.empty()) {
                names.push_back(std::move(port));
            }
        }
    }
    return names;
}

Words ControlNames(Session& session, std::string_view command) {
    Words names;
    const Window front = session.Front();
    for (const Control& control : front.controls) {
        if (IsFor(command, control.kind)) {
            if (const std::string name = CallName(front, control); !name.empty()) {
                names.push_back(name);
            }
            names.push_back(std::to_string(control.id));
        }
    }
    return names;
}

Words Alternatives(std::string_view argument) {
    Words words;
    for (std::size_t from = 0; from <= argument.size();) {
        const std::size_t end = std::min(argument.find('|', from), argument.size());
        words.emplace_back(argument.substr(from, end - from));
        from = end + 1;
    }
    return words;
}

// The words that may follow the given ones.
Words Continuations(Session& session, const Words& words) {
    if (words.empty() || (words.size() == 1 && words[0] == "help")) {
        Words names;
        std::ranges::transform(Commands(), std::back_inserter(names), &Command::name);
        return names;
    }
    try {
        const Command& command = FindCommand(words[0]);
        Words arguments;
        SplitWords(command.arguments, arguments);
        const std::string argument = words.size() <= arguments.size() ? arguments[words.size() - 1] : "";
        if (argument == "DEVICE") {
            return DeviceNames(session);
        }
        if (argument == "CONTROL") {
            return ControlNames(session, command.name);
        }
        if (argument == "ITEM") {
            const Window front = session.Front();
            return FindControl(front, words[1]).items;
        }
        if (argument == "OPERATION") {
            FileMachine* const machine = session.world().File();
            return machine != nullptr ? machine->Operations() : Words();
        }
        return argument.find('|') != std::string::npos ? Alternatives(argument) : Words();
    } catch (const Refusal&) {
        return {};
    }
}

} // namespace

Completion Completed(Session& session, std::string_view line) {
    // The word at the end begins where the line without it has one word less.
    Words words, before;
    const bool in_quotes = !SplitWords(line, words);
    std::size_t begin = line.size();
    std::string begun;
    if (!words.empty() && (in_quotes || line.back() != ' ')) {
        do {
            before.clear();
            SplitWords(line.substr(0, --begin), before);
        } while (before.size() == words.size());
        begun = words.back();
        words.pop_back();
    }
    Words matching = Continuations(session, words);
    // What a machine calls a device may hold what no line can, or what commands a terminal.
    std::erase_if(matching, [&](const std::string& word) {
        return !Folded(word).starts_with(Folded(begun)) || word.find('"') != std::string::npos ||
               Escaped(word) != word;
    });
    if (matching.empty()) {
        return {std::string(line), {}};
    }
    std::string common = matching.front();
    for (const std::string& word : matching) {
        common.resize(static_cast<std::size_t>(std::ranges::mismatch(common, word).in1 - common.begin()));
    }
    // The words may differ within a character.
    while (common.size() < matching.front().size() && (matching.front()[common.size()] & 0xC0) == 0x80) {
        common.pop_back();
    }
    const bool is_whole = matching.size() == 1;
    if (common.size() <= begun.size() && !is_whole) {
        return {std::string(line), std::move(matching)};
    }
    const bool quotes = in_quotes || common.find(' ') != std::string::npos;
    return {std::string(line.substr(0, begin)) + (quotes ? "\"" : "") + common +
                (is_whole ? quotes ? "\" " : " " : ""),
            {}};
}

} // namespace host
