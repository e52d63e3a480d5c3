// Danish.
//
// For translators: 1033_english_united_states.h says what a text's name and its &, %d, %s and \r mean.
// The imperative of verbs in -ere bears an accent: "Aktivér", "Sortér"; "Annuller" alone has none, as in
// Windows. A text that needs more room than the layout gives carries its own rectangle. The three buttons
// under the sliders fill their row.

#define LANGUAGE_PRIMARY 0x06
#define LANGUAGE_SUB 0x01

// The page of a COM port.
#define PORT_SETTINGS "Portindstillinger"
#define PORT_SETTINGS_BAUD_RATE_CAPTION "&Bit pr. sekund:"
#define PORT_SETTINGS_BAUD_RATE_CAPTION_RECT INSTEAD(82, 19, 56, 8)
#define PORT_SETTINGS_DATA_BITS_CAPTION "&Databit:"
#define PORT_SETTINGS_DATA_BITS_CAPTION_RECT INSTEAD(82, 40, 56, 8)
#define PORT_SETTINGS_PARITY_CAPTION "&Paritet:"
#define PORT_SETTINGS_PARITY_CAPTION_RECT INSTEAD(82, 61, 56, 8)
#define PORT_SETTINGS_STOP_BITS_CAPTION "&Stopbit:"
#define PORT_SETTINGS_STOP_BITS_CAPTION_RECT INSTEAD(82, 82, 56, 8)
#define PORT_SETTINGS_FLOW_CONTROL_CAPTION "&Flowkontrol:"
#define PORT_SETTINGS_FLOW_CONTROL_CAPTION_RECT INSTEAD(82, 102, 56, 8)
#define PORT_SETTINGS_ADVANCED "A&vanceret..."
#define PORT_SETTINGS_ADVANCED_RECT INSTEAD(81, 130, 65, 14)
#define PORT_SETTINGS_RESTORE "&Gendan standardværdier"
#define PORT_SETTINGS_RESTORE_RECT INSTEAD(150, 130, 100, 14)

// The dialog for "Avanceret..." of a COM port. The number of bytes in %d has up to five digits; those of
// the low and high ends up to three.
#define ADVANCED_PORT_SETTINGS "Avancerede portindstillinger"
#define ADVANCED_PORT_SETTINGS_LARGEFIFO "&Aktivér FIFO-buffere på %d byte"
#define ADVANCED_PORT_SETTINGS_RECEIVE_CAPTION "&Modtagebuffer:"
#define ADVANCED_PORT_SETTINGS_RECEIVE_CAPTION_RECT INSTEAD(23, 53, 59, 10)
#define ADVANCED_PORT_SETTINGS_RECEIVE_LOW "Lav (%d)"
#define ADVANCED_PORT_SETTINGS_RECEIVE_LOW_RECT INSTEAD(98, 53, 37, 10)
#define ADVANCED_PORT_SETTINGS_RECEIVE_SLIDER_RECT INSTEAD(136, 51, 114, 18)
#define ADVANCED_PORT_SETTINGS_RECEIVE_HIGH "Høj (%d)"
#define ADVANCED_PORT_SETTINGS_RECEIVE_HIGH_RECT INSTEAD(258, 53, 36, 10)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_CAPTION "S&endebuffer:"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_CAPTION_RECT INSTEAD(23, 79, 59, 10)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_LOW "Lav (%d)"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_LOW_RECT INSTEAD(98, 79, 37, 10)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_SLIDER_RECT INSTEAD(136, 76, 114, 20)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_HIGH "Høj (%d)"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_HIGH_RECT INSTEAD(258, 79, 36, 10)
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_CAPTION "COM-&portnummer:"
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_CAPTION_RECT INSTEAD(13, 120, 70, 8)
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_RECT INSTEAD(88, 118, 90, 90)
#define ADVANCED_PORT_SETTINGS_OK "OK"
#define ADVANCED_PORT_SETTINGS_CANCEL "Annuller"
#define ADVANCED_PORT_SETTINGS_RESTORE "&Standard"

// The page of the board. STRING_LOW and STRING_HIGH replace the low and high ends at run time.
#define PORT_CONTROL "Portstyring"
#define PORT_CONTROL_LARGEFIFO "Aktivér store &FIFO-buffere"
#define PORT_CONTROL_LARGEFIFO_RECT INSTEAD(16, 93, 112, 12)
#define PORT_CONTROL_ADVANCED "A&vanceret..."
#define PORT_CONTROL_RECEIVE_CAPTION "&Modtagebuffer:"
#define PORT_CONTROL_RECEIVE_CAPTION_RECT INSTEAD(16, 115, 59, 10)
#define PORT_CONTROL_RECEIVE_LOW "Lav"
#define PORT_CONTROL_RECEIVE_LOW_RECT INSTEAD(79, 115, 28, 10)
#define PORT_CONTROL_RECEIVE_SLIDER_RECT INSTEAD(111, 113, 94, 18)
#define PORT_CONTROL_RECEIVE_HIGH "Høj"
#define PORT_CONTROL_RECEIVE_HIGH_RECT INSTEAD(210, 115, 36, 10)
#define PORT_CONTROL_TRANSMIT_CAPTION "S&endebuffer:"
#define PORT_CONTROL_TRANSMIT_CAPTION_RECT INSTEAD(16, 139, 59, 10)
#define PORT_CONTROL_TRANSMIT_LOW "Lav"
#define PORT_CONTROL_TRANSMIT_LOW_RECT INSTEAD(79, 139, 28, 10)
#define PORT_CONTROL_TRANSMIT_SLIDER_RECT INSTEAD(111, 136, 94, 18)
#define PORT_CONTROL_TRANSMIT_HIGH "Høj"
#define PORT_CONTROL_TRANSMIT_HIGH_RECT INSTEAD(210, 139, 36, 10)
#define PORT_CONTROL_APPLY "A&nvend"
#define PORT_CONTROL_APPLY_RECT INSTEAD(17, 165, 50, 14)
#define PORT_CONTROL_SET_TO_ALL "Angiv for a&lle"
#define PORT_CONTROL_SET_TO_ALL_RECT INSTEAD(77, 165, 58, 14)
#define PORT_CONTROL_RESTORE "&Gendan standardværdier"
#define PORT_CONTROL_RESTORE_RECT INSTEAD(145, 165, 100, 14)
#define PORT_CONTROL_PORT_NUMBER_CAPTION "&Portnummer:"
#define PORT_CONTROL_PORT_NUMBER_CAPTION_RECT INSTEAD(16, 218, 50, 8)
#define PORT_CONTROL_PORT_NUMBER_RECT INSTEAD(71, 216, 90, 90)
#define PORT_CONTROL_POLLING_CYCLE_CAPTION "LPT-pollingcyklus (sekunder):"
#define PORT_CONTROL_POLLING_CYCLE_CAPTION_RECT INSTEAD(16, 195, 111, 8)
#define PORT_CONTROL_POLLING_CYCLE_RECT INSTEAD(132, 193, 72, 90)

// The dialog for "Avanceret..." of the board. ACS is a function of the RS-485 driver.
#define ADVANCED_PORT_CONTROL "Avanceret portstyring"
#define ADVANCED_PORT_CONTROL_UART_GROUP "UART-funktioner"
#define ADVANCED_PORT_CONTROL_SORT_COM "Sortér UART'er"
#define ADVANCED_PORT_CONTROL_SORT_COM_RECT INSTEAD(24, 60, 64, 14)
#define ADVANCED_PORT_CONTROL_TERMINATION_GROUP "RS-422/485-funktioner"
#define ADVANCED_PORT_CONTROL_INTERFACE_CAPTION "UART-&type:"
#define ADVANCED_PORT_CONTROL_INTERFACE_CAPTION_RECT INSTEAD(25, 30, 44, 8)
#define ADVANCED_PORT_CONTROL_INTERFACE_SELECT_RECT INSTEAD(74, 28, 90, 54)
#define ADVANCED_PORT_CONTROL_ACS_GROUP "RS-485-funktioner"
#define ADVANCED_PORT_CONTROL_ACS_ENABLE "Aktivér &ACS-funktion for RS-485"
#define ADVANCED_PORT_CONTROL_ACS_ENABLE_RECT INSTEAD(25, 168, 134, 12)
#define ADVANCED_PORT_CONTROL_OK "OK"
#define ADVANCED_PORT_CONTROL_CANCEL "Annuller"
#define ADVANCED_PORT_CONTROL_RESTORE "&Standard"
#define ADVANCED_PORT_CONTROL_TERMINATION_ENABLE "Aktivér terminering"

// Message boxes.
#define STRING_OUT_OF_MEMORY \
    "Der er ikke tilstrækkelig hukommelse til denne handling.\r\rLuk et eller flere Windows-programmer for at frigøre mere hukommelse."
#define STRING_OUT_OF_MEMORY_CAPTION "Kommunikationsport"
#define STRING_NAME_IN_USE_QUESTION \
    "Dette COM-navn bruges allerede af en anden enhed (f.eks. en anden COM-port eller et modem). Hvis flere enheder har samme navn, kan det medføre, at enheder ikke er tilgængelige, og at indstillinger ændres. Vil du fortsætte?"
#define STRING_BOX_CAPTION "Egenskaber for kommunikationsport"
#define STRING_RENAME_FAILED "Der opstod en fejl under omdøbning af COM-porten."

// Lists: the first character separates the items, and their order carries meaning.
#define STRING_PARITY_LIST ",Lige,Ulige,Ingen,Mærke,Mellemrum"
#define STRING_STOP_BITS_LIST ",1,1.5,2"
#define STRING_FLOW_CONTROL_LIST ",Xon / Xoff,Hardware,Ingen"

// The suffix begins with a blank and follows a port's name.
#define STRING_ADVANCED_SETTINGS_TITLE "Avancerede indstillinger for %s"
#define STRING_LOW "Lav (%d)"
#define STRING_HIGH "Høj (%d)"
#define STRING_IN_USE_SUFFIX " (i brug)"

// The list of a channel's resources.
#define STRING_RESOURCE_TYPE "Ressourcetype"
#define STRING_SETTING "Indstilling"
#define STRING_IO_RANGE "I/O-område"
#define STRING_IRQ "IRQ"
