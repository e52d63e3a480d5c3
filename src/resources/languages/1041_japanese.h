// Japanese.
//
// For translators: the terms are those of the device manager, with a half-width blank between the parts of a
// katakana compound (データ ビット) and the long vowel mark in バッファー. The letter that reaches a control
// by the keyboard stands as (&X) after the text, before a colon or dots: one at most in a text, no letter
// twice in one dialog. %d is a number and %s a port name, put in at run time: keep them. Commas in the lists
// are ASCII. \r is a line end. The file is UTF-8.

#define LANGUAGE_PRIMARY 0x11
#define LANGUAGE_SUB 0x01

// The page of a COM port. The captions stand right-aligned before their lists.
#define PORT_SETTINGS "ポートの設定"
#define PORT_SETTINGS_BAUD_RATE_CAPTION "ビット/秒(&B):"
#define PORT_SETTINGS_BAUD_RATE_CAPTION_RECT INSTEAD(40, 19, 98, 8)
#define PORT_SETTINGS_DATA_BITS_CAPTION "データ ビット(&D):"
#define PORT_SETTINGS_DATA_BITS_CAPTION_RECT INSTEAD(40, 40, 98, 8)
#define PORT_SETTINGS_PARITY_CAPTION "パリティ(&P):"
#define PORT_SETTINGS_PARITY_CAPTION_RECT INSTEAD(40, 61, 98, 8)
#define PORT_SETTINGS_STOP_BITS_CAPTION "ストップ ビット(&S):"
#define PORT_SETTINGS_STOP_BITS_CAPTION_RECT INSTEAD(40, 82, 98, 8)
#define PORT_SETTINGS_FLOW_CONTROL_CAPTION "フロー制御(&F):"
#define PORT_SETTINGS_FLOW_CONTROL_CAPTION_RECT INSTEAD(40, 102, 98, 8)
#define PORT_SETTINGS_ADVANCED "詳細設定(&V)..."
#define PORT_SETTINGS_ADVANCED_RECT INSTEAD(112, 130, 67, 14)
#define PORT_SETTINGS_RESTORE "既定値に戻す(&R)"
#define PORT_SETTINGS_RESTORE_RECT INSTEAD(183, 130, 67, 14)

// The dialog for "詳細設定..." of a COM port. The title shows only where STRING_ADVANCED_SETTINGS_TITLE is
// missing. The number of bytes in %d has up to five digits; those of "低" and "高" up to three.
#define ADVANCED_PORT_SETTINGS "ポートの詳細設定"
#define ADVANCED_PORT_SETTINGS_LARGEFIFO "%d バイトの FIFO バッファーを有効にする(&E)"
#define ADVANCED_PORT_SETTINGS_LARGEFIFO_RECT INSTEAD(23, 23, 240, 10)
#define ADVANCED_PORT_SETTINGS_RECEIVE_CAPTION "受信バッファー(&R):"
#define ADVANCED_PORT_SETTINGS_RECEIVE_CAPTION_RECT INSTEAD(23, 53, 73, 10)
#define ADVANCED_PORT_SETTINGS_RECEIVE_LOW "低 (%d)"
#define ADVANCED_PORT_SETTINGS_RECEIVE_SLIDER_RECT INSTEAD(134, 51, 117, 18)
#define ADVANCED_PORT_SETTINGS_RECEIVE_HIGH "高 (%d)"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_CAPTION "送信バッファー(&T):"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_CAPTION_RECT INSTEAD(23, 79, 73, 10)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_LOW "低 (%d)"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_SLIDER_RECT INSTEAD(134, 76, 117, 20)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_HIGH "高 (%d)"
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_CAPTION "COM ポート番号(&P):"
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_CAPTION_RECT INSTEAD(13, 120, 82, 8)
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_RECT INSTEAD(98, 118, 90, 90)
#define ADVANCED_PORT_SETTINGS_OK "OK"
#define ADVANCED_PORT_SETTINGS_CANCEL "キャンセル"
#define ADVANCED_PORT_SETTINGS_RESTORE "既定値(&D)"

// The page of the board. "低" and "高" are replaced at run time by STRING_LOW and STRING_HIGH.
#define PORT_CONTROL "ポート制御"
#define PORT_CONTROL_LARGEFIFO "大容量 FIFO バッファーを有効にする(&E)"
#define PORT_CONTROL_LARGEFIFO_RECT INSTEAD(16, 93, 165, 12)
#define PORT_CONTROL_ADVANCED "詳細設定(&V)..."
#define PORT_CONTROL_RECEIVE_CAPTION "受信バッファー(&R):"
#define PORT_CONTROL_RECEIVE_CAPTION_RECT INSTEAD(16, 115, 72, 10)
#define PORT_CONTROL_RECEIVE_LOW "低"
#define PORT_CONTROL_RECEIVE_LOW_RECT INSTEAD(89, 115, 26, 10)
#define PORT_CONTROL_RECEIVE_SLIDER_RECT INSTEAD(116, 113, 89, 18)
#define PORT_CONTROL_RECEIVE_HIGH "高"
#define PORT_CONTROL_TRANSMIT_CAPTION "送信バッファー(&T):"
#define PORT_CONTROL_TRANSMIT_CAPTION_RECT INSTEAD(16, 139, 72, 10)
#define PORT_CONTROL_TRANSMIT_LOW "低"
#define PORT_CONTROL_TRANSMIT_LOW_RECT INSTEAD(89, 139, 26, 10)
#define PORT_CONTROL_TRANSMIT_SLIDER_RECT INSTEAD(116, 136, 89, 18)
#define PORT_CONTROL_TRANSMIT_HIGH "高"
#define PORT_CONTROL_APPLY "適用(&Y)"
#define PORT_CONTROL_APPLY_RECT INSTEAD(33, 165, 68, 14)
#define PORT_CONTROL_SET_TO_ALL "すべてに設定(&S)"
#define PORT_CONTROL_SET_TO_ALL_RECT INSTEAD(105, 165, 68, 14)
#define PORT_CONTROL_RESTORE "既定値に戻す(&D)"
#define PORT_CONTROL_RESTORE_RECT INSTEAD(177, 165, 68, 14)
#define PORT_CONTROL_PORT_NUMBER_CAPTION "ポート番号(&P):"
#define PORT_CONTROL_PORT_NUMBER_CAPTION_RECT INSTEAD(16, 218, 62, 8)
#define PORT_CONTROL_PORT_NUMBER_RECT INSTEAD(81, 216, 90, 90)
#define PORT_CONTROL_POLLING_CYCLE_CAPTION "LPT ポーリング周期 (秒):"
#define PORT_CONTROL_POLLING_CYCLE_CAPTION_RECT INSTEAD(16, 195, 96, 8)
#define PORT_CONTROL_POLLING_CYCLE_RECT INSTEAD(115, 193, 72, 90)

// The dialog for "詳細設定..." of the board. ACS is a function of the RS-485 driver; 終端抵抗 is the
// resistor that terminates the line.
#define ADVANCED_PORT_CONTROL "ポート制御の詳細設定"
#define ADVANCED_PORT_CONTROL_UART_GROUP "UART 機能"
#define ADVANCED_PORT_CONTROL_SORT_COM "UART の並べ替え"
#define ADVANCED_PORT_CONTROL_SORT_COM_RECT INSTEAD(24, 60, 74, 14)
#define ADVANCED_PORT_CONTROL_TERMINATION_GROUP "RS-422/485 機能"
#define ADVANCED_PORT_CONTROL_INTERFACE_CAPTION "UART の種類(&T):"
#define ADVANCED_PORT_CONTROL_INTERFACE_CAPTION_RECT INSTEAD(25, 30, 68, 8)
#define ADVANCED_PORT_CONTROL_INTERFACE_SELECT_RECT INSTEAD(96, 28, 90, 54)
#define ADVANCED_PORT_CONTROL_ACS_GROUP "RS-485 機能"
#define ADVANCED_PORT_CONTROL_ACS_ENABLE "RS-485 の ACS 機能を有効にする(&A)"
#define ADVANCED_PORT_CONTROL_ACS_ENABLE_RECT INSTEAD(25, 168, 180, 12)
#define ADVANCED_PORT_CONTROL_OK "OK"
#define ADVANCED_PORT_CONTROL_CANCEL "キャンセル"
#define ADVANCED_PORT_CONTROL_RESTORE "既定値(&D)"
#define ADVANCED_PORT_CONTROL_TERMINATION_ENABLE "終端抵抗を有効にする"

// Message boxes.
#define STRING_OUT_OF_MEMORY \
    "メモリが不足しているため、この操作を実行できません。\r\r1 つ以上の Windows アプリケーションを終了して、使用可能なメモリを増やしてください。"
#define STRING_OUT_OF_MEMORY_CAPTION "通信ポート"
#define STRING_NAME_IN_USE_QUESTION \
    "この COM 名は別のデバイス (別の COM ポートやモデムなど) によって使用されています。重複した名前を使用すると、デバイスにアクセスできなくなったり、設定が変更されたりする可能性があります。続行しますか?"
#define STRING_BOX_CAPTION "通信ポートのプロパティ"
#define STRING_RENAME_FAILED "COM ポートの名前の変更中にエラーが発生しました。"

// Lists: the first character separates the items, and their order carries meaning. Even, odd, none, mark,
// space; one, one and a half and two stop bits (the same text in every language); Xon / Xoff, hardware, none.
#define STRING_PARITY_LIST ",偶数,奇数,なし,マーク,スペース"
#define STRING_STOP_BITS_LIST ",1,1.5,2"
#define STRING_FLOW_CONTROL_LIST ",Xon / Xoff,ハードウェア,なし"

// The suffix begins with a blank and follows a port's name.
#define STRING_ADVANCED_SETTINGS_TITLE "%s の詳細設定"
#define STRING_LOW "低 (%d)"
#define STRING_HIGH "高 (%d)"
#define STRING_IN_USE_SUFFIX " (使用中)"

// The list of a channel's resources.
#define STRING_RESOURCE_TYPE "リソースの種類"
#define STRING_SETTING "設定"
#define STRING_IO_RANGE "I/O の範囲"
#define STRING_IRQ "IRQ"
