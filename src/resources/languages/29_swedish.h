// Swedish (in every country: the sublanguage is neutral).
//
// For translators: 1033_english_united_states.h says what a text's name and its &, %d, %s and \r mean. A
// text that needs more room than the layout gives carries its own rectangle. The three buttons under the
// sliders fill their row.

#define LANGUAGE_PRIMARY 0x1D
#define LANGUAGE_SUB 0x00

// The page of a COM port.
#define PORT_SETTINGS "Portinställningar"
#define PORT_SETTINGS_BAUD_RATE_CAPTION "&Bitar per sekund:"
#define PORT_SETTINGS_BAUD_RATE_CAPTION_RECT INSTEAD(72, 19, 66, 8)
#define PORT_SETTINGS_DATA_BITS_CAPTION "&Databitar:"
#define PORT_SETTINGS_DATA_BITS_CAPTION_RECT INSTEAD(72, 40, 66, 8)
#define PORT_SETTINGS_PARITY_CAPTION "&Paritet:"
#define PORT_SETTINGS_PARITY_CAPTION_RECT INSTEAD(72, 61, 66, 8)
#define PORT_SETTINGS_STOP_BITS_CAPTION "&Stoppbitar:"
#define PORT_SETTINGS_STOP_BITS_CAPTION_RECT INSTEAD(72, 82, 66, 8)
#define PORT_SETTINGS_FLOW_CONTROL_CAPTION "&Flödeskontroll:"
#define PORT_SETTINGS_FLOW_CONTROL_CAPTION_RECT INSTEAD(72, 102, 66, 8)
#define PORT_SETTINGS_ADVANCED "&Avancerat..."
#define PORT_SETTINGS_ADVANCED_RECT INSTEAD(81, 130, 65, 14)
#define PORT_SETTINGS_RESTORE "Åte&rställ standardvärden"
#define PORT_SETTINGS_RESTORE_RECT INSTEAD(150, 130, 100, 14)

// The dialog for "Avancerat..." of a COM port. The number of bytes in %d has up to five digits; those of
// the low and high ends up to three.
#define ADVANCED_PORT_SETTINGS "Avancerade portinställningar"
#define ADVANCED_PORT_SETTINGS_LARGEFIFO "&Aktivera FIFO-buffertar på %d byte"
#define ADVANCED_PORT_SETTINGS_RECEIVE_CAPTION "&Mottagningsbuffert:"
#define ADVANCED_PORT_SETTINGS_RECEIVE_CAPTION_RECT INSTEAD(23, 53, 75, 10)
#define ADVANCED_PORT_SETTINGS_RECEIVE_LOW "Låg (%d)"
#define ADVANCED_PORT_SETTINGS_RECEIVE_LOW_RECT INSTEAD(102, 53, 38, 10)
#define ADVANCED_PORT_SETTINGS_RECEIVE_SLIDER_RECT INSTEAD(141, 51, 107, 18)
#define ADVANCED_PORT_SETTINGS_RECEIVE_HIGH "Hög (%d)"
#define ADVANCED_PORT_SETTINGS_RECEIVE_HIGH_RECT INSTEAD(256, 53, 38, 10)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_CAPTION "Sä&ndningsbuffert:"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_CAPTION_RECT INSTEAD(23, 79, 75, 10)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_LOW "Låg (%d)"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_LOW_RECT INSTEAD(102, 79, 38, 10)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_SLIDER_RECT INSTEAD(141, 76, 107, 20)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_HIGH "Hög (%d)"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_HIGH_RECT INSTEAD(256, 79, 38, 10)
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_CAPTION "COM-&portnummer:"
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_CAPTION_RECT INSTEAD(13, 120, 70, 8)
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_RECT INSTEAD(88, 118, 93, 90)
#define ADVANCED_PORT_SETTINGS_OK "OK"
#define ADVANCED_PORT_SETTINGS_CANCEL "Avbryt"
#define ADVANCED_PORT_SETTINGS_RESTORE "&Standard"

// The page of the board. STRING_LOW and STRING_HIGH replace the low and high ends at run time.
#define PORT_CONTROL "Portstyrning"
#define PORT_CONTROL_LARGEFIFO "Aktivera stora &FIFO-buffertar"
#define PORT_CONTROL_LARGEFIFO_RECT INSTEAD(16, 93, 122, 12)
#define PORT_CONTROL_ADVANCED "&Avancerat..."
#define PORT_CONTROL_RECEIVE_CAPTION "&Mottagningsbuffert:"
#define PORT_CONTROL_RECEIVE_CAPTION_RECT INSTEAD(16, 115, 75, 10)
#define PORT_CONTROL_RECEIVE_LOW "Låg"
#define PORT_CONTROL_RECEIVE_LOW_RECT INSTEAD(95, 115, 28, 10)
#define PORT_CONTROL_RECEIVE_SLIDER_RECT INSTEAD(127, 113, 76, 18)
#define PORT_CONTROL_RECEIVE_HIGH "Hög"
#define PORT_CONTROL_RECEIVE_HIGH_RECT INSTEAD(208, 115, 38, 10)
#define PORT_CONTROL_TRANSMIT_CAPTION "Sä&ndningsbuffert:"
#define PORT_CONTROL_TRANSMIT_CAPTION_RECT INSTEAD(16, 139, 75, 10)
#define PORT_CONTROL_TRANSMIT_LOW "Låg"
#define PORT_CONTROL_TRANSMIT_LOW_RECT INSTEAD(95, 139, 28, 10)
#define PORT_CONTROL_TRANSMIT_SLIDER_RECT INSTEAD(127, 136, 76, 18)
#define PORT_CONTROL_TRANSMIT_HIGH "Hög"
#define PORT_CONTROL_TRANSMIT_HIGH_RECT INSTEAD(208, 139, 38, 10)
#define PORT_CONTROL_APPLY "V&erkställ"
#define PORT_CONTROL_APPLY_RECT INSTEAD(19, 165, 50, 14)
#define PORT_CONTROL_SET_TO_ALL "Ange för a&lla"
#define PORT_CONTROL_SET_TO_ALL_RECT INSTEAD(79, 165, 56, 14)
#define PORT_CONTROL_RESTORE "Åte&rställ standardvärden"
#define PORT_CONTROL_RESTORE_RECT INSTEAD(145, 165, 100, 14)
#define PORT_CONTROL_PORT_NUMBER_CAPTION "&Portnummer:"
#define PORT_CONTROL_PORT_NUMBER_CAPTION_RECT INSTEAD(16, 218, 50, 8)
#define PORT_CONTROL_PORT_NUMBER_RECT INSTEAD(71, 216, 93, 90)
#define PORT_CONTROL_POLLING_CYCLE_CAPTION "LPT-avsökningscykel (sekunder):"
#define PORT_CONTROL_POLLING_CYCLE_CAPTION_RECT INSTEAD(16, 195, 124, 8)
#define PORT_CONTROL_POLLING_CYCLE_RECT INSTEAD(145, 193, 72, 90)

// The dialog for "Avancerat..." of the board. ACS is a function of the RS-485 driver.
#define ADVANCED_PORT_CONTROL "Avancerad portstyrning"
#define ADVANCED_PORT_CONTROL_UART_GROUP "UART-funktioner"
#define ADVANCED_PORT_CONTROL_SORT_COM "Sortera UART:er"
#define ADVANCED_PORT_CONTROL_SORT_COM_RECT INSTEAD(24, 60, 69, 14)
#define ADVANCED_PORT_CONTROL_TERMINATION_GROUP "RS-422/485-funktioner"
#define ADVANCED_PORT_CONTROL_INTERFACE_CAPTION "UART-&typ:"
#define ADVANCED_PORT_CONTROL_ACS_GROUP "RS-485-funktioner"
#define ADVANCED_PORT_CONTROL_ACS_ENABLE "Aktivera &ACS-funktion för RS-485"
#define ADVANCED_PORT_CONTROL_ACS_ENABLE_RECT INSTEAD(25, 168, 139, 12)
#define ADVANCED_PORT_CONTROL_OK "OK"
#define ADVANCED_PORT_CONTROL_CANCEL "Avbryt"
#define ADVANCED_PORT_CONTROL_RESTORE "&Standard"
#define ADVANCED_PORT_CONTROL_TERMINATION_ENABLE "Aktivera terminering"

// Message boxes.
#define STRING_OUT_OF_MEMORY \
    "Det finns inte tillräckligt med minne för åtgärden.\r\rStäng ett eller flera Windows-program för att frigöra mer minne."
#define STRING_OUT_OF_MEMORY_CAPTION "Kommunikationsport"
#define STRING_NAME_IN_USE_QUESTION \
    "Det här COM-namnet används redan av en annan enhet (t.ex. en annan COM-port eller ett modem). Om flera enheter har samma namn kan de bli oåtkomliga och deras inställningar ändras. Vill du fortsätta?"
#define STRING_BOX_CAPTION "Egenskaper för kommunikationsport"
#define STRING_RENAME_FAILED "Ett fel uppstod när namnet på COM-porten skulle ändras."

// Lists: the first character separates the items, and their order carries meaning.
#define STRING_PARITY_LIST ",Jämn,Udda,Ingen,Markering,Blanksteg"
#define STRING_STOP_BITS_LIST ",1,1.5,2"
#define STRING_FLOW_CONTROL_LIST ",Xon / Xoff,Maskinvara,Ingen"

// The suffix begins with a blank and follows a port's name.
#define STRING_ADVANCED_SETTINGS_TITLE "Avancerade inställningar för %s"
#define STRING_LOW "Låg (%d)"
#define STRING_HIGH "Hög (%d)"
#define STRING_IN_USE_SUFFIX " (används)"

// The list of a channel's resources.
#define STRING_RESOURCE_TYPE "Resurstyp"
#define STRING_SETTING "Inställning"
#define STRING_IO_RANGE "I/O-intervall"
#define STRING_IRQ "IRQ"
