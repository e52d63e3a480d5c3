// The part of Windows that this system is written against, under Windows' own names: first what the logic
// calls, then, at the end of each block, what only a host calls to show and operate the windows. Constants
// have the values of Windows and structures its 64-bit layout. The other files of this folder implement the
// declarations; `machine.h` is how a machine is set up, broken and read.
#pragma once

#include <cstddef>
#include <cstdint>

// --- Types -----------------------------------------------------------------------------------------------

#define WINAPI
#define CALLBACK
#define APIENTRY
#define TRUE 1
#define FALSE 0
#define MAX_PATH 260

using BOOL = int;
using BYTE = std::uint8_t;
using WORD = std::uint16_t;
using SHORT = std::int16_t;
using INT = std::int32_t;
using UINT = std::uint32_t;
using LONG = std::int32_t;
using ULONG = std::uint32_t;
using DWORD = std::uint32_t;
using LONG64 = std::int64_t;
using ULONGLONG = std::uint64_t;
using INT_PTR = std::intptr_t;
using UINT_PTR = std::uintptr_t;
using LONG_PTR = std::intptr_t;
using ULONG_PTR = std::uintptr_t;
using SIZE_T = std::size_t;
using WPARAM = std::uintptr_t;
using LPARAM = std::intptr_t;
using LRESULT = std::intptr_t;
using LCID = DWORD;
using LANGID = WORD;
using LCTYPE = DWORD;
using LSTATUS = LONG;
using REGSAM = DWORD;
using WCHAR = char16_t;
using LPWSTR = WCHAR*;
using LPCWSTR = const WCHAR*;
using LPBYTE = BYTE*;
using LPDWORD = DWORD*;
using LPVOID = void*;
using PVOID = void*;
using HANDLE = void*;
using HLOCAL = void*;
using HGLOBAL = void*;
using HDEVINFO = void*;
using HINSTANCE = struct SimulatedInstance*;
using HMODULE = HINSTANCE;
using HWND = struct SimulatedWindow*;
using HKEY = struct SimulatedKey*;
using PHKEY = HKEY*;
using HCOMDB = struct SimulatedComDb*;
using PHCOMDB = HCOMDB*;
using HPROPSHEETPAGE = struct SimulatedPage*;
using HBITMAP = struct SimulatedBitmap*;
using HICON = struct SimulatedIcon*;
using HPSXA = void*;

#define TEXT_OF(quote) u##quote
#define TEXT(quote) TEXT_OF(quote)
#define ARRAYSIZE(array) (sizeof(array) / sizeof((array)[0]))
#define LOWORD(value) (static_cast<WORD>(static_cast<UINT_PTR>(value) & 0xFFFF))
#define HIWORD(value) (static_cast<WORD>((static_cast<UINT_PTR>(value) >> 16) & 0xFFFF))
#define MAKELONG(low, high)                                                                                  \
    (static_cast<LONG>(static_cast<DWORD>(LOWORD(low)) | (static_cast<DWORD>(LOWORD(high)) << 16)))
#define MAKELPARAM(low, high) (static_cast<LPARAM>(static_cast<DWORD>(MAKELONG(low, high))))
#define MAKEWPARAM(low, high) (static_cast<WPARAM>(static_cast<DWORD>(MAKELONG(low, high))))
#define MAKEINTRESOURCEW(number) (reinterpret_cast<LPWSTR>(static_cast<ULONG_PTR>(static_cast<WORD>(number))))

struct GUID {
    DWORD Data1;
    WORD Data2;
    WORD Data3;
    BYTE Data4[8];
    friend bool operator==(const GUID&, const GUID&) = default;
};
struct RECT {
    LONG left, top, right, bottom;
};
struct POINT {
    LONG x, y;
};

// --- Kernel: memory, errors, text, profile, locale, DOS names ------------------------------------------

#define LPTR 0x0040
#define ERROR_SUCCESS 0
#define ERROR_FILE_NOT_FOUND 2
#define ERROR_ACCESS_DENIED 5
#define ERROR_INVALID_HANDLE 6
#define ERROR_NOT_ENOUGH_MEMORY 8
#define ERROR_INVALID_DATA 13
#define ERROR_GEN_FAILURE 31
#define ERROR_SHARING_VIOLATION 32
#define ERROR_INVALID_PARAMETER 87
#define ERROR_INSUFFICIENT_BUFFER 122
#define ERROR_MORE_DATA 234
#define ERROR_NO_MORE_ITEMS 259
#define ERROR_INVALID_WINDOW_HANDLE 1400
#define ERROR_INVALID_USER_BUFFER 1784
#define ERROR_KEY_DOES_NOT_EXIST 0xE0000204
#define ERROR_INVALID_REG_PROPERTY 0xE0000209
#define ERROR_NO_SUCH_DEVINFO 0xE000020B
#define ERROR_IN_WOW64 0xE0000235
#define INVALID_HANDLE_VALUE (reinterpret_cast<HANDLE>(static_cast<LONG_PTR>(-1)))
#define DDD_RAW_TARGET_PATH 0x00000001
#define DDD_REMOVE_DEFINITION 0x00000002
#define LOCALE_SDECIMAL 0x0000000E
#define DLL_PROCESS_ATTACH 1
#define DLL_PROCESS_DETACH 0

HLOCAL LocalAlloc(UINT flags, SIZE_T bytes);
HLOCAL LocalFree(HLOCAL memory);
DWORD GetLastError();
void SetLastError(DWORD error);
BOOL DisableThreadLibraryCalls(HMODULE module);
int lstrlenW(LPCWSTR text);
int lstrcmpW(LPCWSTR left, LPCWSTR right);
DWORD GetProfileStringW(LPCWSTR section, LPCWSTR key, LPCWSTR fallback, LPWSTR buffer, DWORD capacity);
BOOL WriteProfileStringW(LPCWSTR section, LPCWSTR key, LPCWSTR value);
LCID GetUserDefaultLCID();
int GetLocaleInfoW(LCID locale, LCTYPE type, LPWSTR buffer, int capacity);
DWORD QueryDosDeviceW(LPCWSTR name, LPWSTR target, DWORD capacity);
BOOL DefineDosDeviceW(DWORD flags, LPCWSTR name, LPCWSTR target);

// --- Registry --------------------------------------------------------------------------------------------

#define HKEY_LOCAL_MACHINE (reinterpret_cast<HKEY>(static_cast<ULONG_PTR>(0x80000002)))
#define KEY_READ 0x20019
#define KEY_WRITE 0x20006
#define KEY_ALL_ACCESS 0xF003F
#define REG_NONE 0
#define REG_SZ 1
#define REG_EXPAND_SZ 2
#define REG_BINARY 3
#define REG_DWORD 4
#define REG_DWORD_BIG_ENDIAN 5
#define REG_LINK 6
#define REG_MULTI_SZ 7
#define REG_QWORD 11

LSTATUS RegOpenKeyExW(HKEY root, LPCWSTR path, DWORD options, REGSAM access, PHKEY key);
LSTATUS RegCloseKey(HKEY key);
LSTATUS RegQueryValueExW(HKEY key, LPCWSTR name, LPDWORD reserved, LPDWORD type, LPBYTE data, LPDWORD bytes);
LSTATUS RegSetValueExW(HKEY key, LPCWSTR name, DWORD reserved, DWORD type, const BYTE* data, DWORD bytes);
LSTATUS RegEnumValueW(HKEY key, DWORD index, LPWSTR name, LPDWORD nameCapacity, LPDWORD reserved,
                      LPDWORD type, LPBYTE data, LPDWORD bytes);

// --- COM port database -----------------------------------------------------------------------------------

#define CDB_REPORT_BITS 0
#define HCOMDB_INVALID_HANDLE_VALUE (static_cast<HCOMDB>(INVALID_HANDLE_VALUE))

LONG WINAPI ComDBOpen(PHCOMDB database);
LONG WINAPI ComDBClose(HCOMDB database);
LONG WINAPI ComDBGetCurrentPortUsage(HCOMDB database, BYTE* buffer, DWORD bytes, DWORD report,
                                     LPDWORD portCount);
LONG WINAPI ComDBClaimPort(HCOMDB database, DWORD number, BOOL force, BOOL* forced);
LONG WINAPI ComDBReleasePort(HCOMDB database, DWORD number);

// --- Device installation ---------------------------------------------------------------------------------

#define DIGCF_PRESENT 0x02
#define DIGCF_DEVICEINTERFACE 0x10
#define DICS_FLAG_GLOBAL 1
#define DICS_PROPCHANGE 3
#define SPINT_ACTIVE 0x00000001
#define DIREG_DEV 1
#define DIF_PROPERTYCHANGE 0x12
#define DI_PROPERTIES_CHANGE 0x4000
#define SPDRP_DEVICEDESC 0
#define SPDRP_FRIENDLYNAME 12
#define SPPSR_ENUM_ADV_DEVICE_PROPERTIES 3
#define SP_MAX_MACHINENAME_LENGTH (MAX_PATH + 3)

using DI_FUNCTION = UINT;

struct SP_DEVINFO_DATA {
    DWORD cbSize;
    GUID ClassGuid;
    DWORD DevInst;
    ULONG_PTR Reserved;
};
struct SP_DEVICE_INTERFACE_DATA {
    DWORD cbSize;
    GUID InterfaceClassGuid;
    DWORD Flags;
    ULONG_PTR Reserved;
};
struct SP_DEVICE_INTERFACE_DETAIL_DATA_W {
    DWORD cbSize;
    WCHAR DevicePath[1];
};
struct SP_DEVINFO_LIST_DETAIL_DATA_W {
    DWORD cbSize;
    GUID ClassGuid;
    HANDLE RemoteMachineHandle;
    WCHAR RemoteMachineName[SP_MAX_MACHINENAME_LENGTH];
};
struct SP_DEVINSTALL_PARAMS_W {
    DWORD cbSize;
    DWORD Flags;
    DWORD FlagsEx;
    HWND hwndParent;
    void* InstallMsgHandler;
    PVOID InstallMsgHandlerContext;
    HANDLE FileQueue;
    ULONG_PTR ClassInstallReserved;
    DWORD Reserved;
    WCHAR DriverPath[MAX_PATH];
};
struct SP_CLASSINSTALL_HEADER {
    DWORD cbSize;
    DI_FUNCTION InstallFunction;
};
struct SP_PROPCHANGE_PARAMS {
    SP_CLASSINSTALL_HEADER ClassInstallHeader;
    DWORD StateChange;
    DWORD Scope;
    DWORD HwProfile;
};
struct SP_PROPSHEETPAGE_REQUEST {
    DWORD cbSize;
    DWORD PageRequested;
    HDEVINFO DeviceInfoSet;
    SP_DEVINFO_DATA* DeviceInfoData;
};
using PSP_DEVINFO_DATA = SP_DEVINFO_DATA*;
using PSP_PROPSHEETPAGE_REQUEST = SP_PROPSHEETPAGE_REQUEST*;

HDEVINFO SetupDiGetClassDevsW(const GUID* interfaceClass, LPCWSTR enumerator, HWND parent, DWORD flags);
BOOL SetupDiDestroyDeviceInfoList(HDEVINFO set);
BOOL SetupDiEnumDeviceInterfaces(HDEVINFO set, SP_DEVINFO_DATA* device, const GUID* interfaceClass,
                                 DWORD index, SP_DEVICE_INTERFACE_DATA* interfaceData);
BOOL SetupDiGetDeviceInterfaceDetailW(HDEVINFO set, SP_DEVICE_INTERFACE_DATA* interfaceData,
                                      SP_DEVICE_INTERFACE_DETAIL_DATA_W* detail, DWORD bytes, LPDWORD needed,
                                      SP_DEVINFO_DATA* device);
HKEY SetupDiOpenDevRegKey(HDEVINFO set, SP_DEVINFO_DATA* device, DWORD scope, DWORD profile, DWORD keyType,
                          REGSAM access);
BOOL SetupDiGetDeviceInfoListDetailW(HDEVINFO set, SP_DEVINFO_LIST_DETAIL_DATA_W* detail);
BOOL SetupDiGetDeviceInstallParamsW(HDEVINFO set, SP_DEVINFO_DATA* device, SP_DEVINSTALL_PARAMS_W* params);
BOOL SetupDiSetDeviceInstallParamsW(HDEVINFO set, SP_DEVINFO_DATA* device, SP_DEVINSTALL_PARAMS_W* params);
BOOL SetupDiSetClassInstallParamsW(HDEVINFO set, SP_DEVINFO_DATA* device, SP_CLASSINSTALL_HEADER* params,
                                   DWORD bytes);
BOOL SetupDiCallClassInstaller(DI_FUNCTION function, HDEVINFO set, SP_DEVINFO_DATA* device);
BOOL SetupDiGetDeviceRegistryPropertyW(HDEVINFO set, SP_DEVINFO_DATA* device, DWORD property, LPDWORD type,
                                       BYTE* buffer, DWORD bytes, LPDWORD needed);
BOOL SetupDiSetDeviceRegistryPropertyW(HDEVINFO set, SP_DEVINFO_DATA* device, DWORD property,
                                       const BYTE* buffer, DWORD bytes);

// --- Windows, dialogs and property sheets ----------------------------------------------------------------

#define IDOK 1
#define IDCANCEL 2
#define IDYES 6
#define IDNO 7

#define DWLP_MSGRESULT 0
#define DWLP_DLGPROC 8
#define DWLP_USER 16
#define GWLP_ID (-12)
#define GWL_STYLE (-16)
#define GWL_EXSTYLE (-20)
#define GW_HWNDNEXT 2
#define GW_OWNER 4
#define GW_CHILD 5

#define WM_SETTEXT 0x000C
#define WM_GETTEXT 0x000D
#define WM_GETTEXTLENGTH 0x000E
#define WM_KILLFOCUS 0x0008
#define WM_CLOSE 0x0010
#define WM_WININICHANGE 0x001A
#define WM_NEXTDLGCTL 0x0028
#define WM_NOTIFY 0x004E
#define WM_GETDLGCODE 0x0087
#define WM_KEYDOWN 0x0100
#define WM_KEYUP 0x0101
#define WM_CHAR 0x0102
#define WM_SYSKEYDOWN 0x0104
#define WM_SYSKEYUP 0x0105
#define WM_SYSCHAR 0x0106
#define WM_INITDIALOG 0x0110
#define WM_COMMAND 0x0111
#define WM_HSCROLL 0x0114
#define WM_USER 0x0400
#define DM_GETDEFID (WM_USER + 0)
#define DC_HASDEFID 0x534B
#define DLGC_WANTARROWS 0x0001
#define DLGC_WANTTAB 0x0002
#define DLGC_WANTMESSAGE 0x0004
#define DLGC_DEFPUSHBUTTON 0x0010
#define DLGC_UNDEFPUSHBUTTON 0x0020
#define DLGC_WANTCHARS 0x0080
#define DLGC_STATIC 0x0100
#define DLGC_BUTTON 0x2000
#define VK_BACK 0x08
#define VK_DELETE 0x2E
#define VK_TAB 0x09
#define VK_RETURN 0x0D
#define VK_SHIFT 0x10
#define VK_MENU 0x12
#define VK_ESCAPE 0x1B
#define VK_SPACE 0x20
#define VK_PRIOR 0x21
#define VK_NEXT 0x22
#define VK_END 0x23
#define VK_HOME 0x24
#define VK_LEFT 0x25
#define VK_UP 0x26
#define VK_RIGHT 0x27
#define VK_DOWN 0x28
#define VK_F4 0x73
#define HWND_BROADCAST (reinterpret_cast<HWND>(static_cast<ULONG_PTR>(0xFFFF)))

#define MB_OK 0x00000000
#define MB_YESNO 0x00000004
#define MB_ICONHAND 0x00000010
#define MB_ICONINFORMATION 0x00000040
#define MB_SYSTEMMODAL 0x00001000

#define BM_GETCHECK 0x00F0
#define BM_SETCHECK 0x00F1
#define BM_CLICK 0x00F5
#define BST_UNCHECKED 0
#define BST_CHECKED 1
#define BN_CLICKED 0

#define LB_ADDSTRING 0x0180
#define LB_RESETCONTENT 0x0184
#define LB_SETCURSEL 0x0186
#define LB_GETCURSEL 0x0188
#define LB_GETTEXT 0x0189
#define LB_GETTEXTLEN 0x018A
#define LB_GETCOUNT 0x018B
#define LB_ERR (-1)
#define LBN_SELCHANGE 1

#define CB_ADDSTRING 0x0143
#define CB_GETCOUNT 0x0146
#define CB_GETCURSEL 0x0147
#define CB_GETLBTEXT 0x0148
#define CB_GETLBTEXTLEN 0x0149
#define CB_RESETCONTENT 0x014B
#define CB_FINDSTRING 0x014C
#define CB_SETCURSEL 0x014E
#define CB_SHOWDROPDOWN 0x014F
#define CB_GETDROPPEDSTATE 0x0157
#define CB_ERR (-1)
#define CB_ERRSPACE (-2)
#define CBN_SELCHANGE 1
#define CBN_DROPDOWN 7
#define CBN_CLOSEUP 8
#define CBN_SELENDOK 9
#define CBN_SELENDCANCEL 10

#define TBM_GETPOS (WM_USER)
#define TBM_GETRANGEMIN (WM_USER + 1)
#define TBM_GETRANGEMAX (WM_USER + 2)
#define TBM_SETPOS (WM_USER + 5)
#define TBM_SETRANGE (WM_USER + 6)
#define TB_LINEUP 0
#define TB_LINEDOWN 1
#define TB_PAGEUP 2
#define TB_PAGEDOWN 3
#define TB_THUMBPOSITION 4
#define TB_TOP 6
#define TB_BOTTOM 7
#define TB_ENDTRACK 8

#define LVM_FIRST 0x1000
#define LVM_GETITEMCOUNT (LVM_FIRST + 4)
#define LVM_DELETEALLITEMS (LVM_FIRST + 9)
#define LVM_GETCOLUMNWIDTH (LVM_FIRST + 29)
#define LVM_SETITEMW (LVM_FIRST + 76)
#define LVM_INSERTITEMW (LVM_FIRST + 77)
#define LVM_GETCOLUMNW (LVM_FIRST + 95)
#define LVM_INSERTCOLUMNW (LVM_FIRST + 97)
#define LVM_GETITEMTEXTW (LVM_FIRST + 115)
#define LVCF_WIDTH 0x0002
#define LVCF_TEXT 0x0004
#define LVIF_TEXT 0x0001

#define WS_POPUP 0x80000000L
#define WS_CHILD 0x40000000L
#define WS_VISIBLE 0x10000000L
#define WS_DISABLED 0x08000000L
#define WS_CAPTION 0x00C00000L
#define WS_BORDER 0x00800000L
#define WS_VSCROLL 0x00200000L
#define WS_SYSMENU 0x00080000L
#define WS_GROUP 0x00020000L
#define WS_TABSTOP 0x00010000L
#define DS_3DLOOK 0x0004L
#define DS_FIXEDSYS 0x0008L
#define DS_SETFONT 0x0040L
#define DS_MODALFRAME 0x0080L
#define DS_CONTEXTHELP 0x2000L
#define BS_PUSHBUTTON 0x0000L
#define BS_DEFPUSHBUTTON 0x0001L
#define BS_AUTOCHECKBOX 0x0003L
#define BS_GROUPBOX 0x0007L
#define BS_TYPEMASK 0x000FL
#define SS_LEFT 0x0000L
#define SS_ICON 0x0003L
#define SS_RIGHT 0x0002L
#define CBS_DROPDOWNLIST 0x0003L
#define LBS_NOTIFY 0x0001L
#define LBS_NOINTEGRALHEIGHT 0x0100L
#define LVS_REPORT 0x0001L
#define LVS_SINGLESEL 0x0004L
#define LVS_ALIGNLEFT 0x0800L
#define LVS_NOSORTHEADER 0x8000L
#define TBS_AUTOTICKS 0x0001L

#define PSP_USECALLBACK 0x0080
#define PSPCB_RELEASE 1
#define PSPCB_CREATE 2
#define PSM_CHANGED (WM_USER + 104)
#define PSM_PRESSBUTTON (WM_USER + 113)
#define PSBTN_OK 3
#define PSBTN_APPLYNOW 4
#define PSBTN_CANCEL 5
#define PSN_SETACTIVE (static_cast<UINT>(-200))
#define PSN_KILLACTIVE (static_cast<UINT>(-201))
#define PSN_APPLY (static_cast<UINT>(-202))
#define PSN_RESET (static_cast<UINT>(-203))
#define PSNRET_NOERROR 0
#define PSNRET_INVALID 1
#define ID_APPLY_NOW 0x3021

using DLGPROC = INT_PTR(CALLBACK*)(HWND, UINT, WPARAM, LPARAM);

struct MSG {
    HWND hwnd;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    DWORD time;
    POINT pt;
};
struct NMHDR {
    HWND hwndFrom;
    UINT_PTR idFrom;
    UINT code;
};
struct PSHNOTIFY {
    NMHDR hdr;
    LPARAM lParam;
};
struct LVCOLUMNW {
    UINT mask;
    int fmt;
    int cx;
    LPWSTR pszText;
    int cchTextMax;
    int iSubItem;
    int iImage;
    int iOrder;
    int cxMin;
    int cxDefault;
    int cxIdeal;
};
struct LVITEMW {
    UINT mask;
    int iItem;
    int iSubItem;
    UINT state;
    UINT stateMask;
    LPWSTR pszText;
    int cchTextMax;
    int iImage;
    LPARAM lParam;
    int iIndent;
    int iGroupId;
    UINT cColumns;
    UINT* puColumns;
    int* piColFmt;
    int iGroup;
};
struct PROPSHEETPAGEW;
using LPPROPSHEETPAGEW = PROPSHEETPAGEW*;
using LPFNPSPCALLBACKW = UINT(CALLBACK*)(HWND, UINT, LPPROPSHEETPAGEW);
using LPFNADDPROPSHEETPAGE = BOOL(CALLBACK*)(HPROPSHEETPAGE, LPARAM);
struct PROPSHEETPAGEW {
    DWORD dwSize;
    DWORD dwFlags;
    HINSTANCE hInstance;
    LPCWSTR pszTemplate;
    HICON hIcon;
    LPCWSTR pszTitle;
    DLGPROC pfnDlgProc;
    LPARAM lParam;
    LPFNPSPCALLBACKW pfnCallback;
    UINT* pcRefParent;
    LPCWSTR pszHeaderTitle;
    LPCWSTR pszHeaderSubTitle;
    HANDLE hActCtx;
};
using LPCPROPSHEETPAGEW = const PROPSHEETPAGEW*;

HPROPSHEETPAGE CreatePropertySheetPageW(LPCPROPSHEETPAGEW description);
BOOL DestroyPropertySheetPage(HPROPSHEETPAGE page);
INT_PTR DialogBoxParamW(HINSTANCE instance, LPCWSTR dialog, HWND parent, DLGPROC procedure, LPARAM parameter);
BOOL EndDialog(HWND dialog, INT_PTR result);
LRESULT SendMessageW(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT SendDlgItemMessageW(HWND dialog, int id, UINT message, WPARAM wParam, LPARAM lParam);
BOOL SendNotifyMessageW(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
LONG_PTR SetWindowLongPtrW(HWND window, int index, LONG_PTR value);
LONG_PTR GetWindowLongPtrW(HWND window, int index);
HWND GetParent(HWND window);
HWND GetDlgItem(HWND dialog, int id);
int GetDlgCtrlID(HWND control);
BOOL EnableWindow(HWND window, BOOL enable);
HWND SetFocus(HWND window);
HWND GetFocus();
int GetWindowTextW(HWND window, LPWSTR buffer, int capacity);
int GetWindowTextLengthW(HWND window);
BOOL SetWindowTextW(HWND window, LPCWSTR text);
BOOL CheckDlgButton(HWND dialog, int id, UINT state);
UINT IsDlgButtonChecked(HWND dialog, int id);
int LoadStringW(HINSTANCE instance, UINT id, LPWSTR buffer, int capacity);
int MessageBoxW(HWND owner, LPCWSTR text, LPCWSTR caption, UINT style);

// For a host only: reading the windows back.
HWND GetWindow(HWND window, UINT relation);
int GetClassNameW(HWND window, LPWSTR buffer, int capacity);
BOOL GetWindowRect(HWND window, RECT* rectangle);
BOOL MapDialogRect(HWND dialog, RECT* rectangle); // dialog units to those of GetWindowRect
BOOL IsChild(HWND above, HWND window);
BOOL IsWindow(HWND window);
BOOL IsWindowVisible(HWND window);
BOOL IsWindowEnabled(HWND window);

// For a host only: the keyboard. The dialog that holds the window takes the message, or else passes it on to
// the window.
BOOL IsDialogMessageW(HWND dialog, MSG* message);
BOOL SetKeyboardState(BYTE* keys); // 256 keys, 0x80 for each one that is down
SHORT GetKeyState(int key);
