// Thai.
//
// For translators: an & stands before the consonant that reaches the control by the keyboard: one at most in
// a text, no consonant twice in one dialog, and never between a consonant and a mark above or below it. %d is
// a number and %s a port name, put in at run time: keep them. \r is a line end. The labels are 10 dialog
// units high for the marks above and below the line. The file is UTF-8.

#define LANGUAGE_PRIMARY 0x1E
#define LANGUAGE_SUB 0x01

// The page of a COM port. The captions stand right-aligned before their lists.
#define PORT_SETTINGS "การตั้งค่าพอร์ต"
#define PORT_SETTINGS_BAUD_RATE_CAPTION "&บิตต่อวินาที:"
#define PORT_SETTINGS_BAUD_RATE_CAPTION_RECT INSTEAD(40, 19, 98, 10)
#define PORT_SETTINGS_DATA_BITS_CAPTION "บิต&ข้อมูล:"
#define PORT_SETTINGS_DATA_BITS_CAPTION_RECT INSTEAD(40, 40, 98, 10)
#define PORT_SETTINGS_PARITY_CAPTION "&พาริตี:"
#define PORT_SETTINGS_PARITY_CAPTION_RECT INSTEAD(40, 61, 98, 10)
#define PORT_SETTINGS_STOP_BITS_CAPTION "บิต&หยุด:"
#define PORT_SETTINGS_STOP_BITS_CAPTION_RECT INSTEAD(40, 82, 98, 10)
#define PORT_SETTINGS_FLOW_CONTROL_CAPTION "การ&ควบคุมการไหล:"
#define PORT_SETTINGS_FLOW_CONTROL_CAPTION_RECT INSTEAD(40, 102, 98, 10)
#define PORT_SETTINGS_ADVANCED "ขั้น&สูง..."
#define PORT_SETTINGS_RESTORE "คืนค่าเริ่ม&ต้น"

// The dialog for "ขั้นสูง..." of a COM port. The title shows only where STRING_ADVANCED_SETTINGS_TITLE is
// missing. The number of bytes in %d has up to five digits; those of "ต่ำ" and "สูง" up to three.
#define ADVANCED_PORT_SETTINGS "การตั้งค่าพอร์ตขั้นสูง"
#define ADVANCED_PORT_SETTINGS_LARGEFIFO "เ&ปิดใช้งานบัฟเฟอร์ FIFO ขนาด %d ไบต์"
#define ADVANCED_PORT_SETTINGS_LARGEFIFO_RECT INSTEAD(23, 22, 240, 12)
#define ADVANCED_PORT_SETTINGS_RECEIVE_CAPTION "บัฟเฟอร์&รับ:"
#define ADVANCED_PORT_SETTINGS_RECEIVE_CAPTION_RECT INSTEAD(23, 53, 70, 10)
#define ADVANCED_PORT_SETTINGS_RECEIVE_LOW "ต่ำ (%d)"
#define ADVANCED_PORT_SETTINGS_RECEIVE_SLIDER_RECT INSTEAD(134, 51, 117, 18)
#define ADVANCED_PORT_SETTINGS_RECEIVE_HIGH "สูง (%d)"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_CAPTION "บัฟเฟอร์&ส่ง:"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_CAPTION_RECT INSTEAD(23, 79, 70, 10)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_LOW "ต่ำ (%d)"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_SLIDER_RECT INSTEAD(134, 76, 117, 20)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_HIGH "สูง (%d)"
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_CAPTION "&หมายเลขพอร์ต COM:"
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_CAPTION_RECT INSTEAD(13, 120, 82, 10)
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_RECT INSTEAD(98, 118, 100, 90)
#define ADVANCED_PORT_SETTINGS_OK "ตกลง"
#define ADVANCED_PORT_SETTINGS_CANCEL "ยกเลิก"
#define ADVANCED_PORT_SETTINGS_RESTORE "ค่าเริ่ม&ต้น"

// The page of the board. "ต่ำ" and "สูง" are replaced at run time by STRING_LOW and STRING_HIGH.
#define PORT_CONTROL "การควบคุมพอร์ต"
#define PORT_CONTROL_LARGEFIFO "เ&ปิดใช้งานบัฟเฟอร์ FIFO ขนาดใหญ่"
#define PORT_CONTROL_LARGEFIFO_RECT INSTEAD(16, 93, 164, 12)
#define PORT_CONTROL_ADVANCED "&ขั้นสูง..."
#define PORT_CONTROL_RECEIVE_CAPTION "บัฟเฟอร์&รับ:"
#define PORT_CONTROL_RECEIVE_LOW "ต่ำ"
#define PORT_CONTROL_RECEIVE_HIGH "สูง"
#define PORT_CONTROL_TRANSMIT_CAPTION "บัฟเฟอร์&ส่ง:"
#define PORT_CONTROL_TRANSMIT_LOW "ต่ำ"
#define PORT_CONTROL_TRANSMIT_HIGH "สูง"
#define PORT_CONTROL_APPLY "นำไปใ&ช้"
#define PORT_CONTROL_SET_TO_ALL "ตั้ง&ค่าให้ทั้งหมด"
#define PORT_CONTROL_RESTORE "คืนค่าเริ่ม&ต้น"
#define PORT_CONTROL_PORT_NUMBER_CAPTION "&หมายเลขพอร์ต:"
#define PORT_CONTROL_PORT_NUMBER_CAPTION_RECT INSTEAD(16, 218, 64, 10)
#define PORT_CONTROL_PORT_NUMBER_RECT INSTEAD(83, 216, 100, 90)
#define PORT_CONTROL_POLLING_CYCLE_CAPTION "รอบการโพล LPT (วินาที):"
#define PORT_CONTROL_POLLING_CYCLE_CAPTION_RECT INSTEAD(16, 195, 98, 10)
#define PORT_CONTROL_POLLING_CYCLE_RECT INSTEAD(117, 193, 72, 90)

// The dialog for "ขั้นสูง..." of the board. ACS is a function of the RS-485 driver; ตัวต้านทานปลายสาย is
// the resistor that terminates the line.
#define ADVANCED_PORT_CONTROL "การควบคุมพอร์ตขั้นสูง"
#define ADVANCED_PORT_CONTROL_UART_GROUP "คุณลักษณะของ UART"
#define ADVANCED_PORT_CONTROL_SORT_COM "เรียงลำดับ UART"
#define ADVANCED_PORT_CONTROL_SORT_COM_RECT INSTEAD(24, 60, 74, 14)
#define ADVANCED_PORT_CONTROL_TERMINATION_GROUP "คุณลักษณะของ RS-422/485"
#define ADVANCED_PORT_CONTROL_INTERFACE_CAPTION "&ชนิด UART:"
#define ADVANCED_PORT_CONTROL_INTERFACE_CAPTION_RECT INSTEAD(25, 30, 56, 10)
#define ADVANCED_PORT_CONTROL_INTERFACE_SELECT_RECT INSTEAD(84, 28, 90, 54)
#define ADVANCED_PORT_CONTROL_ACS_GROUP "คุณลักษณะของ RS-485"
#define ADVANCED_PORT_CONTROL_ACS_ENABLE "เ&ปิดใช้งานฟังก์ชัน ACS ของ RS-485"
#define ADVANCED_PORT_CONTROL_ACS_ENABLE_RECT INSTEAD(25, 168, 180, 12)
#define ADVANCED_PORT_CONTROL_OK "ตกลง"
#define ADVANCED_PORT_CONTROL_CANCEL "ยกเลิก"
#define ADVANCED_PORT_CONTROL_RESTORE "ค่าเริ่ม&ต้น"
#define ADVANCED_PORT_CONTROL_TERMINATION_ENABLE "เปิดใช้งานตัวต้านทานปลายสาย"
#define ADVANCED_PORT_CONTROL_TERMINATION_ENABLE_RECT INSTEAD(25, 116, 180, 12)

// Message boxes.
#define STRING_OUT_OF_MEMORY \
    "หน่วยความจำไม่เพียงพอสำหรับการดำเนินการนี้\r\rโปรดปิดโปรแกรมประยุกต์ Windows อย่างน้อยหนึ่งโปรแกรมเพื่อเพิ่มหน่วยความจำที่พร้อมใช้งาน"
#define STRING_OUT_OF_MEMORY_CAPTION "พอร์ตการสื่อสาร"
#define STRING_NAME_IN_USE_QUESTION \
    "ชื่อ COM นี้กำลังถูกใช้โดยอุปกรณ์อื่น (เช่น พอร์ต COM อื่นหรือโมเด็ม) การใช้ชื่อซ้ำกันอาจทำให้ไม่สามารถเข้าถึงอุปกรณ์ได้และการตั้งค่าอาจเปลี่ยนแปลงไป คุณต้องการดำเนินการต่อหรือไม่"
#define STRING_BOX_CAPTION "คุณสมบัติของพอร์ตการสื่อสาร"
#define STRING_RENAME_FAILED "เกิดข้อผิดพลาดขณะเปลี่ยนชื่อพอร์ต COM"

// Lists: the first character separates the items, and their order carries meaning. Even, odd, none, mark,
// space; one, one and a half and two stop bits (the same text in every language); Xon / Xoff, hardware, none.
#define STRING_PARITY_LIST ",คู่,คี่,ไม่มี,เครื่องหมาย,ช่องว่าง"
#define STRING_STOP_BITS_LIST ",1,1.5,2"
#define STRING_FLOW_CONTROL_LIST ",Xon / Xoff,ฮาร์ดแวร์,ไม่มี"

// The suffix begins with a blank and follows a port's name.
#define STRING_ADVANCED_SETTINGS_TITLE "การตั้งค่าขั้นสูงสำหรับ %s"
#define STRING_LOW "ต่ำ (%d)"
#define STRING_HIGH "สูง (%d)"
#define STRING_IN_USE_SUFFIX " (กำลังใช้งาน)"

// The list of a channel's resources.
#define STRING_RESOURCE_TYPE "ชนิดทรัพยากร"
#define STRING_SETTING "การตั้งค่า"
#define STRING_IO_RANGE "ช่วง I/O"
#define STRING_IRQ "IRQ"
