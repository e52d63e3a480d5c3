// Chinese (traditional, Taiwan).
//
// For translators: the terms are those of the device manager (連接埠, 每秒傳輸位元, 同位檢查, 緩衝區). The
// letter that reaches a control by the keyboard stands as (&X) after the text, before a colon or dots: one
// at most in a text, no letter twice in one dialog. %d is a number and %s a port name, put in at run time:
// keep them. Commas in the lists are ASCII; sentences have Chinese punctuation but ASCII parentheses, with a
// blank around them. \r is a line end. The file is UTF-8.

#define LANGUAGE_PRIMARY 0x04
#define LANGUAGE_SUB 0x01

// The page of a COM port. The captions stand right-aligned before their lists.
#define PORT_SETTINGS "連接埠設定"
#define PORT_SETTINGS_BAUD_RATE_CAPTION "每秒傳輸位元(&B):"
#define PORT_SETTINGS_BAUD_RATE_CAPTION_RECT INSTEAD(40, 19, 98, 8)
#define PORT_SETTINGS_DATA_BITS_CAPTION "資料位元(&D):"
#define PORT_SETTINGS_DATA_BITS_CAPTION_RECT INSTEAD(40, 40, 98, 8)
#define PORT_SETTINGS_PARITY_CAPTION "同位檢查(&P):"
#define PORT_SETTINGS_PARITY_CAPTION_RECT INSTEAD(40, 61, 98, 8)
#define PORT_SETTINGS_STOP_BITS_CAPTION "停止位元(&S):"
#define PORT_SETTINGS_STOP_BITS_CAPTION_RECT INSTEAD(40, 82, 98, 8)
#define PORT_SETTINGS_FLOW_CONTROL_CAPTION "流量控制(&F):"
#define PORT_SETTINGS_FLOW_CONTROL_CAPTION_RECT INSTEAD(40, 102, 98, 8)
#define PORT_SETTINGS_ADVANCED "進階(&V)..."
#define PORT_SETTINGS_RESTORE "還原預設值(&R)"

// The dialog for "進階..." of a COM port. The title shows only where STRING_ADVANCED_SETTINGS_TITLE is
// missing. The number of bytes in %d has up to five digits; those of "低" and "高" up to three.
#define ADVANCED_PORT_SETTINGS "進階連接埠設定"
#define ADVANCED_PORT_SETTINGS_LARGEFIFO "啟用 %d 位元組 FIFO 緩衝區(&E)"
#define ADVANCED_PORT_SETTINGS_RECEIVE_CAPTION "接收緩衝區(&R):"
#define ADVANCED_PORT_SETTINGS_RECEIVE_CAPTION_RECT INSTEAD(23, 53, 70, 10)
#define ADVANCED_PORT_SETTINGS_RECEIVE_LOW "低 (%d)"
#define ADVANCED_PORT_SETTINGS_RECEIVE_SLIDER_RECT INSTEAD(134, 51, 117, 18)
#define ADVANCED_PORT_SETTINGS_RECEIVE_HIGH "高 (%d)"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_CAPTION "傳輸緩衝區(&T):"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_CAPTION_RECT INSTEAD(23, 79, 70, 10)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_LOW "低 (%d)"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_SLIDER_RECT INSTEAD(134, 76, 117, 20)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_HIGH "高 (%d)"
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_CAPTION "COM 連接埠號碼(&P):"
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_CAPTION_RECT INSTEAD(13, 120, 82, 8)
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_RECT INSTEAD(98, 118, 90, 90)
#define ADVANCED_PORT_SETTINGS_OK "確定"
#define ADVANCED_PORT_SETTINGS_CANCEL "取消"
#define ADVANCED_PORT_SETTINGS_RESTORE "預設值(&D)"

// The page of the board. "低" and "高" are replaced at run time by STRING_LOW and STRING_HIGH.
#define PORT_CONTROL "連接埠控制"
#define PORT_CONTROL_LARGEFIFO "啟用大容量 FIFO 緩衝區(&E)"
#define PORT_CONTROL_LARGEFIFO_RECT INSTEAD(16, 93, 150, 12)
#define PORT_CONTROL_ADVANCED "進階(&V)..."
#define PORT_CONTROL_RECEIVE_CAPTION "接收緩衝區(&R):"
#define PORT_CONTROL_RECEIVE_CAPTION_RECT INSTEAD(16, 115, 57, 10)
#define PORT_CONTROL_RECEIVE_LOW "低"
#define PORT_CONTROL_RECEIVE_HIGH "高"
#define PORT_CONTROL_TRANSMIT_CAPTION "傳輸緩衝區(&T):"
#define PORT_CONTROL_TRANSMIT_CAPTION_RECT INSTEAD(16, 139, 57, 10)
#define PORT_CONTROL_TRANSMIT_LOW "低"
#define PORT_CONTROL_TRANSMIT_HIGH "高"
#define PORT_CONTROL_APPLY "套用(&Y)"
#define PORT_CONTROL_SET_TO_ALL "設定至全部(&S)"
#define PORT_CONTROL_RESTORE "還原預設值(&D)"
#define PORT_CONTROL_PORT_NUMBER_CAPTION "連接埠號碼(&P):"
#define PORT_CONTROL_PORT_NUMBER_CAPTION_RECT INSTEAD(16, 218, 62, 8)
#define PORT_CONTROL_PORT_NUMBER_RECT INSTEAD(81, 216, 90, 90)
#define PORT_CONTROL_POLLING_CYCLE_CAPTION "LPT 輪詢週期 (秒):"

// The dialog for "進階..." of the board. ACS is a function of the RS-485 driver; 終端電阻 is the resistor
// that terminates the line.
#define ADVANCED_PORT_CONTROL "進階連接埠控制"
#define ADVANCED_PORT_CONTROL_UART_GROUP "UART 功能"
#define ADVANCED_PORT_CONTROL_SORT_COM "排序 UART"
#define ADVANCED_PORT_CONTROL_SORT_COM_RECT INSTEAD(24, 60, 54, 14)
#define ADVANCED_PORT_CONTROL_TERMINATION_GROUP "RS-422/485 功能"
#define ADVANCED_PORT_CONTROL_INTERFACE_CAPTION "UART 類型(&T):"
#define ADVANCED_PORT_CONTROL_INTERFACE_CAPTION_RECT INSTEAD(25, 30, 56, 8)
#define ADVANCED_PORT_CONTROL_INTERFACE_SELECT_RECT INSTEAD(84, 28, 90, 54)
#define ADVANCED_PORT_CONTROL_ACS_GROUP "RS-485 功能"
#define ADVANCED_PORT_CONTROL_ACS_ENABLE "啟用 RS-485 ACS 功能(&A)"
#define ADVANCED_PORT_CONTROL_ACS_ENABLE_RECT INSTEAD(25, 168, 150, 12)
#define ADVANCED_PORT_CONTROL_OK "確定"
#define ADVANCED_PORT_CONTROL_CANCEL "取消"
#define ADVANCED_PORT_CONTROL_RESTORE "預設值(&D)"
#define ADVANCED_PORT_CONTROL_TERMINATION_ENABLE "啟用終端電阻"

// Message boxes.
#define STRING_OUT_OF_MEMORY \
    "記憶體不足，無法完成此作業；\r\r請關閉一個或多個 Windows 應用程式以增加可用的記憶體。"
#define STRING_OUT_OF_MEMORY_CAPTION "通訊連接埠"
#define STRING_NAME_IN_USE_QUESTION \
    "此 COM 名稱正由其他裝置 (例如另一個 COM 連接埠或數據機) 使用。使用重複的名稱可能會導致裝置無法存取以及設定遭到變更。您要繼續嗎？"
#define STRING_BOX_CAPTION "通訊連接埠內容"
#define STRING_RENAME_FAILED "重新命名 COM 連接埠時發生錯誤。"

// Lists: the first character separates the items, and their order carries meaning. Even, odd, none, mark,
// space; one, one and a half and two stop bits (the same text in every language); Xon / Xoff, hardware, none.
#define STRING_PARITY_LIST ",偶數,奇數,無,標記,空格"
#define STRING_STOP_BITS_LIST ",1,1.5,2"
#define STRING_FLOW_CONTROL_LIST ",Xon / Xoff,硬體,無"

// The suffix begins with a blank and follows a port's name.
#define STRING_ADVANCED_SETTINGS_TITLE "%s 的進階設定"
#define STRING_LOW "低 (%d)"
#define STRING_HIGH "高 (%d)"
#define STRING_IN_USE_SUFFIX " (使用中)"

// The list of a channel's resources.
#define STRING_RESOURCE_TYPE "資源類型"
#define STRING_SETTING "設定"
#define STRING_IO_RANGE "I/O 範圍"
#define STRING_IRQ "IRQ"
