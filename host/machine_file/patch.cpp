#include "host/machine_file/patch.h"

#include <algorithm>
#include <filesystem>
#include <iterator>

#include "host/machine_file/machine_places.h"
#include "host/machine_file/registry_export.h"
#include "host/text.h"
#include "host/whole_file.h"

namespace host {
namespace {

using Lines = std::vector<std::string>;
using List = std::vector<Difference>;

// What only the system or a driver writes, and how it is put right.
struct LeftOut {
    ChangedPlace place;
    const char* heading;
    const char* put_right;
};
constexpr LeftOut left_outs[] = {
    {ChangedPlace::SerialMap, "Not in this file, because drivers make it anew whenever they start a port:",
     "The restart puts it right: the driver enters the port under the number that PortName has then."},
    {ChangedPlace::FriendlyName, "Not in this file, because only the system writes this key:",
     "Device Manager shows the old number, which misleads and does no harm, until the port is given its "
     "number on its page there (Advanced) or its driver is reinstalled."},
    {ChangedPlace::Device, "Not in this file, because the system finds devices by itself:", nullptr},
};

bool IsInPatch(const Difference& difference) {
    return std::ranges::find(left_outs, difference.place, &LeftOut::place) == std::end(left_outs);
}

// Nobody knows what its value was.
bool IsBlind(const Difference& difference) {
    return IsInPatch(difference) && !difference.was_read;
}

void AddBroken(Lines& lines, const std::string& text) {
    const Lines broken = BrokenAt(text, 96);
    lines.insert(lines.end(), broken.begin(), broken.end());
}

template <class Wanted> void AddTexts(Lines& lines, const List& list, const Wanted& wanted) {
    for (const Difference& difference : list) {
        if (wanted(difference)) {
            lines.push_back("  " + difference.text);
        }
    }
}

Lines PatchComments(const List& list, const std::string& made_from) {
    Lines lines = {"What this file changes:"};
    AddTexts(lines, list, &IsInPatch);
    lines.insert(
        lines.end(),
        {"", "Made from " + Escaped(made_from) + ".",
         "An administrator imports it on that machine (a double click, or regedit /s FILE) and restarts",
         "the machine, or the ports that it names."});
    if (std::ranges::find(list, ChangedPlace::Database, &Difference::place) != list.end()) {
        AddBroken(
            lines,
            "The COM port database is one value: what was claimed since the export is lost by the import. So "
            "import it soon, and make it from a fresh export.");
    }
    if (std::ranges::any_of(list, IsBlind)) {
        AddBroken(
            lines,
            "What is \"not known\" here was not in the export. The import replaces it for good: the file "
            "that takes this one back leaves it as it is then. Export that key too, and make this "
            "file from it.");
    }
    for (const LeftOut& left_out : left_outs) {
        const auto is_of = [&](const Difference& difference) { return difference.place == left_out.place; };
        if (std::ranges::any_of(list, is_of)) {
            lines.insert(lines.end(), {"", left_out.heading});
            AddTexts(lines, list, is_of);
            if (left_out.put_right != nullptr) {
                AddBroken(lines, left_out.put_right);
            }
        }
    }
    return lines;
}

Lines UndoComments(const List& list, const std::string& patch) {
    Lines lines = {"Takes back what " + Escaped(patch) + " changes:"};
    AddTexts(lines, list, [](const Difference& each) { return IsInPatch(each) && each.was_read; });
    if (std::ranges::any_of(list, IsBlind)) {
        lines.insert(lines.end(), {"", "and leaves as it is, because the export did not hold what it was:"});
        AddTexts(lines, list, IsBlind);
    }
    lines.insert(lines.end(), {"", "An administrator imports it and restarts the machine, or the ports."});
    return lines;
}

// The key that holds a difference.
Text KeyOf(const Difference& difference, const Text& control_set) {
    Text key;
    switch (difference.place) {
    case ChangedPlace::DeviceStore:
        key = Below(Below(Below(control_set, devices_key), FromUtf8(difference.device)), hardware_key);
        break;
    case ChangedPlace::Database:
        key = Below(control_set, arbiter_key);
        break;
    default:
        key = ports_key;
        break;
    }
    return Text(local_machine) + key;
}

// Writes the values of one state after the comments.
void Write(std::ostream& out, const Lines& comments, const List& list, const Text& control_set,
           const Records& state, std::optional<StoreValue> Difference::*value) {
    ExportWriter writer(out);
    for (const std::string& comment : comments) {
        writer.Comment(FromUtf8(comment));
    }
    Text written; // the key of the last value
    bool has_database = false;
    for (const Difference& difference : list) {
        const bool is_database = difference.place == ChangedPlace::Database;
        const bool is_known = value == &Difference::after || difference.was_read;
        if (!IsInPatch(difference) || !is_known || (is_database && has_database)) {
            continue;
        }
        has_database = has_database || is_database;
        if (const Text key = KeyOf(difference, control_set); key != written) {
            writer.Key(key);
            written = key;
        }
        if (is_database) {
            writer.SetValue(com_db_value, REG_BINARY, state.usage);
        } else if (const std::optional<StoreValue>& wanted = difference.*value) {
            writer.SetValue(wanted->name, wanted->type, wanted->data);
        } else {
            writer.DeleteValue(difference.name);
        }
    }
}

} // namespace

bool WritePatch(const PatchSource& source, const std::string& path, std::string& error) {
    const List list = Differences(AsRead(source.before, source.after), source.after);
    if (std::ranges::none_of(list, &IsInPatch)) {
        error = "nothing has changed that a patch could hold";
        return false;
    }
    const auto write = [&](const std::string& file, const Lines& comments, const Records& state, auto value) {
        return WriteWhole(
            file, [&](std::ostream& out) { Write(out, comments, list, source.control_set, state, value); },
            error);
    };
    // No patch is left without what takes it back.
    const std::string undo = UndoPath(path);
    if (!write(undo, UndoComments(list, path), source.before, &Difference::before)) {
        return false;
    }
    if (!write(path, PatchComments(list, source.name), source.after, &Difference::after)) {
        std::error_code none;
        std::filesystem::remove(PathOf(undo), none);
        return false;
    }
    return true;
}

std::string UndoPath(const std::string& path) {
    constexpr std::string_view ending = ".reg";
    const std::size_t length =
        path.size() >= ending.size() && Folded(path.substr(path.size() - ending.size())) == ending
            ? path.size() - ending.size()
            : path.size();
    return path.substr(0, length) + "-undo" + std::string{ending};
}

} // namespace host
