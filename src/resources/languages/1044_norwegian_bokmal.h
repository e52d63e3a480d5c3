// Norwegian (Bokmål).
//
// For translators: 1033_english_united_states.h says what a text's name and its &, %d, %s and \r mean.
// "I/U" stands for inndata/utdata, as in Windows. A text that needs more room than the layout gives carries
// its own rectangle. The three buttons under the sliders fill their row.

#define LANGUAGE_PRIMARY 0x14
#define LANGUAGE_SUB 0x01

// The page of a COM port.
#define PORT_SETTINGS "Portinnstillinger"
#define PORT_SETTINGS_BAUD_RATE_CAPTION "B&iter per sekund:"
#define PORT_SETTINGS_BAUD_RATE_CAPTION_RECT INSTEAD(72, 19, 66, 8)
#define PORT_SETTINGS_DATA_BITS_CAPTION "&Databiter:"
#define PORT_SETTINGS_DATA_BITS_CAPTION_RECT INSTEAD(72, 40, 66, 8)
#define PORT_SETTINGS_PARITY_CAPTION "&Paritet:"
#define PORT_SETTINGS_PARITY_CAPTION_RECT INSTEAD(72, 61, 66, 8)
#define PORT_SETTINGS_STOP_BITS_CAPTION "&Stoppbiter:"
#define PORT_SETTINGS_STOP_BITS_CAPTION_RECT INSTEAD(72, 82, 66, 8)
#define PORT_SETTINGS_FLOW_CONTROL_CAPTION "&Flytkontroll:"
#define PORT_SETTINGS_FLOW_CONTROL_CAPTION_RECT INSTEAD(72, 102, 66, 8)
#define PORT_SETTINGS_ADVANCED "&Avansert..."
#define PORT_SETTINGS_ADVANCED_RECT INSTEAD(68, 130, 65, 14)
#define PORT_SETTINGS_RESTORE "&Gjenopprett standardverdier"
#define PORT_SETTINGS_RESTORE_RECT INSTEAD(137, 130, 113, 14)

// The dialog for "Avansert..." of a COM port. The number of bytes in %d has up to five digits; those of
// the low and high ends up to three.
#define ADVANCED_PORT_SETTINGS "Avanserte portinnstillinger"
#define ADVANCED_PORT_SETTINGS_LARGEFIFO "&Aktiver FIFO-buffere på %d byte"
#define ADVANCED_PORT_SETTINGS_RECEIVE_CAPTION "&Mottaksbuffer:"
#define ADVANCED_PORT_SETTINGS_RECEIVE_CAPTION_RECT INSTEAD(23, 53, 56, 10)
#define ADVANCED_PORT_SETTINGS_RECEIVE_LOW "Lav (%d)"
#define ADVANCED_PORT_SETTINGS_RECEIVE_LOW_RECT INSTEAD(98, 53, 37, 10)
#define ADVANCED_PORT_SETTINGS_RECEIVE_SLIDER_RECT INSTEAD(136, 51, 112, 18)
#define ADVANCED_PORT_SETTINGS_RECEIVE_HIGH "Høy (%d)"
#define ADVANCED_PORT_SETTINGS_RECEIVE_HIGH_RECT INSTEAD(256, 53, 38, 10)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_CAPTION "S&endebuffer:"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_CAPTION_RECT INSTEAD(23, 79, 56, 10)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_LOW "Lav (%d)"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_LOW_RECT INSTEAD(98, 79, 37, 10)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_SLIDER_RECT INSTEAD(136, 76, 112, 20)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_HIGH "Høy (%d)"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_HIGH_RECT INSTEAD(256, 79, 38, 10)
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_CAPTION "COM-&portnummer:"
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_CAPTION_RECT INSTEAD(13, 120, 70, 8)
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_RECT INSTEAD(88, 118, 90, 90)
#define ADVANCED_PORT_SETTINGS_OK "OK"
#define ADVANCED_PORT_SETTINGS_CANCEL "Avbryt"
#define ADVANCED_PORT_SETTINGS_RESTORE "&Standard"

// The page of the board. STRING_LOW and STRING_HIGH replace the low and high ends at run time.
#define PORT_CONTROL "Portstyring"
#define PORT_CONTROL_LARGEFIFO "Aktiver store &FIFO-buffere"
#define PORT_CONTROL_LARGEFIFO_RECT INSTEAD(16, 93, 112, 12)
#define PORT_CONTROL_ADVANCED "&Avansert..."
#define PORT_CONTROL_RECEIVE_CAPTION "&Mottaksbuffer:"
#define PORT_CONTROL_RECEIVE_CAPTION_RECT INSTEAD(16, 115, 56, 10)
#define PORT_CONTROL_RECEIVE_LOW "Lav"
#define PORT_CONTROL_RECEIVE_LOW_RECT INSTEAD(76, 115, 28, 10)
#define PORT_CONTROL_RECEIVE_SLIDER_RECT INSTEAD(108, 113, 95, 18)
#define PORT_CONTROL_RECEIVE_HIGH "Høy"
#define PORT_CONTROL_RECEIVE_HIGH_RECT INSTEAD(208, 115, 38, 10)
#define PORT_CONTROL_TRANSMIT_CAPTION "S&endebuffer:"
#define PORT_CONTROL_TRANSMIT_CAPTION_RECT INSTEAD(16, 139, 56, 10)
#define PORT_CONTROL_TRANSMIT_LOW "Lav"
#define PORT_CONTROL_TRANSMIT_LOW_RECT INSTEAD(76, 139, 28, 10)
#define PORT_CONTROL_TRANSMIT_SLIDER_RECT INSTEAD(108, 136, 95, 18)
#define PORT_CONTROL_TRANSMIT_HIGH "Høy"
#define PORT_CONTROL_TRANSMIT_HIGH_RECT INSTEAD(208, 139, 38, 10)
#define PORT_CONTROL_APPLY "B&ruk"
#define PORT_CONTROL_APPLY_RECT INSTEAD(14, 165, 50, 14)
#define PORT_CONTROL_SET_TO_ALL "Angi for a&lle"
#define PORT_CONTROL_SET_TO_ALL_RECT INSTEAD(71, 165, 54, 14)
#define PORT_CONTROL_RESTORE "&Gjenopprett standardverdier"
#define PORT_CONTROL_RESTORE_RECT INSTEAD(132, 165, 113, 14)
#define PORT_CONTROL_PORT_NUMBER_CAPTION "&Portnummer:"
#define PORT_CONTROL_PORT_NUMBER_CAPTION_RECT INSTEAD(16, 218, 50, 8)
#define PORT_CONTROL_PORT_NUMBER_RECT INSTEAD(71, 216, 90, 90)
#define PORT_CONTROL_POLLING_CYCLE_CAPTION "LPT-pollingsyklus (sekunder):"
#define PORT_CONTROL_POLLING_CYCLE_CAPTION_RECT INSTEAD(16, 195, 111, 8)
#define PORT_CONTROL_POLLING_CYCLE_RECT INSTEAD(132, 193, 72, 90)

// The dialog for "Avansert..." of the board. ACS is a function of the RS-485 driver.
#define ADVANCED_PORT_CONTROL "Avansert portstyring"
#define ADVANCED_PORT_CONTROL_UART_GROUP "UART-funksjoner"
#define ADVANCED_PORT_CONTROL_SORT_COM "Sorter UART-er"
#define ADVANCED_PORT_CONTROL_SORT_COM_RECT INSTEAD(24, 60, 64, 14)
#define ADVANCED_PORT_CONTROL_TERMINATION_GROUP "RS-422/485-funksjoner"
#define ADVANCED_PORT_CONTROL_INTERFACE_CAPTION "UART-&type:"
#define ADVANCED_PORT_CONTROL_INTERFACE_CAPTION_RECT INSTEAD(25, 30, 44, 8)
#define ADVANCED_PORT_CONTROL_INTERFACE_SELECT_RECT INSTEAD(74, 28, 90, 54)
#define ADVANCED_PORT_CONTROL_ACS_GROUP "RS-485-funksjoner"
#define ADVANCED_PORT_CONTROL_ACS_ENABLE "Aktiver &ACS-funksjon for RS-485"
#define ADVANCED_PORT_CONTROL_ACS_ENABLE_RECT INSTEAD(25, 168, 136, 12)
#define ADVANCED_PORT_CONTROL_OK "OK"
#define ADVANCED_PORT_CONTROL_CANCEL "Avbryt"
#define ADVANCED_PORT_CONTROL_RESTORE "&Standard"
#define ADVANCED_PORT_CONTROL_TERMINATION_ENABLE "Aktiver terminering"

// Message boxes.
#define STRING_OUT_OF_MEMORY \
    "Det er ikke nok minne til denne operasjonen.\r\rLukk ett eller flere Windows-programmer for å frigjøre mer minne."
#define STRING_OUT_OF_MEMORY_CAPTION "Kommunikasjonsport"
#define STRING_NAME_IN_USE_QUESTION \
    "Dette COM-navnet brukes allerede av en annen enhet (for eksempel en annen COM-port eller et modem). Bruk av like navn kan føre til at enheter blir utilgjengelige, og at innstillinger endres. Vil du fortsette?"
#define STRING_BOX_CAPTION "Egenskaper for kommunikasjonsport"
#define STRING_RENAME_FAILED "Det oppstod en feil da COM-porten skulle få nytt navn."

// Lists: the first character separates the items, and their order carries meaning.
#define STRING_PARITY_LIST ",Partall,Oddetall,Ingen,Merke,Mellomrom"
#define STRING_STOP_BITS_LIST ",1,1.5,2"
#define STRING_FLOW_CONTROL_LIST ",Xon / Xoff,Maskinvare,Ingen"

// The suffix begins with a blank and follows a port's name.
#define STRING_ADVANCED_SETTINGS_TITLE "Avanserte innstillinger for %s"
#define STRING_LOW "Lav (%d)"
#define STRING_HIGH "Høy (%d)"
#define STRING_IN_USE_SUFFIX " (i bruk)"

// The list of a channel's resources.
#define STRING_RESOURCE_TYPE "Ressurstype"
#define STRING_SETTING "Innstilling"
#define STRING_IO_RANGE "I/U-område"
#define STRING_IRQ "IRQ"
