// Slovak.
//
// For translators: 1033_english_united_states.h says what a text's name and its &, %d, %s and \r mean. A
// text that needs more room than the layout gives carries its own rectangle. The captions before the sliders
// stand in two lines, split at a blank. The three buttons under the sliders fill their row.

#define LANGUAGE_PRIMARY 0x1B
#define LANGUAGE_SUB 0x01

// The page of a COM port.
#define PORT_SETTINGS "Nastavenie portu"
#define PORT_SETTINGS_BAUD_RATE_CAPTION "&Bity za sekundu:"
#define PORT_SETTINGS_BAUD_RATE_CAPTION_RECT INSTEAD(73, 19, 65, 8)
#define PORT_SETTINGS_DATA_BITS_CAPTION "&Dátové bity:"
#define PORT_SETTINGS_DATA_BITS_CAPTION_RECT INSTEAD(73, 40, 65, 8)
#define PORT_SETTINGS_PARITY_CAPTION "P&arita:"
#define PORT_SETTINGS_PARITY_CAPTION_RECT INSTEAD(73, 61, 65, 8)
#define PORT_SETTINGS_STOP_BITS_CAPTION "Počet &stop-bitov:"
#define PORT_SETTINGS_STOP_BITS_CAPTION_RECT INSTEAD(73, 82, 65, 8)
#define PORT_SETTINGS_FLOW_CONTROL_CAPTION "Riadenie &toku:"
#define PORT_SETTINGS_FLOW_CONTROL_CAPTION_RECT INSTEAD(73, 102, 65, 8)
#define PORT_SETTINGS_ADVANCED "&Rozšírené..."
#define PORT_SETTINGS_ADVANCED_RECT INSTEAD(99, 130, 65, 14)
#define PORT_SETTINGS_RESTORE "&Obnoviť predvolené"
#define PORT_SETTINGS_RESTORE_RECT INSTEAD(168, 130, 82, 14)

// The dialog for "Rozšírené..." of a COM port. The number of bytes in %d has up to five digits; those of
// the low and high ends up to three.
#define ADVANCED_PORT_SETTINGS "Rozšírené nastavenie portu"
#define ADVANCED_PORT_SETTINGS_LARGEFIFO "&Povoliť vyrovnávacie pamäte FIFO s veľkosťou %d bajtov"
#define ADVANCED_PORT_SETTINGS_LARGEFIFO_RECT INSTEAD(23, 23, 240, 10)
#define ADVANCED_PORT_SETTINGS_RECEIVE_CAPTION "Prijí&macia vyrovnávacia pamäť:"
#define ADVANCED_PORT_SETTINGS_RECEIVE_CAPTION_RECT INSTEAD(23, 50, 79, 17)
#define ADVANCED_PORT_SETTINGS_RECEIVE_LOW "Nízka (%d)"
#define ADVANCED_PORT_SETTINGS_RECEIVE_LOW_RECT INSTEAD(106, 53, 44, 10)
#define ADVANCED_PORT_SETTINGS_RECEIVE_SLIDER_RECT INSTEAD(151, 51, 85, 18)
#define ADVANCED_PORT_SETTINGS_RECEIVE_HIGH "Vysoká (%d)"
#define ADVANCED_PORT_SETTINGS_RECEIVE_HIGH_RECT INSTEAD(244, 53, 50, 10)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_CAPTION "Vy&sielacia vyrovnávacia pamäť:"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_CAPTION_RECT INSTEAD(23, 76, 79, 17)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_LOW "Nízka (%d)"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_LOW_RECT INSTEAD(106, 79, 44, 10)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_SLIDER_RECT INSTEAD(151, 76, 85, 20)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_HIGH "Vysoká (%d)"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_HIGH_RECT INSTEAD(244, 79, 50, 10)
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_CAPTION "Číslo portu &COM:"
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_CAPTION_RECT INSTEAD(13, 120, 66, 8)
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_RECT INSTEAD(84, 118, 102, 90)
#define ADVANCED_PORT_SETTINGS_OK "OK"
#define ADVANCED_PORT_SETTINGS_CANCEL "Zrušiť"
#define ADVANCED_PORT_SETTINGS_RESTORE "P&redvolené"

// The page of the board. STRING_LOW and STRING_HIGH replace the low and high ends at run time.
#define PORT_CONTROL "Riadenie portov"
#define PORT_CONTROL_LARGEFIFO "Povoliť &veľké vyrovnávacie pamäte FIFO"
#define PORT_CONTROL_LARGEFIFO_RECT INSTEAD(16, 93, 166, 12)
#define PORT_CONTROL_ADVANCED "&Rozšírené..."
#define PORT_CONTROL_RECEIVE_CAPTION "Prijí&macia vyrovnávacia pamäť:"
#define PORT_CONTROL_RECEIVE_CAPTION_RECT INSTEAD(16, 112, 79, 17)
#define PORT_CONTROL_RECEIVE_LOW "Nízka"
#define PORT_CONTROL_RECEIVE_LOW_RECT INSTEAD(99, 115, 35, 10)
#define PORT_CONTROL_RECEIVE_SLIDER_RECT INSTEAD(138, 113, 53, 18)
#define PORT_CONTROL_RECEIVE_HIGH "Vysoká"
#define PORT_CONTROL_RECEIVE_HIGH_RECT INSTEAD(196, 115, 50, 10)
#define PORT_CONTROL_TRANSMIT_CAPTION "Vy&sielacia vyrovnávacia pamäť:"
#define PORT_CONTROL_TRANSMIT_CAPTION_RECT INSTEAD(16, 136, 79, 17)
#define PORT_CONTROL_TRANSMIT_LOW "Nízka"
#define PORT_CONTROL_TRANSMIT_LOW_RECT INSTEAD(99, 139, 35, 10)
#define PORT_CONTROL_TRANSMIT_SLIDER_RECT INSTEAD(138, 136, 53, 18)
#define PORT_CONTROL_TRANSMIT_HIGH "Vysoká"
#define PORT_CONTROL_TRANSMIT_HIGH_RECT INSTEAD(196, 139, 50, 10)
#define PORT_CONTROL_APPLY "Po&užiť"
#define PORT_CONTROL_APPLY_RECT INSTEAD(13, 165, 60, 14)
#define PORT_CONTROL_SET_TO_ALL "Nastaviť pre vš&etky"
#define PORT_CONTROL_SET_TO_ALL_RECT INSTEAD(78, 165, 80, 14)
#define PORT_CONTROL_RESTORE "&Obnoviť predvolené"
#define PORT_CONTROL_RESTORE_RECT INSTEAD(163, 165, 82, 14)
#define PORT_CONTROL_PORT_NUMBER_CAPTION "Čís&lo portu:"
#define PORT_CONTROL_PORT_NUMBER_RECT INSTEAD(66, 216, 102, 90)
#define PORT_CONTROL_POLLING_CYCLE_CAPTION "Cyklus dopytovania LPT (sekundy):"
#define PORT_CONTROL_POLLING_CYCLE_CAPTION_RECT INSTEAD(16, 195, 132, 8)
#define PORT_CONTROL_POLLING_CYCLE_RECT INSTEAD(153, 193, 72, 90)

// The dialog for "Rozšírené..." of the board. ACS is a function of the RS-485 driver.
#define ADVANCED_PORT_CONTROL "Rozšírené riadenie portov"
#define ADVANCED_PORT_CONTROL_UART_GROUP "Funkcie UART"
#define ADVANCED_PORT_CONTROL_SORT_COM "Zoradiť UART"
#define ADVANCED_PORT_CONTROL_SORT_COM_RECT INSTEAD(24, 60, 58, 14)
#define ADVANCED_PORT_CONTROL_TERMINATION_GROUP "Funkcie RS-422/485"
#define ADVANCED_PORT_CONTROL_INTERFACE_CAPTION "&Typ UART:"
#define ADVANCED_PORT_CONTROL_INTERFACE_CAPTION_RECT INSTEAD(25, 30, 41, 8)
#define ADVANCED_PORT_CONTROL_ACS_GROUP "Funkcie RS-485"
#define ADVANCED_PORT_CONTROL_ACS_ENABLE "Povoliť funkciu &ACS pre RS-485"
#define ADVANCED_PORT_CONTROL_ACS_ENABLE_RECT INSTEAD(25, 168, 134, 12)
#define ADVANCED_PORT_CONTROL_OK "OK"
#define ADVANCED_PORT_CONTROL_CANCEL "Zrušiť"
#define ADVANCED_PORT_CONTROL_RESTORE "P&redvolené"
#define ADVANCED_PORT_CONTROL_TERMINATION_ENABLE "Povoliť zakončenie linky"

// Message boxes.
#define STRING_OUT_OF_MEMORY \
    "Na túto operáciu nie je dostatok pamäte.\r\rAk chcete uvoľniť pamäť, ukončite jednu alebo viac aplikácií systému Windows."
#define STRING_OUT_OF_MEMORY_CAPTION "Komunikačný port"
#define STRING_NAME_IN_USE_QUESTION \
    "Tento názov portu COM používa iné zariadenie (napríklad iný port COM alebo modem). Používanie duplicitných názvov môže spôsobiť nedostupnosť zariadení a zmenu nastavení. Chcete pokračovať?"
#define STRING_BOX_CAPTION "Vlastnosti komunikačného portu"
#define STRING_RENAME_FAILED "Pri premenovaní portu COM sa vyskytla chyba."

// Lists: the first character separates the items, and their order carries meaning.
#define STRING_PARITY_LIST ",Párna,Nepárna,Žiadna,Značka,Medzera"
#define STRING_STOP_BITS_LIST ",1,1.5,2"
#define STRING_FLOW_CONTROL_LIST ",Xon / Xoff,Hardvérové,Žiadne"

// The suffix begins with a blank and follows a port's name.
#define STRING_ADVANCED_SETTINGS_TITLE "Rozšírené nastavenie pre %s"
#define STRING_LOW "Nízka (%d)"
#define STRING_HIGH "Vysoká (%d)"
#define STRING_IN_USE_SUFFIX " (používa sa)"

// The list of a channel's resources.
#define STRING_RESOURCE_TYPE "Typ prostriedku"
#define STRING_SETTING "Nastavenie"
#define STRING_IO_RANGE "Rozsah V/V"
#define STRING_IRQ "IRQ"
