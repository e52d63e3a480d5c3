// English (United States), the reference of every other language.
//
// For translators: a text's name says where it stands. An & stands before the letter that reaches the control by
// the keyboard: one at most in a text, no letter twice in one dialog. %d is a number and %s a port name, put in
// at run time: keep them. \r is a line end. The file is UTF-8.

#define LANGUAGE_PRIMARY 0x09
#define LANGUAGE_SUB 0x01

// The page of a COM port. The captions stand right-aligned before their lists, 54 dialog units wide: about 15
// letters.
#define PORT_SETTINGS "Port Settings"
#define PORT_SETTINGS_BAUD_RATE_CAPTION "&Bits per second:"
#define PORT_SETTINGS_DATA_BITS_CAPTION "&Data bits:"
#define PORT_SETTINGS_PARITY_CAPTION "&Parity:"
#define PORT_SETTINGS_STOP_BITS_CAPTION "&Stop bits:"
#define PORT_SETTINGS_FLOW_CONTROL_CAPTION "&Flow control:"
#define PORT_SETTINGS_ADVANCED "&Advanced..."
#define PORT_SETTINGS_RESTORE "&Restore Defaults"

// The dialog for "Advanced..." of a COM port. The title shows only where STRING_ADVANCED_SETTINGS_TITLE is
// missing. The number of bytes in %d has up to five digits; those of "Low" and "High" up to three.
#define ADVANCED_PORT_SETTINGS "Advenced Port Settings"
#define ADVANCED_PORT_SETTINGS_LARGEFIFO "&Enable %d Byte FIFO buffers"
#define ADVANCED_PORT_SETTINGS_RECEIVE_CAPTION "&Receive Buffer:"
#define ADVANCED_PORT_SETTINGS_RECEIVE_LOW "Low (%d)"
#define ADVANCED_PORT_SETTINGS_RECEIVE_HIGH "High (%d)"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_CAPTION "&Transmit Buffer:"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_LOW "Low (%d)"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_HIGH "High (%d)"
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_CAPTION "COM &Port Number:"
#define ADVANCED_PORT_SETTINGS_OK "OK"
#define ADVANCED_PORT_SETTINGS_CANCEL "Cancel"
#define ADVANCED_PORT_SETTINGS_RESTORE "&Defaults"

// The page of the board. STRING_LOW and STRING_HIGH replace "Low" and "High" at run time.
#define PORT_CONTROL "Port Control"
#define PORT_CONTROL_LARGEFIFO "&Enable large FIFO buffers"
#define PORT_CONTROL_ADVANCED "Ad&vanced..."
#define PORT_CONTROL_RECEIVE_CAPTION "&Receive Buffer:"
#define PORT_CONTROL_RECEIVE_LOW "Low"
#define PORT_CONTROL_RECEIVE_HIGH "High"
#define PORT_CONTROL_TRANSMIT_CAPTION "&Transmit Buffer:"
#define PORT_CONTROL_TRANSMIT_LOW "Low"
#define PORT_CONTROL_TRANSMIT_HIGH "High"
#define PORT_CONTROL_APPLY "&Apply"
#define PORT_CONTROL_SET_TO_ALL "&Set to All"
#define PORT_CONTROL_RESTORE "Restore &Defaults"
#define PORT_CONTROL_PORT_NUMBER_CAPTION "&Port Number:"
#define PORT_CONTROL_POLLING_CYCLE_CAPTION "LPT polling cycle (second):"

// The dialog for "Advanced..." of the board. ACS is a function of the RS-485 driver.
#define ADVANCED_PORT_CONTROL "Advanced Port Control"
#define ADVANCED_PORT_CONTROL_UART_GROUP "UART Feature"
#define ADVANCED_PORT_CONTROL_SORT_COM "Sort UART"
#define ADVANCED_PORT_CONTROL_TERMINATION_GROUP "RS-422/485 Feature"
#define ADVANCED_PORT_CONTROL_INTERFACE_CAPTION "UART &Type:"
#define ADVANCED_PORT_CONTROL_ACS_GROUP "RS-485 Feature"
#define ADVANCED_PORT_CONTROL_ACS_ENABLE "RS-485 &ACS Function Enable"
#define ADVANCED_PORT_CONTROL_OK "OK"
#define ADVANCED_PORT_CONTROL_CANCEL "Cancel"
#define ADVANCED_PORT_CONTROL_RESTORE "&Defaults"
#define ADVANCED_PORT_CONTROL_TERMINATION_ENABLE "Termination Enable"

// Message boxes.
#define STRING_OUT_OF_MEMORY \
    "Insufficient memory for this operation;\r\rclose one or more Windows applications to increase available memory."
#define STRING_OUT_OF_MEMORY_CAPTION "Communications Port"
#define STRING_NAME_IN_USE_QUESTION \
    "This COM name is being used by another device (such as another com port or modem).  Using duplicate names can lead to inaccessible devices and changed settings.  Do you want to continue?"
#define STRING_BOX_CAPTION "Communications Port Properties"
#define STRING_RENAME_FAILED "There was an error renaming the COM port."

// Lists: the first character separates the items, and their order carries meaning. Even, odd, none, mark, space;
// one, one and a half and two stop bits (the same text in every language); Xon / Xoff, hardware, none.
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
