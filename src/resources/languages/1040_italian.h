// Italian.
//
// For translators: 1033_english_united_states.h says what a text's name and its &, %d, %s and \r mean. A
// text that needs more room than the layout gives carries its own rectangle. The three buttons under the
// sliders fill their row.

#define LANGUAGE_PRIMARY 0x10
#define LANGUAGE_SUB 0x01

// The page of a COM port.
#define PORT_SETTINGS "Impostazioni porta"
#define PORT_SETTINGS_BAUD_RATE_CAPTION "&Bit per secondo:"
#define PORT_SETTINGS_BAUD_RATE_CAPTION_RECT INSTEAD(66, 19, 72, 8)
#define PORT_SETTINGS_DATA_BITS_CAPTION "Bit di &dati:"
#define PORT_SETTINGS_DATA_BITS_CAPTION_RECT INSTEAD(66, 40, 72, 8)
#define PORT_SETTINGS_PARITY_CAPTION "&Parità:"
#define PORT_SETTINGS_PARITY_CAPTION_RECT INSTEAD(66, 61, 72, 8)
#define PORT_SETTINGS_STOP_BITS_CAPTION "Bit di &stop:"
#define PORT_SETTINGS_STOP_BITS_CAPTION_RECT INSTEAD(66, 82, 72, 8)
#define PORT_SETTINGS_FLOW_CONTROL_CAPTION "C&ontrollo di flusso:"
#define PORT_SETTINGS_FLOW_CONTROL_CAPTION_RECT INSTEAD(66, 102, 72, 8)
#define PORT_SETTINGS_ADVANCED "A&vanzate..."
#define PORT_SETTINGS_ADVANCED_RECT INSTEAD(75, 130, 65, 14)
#define PORT_SETTINGS_RESTORE "&Ripristina valori predefiniti"
#define PORT_SETTINGS_RESTORE_RECT INSTEAD(144, 130, 106, 14)

// The dialog for "Avanzate..." of a COM port. The number of bytes in %d has up to five digits; those of
// the low and high ends up to three.
#define ADVANCED_PORT_SETTINGS "Impostazioni avanzate porta"
#define ADVANCED_PORT_SETTINGS_LARGEFIFO "A&bilita buffer FIFO da %d byte"
#define ADVANCED_PORT_SETTINGS_RECEIVE_CAPTION "Buffer di &ricezione:"
#define ADVANCED_PORT_SETTINGS_RECEIVE_CAPTION_RECT INSTEAD(23, 53, 86, 10)
#define ADVANCED_PORT_SETTINGS_RECEIVE_LOW "Basso (%d)"
#define ADVANCED_PORT_SETTINGS_RECEIVE_LOW_RECT INSTEAD(113, 53, 46, 10)
#define ADVANCED_PORT_SETTINGS_RECEIVE_SLIDER_RECT INSTEAD(160, 51, 88, 18)
#define ADVANCED_PORT_SETTINGS_RECEIVE_HIGH "Alto (%d)"
#define ADVANCED_PORT_SETTINGS_RECEIVE_HIGH_RECT INSTEAD(256, 53, 38, 10)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_CAPTION "Buffer di trasmi&ssione:"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_CAPTION_RECT INSTEAD(23, 79, 86, 10)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_LOW "Basso (%d)"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_LOW_RECT INSTEAD(113, 79, 46, 10)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_SLIDER_RECT INSTEAD(160, 76, 88, 20)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_HIGH "Alto (%d)"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_HIGH_RECT INSTEAD(256, 79, 38, 10)
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_CAPTION "Numero &porta COM:"
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_CAPTION_RECT INSTEAD(13, 120, 76, 8)
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_RECT INSTEAD(94, 118, 90, 90)
#define ADVANCED_PORT_SETTINGS_OK "OK"
#define ADVANCED_PORT_SETTINGS_CANCEL "Annulla"
#define ADVANCED_PORT_SETTINGS_RESTORE "Pre&definiti"

// The page of the board. STRING_LOW and STRING_HIGH replace the low and high ends at run time.
#define PORT_CONTROL "Controllo porte"
#define PORT_CONTROL_LARGEFIFO "A&bilita buffer FIFO di grandi dimensioni"
#define PORT_CONTROL_LARGEFIFO_RECT INSTEAD(16, 93, 162, 12)
#define PORT_CONTROL_ADVANCED "A&vanzate..."
#define PORT_CONTROL_RECEIVE_CAPTION "Buffer di &ricezione:"
#define PORT_CONTROL_RECEIVE_CAPTION_RECT INSTEAD(16, 115, 86, 10)
#define PORT_CONTROL_RECEIVE_LOW "Basso"
#define PORT_CONTROL_RECEIVE_LOW_RECT INSTEAD(106, 115, 37, 10)
#define PORT_CONTROL_RECEIVE_SLIDER_RECT INSTEAD(147, 113, 56, 18)
#define PORT_CONTROL_RECEIVE_HIGH "Alto"
#define PORT_CONTROL_RECEIVE_HIGH_RECT INSTEAD(208, 115, 38, 10)
#define PORT_CONTROL_TRANSMIT_CAPTION "Buffer di trasmi&ssione:"
#define PORT_CONTROL_TRANSMIT_CAPTION_RECT INSTEAD(16, 139, 86, 10)
#define PORT_CONTROL_TRANSMIT_LOW "Basso"
#define PORT_CONTROL_TRANSMIT_LOW_RECT INSTEAD(106, 139, 37, 10)
#define PORT_CONTROL_TRANSMIT_SLIDER_RECT INSTEAD(147, 136, 56, 18)
#define PORT_CONTROL_TRANSMIT_HIGH "Alto"
#define PORT_CONTROL_TRANSMIT_HIGH_RECT INSTEAD(208, 139, 38, 10)
#define PORT_CONTROL_APPLY "App&lica"
#define PORT_CONTROL_APPLY_RECT INSTEAD(12, 165, 46, 14)
#define PORT_CONTROL_SET_TO_ALL "Imposta per &tutte"
#define PORT_CONTROL_SET_TO_ALL_RECT INSTEAD(62, 165, 73, 14)
#define PORT_CONTROL_RESTORE "Ripristina valori pre&definiti"
#define PORT_CONTROL_RESTORE_RECT INSTEAD(139, 165, 106, 14)
#define PORT_CONTROL_PORT_NUMBER_CAPTION "Numero &porta:"
#define PORT_CONTROL_PORT_NUMBER_CAPTION_RECT INSTEAD(16, 218, 55, 8)
#define PORT_CONTROL_PORT_NUMBER_RECT INSTEAD(76, 216, 90, 90)
#define PORT_CONTROL_POLLING_CYCLE_CAPTION "Ciclo di polling LPT (secondi):"
#define PORT_CONTROL_POLLING_CYCLE_CAPTION_RECT INSTEAD(16, 195, 113, 8)
#define PORT_CONTROL_POLLING_CYCLE_RECT INSTEAD(134, 193, 72, 90)

// The dialog for "Avanzate..." of the board. ACS is a function of the RS-485 driver.
#define ADVANCED_PORT_CONTROL "Controllo avanzato porte"
#define ADVANCED_PORT_CONTROL_UART_GROUP "Funzioni UART"
#define ADVANCED_PORT_CONTROL_SORT_COM "Ordina UART"
#define ADVANCED_PORT_CONTROL_SORT_COM_RECT INSTEAD(24, 60, 56, 14)
#define ADVANCED_PORT_CONTROL_TERMINATION_GROUP "Funzioni RS-422/485"
#define ADVANCED_PORT_CONTROL_INTERFACE_CAPTION "&Tipo di UART:"
#define ADVANCED_PORT_CONTROL_INTERFACE_CAPTION_RECT INSTEAD(25, 30, 53, 8)
#define ADVANCED_PORT_CONTROL_INTERFACE_SELECT_RECT INSTEAD(83, 28, 90, 54)
#define ADVANCED_PORT_CONTROL_ACS_GROUP "Funzioni RS-485"
#define ADVANCED_PORT_CONTROL_ACS_ENABLE "Abilita funzione &ACS per RS-485"
#define ADVANCED_PORT_CONTROL_ACS_ENABLE_RECT INSTEAD(25, 168, 136, 12)
#define ADVANCED_PORT_CONTROL_OK "OK"
#define ADVANCED_PORT_CONTROL_CANCEL "Annulla"
#define ADVANCED_PORT_CONTROL_RESTORE "Pre&definiti"
#define ADVANCED_PORT_CONTROL_TERMINATION_ENABLE "Abilita terminazione"

// Message boxes.
#define STRING_OUT_OF_MEMORY \
    "Memoria insufficiente per questa operazione;\r\rchiudere una o più applicazioni di Windows per aumentare la memoria disponibile."
#define STRING_OUT_OF_MEMORY_CAPTION "Porta di comunicazione"
#define STRING_NAME_IN_USE_QUESTION \
    "Questo nome COM è già utilizzato da un altro dispositivo (ad esempio un'altra porta COM o un modem). L'utilizzo di nomi duplicati può rendere inaccessibili i dispositivi e modificarne le impostazioni. Continuare?"
#define STRING_BOX_CAPTION "Proprietà porta di comunicazione"
#define STRING_RENAME_FAILED "Si è verificato un errore durante la ridenominazione della porta COM."

// Lists: the first character separates the items, and their order carries meaning.
#define STRING_PARITY_LIST ",Pari,Dispari,Nessuna,Indicatore,Spazio"
#define STRING_STOP_BITS_LIST ",1,1.5,2"
#define STRING_FLOW_CONTROL_LIST ",Xon / Xoff,Hardware,Nessuno"

// The suffix begins with a blank and follows a port's name.
#define STRING_ADVANCED_SETTINGS_TITLE "Impostazioni avanzate per %s"
#define STRING_LOW "Basso (%d)"
#define STRING_HIGH "Alto (%d)"
#define STRING_IN_USE_SUFFIX " (in uso)"

// The list of a channel's resources.
#define STRING_RESOURCE_TYPE "Tipo di risorsa"
#define STRING_SETTING "Impostazione"
#define STRING_IO_RANGE "Intervallo I/O"
#define STRING_IRQ "IRQ"
