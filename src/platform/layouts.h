// What must be the same on both systems: the integer types of the records, the form of a page description,
// and the size of every structure that is passed to the system.
#pragma once

using u32 = DWORD;
using u64 = ULONGLONG;

// The page description that the pages pass. The header bitmap comes last, after the members that every
// version of the structure has. `page.dwSize` is the size of the whole.
struct PropertyPageDescription {
    PROPSHEETPAGEW page;
    HBITMAP hbmHeader;
};

static_assert(sizeof(WCHAR) == 2);
static_assert(sizeof(u32) == 4 && sizeof(u64) == 8);
static_assert(sizeof(void*) == 8);
static_assert(sizeof(PropertyPageDescription) == 104);
static_assert(sizeof(SP_DEVINSTALL_PARAMS_W) == 584);
static_assert(sizeof(SP_DEVINFO_LIST_DETAIL_DATA_W) == 560);
static_assert(sizeof(SP_DEVINFO_DATA) == 32);
static_assert(sizeof(SP_DEVICE_INTERFACE_DATA) == 32);
static_assert(sizeof(SP_DEVICE_INTERFACE_DETAIL_DATA_W) == 8);
static_assert(sizeof(SP_CLASSINSTALL_HEADER) == 8);
static_assert(sizeof(SP_PROPCHANGE_PARAMS) == 20);
static_assert(sizeof(SP_PROPSHEETPAGE_REQUEST) == 24);
static_assert(sizeof(GUID) == 16);
