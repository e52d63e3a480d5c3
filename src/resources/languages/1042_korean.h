// Korean.
//
// For translators: the terms are those of the device manager (비트/초, 패리티, 흐름 제어, 버퍼). The letter
// that reaches a control by the keyboard stands as (&X) after the text, before a colon or dots: one at most
// in a text, no letter twice in one dialog. %d is a number and %s a port name, put in at run time: keep them,
// and let no particle follow them whose form depends on the sound before it. \r is a line end. The file is
// UTF-8.

#define LANGUAGE_PRIMARY 0x12
#define LANGUAGE_SUB 0x01

// The page of a COM port. The captions stand right-aligned before their lists.
#define PORT_SETTINGS "포트 설정"
#define PORT_SETTINGS_BAUD_RATE_CAPTION "비트/초(&B):"
#define PORT_SETTINGS_BAUD_RATE_CAPTION_RECT INSTEAD(40, 19, 98, 8)
#define PORT_SETTINGS_DATA_BITS_CAPTION "데이터 비트(&D):"
#define PORT_SETTINGS_DATA_BITS_CAPTION_RECT INSTEAD(40, 40, 98, 8)
#define PORT_SETTINGS_PARITY_CAPTION "패리티(&P):"
#define PORT_SETTINGS_PARITY_CAPTION_RECT INSTEAD(40, 61, 98, 8)
#define PORT_SETTINGS_STOP_BITS_CAPTION "정지 비트(&S):"
#define PORT_SETTINGS_STOP_BITS_CAPTION_RECT INSTEAD(40, 82, 98, 8)
#define PORT_SETTINGS_FLOW_CONTROL_CAPTION "흐름 제어(&F):"
#define PORT_SETTINGS_FLOW_CONTROL_CAPTION_RECT INSTEAD(40, 102, 98, 8)
#define PORT_SETTINGS_ADVANCED "고급(&V)..."
#define PORT_SETTINGS_ADVANCED_RECT INSTEAD(108, 130, 69, 14)
#define PORT_SETTINGS_RESTORE "기본값 복원(&R)"
#define PORT_SETTINGS_RESTORE_RECT INSTEAD(181, 130, 69, 14)

// The dialog for "고급..." of a COM port. The title shows only where STRING_ADVANCED_SETTINGS_TITLE is
// missing. The number of bytes in %d has up to five digits; those of "낮음" and "높음" up to three.
#define ADVANCED_PORT_SETTINGS "고급 포트 설정"
#define ADVANCED_PORT_SETTINGS_LARGEFIFO "%d바이트 FIFO 버퍼 사용(&E)"
#define ADVANCED_PORT_SETTINGS_RECEIVE_CAPTION "수신 버퍼(&R):"
#define ADVANCED_PORT_SETTINGS_RECEIVE_CAPTION_RECT INSTEAD(23, 53, 70, 10)
#define ADVANCED_PORT_SETTINGS_RECEIVE_LOW "낮음(%d)"
#define ADVANCED_PORT_SETTINGS_RECEIVE_LOW_RECT INSTEAD(95, 53, 38, 10)
#define ADVANCED_PORT_SETTINGS_RECEIVE_SLIDER_RECT INSTEAD(134, 51, 117, 18)
#define ADVANCED_PORT_SETTINGS_RECEIVE_HIGH "높음(%d)"
#define ADVANCED_PORT_SETTINGS_RECEIVE_HIGH_RECT INSTEAD(257, 53, 40, 10)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_CAPTION "전송 버퍼(&T):"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_CAPTION_RECT INSTEAD(23, 79, 70, 10)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_LOW "낮음(%d)"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_LOW_RECT INSTEAD(95, 79, 38, 10)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_SLIDER_RECT INSTEAD(134, 76, 117, 20)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_HIGH "높음(%d)"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_HIGH_RECT INSTEAD(257, 79, 40, 10)
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_CAPTION "COM 포트 번호(&P):"
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_CAPTION_RECT INSTEAD(13, 120, 76, 8)
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_RECT INSTEAD(92, 118, 90, 90)
#define ADVANCED_PORT_SETTINGS_OK "확인"
#define ADVANCED_PORT_SETTINGS_CANCEL "취소"
#define ADVANCED_PORT_SETTINGS_RESTORE "기본값(&D)"

// The page of the board. "낮음" and "높음" are replaced at run time by STRING_LOW and STRING_HIGH.
#define PORT_CONTROL "포트 제어"
#define PORT_CONTROL_LARGEFIFO "대용량 FIFO 버퍼 사용(&E)"
#define PORT_CONTROL_LARGEFIFO_RECT INSTEAD(16, 93, 150, 12)
#define PORT_CONTROL_ADVANCED "고급(&V)..."
#define PORT_CONTROL_RECEIVE_CAPTION "수신 버퍼(&R):"
#define PORT_CONTROL_RECEIVE_LOW "낮음"
#define PORT_CONTROL_RECEIVE_LOW_RECT INSTEAD(72, 115, 30, 10)
#define PORT_CONTROL_RECEIVE_SLIDER_RECT INSTEAD(105, 113, 97, 18)
#define PORT_CONTROL_RECEIVE_HIGH "높음"
#define PORT_CONTROL_RECEIVE_HIGH_RECT INSTEAD(206, 115, 40, 10)
#define PORT_CONTROL_TRANSMIT_CAPTION "전송 버퍼(&T):"
#define PORT_CONTROL_TRANSMIT_LOW "낮음"
#define PORT_CONTROL_TRANSMIT_LOW_RECT INSTEAD(72, 139, 30, 10)
#define PORT_CONTROL_TRANSMIT_SLIDER_RECT INSTEAD(105, 136, 97, 18)
#define PORT_CONTROL_TRANSMIT_HIGH "높음"
#define PORT_CONTROL_TRANSMIT_HIGH_RECT INSTEAD(206, 139, 40, 10)
#define PORT_CONTROL_APPLY "적용(&Y)"
#define PORT_CONTROL_APPLY_RECT INSTEAD(35, 165, 66, 14)
#define PORT_CONTROL_SET_TO_ALL "전체 설정(&S)"
#define PORT_CONTROL_SET_TO_ALL_RECT INSTEAD(107, 165, 66, 14)
#define PORT_CONTROL_RESTORE "기본값 복원(&D)"
#define PORT_CONTROL_RESTORE_RECT INSTEAD(179, 165, 66, 14)
#define PORT_CONTROL_PORT_NUMBER_CAPTION "포트 번호(&P):"
#define PORT_CONTROL_PORT_NUMBER_CAPTION_RECT INSTEAD(16, 218, 58, 8)
#define PORT_CONTROL_PORT_NUMBER_RECT INSTEAD(77, 216, 90, 90)
#define PORT_CONTROL_POLLING_CYCLE_CAPTION "LPT 폴링 주기(초):"

// The dialog for "고급..." of the board. ACS is a function of the RS-485 driver; 종단 저항 is the resistor
// that terminates the line.
#define ADVANCED_PORT_CONTROL "고급 포트 제어"
#define ADVANCED_PORT_CONTROL_UART_GROUP "UART 기능"
#define ADVANCED_PORT_CONTROL_SORT_COM "UART 정렬"
#define ADVANCED_PORT_CONTROL_SORT_COM_RECT INSTEAD(24, 60, 54, 14)
#define ADVANCED_PORT_CONTROL_TERMINATION_GROUP "RS-422/485 기능"
#define ADVANCED_PORT_CONTROL_INTERFACE_CAPTION "UART 종류(&T):"
#define ADVANCED_PORT_CONTROL_INTERFACE_CAPTION_RECT INSTEAD(25, 30, 56, 8)
#define ADVANCED_PORT_CONTROL_INTERFACE_SELECT_RECT INSTEAD(84, 28, 90, 54)
#define ADVANCED_PORT_CONTROL_ACS_GROUP "RS-485 기능"
#define ADVANCED_PORT_CONTROL_ACS_ENABLE "RS-485 ACS 기능 사용(&A)"
#define ADVANCED_PORT_CONTROL_ACS_ENABLE_RECT INSTEAD(25, 168, 150, 12)
#define ADVANCED_PORT_CONTROL_OK "확인"
#define ADVANCED_PORT_CONTROL_CANCEL "취소"
#define ADVANCED_PORT_CONTROL_RESTORE "기본값(&D)"
#define ADVANCED_PORT_CONTROL_TERMINATION_ENABLE "종단 저항 사용"

// Message boxes.
#define STRING_OUT_OF_MEMORY \
    "메모리가 부족하여 이 작업을 수행할 수 없습니다.\r\r하나 이상의 Windows 응용 프로그램을 닫아 사용 가능한 메모리를 늘리십시오."
#define STRING_OUT_OF_MEMORY_CAPTION "통신 포트"
#define STRING_NAME_IN_USE_QUESTION \
    "이 COM 이름은 다른 장치(예: 다른 COM 포트 또는 모뎀)에서 사용하고 있습니다. 중복된 이름을 사용하면 장치에 액세스할 수 없게 되거나 설정이 변경될 수 있습니다. 계속하시겠습니까?"
#define STRING_BOX_CAPTION "통신 포트 속성"
#define STRING_RENAME_FAILED "COM 포트의 이름을 바꾸는 동안 오류가 발생했습니다."

// Lists: the first character separates the items, and their order carries meaning. Even, odd, none, mark,
// space; one, one and a half and two stop bits (the same text in every language); Xon / Xoff, hardware, none.
#define STRING_PARITY_LIST ",짝수,홀수,없음,표시,공백"
#define STRING_STOP_BITS_LIST ",1,1.5,2"
#define STRING_FLOW_CONTROL_LIST ",Xon / Xoff,하드웨어,없음"

// The suffix begins with a blank and follows a port's name.
#define STRING_ADVANCED_SETTINGS_TITLE "%s에 대한 고급 설정"
#define STRING_LOW "낮음(%d)"
#define STRING_HIGH "높음(%d)"
#define STRING_IN_USE_SUFFIX " (사용 중)"

// The list of a channel's resources.
#define STRING_RESOURCE_TYPE "리소스 종류"
#define STRING_SETTING "설정"
#define STRING_IO_RANGE "I/O 범위"
#define STRING_IRQ "IRQ"
