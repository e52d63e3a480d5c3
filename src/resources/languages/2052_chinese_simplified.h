// Chinese (simplified).
//
// For translators: the terms are those of the device manager (端口, 每秒位数, 奇偶校验, 缓冲区). The letter
// that reaches a control by the keyboard stands as (&X) after the text, before a colon or dots: one at most
// in a text, no letter twice in one dialog. %d is a number and %s a port name, put in at run time: keep them.
// Commas in the lists are ASCII; sentences have Chinese punctuation. \r is a line end. The file is UTF-8.

#define LANGUAGE_PRIMARY 0x04
#define LANGUAGE_SUB 0x02

// The page of a COM port. The captions stand right-aligned before their lists.
#define PORT_SETTINGS "端口设置"
#define PORT_SETTINGS_BAUD_RATE_CAPTION "每秒位数(&B):"
#define PORT_SETTINGS_DATA_BITS_CAPTION "数据位(&D):"
#define PORT_SETTINGS_PARITY_CAPTION "奇偶校验(&P):"
#define PORT_SETTINGS_STOP_BITS_CAPTION "停止位(&S):"
#define PORT_SETTINGS_FLOW_CONTROL_CAPTION "流控制(&F):"
#define PORT_SETTINGS_ADVANCED "高级(&V)..."
#define PORT_SETTINGS_RESTORE "还原默认值(&R)"

// The dialog for "高级..." of a COM port. The title shows only where STRING_ADVANCED_SETTINGS_TITLE is
// missing. The number of bytes in %d has up to five digits; those of "低" and "高" up to three.
#define ADVANCED_PORT_SETTINGS "高级端口设置"
#define ADVANCED_PORT_SETTINGS_LARGEFIFO "启用 %d 字节 FIFO 缓冲区(&E)"
#define ADVANCED_PORT_SETTINGS_RECEIVE_CAPTION "接收缓冲区(&R):"
#define ADVANCED_PORT_SETTINGS_RECEIVE_CAPTION_RECT INSTEAD(23, 53, 70, 10)
#define ADVANCED_PORT_SETTINGS_RECEIVE_LOW "低(%d)"
#define ADVANCED_PORT_SETTINGS_RECEIVE_SLIDER_RECT INSTEAD(134, 51, 117, 18)
#define ADVANCED_PORT_SETTINGS_RECEIVE_HIGH "高(%d)"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_CAPTION "传输缓冲区(&T):"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_CAPTION_RECT INSTEAD(23, 79, 70, 10)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_LOW "低(%d)"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_SLIDER_RECT INSTEAD(134, 76, 117, 20)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_HIGH "高(%d)"
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_CAPTION "COM 端口号(&P):"
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_CAPTION_RECT INSTEAD(13, 120, 64, 8)
#define ADVANCED_PORT_SETTINGS_OK "确定"
#define ADVANCED_PORT_SETTINGS_CANCEL "取消"
#define ADVANCED_PORT_SETTINGS_RESTORE "默认值(&D)"

// The page of the board. "低" and "高" are replaced at run time by STRING_LOW and STRING_HIGH.
#define PORT_CONTROL "端口控制"
#define PORT_CONTROL_LARGEFIFO "启用大容量 FIFO 缓冲区(&E)"
#define PORT_CONTROL_LARGEFIFO_RECT INSTEAD(16, 93, 150, 12)
#define PORT_CONTROL_ADVANCED "高级(&V)..."
#define PORT_CONTROL_RECEIVE_CAPTION "接收缓冲区(&R):"
#define PORT_CONTROL_RECEIVE_CAPTION_RECT INSTEAD(16, 115, 57, 10)
#define PORT_CONTROL_RECEIVE_LOW "低"
#define PORT_CONTROL_RECEIVE_HIGH "高"
#define PORT_CONTROL_TRANSMIT_CAPTION "传输缓冲区(&T):"
#define PORT_CONTROL_TRANSMIT_CAPTION_RECT INSTEAD(16, 139, 57, 10)
#define PORT_CONTROL_TRANSMIT_LOW "低"
#define PORT_CONTROL_TRANSMIT_HIGH "高"
#define PORT_CONTROL_APPLY "应用(&Y)"
#define PORT_CONTROL_SET_TO_ALL "设置到全部(&S)"
#define PORT_CONTROL_RESTORE "还原默认值(&D)"
#define PORT_CONTROL_PORT_NUMBER_CAPTION "端口号(&P):"
#define PORT_CONTROL_POLLING_CYCLE_CAPTION "LPT 轮询周期(秒):"

// The dialog for "高级..." of the board. ACS is a function of the RS-485 driver; 终端电阻 is the resistor
// that terminates the line.
#define ADVANCED_PORT_CONTROL "高级端口控制"
#define ADVANCED_PORT_CONTROL_UART_GROUP "UART 功能"
#define ADVANCED_PORT_CONTROL_SORT_COM "排序 UART"
#define ADVANCED_PORT_CONTROL_SORT_COM_RECT INSTEAD(24, 60, 54, 14)
#define ADVANCED_PORT_CONTROL_TERMINATION_GROUP "RS-422/485 功能"
#define ADVANCED_PORT_CONTROL_INTERFACE_CAPTION "UART 类型(&T):"
#define ADVANCED_PORT_CONTROL_INTERFACE_CAPTION_RECT INSTEAD(25, 30, 56, 8)
#define ADVANCED_PORT_CONTROL_INTERFACE_SELECT_RECT INSTEAD(84, 28, 90, 54)
#define ADVANCED_PORT_CONTROL_ACS_GROUP "RS-485 功能"
#define ADVANCED_PORT_CONTROL_ACS_ENABLE "启用 RS-485 ACS 功能(&A)"
#define ADVANCED_PORT_CONTROL_ACS_ENABLE_RECT INSTEAD(25, 168, 150, 12)
#define ADVANCED_PORT_CONTROL_OK "确定"
#define ADVANCED_PORT_CONTROL_CANCEL "取消"
#define ADVANCED_PORT_CONTROL_RESTORE "默认值(&D)"
#define ADVANCED_PORT_CONTROL_TERMINATION_ENABLE "启用终端电阻"

// Message boxes.
#define STRING_OUT_OF_MEMORY "内存不足，无法完成此操作；\r\r请关闭一个或多个 Windows 应用程序以增加可用内存。"
#define STRING_OUT_OF_MEMORY_CAPTION "通信端口"
#define STRING_NAME_IN_USE_QUESTION \
    "此 COM 名称正由另一设备（如另一个 COM 端口或调制解调器）使用。使用重复的名称可能会导致设备无法访问以及设置被更改。是否继续？"
#define STRING_BOX_CAPTION "通信端口属性"
#define STRING_RENAME_FAILED "重命名 COM 端口时出错。"

// Lists: the first character separates the items, and their order carries meaning. Even, odd, none, mark,
// space; one, one and a half and two stop bits (the same text in every language); Xon / Xoff, hardware, none.
#define STRING_PARITY_LIST ",偶,奇,无,标志,空格"
#define STRING_STOP_BITS_LIST ",1,1.5,2"
#define STRING_FLOW_CONTROL_LIST ",Xon / Xoff,硬件,无"

// The suffix begins with a blank and follows a port's name.
#define STRING_ADVANCED_SETTINGS_TITLE "%s 的高级设置"
#define STRING_LOW "低(%d)"
#define STRING_HIGH "高(%d)"
#define STRING_IN_USE_SUFFIX " (使用中)"

// The list of a channel's resources.
#define STRING_RESOURCE_TYPE "资源类型"
#define STRING_SETTING "设置"
#define STRING_IO_RANGE "I/O 范围"
#define STRING_IRQ "IRQ"
