// German.
//
// For translators: 1033_english_united_states.h says what a text's name and its &, %d, %s and \r mean.
// "Standard", "Standardwerte" and "Standardwerte wiederherstellen" say the same, each as long as its button
// has room. A text that needs more room than the layout gives carries its own rectangle.

#define LANGUAGE_PRIMARY 0x07
#define LANGUAGE_SUB 0x01

// The page of a COM port.
#define PORT_SETTINGS "Anschlusseinstellungen"
#define PORT_SETTINGS_BAUD_RATE_CAPTION "B&its pro Sekunde:"
#define PORT_SETTINGS_BAUD_RATE_CAPTION_RECT INSTEAD(70, 19, 68, 8)
#define PORT_SETTINGS_DATA_BITS_CAPTION "&Datenbits:"
#define PORT_SETTINGS_DATA_BITS_CAPTION_RECT INSTEAD(70, 40, 68, 8)
#define PORT_SETTINGS_PARITY_CAPTION "&Parität:"
#define PORT_SETTINGS_PARITY_CAPTION_RECT INSTEAD(70, 61, 68, 8)
#define PORT_SETTINGS_STOP_BITS_CAPTION "&Stoppbits:"
#define PORT_SETTINGS_STOP_BITS_CAPTION_RECT INSTEAD(70, 82, 68, 8)
#define PORT_SETTINGS_FLOW_CONTROL_CAPTION "&Flusssteuerung:"
#define PORT_SETTINGS_FLOW_CONTROL_CAPTION_RECT INSTEAD(70, 102, 68, 8)
#define PORT_SETTINGS_ADVANCED "&Erweitert..."
#define PORT_SETTINGS_ADVANCED_RECT INSTEAD(55, 130, 65, 14)
#define PORT_SETTINGS_RESTORE "Standardwerte &wiederherstellen"
#define PORT_SETTINGS_RESTORE_RECT INSTEAD(124, 130, 126, 14)

// The dialog for "Erweitert..." of a COM port. The number of bytes in %d has up to five digits; those of
// the low and high ends up to three.
#define ADVANCED_PORT_SETTINGS "Erweiterte Anschlusseinstellungen"
#define ADVANCED_PORT_SETTINGS_LARGEFIFO "&FIFO-Puffer mit %d Byte aktivieren"
#define ADVANCED_PORT_SETTINGS_RECEIVE_CAPTION "&Empfangspuffer:"
#define ADVANCED_PORT_SETTINGS_RECEIVE_CAPTION_RECT INSTEAD(23, 53, 76, 10)
#define ADVANCED_PORT_SETTINGS_RECEIVE_LOW "Niedrig (%d)"
#define ADVANCED_PORT_SETTINGS_RECEIVE_LOW_RECT INSTEAD(103, 53, 50, 10)
#define ADVANCED_PORT_SETTINGS_RECEIVE_SLIDER_RECT INSTEAD(154, 51, 90, 18)
#define ADVANCED_PORT_SETTINGS_RECEIVE_HIGH "Hoch (%d)"
#define ADVANCED_PORT_SETTINGS_RECEIVE_HIGH_RECT INSTEAD(252, 53, 42, 10)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_CAPTION "Über&tragungspuffer:"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_CAPTION_RECT INSTEAD(23, 79, 76, 10)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_LOW "Niedrig (%d)"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_LOW_RECT INSTEAD(103, 79, 50, 10)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_SLIDER_RECT INSTEAD(154, 76, 90, 20)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_HIGH "Hoch (%d)"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_HIGH_RECT INSTEAD(252, 79, 42, 10)
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_CAPTION "COM-&Anschlussnummer:"
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_CAPTION_RECT INSTEAD(13, 120, 92, 8)
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_RECT INSTEAD(110, 118, 117, 90)
#define ADVANCED_PORT_SETTINGS_OK "OK"
#define ADVANCED_PORT_SETTINGS_CANCEL "Abbrechen"
#define ADVANCED_PORT_SETTINGS_RESTORE "&Standard"

// The page of the board. STRING_LOW and STRING_HIGH replace the low and high ends at run time.
#define PORT_CONTROL "Anschlusssteuerung"
#define PORT_CONTROL_LARGEFIFO "&Große FIFO-Puffer aktivieren"
#define PORT_CONTROL_LARGEFIFO_RECT INSTEAD(16, 93, 122, 12)
#define PORT_CONTROL_ADVANCED "Er&weitert..."
#define PORT_CONTROL_RECEIVE_CAPTION "&Empfangspuffer:"
#define PORT_CONTROL_RECEIVE_CAPTION_RECT INSTEAD(16, 115, 76, 10)
#define PORT_CONTROL_RECEIVE_LOW "Niedrig"
#define PORT_CONTROL_RECEIVE_LOW_RECT INSTEAD(96, 115, 40, 10)
#define PORT_CONTROL_RECEIVE_SLIDER_RECT INSTEAD(140, 113, 59, 18)
#define PORT_CONTROL_RECEIVE_HIGH "Hoch"
#define PORT_CONTROL_RECEIVE_HIGH_RECT INSTEAD(204, 115, 42, 10)
#define PORT_CONTROL_TRANSMIT_CAPTION "Über&tragungspuffer:"
#define PORT_CONTROL_TRANSMIT_CAPTION_RECT INSTEAD(16, 139, 76, 10)
#define PORT_CONTROL_TRANSMIT_LOW "Niedrig"
#define PORT_CONTROL_TRANSMIT_LOW_RECT INSTEAD(96, 139, 40, 10)
#define PORT_CONTROL_TRANSMIT_SLIDER_RECT INSTEAD(140, 136, 59, 18)
#define PORT_CONTROL_TRANSMIT_HIGH "Hoch"
#define PORT_CONTROL_TRANSMIT_HIGH_RECT INSTEAD(204, 139, 42, 10)
#define PORT_CONTROL_APPLY "Übe&rnehmen"
#define PORT_CONTROL_APPLY_RECT INSTEAD(29, 165, 60, 14)
#define PORT_CONTROL_SET_TO_ALL "Für al&le festlegen"
#define PORT_CONTROL_SET_TO_ALL_RECT INSTEAD(99, 165, 74, 14)
#define PORT_CONTROL_RESTORE "&Standardwerte"
#define PORT_CONTROL_RESTORE_RECT INSTEAD(183, 165, 62, 14)
#define PORT_CONTROL_PORT_NUMBER_CAPTION "Anschluss&nummer:"
#define PORT_CONTROL_PORT_NUMBER_CAPTION_RECT INSTEAD(16, 218, 72, 8)
#define PORT_CONTROL_PORT_NUMBER_RECT INSTEAD(93, 216, 117, 90)
#define PORT_CONTROL_POLLING_CYCLE_CAPTION "LPT-Abfragezyklus (Sekunden):"
#define PORT_CONTROL_POLLING_CYCLE_CAPTION_RECT INSTEAD(16, 195, 119, 8)
#define PORT_CONTROL_POLLING_CYCLE_RECT INSTEAD(140, 193, 72, 90)

// The dialog for "Erweitert..." of the board. ACS is a function of the RS-485 driver.
#define ADVANCED_PORT_CONTROL "Erweiterte Anschlusssteuerung"
#define ADVANCED_PORT_CONTROL_UART_GROUP "UART-Funktionen"
#define ADVANCED_PORT_CONTROL_SORT_COM "UARTs sortieren"
#define ADVANCED_PORT_CONTROL_SORT_COM_RECT INSTEAD(24, 60, 68, 14)
#define ADVANCED_PORT_CONTROL_TERMINATION_GROUP "RS-422/485-Funktionen"
#define ADVANCED_PORT_CONTROL_INTERFACE_CAPTION "UART-&Typ:"
#define ADVANCED_PORT_CONTROL_INTERFACE_CAPTION_RECT INSTEAD(25, 30, 41, 8)
#define ADVANCED_PORT_CONTROL_ACS_GROUP "RS-485-Funktionen"
#define ADVANCED_PORT_CONTROL_ACS_ENABLE "&ACS-Funktion für RS-485 aktivieren"
#define ADVANCED_PORT_CONTROL_ACS_ENABLE_RECT INSTEAD(25, 168, 147, 12)
#define ADVANCED_PORT_CONTROL_OK "OK"
#define ADVANCED_PORT_CONTROL_CANCEL "Abbrechen"
#define ADVANCED_PORT_CONTROL_RESTORE "&Standard"
#define ADVANCED_PORT_CONTROL_TERMINATION_ENABLE "Abschlusswiderstand aktivieren"
#define ADVANCED_PORT_CONTROL_TERMINATION_ENABLE_RECT INSTEAD(25, 116, 131, 12)

// Message boxes.
#define STRING_OUT_OF_MEMORY \
    "Nicht genügend Arbeitsspeicher für diesen Vorgang.\r\rSchließen Sie eine oder mehrere Windows-Anwendungen, um mehr Arbeitsspeicher verfügbar zu machen."
#define STRING_OUT_OF_MEMORY_CAPTION "Kommunikationsanschluss"
#define STRING_NAME_IN_USE_QUESTION \
    "Dieser COM-Name wird bereits von einem anderen Gerät verwendet (z. B. von einem anderen COM-Anschluss oder einem Modem). Doppelt vergebene Namen können dazu führen, dass auf Geräte nicht zugegriffen werden kann und dass sich Einstellungen ändern. Möchten Sie den Vorgang fortsetzen?"
#define STRING_BOX_CAPTION "Eigenschaften des Kommunikationsanschlusses"
#define STRING_RENAME_FAILED "Beim Umbenennen des COM-Anschlusses ist ein Fehler aufgetreten."

// Lists: the first character separates the items, and their order carries meaning.
#define STRING_PARITY_LIST ",Gerade,Ungerade,Keine,Markierung,Leerzeichen"
#define STRING_STOP_BITS_LIST ",1,1.5,2"
#define STRING_FLOW_CONTROL_LIST ",Xon / Xoff,Hardware,Keine"

// The suffix begins with a blank and follows a port's name.
#define STRING_ADVANCED_SETTINGS_TITLE "Erweiterte Einstellungen für %s"
#define STRING_LOW "Niedrig (%d)"
#define STRING_HIGH "Hoch (%d)"
#define STRING_IN_USE_SUFFIX " (wird verwendet)"

// The list of a channel's resources.
#define STRING_RESOURCE_TYPE "Ressourcentyp"
#define STRING_SETTING "Einstellung"
#define STRING_IO_RANGE "E/A-Bereich"
#define STRING_IRQ "IRQ"
