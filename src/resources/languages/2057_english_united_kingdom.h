// English (United Kingdom).
//
// For translators: 1033_english_united_states.h says what a text's name and its &, %d, %s and \r mean. A
// text that needs more room than the layout gives carries its own rectangle.

#define LANGUAGE_PRIMARY 0x09
#define LANGUAGE_SUB 0x02

// The page of a COM port.
#define PORT_SETTINGS "Port Settings"
#define PORT_SETTINGS_BAUD_RATE_CAPTION "&Bits per second:"
#define PORT_SETTINGS_DATA_BITS_CAPTION "&Data bits:"
#define PORT_SETTINGS_PARITY_CAPTION "&Parity:"
#define PORT_SETTINGS_STOP_BITS_CAPTION "&Stop bits:"
#define PORT_SETTINGS_FLOW_CONTROL_CAPTION "&Flow control:"
#define PORT_SETTINGS_ADVANCED "Ad&vanced..."
#define PORT_SETTINGS_RESTORE "&Restore Defaults"

// The dialog for "Advanced..." of a COM port. The title shows only where STRING_ADVANCED_SETTINGS_TITLE is
// missing. The number of bytes in %d has up to five digits; those of "Low" and "High" up to three.
#define ADVANCED_PORT_SETTINGS "Advanced Port Settings"
#define ADVANCED_PORT_SETTINGS_LARGEFIFO "&Enable %d-byte FIFO buffers"
#define ADVANCED_PORT_SETTINGS_RECEIVE_CAPTION "&Receive Buffer:"
#define ADVANCED_PORT_SETTINGS_RECEIVE_CAPTION_RECT INSTEAD(23, 53, 53, 10)
#define ADVANCED_PORT_SETTINGS_RECEIVE_LOW "Low (%d)"
#define ADVANCED_PORT_SETTINGS_RECEIVE_SLIDER_RECT INSTEAD(134, 51, 117, 18)
#define ADVANCED_PORT_SETTINGS_RECEIVE_HIGH "High (%d)"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_CAPTION "&Transmit Buffer:"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_LOW "Low (%d)"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_SLIDER_RECT INSTEAD(134, 76, 117, 20)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_HIGH "High (%d)"
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_CAPTION "COM &Port Number:"
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_CAPTION_RECT INSTEAD(13, 120, 66, 8)
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_RECT INSTEAD(82, 118, 90, 90)
#define ADVANCED_PORT_SETTINGS_OK "OK"
#define ADVANCED_PORT_SETTINGS_CANCEL "Cancel"
#define ADVANCED_PORT_SETTINGS_RESTORE "&Defaults"

// The page of the board. STRING_LOW and STRING_HIGH replace "Low" and "High" at run time.
#define PORT_CONTROL "Port Control"
#define PORT_CONTROL_LARGEFIFO "&Enable large FIFO buffers"
#define PORT_CONTROL_ADVANCED "Ad&vanced..."
#define PORT_CONTROL_RECEIVE_CAPTION "&Receive Buffer:"
#define PORT_CONTROL_RECEIVE_LOW "Low"
#define PORT_CONTROL_RECEIVE_SLIDER_RECT INSTEAD(105, 113, 97, 18)
#define PORT_CONTROL_RECEIVE_HIGH "High"
#define PORT_CONTROL_RECEIVE_HIGH_RECT INSTEAD(207, 115, 38, 10)
#define PORT_CONTROL_TRANSMIT_CAPTION "&Transmit Buffer:"
#define PORT_CONTROL_TRANSMIT_LOW "Low"
#define PORT_CONTROL_TRANSMIT_SLIDER_RECT INSTEAD(105, 136, 97, 18)
#define PORT_CONTROL_TRANSMIT_HIGH "High"
#define PORT_CONTROL_TRANSMIT_HIGH_RECT INSTEAD(207, 139, 38, 10)
#define PORT_CONTROL_APPLY "Appl&y"
#define PORT_CONTROL_APPLY_RECT INSTEAD(41, 165, 60, 14)
#define PORT_CONTROL_SET_TO_ALL "&Set to All"
#define PORT_CONTROL_SET_TO_ALL_RECT INSTEAD(111, 165, 60, 14)
#define PORT_CONTROL_RESTORE "Restore &Defaults"
#define PORT_CONTROL_RESTORE_RECT INSTEAD(181, 165, 64, 14)
#define PORT_CONTROL_PORT_NUMBER_CAPTION "&Port Number:"
#define PORT_CONTROL_POLLING_CYCLE_CAPTION "LPT polling cycle (seconds):"
#define PORT_CONTROL_POLLING_CYCLE_CAPTION_RECT INSTEAD(16, 195, 96, 8)
#define PORT_CONTROL_POLLING_CYCLE_RECT INSTEAD(115, 193, 72, 90)

// The dialog for "Advanced..." of the board. ACS is a function of the RS-485 driver.
#define ADVANCED_PORT_CONTROL "Advanced Port Control"
#define ADVANCED_PORT_CONTROL_UART_GROUP "UART Features"
#define ADVANCED_PORT_CONTROL_SORT_COM "Sort UART"
#define ADVANCED_PORT_CONTROL_TERMINATION_GROUP "RS-422/485 Features"
#define ADVANCED_PORT_CONTROL_INTERFACE_CAPTION "UART &Type:"
#define ADVANCED_PORT_CONTROL_INTERFACE_CAPTION_RECT INSTEAD(25, 30, 45, 8)
#define ADVANCED_PORT_CONTROL_INTERFACE_SELECT_RECT INSTEAD(73, 28, 90, 54)
#define ADVANCED_PORT_CONTROL_ACS_GROUP "RS-485 Features"
#define ADVANCED_PORT_CONTROL_ACS_ENABLE "Enable RS-485 &ACS function"
#define ADVANCED_PORT_CONTROL_OK "OK"
#define ADVANCED_PORT_CONTROL_CANCEL "Cancel"
#define ADVANCED_PORT_CONTROL_RESTORE "&Defaults"
#define ADVANCED_PORT_CONTROL_TERMINATION_ENABLE "Enable termination"

// Message boxes.
#define STRING_OUT_OF_MEMORY \
    "Insufficient memory for this operation;\r\rclose one or more Windows applications to increase available memory."
#define STRING_OUT_OF_MEMORY_CAPTION "Communications Port"
#define STRING_NAME_IN_USE_QUESTION \
    "This COM name is being used by another device (such as another COM port or modem). Using duplicate names can lead to inaccessible devices and changed settings. Do you want to continue?"
#define STRING_BOX_CAPTION "Communications Port Properties"
#define STRING_RENAME_FAILED "There was an error renaming the COM port."

// Lists: the first character separates the items, and their order carries meaning.
#define STRING_PARITY_LIST ",Even,Odd,None,Mark,Space"
#define STRING_STOP_BITS_LIST ",1,1.5,2"
#define STRING_FLOW_CONTROL_LIST ",Xon / Xoff,Hardware,None"

// The suffix begins with a blank and follows a port's name.
#define STRING_ADVANCED_SETTINGS_TITLE "Advanced Settings for %s"
#define STRING_LOW "Low (%d)"
#define STRING_HIGH "High (%d)"
#define STRING_IN_USE_SUFFIX " (in use)"

// The list of a channel's resources.
#define STRING_RESOURCE_TYPE "Resource Type"
#define STRING_SETTING "Setting"
#define STRING_IO_RANGE "I/O Range"
#define STRING_IRQ "IRQ"
