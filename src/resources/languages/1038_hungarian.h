// Hungarian.
//
// For translators: 1033_english_united_states.h says what a text's name and its &, %d, %s and \r mean.
// "Alapértelmezés" stands alone where its button has no room for "Alapértelmezés visszaállítása". A text that
// needs more room than the layout gives carries its own rectangle. The three buttons under the sliders fill
// their row.

#define LANGUAGE_PRIMARY 0x0E
#define LANGUAGE_SUB 0x01

// The page of a COM port.
#define PORT_SETTINGS "Portbeállítások"
#define PORT_SETTINGS_BAUD_RATE_CAPTION "&Bit/másodperc:"
#define PORT_SETTINGS_BAUD_RATE_CAPTION_RECT INSTEAD(80, 19, 58, 8)
#define PORT_SETTINGS_DATA_BITS_CAPTION "A&datbitek:"
#define PORT_SETTINGS_DATA_BITS_CAPTION_RECT INSTEAD(80, 40, 58, 8)
#define PORT_SETTINGS_PARITY_CAPTION "&Paritás:"
#define PORT_SETTINGS_PARITY_CAPTION_RECT INSTEAD(80, 61, 58, 8)
#define PORT_SETTINGS_STOP_BITS_CAPTION "&Stopbitek:"
#define PORT_SETTINGS_STOP_BITS_CAPTION_RECT INSTEAD(80, 82, 58, 8)
#define PORT_SETTINGS_FLOW_CONTROL_CAPTION "Átvitel&vezérlés:"
#define PORT_SETTINGS_FLOW_CONTROL_CAPTION_RECT INSTEAD(80, 102, 58, 8)
#define PORT_SETTINGS_ADVANCED "Sp&eciális..."
#define PORT_SETTINGS_ADVANCED_RECT INSTEAD(63, 130, 65, 14)
#define PORT_SETTINGS_RESTORE "A&lapértelmezés visszaállítása"
#define PORT_SETTINGS_RESTORE_RECT INSTEAD(132, 130, 118, 14)

// The dialog for "Speciális..." of a COM port. The number of bytes in %d has up to five digits; those of
// the low and high ends up to three.
#define ADVANCED_PORT_SETTINGS "Speciális portbeállítások"
#define ADVANCED_PORT_SETTINGS_RECT INSTEAD(0, 0, 388, 145)
#define ADVANCED_PORT_SETTINGS_LARGEFIFO "%d bájtos &FIFO-pufferek használata"
#define ADVANCED_PORT_SETTINGS_RECEIVE_CAPTION "&Vételi puffer:"
#define ADVANCED_PORT_SETTINGS_RECEIVE_LOW "Alacsony (%d)"
#define ADVANCED_PORT_SETTINGS_RECEIVE_LOW_RECT INSTEAD(98, 53, 57, 10)
#define ADVANCED_PORT_SETTINGS_RECEIVE_SLIDER_RECT INSTEAD(156, 51, 82, 18)
#define ADVANCED_PORT_SETTINGS_RECEIVE_HIGH "Magas (%d)"
#define ADVANCED_PORT_SETTINGS_RECEIVE_HIGH_RECT INSTEAD(246, 53, 48, 10)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_CAPTION "A&dási puffer:"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_LOW "Alacsony (%d)"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_LOW_RECT INSTEAD(98, 79, 57, 10)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_SLIDER_RECT INSTEAD(156, 76, 82, 20)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_HIGH "Magas (%d)"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_HIGH_RECT INSTEAD(246, 79, 48, 10)
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_CAPTION "COM-&port száma:"
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_CAPTION_RECT INSTEAD(13, 120, 66, 8)
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_RECT INSTEAD(84, 118, 112, 90)
#define ADVANCED_PORT_SETTINGS_OK "OK"
#define ADVANCED_PORT_SETTINGS_OK_RECT INSTEAD(311, 12, 66, 14)
#define ADVANCED_PORT_SETTINGS_CANCEL "Mégse"
#define ADVANCED_PORT_SETTINGS_CANCEL_RECT INSTEAD(311, 31, 66, 14)
#define ADVANCED_PORT_SETTINGS_RESTORE "&Alapértelmezés"
#define ADVANCED_PORT_SETTINGS_RESTORE_RECT INSTEAD(311, 62, 66, 14)

// The page of the board. STRING_LOW and STRING_HIGH replace the low and high ends at run time.
#define PORT_CONTROL "Portvezérlés"
#define PORT_CONTROL_LARGEFIFO "&Nagy FIFO-pufferek használata"
#define PORT_CONTROL_LARGEFIFO_RECT INSTEAD(16, 93, 131, 12)
#define PORT_CONTROL_ADVANCED "&Speciális..."
#define PORT_CONTROL_RECEIVE_CAPTION "&Vételi puffer:"
#define PORT_CONTROL_RECEIVE_LOW "Alacsony"
#define PORT_CONTROL_RECEIVE_LOW_RECT INSTEAD(75, 115, 48, 10)
#define PORT_CONTROL_RECEIVE_SLIDER_RECT INSTEAD(127, 113, 66, 18)
#define PORT_CONTROL_RECEIVE_HIGH "Magas"
#define PORT_CONTROL_RECEIVE_HIGH_RECT INSTEAD(198, 115, 48, 10)
#define PORT_CONTROL_TRANSMIT_CAPTION "A&dási puffer:"
#define PORT_CONTROL_TRANSMIT_LOW "Alacsony"
#define PORT_CONTROL_TRANSMIT_LOW_RECT INSTEAD(75, 139, 48, 10)
#define PORT_CONTROL_TRANSMIT_SLIDER_RECT INSTEAD(127, 136, 66, 18)
#define PORT_CONTROL_TRANSMIT_HIGH "Magas"
#define PORT_CONTROL_TRANSMIT_HIGH_RECT INSTEAD(198, 139, 48, 10)
#define PORT_CONTROL_APPLY "Al&kalmaz"
#define PORT_CONTROL_APPLY_RECT INSTEAD(13, 165, 60, 14)
#define PORT_CONTROL_SET_TO_ALL "Beállítás &mindegyiknél"
#define PORT_CONTROL_SET_TO_ALL_RECT INSTEAD(80, 165, 92, 14)
#define PORT_CONTROL_RESTORE "A&lapértelmezés"
#define PORT_CONTROL_RESTORE_RECT INSTEAD(179, 165, 66, 14)
#define PORT_CONTROL_PORT_NUMBER_CAPTION "&Port száma:"
#define PORT_CONTROL_PORT_NUMBER_CAPTION_RECT INSTEAD(16, 218, 46, 8)
#define PORT_CONTROL_PORT_NUMBER_RECT INSTEAD(66, 216, 112, 90)
#define PORT_CONTROL_POLLING_CYCLE_CAPTION "LPT lekérdezési ciklusa (másodperc):"
#define PORT_CONTROL_POLLING_CYCLE_CAPTION_RECT INSTEAD(16, 195, 140, 8)
#define PORT_CONTROL_POLLING_CYCLE_RECT INSTEAD(161, 193, 72, 90)

// The dialog for "Speciális..." of the board. ACS is a function of the RS-485 driver.
#define ADVANCED_PORT_CONTROL "Speciális portvezérlés"
#define ADVANCED_PORT_CONTROL_RECT INSTEAD(0, 0, 299, 202)
#define ADVANCED_PORT_CONTROL_UART_GROUP "UART-funkciók"
#define ADVANCED_PORT_CONTROL_SORT_COM "UART-ok rendezése"
#define ADVANCED_PORT_CONTROL_SORT_COM_RECT INSTEAD(24, 60, 82, 14)
#define ADVANCED_PORT_CONTROL_TERMINATION_GROUP "RS-422/485-funkciók"
#define ADVANCED_PORT_CONTROL_INTERFACE_CAPTION "UART &típusa:"
#define ADVANCED_PORT_CONTROL_INTERFACE_CAPTION_RECT INSTEAD(25, 30, 51, 8)
#define ADVANCED_PORT_CONTROL_INTERFACE_SELECT_RECT INSTEAD(81, 28, 90, 54)
#define ADVANCED_PORT_CONTROL_ACS_GROUP "RS-485-funkciók"
#define ADVANCED_PORT_CONTROL_ACS_ENABLE "RS-485 A&CS-funkció engedélyezése"
#define ADVANCED_PORT_CONTROL_ACS_ENABLE_RECT INSTEAD(25, 168, 149, 12)
#define ADVANCED_PORT_CONTROL_OK "OK"
#define ADVANCED_PORT_CONTROL_OK_RECT INSTEAD(224, 12, 66, 14)
#define ADVANCED_PORT_CONTROL_CANCEL "Mégse"
#define ADVANCED_PORT_CONTROL_CANCEL_RECT INSTEAD(224, 32, 66, 14)
#define ADVANCED_PORT_CONTROL_RESTORE "&Alapértelmezés"
#define ADVANCED_PORT_CONTROL_RESTORE_RECT INSTEAD(224, 52, 66, 14)
#define ADVANCED_PORT_CONTROL_TERMINATION_ENABLE "Vonallezárás engedélyezése"
#define ADVANCED_PORT_CONTROL_TERMINATION_ENABLE_RECT INSTEAD(25, 116, 122, 12)

// Message boxes.
#define STRING_OUT_OF_MEMORY \
    "Nincs elég memória a művelet végrehajtásához.\r\rZárjon be egy vagy több Windows-alkalmazást, hogy több memória álljon rendelkezésre."
#define STRING_OUT_OF_MEMORY_CAPTION "Kommunikációs port"
#define STRING_NAME_IN_USE_QUESTION \
    "Ezt a COM-nevet már egy másik eszköz (például egy másik COM-port vagy egy modem) használja. Azonos nevek használata esetén egyes eszközök elérhetetlenné válhatnak, és a beállítások megváltozhatnak. Folytatja?"
#define STRING_BOX_CAPTION "Kommunikációs port tulajdonságai"
#define STRING_RENAME_FAILED "Hiba történt a COM-port átnevezésekor."

// Lists: the first character separates the items, and their order carries meaning.
#define STRING_PARITY_LIST ",Páros,Páratlan,Nincs,Jel,Szünet"
#define STRING_STOP_BITS_LIST ",1,1.5,2"
#define STRING_FLOW_CONTROL_LIST ",Xon / Xoff,Hardver,Nincs"

// The suffix begins with a blank and follows a port's name.
#define STRING_ADVANCED_SETTINGS_TITLE "%s speciális beállításai"
#define STRING_LOW "Alacsony (%d)"
#define STRING_HIGH "Magas (%d)"
#define STRING_IN_USE_SUFFIX " (használatban)"

// The list of a channel's resources.
#define STRING_RESOURCE_TYPE "Erőforrás típusa"
#define STRING_SETTING "Beállítás"
#define STRING_IO_RANGE "I/O-tartomány"
#define STRING_IRQ "IRQ"
