// The records of a port's page and of its advanced dialog. The page owns both. The set and device of the
// provider's request are borrowed. The page reads the settings line once; the dialog reads the store each
// time it opens.
#pragma once

#include "device_model/board_params.h"
#include "uart_page/settings_line.h"

// Units of a port's name on these pages, terminator included.
constexpr u32 ComNameCapacity = 20;

// The record of the Advanced Port Settings dialog, reused for each opening.
struct UartAdvancedParams {
    HDEVINFO DeviceInfoSet;
    SP_DEVINFO_DATA* DeviceInfoData;
    WCHAR ComName[ComNameCapacity];    // as read from the store at the opening
    WCHAR NewComName[ComNameCapacity]; // what the page gets back
    ::UartBasicInfo UartBasicInfo;     // as read at the opening; without PortName
    FifoSliders Fifo;
};

// The record of the Port Settings page.
struct UartPageParams {
    HDEVINFO DeviceInfoSet;
    SP_DEVINFO_DATA* DeviceInfoData;
    bool ShowAdvanced;               // the advanced dialog can be opened: not on a remote machine
    bool ChangesEnabled;             // the combos can be changed: not on a remote machine
    bool BasicSettingsDlgInitiateOK; // the page has been initialised, so that its OK may save
    PortSettings Saved;              // what the line said when the page opened; never changed afterwards
    WCHAR ComName[ComNameCapacity];  // the port's present name
    UartAdvancedParams* AdvancedParams;
};
