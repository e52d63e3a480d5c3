// Polish.
//
// For translators: 1033_english_united_states.h says what a text's name and its &, %d, %s and \r mean. A
// text that needs more room than the layout gives carries its own rectangle. The three buttons under the
// sliders fill their row.

#define LANGUAGE_PRIMARY 0x15
#define LANGUAGE_SUB 0x01

// The page of a COM port.
#define PORT_SETTINGS "Ustawienia portu"
#define PORT_SETTINGS_BAUD_RATE_CAPTION "&Liczba bitów na sekundę:"
#define PORT_SETTINGS_BAUD_RATE_CAPTION_RECT INSTEAD(42, 19, 96, 8)
#define PORT_SETTINGS_DATA_BITS_CAPTION "&Bity danych:"
#define PORT_SETTINGS_DATA_BITS_CAPTION_RECT INSTEAD(42, 40, 96, 8)
#define PORT_SETTINGS_PARITY_CAPTION "&Parzystość:"
#define PORT_SETTINGS_PARITY_CAPTION_RECT INSTEAD(42, 61, 96, 8)
#define PORT_SETTINGS_STOP_BITS_CAPTION "Bity &stopu:"
#define PORT_SETTINGS_STOP_BITS_CAPTION_RECT INSTEAD(42, 82, 96, 8)
#define PORT_SETTINGS_FLOW_CONTROL_CAPTION "Sterowanie prz&epływem:"
#define PORT_SETTINGS_FLOW_CONTROL_CAPTION_RECT INSTEAD(42, 102, 96, 8)
#define PORT_SETTINGS_ADVANCED "Zaa&wansowane..."
#define PORT_SETTINGS_ADVANCED_RECT INSTEAD(94, 130, 73, 14)
#define PORT_SETTINGS_RESTORE "Przywróć &domyślne"
#define PORT_SETTINGS_RESTORE_RECT INSTEAD(171, 130, 79, 14)

// The dialog for "Zaawansowane..." of a COM port. The number of bytes in %d has up to five digits; those
// of the low and high ends up to three.
#define ADVANCED_PORT_SETTINGS "Ustawienia zaawansowane portu"
#define ADVANCED_PORT_SETTINGS_LARGEFIFO "&Włącz bufory FIFO o rozmiarze %d bajtów"
#define ADVANCED_PORT_SETTINGS_LARGEFIFO_RECT INSTEAD(23, 23, 182, 10)
#define ADVANCED_PORT_SETTINGS_RECEIVE_CAPTION "Bufor &odbioru:"
#define ADVANCED_PORT_SETTINGS_RECEIVE_CAPTION_RECT INSTEAD(23, 53, 67, 10)
#define ADVANCED_PORT_SETTINGS_RECEIVE_LOW "Niski (%d)"
#define ADVANCED_PORT_SETTINGS_RECEIVE_LOW_RECT INSTEAD(98, 53, 41, 10)
#define ADVANCED_PORT_SETTINGS_RECEIVE_SLIDER_RECT INSTEAD(140, 51, 96, 18)
#define ADVANCED_PORT_SETTINGS_RECEIVE_HIGH "Wysoki (%d)"
#define ADVANCED_PORT_SETTINGS_RECEIVE_HIGH_RECT INSTEAD(244, 53, 50, 10)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_CAPTION "Bufor &nadawania:"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_CAPTION_RECT INSTEAD(23, 79, 67, 10)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_LOW "Niski (%d)"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_LOW_RECT INSTEAD(98, 79, 41, 10)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_SLIDER_RECT INSTEAD(140, 76, 96, 20)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_HIGH "Wysoki (%d)"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_HIGH_RECT INSTEAD(244, 79, 50, 10)
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_CAPTION "Numer &portu COM:"
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_CAPTION_RECT INSTEAD(13, 120, 71, 8)
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_RECT INSTEAD(89, 118, 93, 90)
#define ADVANCED_PORT_SETTINGS_OK "OK"
#define ADVANCED_PORT_SETTINGS_CANCEL "Anuluj"
#define ADVANCED_PORT_SETTINGS_RESTORE "&Domyślne"

// The page of the board. STRING_LOW and STRING_HIGH replace the low and high ends at run time.
#define PORT_CONTROL "Sterowanie portami"
#define PORT_CONTROL_LARGEFIFO "Włą&cz duże bufory FIFO"
#define PORT_CONTROL_ADVANCED "Zaa&wansowane..."
#define PORT_CONTROL_ADVANCED_RECT INSTEAD(172, 90, 73, 14)
#define PORT_CONTROL_RECEIVE_CAPTION "Bufor &odbioru:"
#define PORT_CONTROL_RECEIVE_CAPTION_RECT INSTEAD(16, 115, 67, 10)
#define PORT_CONTROL_RECEIVE_LOW "Niski"
#define PORT_CONTROL_RECEIVE_LOW_RECT INSTEAD(87, 115, 32, 10)
#define PORT_CONTROL_RECEIVE_SLIDER_RECT INSTEAD(123, 113, 68, 18)
#define PORT_CONTROL_RECEIVE_HIGH "Wysoki"
#define PORT_CONTROL_RECEIVE_HIGH_RECT INSTEAD(196, 115, 50, 10)
#define PORT_CONTROL_TRANSMIT_CAPTION "Bufor &nadawania:"
#define PORT_CONTROL_TRANSMIT_CAPTION_RECT INSTEAD(16, 139, 67, 10)
#define PORT_CONTROL_TRANSMIT_LOW "Niski"
#define PORT_CONTROL_TRANSMIT_LOW_RECT INSTEAD(87, 139, 32, 10)
#define PORT_CONTROL_TRANSMIT_SLIDER_RECT INSTEAD(123, 136, 68, 18)
#define PORT_CONTROL_TRANSMIT_HIGH "Wysoki"
#define PORT_CONTROL_TRANSMIT_HIGH_RECT INSTEAD(196, 139, 50, 10)
#define PORT_CONTROL_APPLY "Zas&tosuj"
#define PORT_CONTROL_APPLY_RECT INSTEAD(16, 165, 50, 14)
#define PORT_CONTROL_SET_TO_ALL "Ustaw dla w&szystkich"
#define PORT_CONTROL_SET_TO_ALL_RECT INSTEAD(73, 165, 86, 14)
#define PORT_CONTROL_RESTORE "Przywróć &domyślne"
#define PORT_CONTROL_RESTORE_RECT INSTEAD(166, 165, 79, 14)
#define PORT_CONTROL_PORT_NUMBER_CAPTION "Numer &portu:"
#define PORT_CONTROL_PORT_NUMBER_CAPTION_RECT INSTEAD(16, 218, 50, 8)
#define PORT_CONTROL_PORT_NUMBER_RECT INSTEAD(71, 216, 93, 90)
#define PORT_CONTROL_POLLING_CYCLE_CAPTION "Cykl odpytywania LPT (w sekundach):"
#define PORT_CONTROL_POLLING_CYCLE_CAPTION_RECT INSTEAD(16, 195, 142, 8)
#define PORT_CONTROL_POLLING_CYCLE_RECT INSTEAD(163, 193, 72, 90)

// The dialog for "Zaawansowane..." of the board. ACS is a function of the RS-485 driver.
#define ADVANCED_PORT_CONTROL "Zaawansowane sterowanie portami"
#define ADVANCED_PORT_CONTROL_UART_GROUP "Funkcje UART"
#define ADVANCED_PORT_CONTROL_SORT_COM "Sortuj UART"
#define ADVANCED_PORT_CONTROL_SORT_COM_RECT INSTEAD(24, 60, 54, 14)
#define ADVANCED_PORT_CONTROL_TERMINATION_GROUP "Funkcje RS-422/485"
#define ADVANCED_PORT_CONTROL_INTERFACE_CAPTION "&Typ UART:"
#define ADVANCED_PORT_CONTROL_INTERFACE_CAPTION_RECT INSTEAD(25, 30, 41, 8)
#define ADVANCED_PORT_CONTROL_ACS_GROUP "Funkcje RS-485"
#define ADVANCED_PORT_CONTROL_ACS_ENABLE "Włącz funkcję &ACS dla RS-485"
#define ADVANCED_PORT_CONTROL_ACS_ENABLE_RECT INSTEAD(25, 168, 129, 12)
#define ADVANCED_PORT_CONTROL_OK "OK"
#define ADVANCED_PORT_CONTROL_CANCEL "Anuluj"
#define ADVANCED_PORT_CONTROL_RESTORE "&Domyślne"
#define ADVANCED_PORT_CONTROL_TERMINATION_ENABLE "Włącz terminację"

// Message boxes.
#define STRING_OUT_OF_MEMORY \
    "Za mało pamięci do wykonania tej operacji;\r\rzamknij co najmniej jedną aplikację systemu Windows, aby zwiększyć ilość dostępnej pamięci."
#define STRING_OUT_OF_MEMORY_CAPTION "Port komunikacyjny"
#define STRING_NAME_IN_USE_QUESTION \
    "Ta nazwa COM jest już używana przez inne urządzenie (na przykład inny port COM lub modem). Używanie zduplikowanych nazw może spowodować niedostępność urządzeń i zmianę ustawień. Czy chcesz kontynuować?"
#define STRING_BOX_CAPTION "Właściwości portu komunikacyjnego"
#define STRING_RENAME_FAILED "Wystąpił błąd podczas zmieniania nazwy portu COM."

// Lists: the first character separates the items, and their order carries meaning.
#define STRING_PARITY_LIST ",Parzysta,Nieparzysta,Brak,Znacznik,Odstęp"
#define STRING_STOP_BITS_LIST ",1,1.5,2"
#define STRING_FLOW_CONTROL_LIST ",Xon / Xoff,Sprzętowe,Brak"

// The suffix begins with a blank and follows a port's name.
#define STRING_ADVANCED_SETTINGS_TITLE "Ustawienia zaawansowane dla %s"
#define STRING_LOW "Niski (%d)"
#define STRING_HIGH "Wysoki (%d)"
#define STRING_IN_USE_SUFFIX " (w użyciu)"

// The list of a channel's resources.
#define STRING_RESOURCE_TYPE "Typ zasobu"
#define STRING_SETTING "Ustawienie"
#define STRING_IO_RANGE "Zakres we/wy"
#define STRING_IRQ "IRQ"
