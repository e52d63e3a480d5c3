// Dutch.
//
// For translators: 1033_english_united_states.h says what a text's name and its &, %d, %s and \r mean.
// "Standaard", "Standaardwaarden" and "Standaardwaarden herstellen" say the same, each as long as its button
// has room. A text that needs more room than the layout gives carries its own rectangle. The three buttons
// under the sliders fill their row.

#define LANGUAGE_PRIMARY 0x13
#define LANGUAGE_SUB 0x01

// The page of a COM port.
#define PORT_SETTINGS "Poortinstellingen"
#define PORT_SETTINGS_BAUD_RATE_CAPTION "&Bits per seconde:"
#define PORT_SETTINGS_BAUD_RATE_CAPTION_RECT INSTEAD(48, 19, 90, 8)
#define PORT_SETTINGS_DATA_BITS_CAPTION "&Databits:"
#define PORT_SETTINGS_DATA_BITS_CAPTION_RECT INSTEAD(48, 40, 90, 8)
#define PORT_SETTINGS_PARITY_CAPTION "&Pariteit:"
#define PORT_SETTINGS_PARITY_CAPTION_RECT INSTEAD(48, 61, 90, 8)
#define PORT_SETTINGS_STOP_BITS_CAPTION "&Stopbits:"
#define PORT_SETTINGS_STOP_BITS_CAPTION_RECT INSTEAD(48, 82, 90, 8)
#define PORT_SETTINGS_FLOW_CONTROL_CAPTION "Datat&ransportbesturing:"
#define PORT_SETTINGS_FLOW_CONTROL_CAPTION_RECT INSTEAD(48, 102, 90, 8)
#define PORT_SETTINGS_ADVANCED "&Geavanceerd..."
#define PORT_SETTINGS_ADVANCED_RECT INSTEAD(62, 130, 66, 14)
#define PORT_SETTINGS_RESTORE "Standaardwaarden &herstellen"
#define PORT_SETTINGS_RESTORE_RECT INSTEAD(132, 130, 118, 14)

// The dialog for "Geavanceerd..." of a COM port. The number of bytes in %d has up to five digits; those of
// the low and high ends up to three.
#define ADVANCED_PORT_SETTINGS "Geavanceerde poortinstellingen"
#define ADVANCED_PORT_SETTINGS_LARGEFIFO "&FIFO-buffers van %d bytes inschakelen"
#define ADVANCED_PORT_SETTINGS_RECEIVE_CAPTION "&Ontvangstbuffer:"
#define ADVANCED_PORT_SETTINGS_RECEIVE_CAPTION_RECT INSTEAD(23, 53, 64, 10)
#define ADVANCED_PORT_SETTINGS_RECEIVE_LOW "Laag (%d)"
#define ADVANCED_PORT_SETTINGS_RECEIVE_LOW_RECT INSTEAD(98, 53, 42, 10)
#define ADVANCED_PORT_SETTINGS_RECEIVE_SLIDER_RECT INSTEAD(141, 51, 102, 18)
#define ADVANCED_PORT_SETTINGS_RECEIVE_HIGH "Hoog (%d)"
#define ADVANCED_PORT_SETTINGS_RECEIVE_HIGH_RECT INSTEAD(251, 53, 43, 10)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_CAPTION "&Verzendbuffer:"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_CAPTION_RECT INSTEAD(23, 79, 64, 10)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_LOW "Laag (%d)"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_LOW_RECT INSTEAD(98, 79, 42, 10)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_SLIDER_RECT INSTEAD(141, 76, 102, 20)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_HIGH "Hoog (%d)"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_HIGH_RECT INSTEAD(251, 79, 43, 10)
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_CAPTION "COM-&poortnummer:"
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_CAPTION_RECT INSTEAD(13, 120, 74, 8)
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_RECT INSTEAD(92, 118, 98, 90)
#define ADVANCED_PORT_SETTINGS_OK "OK"
#define ADVANCED_PORT_SETTINGS_CANCEL "Annuleren"
#define ADVANCED_PORT_SETTINGS_RESTORE "&Standaard"

// The page of the board. STRING_LOW and STRING_HIGH replace the low and high ends at run time.
#define PORT_CONTROL "Poortbesturing"
#define PORT_CONTROL_LARGEFIFO "Grote &FIFO-buffers inschakelen"
#define PORT_CONTROL_LARGEFIFO_RECT INSTEAD(16, 93, 132, 12)
#define PORT_CONTROL_ADVANCED "&Geavanceerd..."
#define PORT_CONTROL_ADVANCED_RECT INSTEAD(179, 90, 66, 14)
#define PORT_CONTROL_RECEIVE_CAPTION "&Ontvangstbuffer:"
#define PORT_CONTROL_RECEIVE_CAPTION_RECT INSTEAD(16, 115, 64, 10)
#define PORT_CONTROL_RECEIVE_LOW "Laag"
#define PORT_CONTROL_RECEIVE_LOW_RECT INSTEAD(84, 115, 33, 10)
#define PORT_CONTROL_RECEIVE_SLIDER_RECT INSTEAD(121, 113, 77, 18)
#define PORT_CONTROL_RECEIVE_HIGH "Hoog"
#define PORT_CONTROL_RECEIVE_HIGH_RECT INSTEAD(203, 115, 43, 10)
#define PORT_CONTROL_TRANSMIT_CAPTION "&Verzendbuffer:"
#define PORT_CONTROL_TRANSMIT_CAPTION_RECT INSTEAD(16, 139, 64, 10)
#define PORT_CONTROL_TRANSMIT_LOW "Laag"
#define PORT_CONTROL_TRANSMIT_LOW_RECT INSTEAD(84, 139, 33, 10)
#define PORT_CONTROL_TRANSMIT_SLIDER_RECT INSTEAD(121, 136, 77, 18)
#define PORT_CONTROL_TRANSMIT_HIGH "Hoog"
#define PORT_CONTROL_TRANSMIT_HIGH_RECT INSTEAD(203, 139, 43, 10)
#define PORT_CONTROL_APPLY "To&epassen"
#define PORT_CONTROL_APPLY_RECT INSTEAD(17, 165, 60, 14)
#define PORT_CONTROL_SET_TO_ALL "Voor &alle instellen"
#define PORT_CONTROL_SET_TO_ALL_RECT INSTEAD(84, 165, 76, 14)
#define PORT_CONTROL_RESTORE "&Standaardwaarden"
#define PORT_CONTROL_RESTORE_RECT INSTEAD(167, 165, 78, 14)
#define PORT_CONTROL_PORT_NUMBER_CAPTION "&Poortnummer:"
#define PORT_CONTROL_PORT_NUMBER_CAPTION_RECT INSTEAD(16, 218, 54, 8)
#define PORT_CONTROL_PORT_NUMBER_RECT INSTEAD(75, 216, 98, 90)
#define PORT_CONTROL_POLLING_CYCLE_CAPTION "LPT-pollingcyclus (seconden):"
#define PORT_CONTROL_POLLING_CYCLE_CAPTION_RECT INSTEAD(16, 195, 113, 8)
#define PORT_CONTROL_POLLING_CYCLE_RECT INSTEAD(134, 193, 72, 90)

// The dialog for "Geavanceerd..." of the board. ACS is a function of the RS-485 driver.
#define ADVANCED_PORT_CONTROL "Geavanceerde poortbesturing"
#define ADVANCED_PORT_CONTROL_UART_GROUP "UART-functies"
#define ADVANCED_PORT_CONTROL_SORT_COM "UART's sorteren"
#define ADVANCED_PORT_CONTROL_SORT_COM_RECT INSTEAD(24, 60, 68, 14)
#define ADVANCED_PORT_CONTROL_TERMINATION_GROUP "RS-422/485-functies"
#define ADVANCED_PORT_CONTROL_INTERFACE_CAPTION "UART-&type:"
#define ADVANCED_PORT_CONTROL_INTERFACE_CAPTION_RECT INSTEAD(25, 30, 44, 8)
#define ADVANCED_PORT_CONTROL_INTERFACE_SELECT_RECT INSTEAD(74, 28, 90, 54)
#define ADVANCED_PORT_CONTROL_ACS_GROUP "RS-485-functies"
#define ADVANCED_PORT_CONTROL_ACS_ENABLE "&ACS-functie voor RS-485 inschakelen"
#define ADVANCED_PORT_CONTROL_ACS_ENABLE_RECT INSTEAD(25, 168, 154, 12)
#define ADVANCED_PORT_CONTROL_OK "OK"
#define ADVANCED_PORT_CONTROL_CANCEL "Annuleren"
#define ADVANCED_PORT_CONTROL_RESTORE "&Standaard"
#define ADVANCED_PORT_CONTROL_TERMINATION_ENABLE "Afsluitweerstand inschakelen"
#define ADVANCED_PORT_CONTROL_TERMINATION_ENABLE_RECT INSTEAD(25, 116, 123, 12)

// Message boxes.
#define STRING_OUT_OF_MEMORY \
    "Onvoldoende geheugen voor deze bewerking.\r\rSluit een of meer Windows-toepassingen om meer geheugen beschikbaar te maken."
#define STRING_OUT_OF_MEMORY_CAPTION "Communicatiepoort"
#define STRING_NAME_IN_USE_QUESTION \
    "Deze COM-naam wordt al gebruikt door een ander apparaat (bijvoorbeeld een andere COM-poort of een modem). Het gebruik van dubbele namen kan leiden tot ontoegankelijke apparaten en gewijzigde instellingen. Wilt u doorgaan?"
#define STRING_BOX_CAPTION "Eigenschappen van communicatiepoort"
#define STRING_RENAME_FAILED "Er is een fout opgetreden bij het wijzigen van de naam van de COM-poort."

// Lists: the first character separates the items, and their order carries meaning.
#define STRING_PARITY_LIST ",Even,Oneven,Geen,Markering,Spatie"
#define STRING_STOP_BITS_LIST ",1,1.5,2"
#define STRING_FLOW_CONTROL_LIST ",Xon / Xoff,Hardware,Geen"

// The suffix begins with a blank and follows a port's name.
#define STRING_ADVANCED_SETTINGS_TITLE "Geavanceerde instellingen voor %s"
#define STRING_LOW "Laag (%d)"
#define STRING_HIGH "Hoog (%d)"
#define STRING_IN_USE_SUFFIX " (in gebruik)"

// The list of a channel's resources.
#define STRING_RESOURCE_TYPE "Brontype"
#define STRING_SETTING "Instelling"
#define STRING_IO_RANGE "I/O-bereik"
#define STRING_IRQ "IRQ"
