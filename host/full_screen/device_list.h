// The devices of the machine, one of them selected.
#pragma once

#include <chrono>
#include <string>
#include <vector>

#include "host/full_screen/terminal.h"
#include "host/screen/placement.h"
#include "host/worlds/world.h"

namespace host {

class DeviceList {
public:
    // Reads the devices anew; the selection stays at its number.
    void Read(World& world);

    bool IsEmpty() const { return devices_.empty(); }
    // Whether the selected one has a page.
    bool HasPage() const { return !IsEmpty() && devices_[selected_].has_page; }
    // Its number in the list, from 1.
    std::size_t Selected() const { return selected_ + 1; }

    // `is_active`: it has the keys.
    void Draw(Canvas& canvas, const Cells& within, bool is_active);
    // Whether the selected device is to be opened.
    bool Take(const Event& event, const Cells& within);
    // Selects the next device with such a text in its port or name. False if there is none.
    bool Find(const std::string& text);

private:
    struct Listed {
        std::string port; // COM5; empty if it is not a port
        std::string name;
        bool has_page;
        std::string state; // absent, no page and why, open; empty if none of these
    };

    bool FindBegun(const std::string& begun);

    std::vector<Listed> devices_;
    std::size_t selected_ = 0;
    int first_ = 0; // in sight
    std::string typed_;
    std::chrono::steady_clock::time_point typed_at_;
};

} // namespace host
