// A device of the system by its instance id, present or not.
#pragma once

#include <string>

#include "platform/platform.h"
#include "platform/text.h"

namespace check {

class OpenDevice {
public:
    explicit OpenDevice(const std::string& id) : set_(SetupDiCreateDeviceInfoList(nullptr, nullptr)) {
        data_.cbSize = sizeof data_;
        is_open_ = SetupDiOpenDeviceInfoW(set_, FromUtf8(id).c_str(), nullptr, 0, &data_) != FALSE;
    }
    ~OpenDevice() { SetupDiDestroyDeviceInfoList(set_); }
    OpenDevice(const OpenDevice&) = delete;
    OpenDevice& operator=(const OpenDevice&) = delete;

    bool IsOpen() const { return is_open_; }
    HDEVINFO Set() const { return set_; }
    SP_DEVINFO_DATA* Data() { return &data_; }

private:
    HDEVINFO set_;
    SP_DEVINFO_DATA data_{};
    bool is_open_;
};

} // namespace check
