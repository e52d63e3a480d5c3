// Czech.
//
// For translators: 1033_english_united_states.h says what a text's name and its &, %d, %s and \r mean. A
// text that needs more room than the layout gives carries its own rectangle. The captions before the sliders
// stand in two lines, split at a blank. The three buttons under the sliders fill their row.

#define LANGUAGE_PRIMARY 0x05
#define LANGUAGE_SUB 0x01

// The page of a COM port.
#define PORT_SETTINGS "Nastavení portu"
#define PORT_SETTINGS_BAUD_RATE_CAPTION "&Bity za sekundu:"
#define PORT_SETTINGS_BAUD_RATE_CAPTION_RECT INSTEAD(74, 19, 64, 8)
#define PORT_SETTINGS_DATA_BITS_CAPTION "&Datové bity:"
#define PORT_SETTINGS_DATA_BITS_CAPTION_RECT INSTEAD(74, 40, 64, 8)
#define PORT_SETTINGS_PARITY_CAPTION "P&arita:"
#define PORT_SETTINGS_PARITY_CAPTION_RECT INSTEAD(74, 61, 64, 8)
#define PORT_SETTINGS_STOP_BITS_CAPTION "Počet &stop-bitů:"
#define PORT_SETTINGS_STOP_BITS_CAPTION_RECT INSTEAD(74, 82, 64, 8)
#define PORT_SETTINGS_FLOW_CONTROL_CAPTION "Řízení &toku:"
#define PORT_SETTINGS_FLOW_CONTROL_CAPTION_RECT INSTEAD(74, 102, 64, 8)
#define PORT_SETTINGS_ADVANCED "&Upřesnit..."
#define PORT_SETTINGS_ADVANCED_RECT INSTEAD(113, 130, 65, 14)
#define PORT_SETTINGS_RESTORE "&Obnovit výchozí"
#define PORT_SETTINGS_RESTORE_RECT INSTEAD(182, 130, 68, 14)

// The dialog for "Upřesnit..." of a COM port. The number of bytes in %d has up to five digits; those of
// the low and high ends up to three.
#define ADVANCED_PORT_SETTINGS "Upřesnit nastavení portu"
#define ADVANCED_PORT_SETTINGS_LARGEFIFO "&Povolit vyrovnávací paměti FIFO o velikosti %d bajtů"
#define ADVANCED_PORT_SETTINGS_LARGEFIFO_RECT INSTEAD(23, 23, 223, 10)
#define ADVANCED_PORT_SETTINGS_RECEIVE_CAPTION "Přijí&mací vyrovnávací paměť:"
#define ADVANCED_PORT_SETTINGS_RECEIVE_CAPTION_RECT INSTEAD(23, 50, 75, 17)
#define ADVANCED_PORT_SETTINGS_RECEIVE_LOW "Nízká (%d)"
#define ADVANCED_PORT_SETTINGS_RECEIVE_LOW_RECT INSTEAD(102, 53, 44, 10)
#define ADVANCED_PORT_SETTINGS_RECEIVE_SLIDER_RECT INSTEAD(147, 51, 89, 18)
#define ADVANCED_PORT_SETTINGS_RECEIVE_HIGH "Vysoká (%d)"
#define ADVANCED_PORT_SETTINGS_RECEIVE_HIGH_RECT INSTEAD(244, 53, 50, 10)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_CAPTION "&Odesílací vyrovnávací paměť:"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_CAPTION_RECT INSTEAD(23, 76, 75, 17)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_LOW "Nízká (%d)"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_LOW_RECT INSTEAD(102, 79, 44, 10)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_SLIDER_RECT INSTEAD(147, 76, 89, 20)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_HIGH "Vysoká (%d)"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_HIGH_RECT INSTEAD(244, 79, 50, 10)
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_CAPTION "Číslo portu &COM:"
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_CAPTION_RECT INSTEAD(13, 120, 66, 8)
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_RECT INSTEAD(84, 118, 102, 90)
#define ADVANCED_PORT_SETTINGS_OK "OK"
#define ADVANCED_PORT_SETTINGS_CANCEL "Storno"
#define ADVANCED_PORT_SETTINGS_RESTORE "&Výchozí"

// The page of the board. STRING_LOW and STRING_HIGH replace the low and high ends at run time.
#define PORT_CONTROL "Řízení portů"
#define PORT_CONTROL_LARGEFIFO "Povolit &velké vyrovnávací paměti FIFO"
#define PORT_CONTROL_LARGEFIFO_RECT INSTEAD(16, 93, 158, 12)
#define PORT_CONTROL_ADVANCED "&Upřesnit..."
#define PORT_CONTROL_RECEIVE_CAPTION "Přijí&mací vyrovnávací paměť:"
#define PORT_CONTROL_RECEIVE_CAPTION_RECT INSTEAD(16, 112, 75, 17)
#define PORT_CONTROL_RECEIVE_LOW "Nízká"
#define PORT_CONTROL_RECEIVE_LOW_RECT INSTEAD(95, 115, 35, 10)
#define PORT_CONTROL_RECEIVE_SLIDER_RECT INSTEAD(134, 113, 57, 18)
#define PORT_CONTROL_RECEIVE_HIGH "Vysoká"
#define PORT_CONTROL_RECEIVE_HIGH_RECT INSTEAD(196, 115, 50, 10)
#define PORT_CONTROL_TRANSMIT_CAPTION "&Odesílací vyrovnávací paměť:"
#define PORT_CONTROL_TRANSMIT_CAPTION_RECT INSTEAD(16, 136, 75, 17)
#define PORT_CONTROL_TRANSMIT_LOW "Nízká"
#define PORT_CONTROL_TRANSMIT_LOW_RECT INSTEAD(95, 139, 35, 10)
#define PORT_CONTROL_TRANSMIT_SLIDER_RECT INSTEAD(134, 136, 57, 18)
#define PORT_CONTROL_TRANSMIT_HIGH "Vysoká"
#define PORT_CONTROL_TRANSMIT_HIGH_RECT INSTEAD(196, 139, 50, 10)
#define PORT_CONTROL_APPLY "Použí&t"
#define PORT_CONTROL_APPLY_RECT INSTEAD(17, 165, 60, 14)
#define PORT_CONTROL_SET_TO_ALL "Nastavit pro vš&echny"
#define PORT_CONTROL_SET_TO_ALL_RECT INSTEAD(84, 165, 86, 14)
#define PORT_CONTROL_RESTORE "O&bnovit výchozí"
#define PORT_CONTROL_RESTORE_RECT INSTEAD(177, 165, 68, 14)
#define PORT_CONTROL_PORT_NUMBER_CAPTION "Čís&lo portu:"
#define PORT_CONTROL_PORT_NUMBER_RECT INSTEAD(66, 216, 102, 90)
#define PORT_CONTROL_POLLING_CYCLE_CAPTION "Cyklus dotazování LPT (sekundy):"
#define PORT_CONTROL_POLLING_CYCLE_CAPTION_RECT INSTEAD(16, 195, 128, 8)
#define PORT_CONTROL_POLLING_CYCLE_RECT INSTEAD(149, 193, 72, 90)

// The dialog for "Upřesnit..." of the board. ACS is a function of the RS-485 driver.
#define ADVANCED_PORT_CONTROL "Upřesnit nastavení řízení portů"
#define ADVANCED_PORT_CONTROL_UART_GROUP "Funkce UART"
#define ADVANCED_PORT_CONTROL_SORT_COM "Seřadit UART"
#define ADVANCED_PORT_CONTROL_SORT_COM_RECT INSTEAD(24, 60, 58, 14)
#define ADVANCED_PORT_CONTROL_TERMINATION_GROUP "Funkce RS-422/485"
#define ADVANCED_PORT_CONTROL_INTERFACE_CAPTION "&Typ UART:"
#define ADVANCED_PORT_CONTROL_INTERFACE_CAPTION_RECT INSTEAD(25, 30, 41, 8)
#define ADVANCED_PORT_CONTROL_ACS_GROUP "Funkce RS-485"
#define ADVANCED_PORT_CONTROL_ACS_ENABLE "Povolit funkci &ACS pro RS-485"
#define ADVANCED_PORT_CONTROL_ACS_ENABLE_RECT INSTEAD(25, 168, 128, 12)
#define ADVANCED_PORT_CONTROL_OK "OK"
#define ADVANCED_PORT_CONTROL_CANCEL "Storno"
#define ADVANCED_PORT_CONTROL_RESTORE "&Výchozí"
#define ADVANCED_PORT_CONTROL_TERMINATION_ENABLE "Povolit zakončení linky"

// Message boxes.
#define STRING_OUT_OF_MEMORY \
    "K provedení této operace není dostatek paměti.\r\rUkončete jednu nebo více aplikací systému Windows, aby se uvolnila paměť."
#define STRING_OUT_OF_MEMORY_CAPTION "Komunikační port"
#define STRING_NAME_IN_USE_QUESTION \
    "Tento název portu COM používá jiné zařízení (například jiný port COM nebo modem). Používání duplicitních názvů může vést k nedostupnosti zařízení a ke změně nastavení. Chcete pokračovat?"
#define STRING_BOX_CAPTION "Vlastnosti komunikačního portu"
#define STRING_RENAME_FAILED "Při přejmenování portu COM došlo k chybě."

// Lists: the first character separates the items, and their order carries meaning.
#define STRING_PARITY_LIST ",Sudá,Lichá,Žádná,Značka,Mezera"
#define STRING_STOP_BITS_LIST ",1,1.5,2"
#define STRING_FLOW_CONTROL_LIST ",Xon / Xoff,Hardwarové,Žádné"

// The suffix begins with a blank and follows a port's name.
#define STRING_ADVANCED_SETTINGS_TITLE "Upřesnit nastavení pro %s"
#define STRING_LOW "Nízká (%d)"
#define STRING_HIGH "Vysoká (%d)"
#define STRING_IN_USE_SUFFIX " (používá se)"

// The list of a channel's resources.
#define STRING_RESOURCE_TYPE "Typ prostředku"
#define STRING_SETTING "Nastavení"
#define STRING_IO_RANGE "Rozsah V/V"
#define STRING_IRQ "IRQ"
