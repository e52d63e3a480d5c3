#include <algorithm>

#include "host/line/command.h"
#include "host/line/interpreter.h"
#include "host/text.h"
#include "host/worlds/store_values.h"

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

} // namespace

Words Completions(Interpreter& host, const Words& words) {
    Words result;
    if (words.empty() || (words.size() == 1 && words[0] == "help")) {
        for (const Command& command : Commands()) {
            result.push_back(command.name);
        }
        return result;
    }
    try {
        const Command& command = FindCommand(words[0]);
        Words arguments;
        SplitWords(command.arguments, arguments);
        if (words.size() > arguments.size()) {
            return result;
        }
        const std::string& argument = arguments[words.size() - 1];
        if (argument == "DEVICE") {
            const std::vector<Device> devices = host.world().Devices();
            for (std::size_t index = 0; index < devices.size(); ++index) {
                result.push_back(std::to_string(index + 1));
                const std::vector<StoreValue> store = host.world().Store(devices[index].id);
                if (const StoreValue* name = FindValue(store, "PortName")) {
                    result.push_back(TextOf(*name));
                }
            }
        } else if (argument == "CONTROL") {
            const Window front = host.Front();
            for (const Control& control : front.controls) {
                if (IsFor(command.name, control.kind)) {
                    if (const std::string name = CallName(front, control); !name.empty()) {
                        result.push_back(name);
                    }
                    result.push_back(std::to_string(control.id));
                }
            }
        } else if (argument == "ITEM") {
            const Window front = host.Front();
            result = FindControl(front, words[1]).items;
        } else if (argument.find('|') != std::string::npos) {
            for (std::size_t from = 0; from <= argument.size();) {
                const std::size_t end = std::min(argument.find('|', from), argument.size());
                result.push_back(argument.substr(from, end - from));
                from = end + 1;
            }
        }
    } catch (const Refusal&) {
        result.clear();
    }
    return result;
}

} // namespace host
