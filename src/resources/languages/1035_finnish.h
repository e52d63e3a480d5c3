// Finnish.
//
// For translators: 1033_english_united_states.h says what a text's name and its &, %d, %s and \r mean. A
// check box that enables something says "Käytä", as in Windows; so does the button that applies. The port's
// name in %s has a noun before it, so that it need not be inflected. A text that needs more room than the
// layout gives carries its own rectangle.

#define LANGUAGE_PRIMARY 0x0B
#define LANGUAGE_SUB 0x01

// The page of a COM port.
#define PORT_SETTINGS "Portin asetukset"
#define PORT_SETTINGS_BAUD_RATE_CAPTION "&Bittiä sekunnissa:"
#define PORT_SETTINGS_BAUD_RATE_CAPTION_RECT INSTEAD(70, 19, 68, 8)
#define PORT_SETTINGS_DATA_BITS_CAPTION "&Databitit:"
#define PORT_SETTINGS_DATA_BITS_CAPTION_RECT INSTEAD(70, 40, 68, 8)
#define PORT_SETTINGS_PARITY_CAPTION "&Pariteetti:"
#define PORT_SETTINGS_PARITY_CAPTION_RECT INSTEAD(70, 61, 68, 8)
#define PORT_SETTINGS_STOP_BITS_CAPTION "&Lopetusbitit:"
#define PORT_SETTINGS_STOP_BITS_CAPTION_RECT INSTEAD(70, 82, 68, 8)
#define PORT_SETTINGS_FLOW_CONTROL_CAPTION "&Vuonohjaus:"
#define PORT_SETTINGS_FLOW_CONTROL_CAPTION_RECT INSTEAD(70, 102, 68, 8)
#define PORT_SETTINGS_ADVANCED "L&isäasetukset..."
#define PORT_SETTINGS_ADVANCED_RECT INSTEAD(104, 130, 68, 14)
#define PORT_SETTINGS_RESTORE "Palauta &oletukset"
#define PORT_SETTINGS_RESTORE_RECT INSTEAD(176, 130, 74, 14)

// The dialog for "Lisäasetukset..." of a COM port. The number of bytes in %d has up to five digits; those
// of the low and high ends up to three.
#define ADVANCED_PORT_SETTINGS "Portin lisäasetukset"
#define ADVANCED_PORT_SETTINGS_LARGEFIFO "&Käytä %d tavun FIFO-puskureita"
#define ADVANCED_PORT_SETTINGS_RECEIVE_CAPTION "&Vastaanottopuskuri:"
#define ADVANCED_PORT_SETTINGS_RECEIVE_CAPTION_RECT INSTEAD(23, 53, 76, 10)
#define ADVANCED_PORT_SETTINGS_RECEIVE_LOW "Matala (%d)"
#define ADVANCED_PORT_SETTINGS_RECEIVE_LOW_RECT INSTEAD(103, 53, 49, 10)
#define ADVANCED_PORT_SETTINGS_RECEIVE_SLIDER_RECT INSTEAD(153, 51, 83, 18)
#define ADVANCED_PORT_SETTINGS_RECEIVE_HIGH "Korkea (%d)"
#define ADVANCED_PORT_SETTINGS_RECEIVE_HIGH_RECT INSTEAD(244, 53, 50, 10)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_CAPTION "&Lähetyspuskuri:"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_CAPTION_RECT INSTEAD(23, 79, 76, 10)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_LOW "Matala (%d)"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_LOW_RECT INSTEAD(103, 79, 49, 10)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_SLIDER_RECT INSTEAD(153, 76, 83, 20)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_HIGH "Korkea (%d)"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_HIGH_RECT INSTEAD(244, 79, 50, 10)
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_CAPTION "COM-&portin numero:"
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_CAPTION_RECT INSTEAD(13, 120, 77, 8)
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_RECT INSTEAD(95, 118, 94, 90)
#define ADVANCED_PORT_SETTINGS_OK "OK"
#define ADVANCED_PORT_SETTINGS_CANCEL "Peruuta"
#define ADVANCED_PORT_SETTINGS_RESTORE "&Oletukset"

// The page of the board. STRING_LOW and STRING_HIGH replace the low and high ends at run time.
#define PORT_CONTROL "Porttien hallinta"
#define PORT_CONTROL_LARGEFIFO "Käytä &suuria FIFO-puskureita"
#define PORT_CONTROL_LARGEFIFO_RECT INSTEAD(16, 93, 124, 12)
#define PORT_CONTROL_ADVANCED "L&isäasetukset..."
#define PORT_CONTROL_ADVANCED_RECT INSTEAD(177, 90, 68, 14)
#define PORT_CONTROL_RECEIVE_CAPTION "&Vastaanottopuskuri:"
#define PORT_CONTROL_RECEIVE_CAPTION_RECT INSTEAD(16, 115, 76, 10)
#define PORT_CONTROL_RECEIVE_LOW "Matala"
#define PORT_CONTROL_RECEIVE_LOW_RECT INSTEAD(96, 115, 40, 10)
#define PORT_CONTROL_RECEIVE_SLIDER_RECT INSTEAD(140, 113, 51, 18)
#define PORT_CONTROL_RECEIVE_HIGH "Korkea"
#define PORT_CONTROL_RECEIVE_HIGH_RECT INSTEAD(196, 115, 50, 10)
#define PORT_CONTROL_TRANSMIT_CAPTION "&Lähetyspuskuri:"
#define PORT_CONTROL_TRANSMIT_CAPTION_RECT INSTEAD(16, 139, 76, 10)
#define PORT_CONTROL_TRANSMIT_LOW "Matala"
#define PORT_CONTROL_TRANSMIT_LOW_RECT INSTEAD(96, 139, 40, 10)
#define PORT_CONTROL_TRANSMIT_SLIDER_RECT INSTEAD(140, 136, 51, 18)
#define PORT_CONTROL_TRANSMIT_HIGH "Korkea"
#define PORT_CONTROL_TRANSMIT_HIGH_RECT INSTEAD(196, 139, 50, 10)
#define PORT_CONTROL_APPLY "Käy&tä"
#define PORT_CONTROL_APPLY_RECT INSTEAD(33, 165, 60, 14)
#define PORT_CONTROL_SET_TO_ALL "Aseta k&aikille"
#define PORT_CONTROL_SET_TO_ALL_RECT INSTEAD(103, 165, 58, 14)
#define PORT_CONTROL_RESTORE "Palauta &oletukset"
#define PORT_CONTROL_RESTORE_RECT INSTEAD(171, 165, 74, 14)
#define PORT_CONTROL_PORT_NUMBER_CAPTION "&Portin numero:"
#define PORT_CONTROL_PORT_NUMBER_CAPTION_RECT INSTEAD(16, 218, 57, 8)
#define PORT_CONTROL_PORT_NUMBER_RECT INSTEAD(78, 216, 94, 90)
#define PORT_CONTROL_POLLING_CYCLE_CAPTION "LPT-kyselyjakso (sekuntia):"
#define PORT_CONTROL_POLLING_CYCLE_CAPTION_RECT INSTEAD(16, 195, 103, 8)
#define PORT_CONTROL_POLLING_CYCLE_RECT INSTEAD(124, 193, 72, 90)

// The dialog for "Lisäasetukset..." of the board. ACS is a function of the RS-485 driver.
#define ADVANCED_PORT_CONTROL "Porttien hallinnan lisäasetukset"
#define ADVANCED_PORT_CONTROL_UART_GROUP "UART-toiminnot"
#define ADVANCED_PORT_CONTROL_SORT_COM "Järjestä UART-piirit"
#define ADVANCED_PORT_CONTROL_SORT_COM_RECT INSTEAD(24, 60, 80, 14)
#define ADVANCED_PORT_CONTROL_TERMINATION_GROUP "RS-422/485-toiminnot"
#define ADVANCED_PORT_CONTROL_INTERFACE_CAPTION "UART-&tyyppi:"
#define ADVANCED_PORT_CONTROL_INTERFACE_CAPTION_RECT INSTEAD(25, 30, 50, 8)
#define ADVANCED_PORT_CONTROL_INTERFACE_SELECT_RECT INSTEAD(80, 28, 90, 54)
#define ADVANCED_PORT_CONTROL_ACS_GROUP "RS-485-toiminnot"
#define ADVANCED_PORT_CONTROL_ACS_ENABLE "Käytä RS-485:n &ACS-toimintoa"
#define ADVANCED_PORT_CONTROL_ACS_ENABLE_RECT INSTEAD(25, 168, 130, 12)
#define ADVANCED_PORT_CONTROL_OK "OK"
#define ADVANCED_PORT_CONTROL_CANCEL "Peruuta"
#define ADVANCED_PORT_CONTROL_RESTORE "&Oletukset"
#define ADVANCED_PORT_CONTROL_TERMINATION_ENABLE "Käytä päätevastusta"

// Message boxes.
#define STRING_OUT_OF_MEMORY \
    "Muisti ei riitä tämän toiminnon suorittamiseen.\r\rVapauta muistia sulkemalla vähintään yksi Windows-sovellus."
#define STRING_OUT_OF_MEMORY_CAPTION "Tietoliikenneportti"
#define STRING_NAME_IN_USE_QUESTION \
    "Tämä COM-nimi on jo toisen laitteen (esimerkiksi toisen COM-portin tai modeemin) käytössä. Saman nimen käyttäminen useassa laitteessa voi estää laitteiden käytön ja muuttaa asetuksia. Haluatko jatkaa?"
#define STRING_BOX_CAPTION "Tietoliikenneportin ominaisuudet"
#define STRING_RENAME_FAILED "COM-portin uudelleennimeämisessä tapahtui virhe."

// Lists: the first character separates the items, and their order carries meaning.
#define STRING_PARITY_LIST ",Parillinen,Pariton,Ei mitään,Merkki,Väli"
#define STRING_STOP_BITS_LIST ",1,1.5,2"
#define STRING_FLOW_CONTROL_LIST ",Xon / Xoff,Laitteisto,Ei mitään"

// The suffix begins with a blank and follows a port's name.
#define STRING_ADVANCED_SETTINGS_TITLE "Portin %s lisäasetukset"
#define STRING_LOW "Matala (%d)"
#define STRING_HIGH "Korkea (%d)"
#define STRING_IN_USE_SUFFIX " (käytössä)"

// The list of a channel's resources.
#define STRING_RESOURCE_TYPE "Resurssin tyyppi"
#define STRING_SETTING "Asetus"
#define STRING_IO_RANGE "I/O-alue"
#define STRING_IRQ "IRQ"
