// Spanish.
//
// For translators: 1033_english_united_states.h says what a text's name and its &, %d, %s and \r mean. A
// text that needs more room than the layout gives carries its own rectangle. The three buttons under the
// sliders fill their row.

#define LANGUAGE_PRIMARY 0x0A
#define LANGUAGE_SUB 0x03

// The page of a COM port.
#define PORT_SETTINGS "Configuración de puerto"
#define PORT_SETTINGS_BAUD_RATE_CAPTION "&Bits por segundo:"
#define PORT_SETTINGS_BAUD_RATE_CAPTION_RECT INSTEAD(70, 19, 68, 8)
#define PORT_SETTINGS_DATA_BITS_CAPTION "Bits de &datos:"
#define PORT_SETTINGS_DATA_BITS_CAPTION_RECT INSTEAD(70, 40, 68, 8)
#define PORT_SETTINGS_PARITY_CAPTION "&Paridad:"
#define PORT_SETTINGS_PARITY_CAPTION_RECT INSTEAD(70, 61, 68, 8)
#define PORT_SETTINGS_STOP_BITS_CAPTION "Bit&s de parada:"
#define PORT_SETTINGS_STOP_BITS_CAPTION_RECT INSTEAD(70, 82, 68, 8)
#define PORT_SETTINGS_FLOW_CONTROL_CAPTION "Control de &flujo:"
#define PORT_SETTINGS_FLOW_CONTROL_CAPTION_RECT INSTEAD(70, 102, 68, 8)
#define PORT_SETTINGS_ADVANCED "&Opciones avanzadas..."
#define PORT_SETTINGS_ADVANCED_RECT INSTEAD(42, 130, 94, 14)
#define PORT_SETTINGS_RESTORE "&Restaurar predeterminados"
#define PORT_SETTINGS_RESTORE_RECT INSTEAD(140, 130, 110, 14)

// The dialog for "Opciones avanzadas..." of a COM port. The number of bytes in %d has up to five digits;
// those of the low and high ends up to three.
#define ADVANCED_PORT_SETTINGS "Configuración avanzada de puerto"
#define ADVANCED_PORT_SETTINGS_RECT INSTEAD(0, 0, 394, 145)
#define ADVANCED_PORT_SETTINGS_LARGEFIFO "&Habilitar búferes FIFO de %d bytes"
#define ADVANCED_PORT_SETTINGS_RECEIVE_CAPTION "Búfer de &recepción:"
#define ADVANCED_PORT_SETTINGS_RECEIVE_CAPTION_RECT INSTEAD(23, 53, 82, 10)
#define ADVANCED_PORT_SETTINGS_RECEIVE_LOW "Bajo (%d)"
#define ADVANCED_PORT_SETTINGS_RECEIVE_LOW_RECT INSTEAD(109, 53, 40, 10)
#define ADVANCED_PORT_SETTINGS_RECEIVE_SLIDER_RECT INSTEAD(150, 51, 98, 18)
#define ADVANCED_PORT_SETTINGS_RECEIVE_HIGH "Alto (%d)"
#define ADVANCED_PORT_SETTINGS_RECEIVE_HIGH_RECT INSTEAD(256, 53, 38, 10)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_CAPTION "Búfer de &transmisión:"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_CAPTION_RECT INSTEAD(23, 79, 82, 10)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_LOW "Bajo (%d)"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_LOW_RECT INSTEAD(109, 79, 40, 10)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_SLIDER_RECT INSTEAD(150, 76, 98, 20)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_HIGH "Alto (%d)"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_HIGH_RECT INSTEAD(256, 79, 38, 10)
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_CAPTION "Número de &puerto COM:"
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_CAPTION_RECT INSTEAD(13, 120, 92, 8)
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_RECT INSTEAD(110, 118, 90, 90)
#define ADVANCED_PORT_SETTINGS_OK "Aceptar"
#define ADVANCED_PORT_SETTINGS_OK_RECT INSTEAD(311, 12, 72, 14)
#define ADVANCED_PORT_SETTINGS_CANCEL "Cancelar"
#define ADVANCED_PORT_SETTINGS_CANCEL_RECT INSTEAD(311, 31, 72, 14)
#define ADVANCED_PORT_SETTINGS_RESTORE "Pre&determinados"
#define ADVANCED_PORT_SETTINGS_RESTORE_RECT INSTEAD(311, 62, 72, 14)

// The page of the board. STRING_LOW and STRING_HIGH replace the low and high ends at run time.
#define PORT_CONTROL "Control de puertos"
#define PORT_CONTROL_LARGEFIFO "&Habilitar búferes FIFO grandes"
#define PORT_CONTROL_LARGEFIFO_RECT INSTEAD(16, 93, 130, 12)
#define PORT_CONTROL_ADVANCED "Opciones a&vanzadas..."
#define PORT_CONTROL_ADVANCED_RECT INSTEAD(151, 90, 94, 14)
#define PORT_CONTROL_RECEIVE_CAPTION "Búfer de &recepción:"
#define PORT_CONTROL_RECEIVE_CAPTION_RECT INSTEAD(16, 115, 82, 10)
#define PORT_CONTROL_RECEIVE_LOW "Bajo"
#define PORT_CONTROL_RECEIVE_LOW_RECT INSTEAD(102, 115, 31, 10)
#define PORT_CONTROL_RECEIVE_SLIDER_RECT INSTEAD(137, 113, 66, 18)
#define PORT_CONTROL_RECEIVE_HIGH "Alto"
#define PORT_CONTROL_RECEIVE_HIGH_RECT INSTEAD(208, 115, 38, 10)
#define PORT_CONTROL_TRANSMIT_CAPTION "Búfer de &transmisión:"
#define PORT_CONTROL_TRANSMIT_CAPTION_RECT INSTEAD(16, 139, 82, 10)
#define PORT_CONTROL_TRANSMIT_LOW "Bajo"
#define PORT_CONTROL_TRANSMIT_LOW_RECT INSTEAD(102, 139, 31, 10)
#define PORT_CONTROL_TRANSMIT_SLIDER_RECT INSTEAD(137, 136, 66, 18)
#define PORT_CONTROL_TRANSMIT_HIGH "Alto"
#define PORT_CONTROL_TRANSMIT_HIGH_RECT INSTEAD(208, 139, 38, 10)
#define PORT_CONTROL_APPLY "Apl&icar"
#define PORT_CONTROL_APPLY_RECT INSTEAD(14, 165, 40, 14)
#define PORT_CONTROL_SET_TO_ALL "Asignar a t&odos"
#define PORT_CONTROL_SET_TO_ALL_RECT INSTEAD(61, 165, 67, 14)
#define PORT_CONTROL_RESTORE "Restaurar pre&determinados"
#define PORT_CONTROL_RESTORE_RECT INSTEAD(135, 165, 110, 14)
#define PORT_CONTROL_PORT_NUMBER_CAPTION "Número de &puerto:"
#define PORT_CONTROL_PORT_NUMBER_CAPTION_RECT INSTEAD(16, 218, 72, 8)
#define PORT_CONTROL_PORT_NUMBER_RECT INSTEAD(93, 216, 90, 90)
#define PORT_CONTROL_POLLING_CYCLE_CAPTION "Ciclo de sondeo LPT (segundos):"
#define PORT_CONTROL_POLLING_CYCLE_CAPTION_RECT INSTEAD(16, 195, 126, 8)
#define PORT_CONTROL_POLLING_CYCLE_RECT INSTEAD(147, 193, 72, 90)

// The dialog for "Opciones avanzadas..." of the board. ACS is a function of the RS-485 driver.
#define ADVANCED_PORT_CONTROL "Control avanzado de puertos"
#define ADVANCED_PORT_CONTROL_RECT INSTEAD(0, 0, 305, 202)
#define ADVANCED_PORT_CONTROL_UART_GROUP "Funciones UART"
#define ADVANCED_PORT_CONTROL_SORT_COM "Ordenar UART"
#define ADVANCED_PORT_CONTROL_SORT_COM_RECT INSTEAD(24, 60, 62, 14)
#define ADVANCED_PORT_CONTROL_TERMINATION_GROUP "Funciones RS-422/485"
#define ADVANCED_PORT_CONTROL_INTERFACE_CAPTION "&Tipo de UART:"
#define ADVANCED_PORT_CONTROL_INTERFACE_CAPTION_RECT INSTEAD(25, 30, 56, 8)
#define ADVANCED_PORT_CONTROL_INTERFACE_SELECT_RECT INSTEAD(86, 28, 90, 54)
#define ADVANCED_PORT_CONTROL_ACS_GROUP "Funciones RS-485"
#define ADVANCED_PORT_CONTROL_ACS_ENABLE "Habilitar función &ACS de RS-485"
#define ADVANCED_PORT_CONTROL_ACS_ENABLE_RECT INSTEAD(25, 168, 136, 12)
#define ADVANCED_PORT_CONTROL_OK "Aceptar"
#define ADVANCED_PORT_CONTROL_OK_RECT INSTEAD(224, 12, 72, 14)
#define ADVANCED_PORT_CONTROL_CANCEL "Cancelar"
#define ADVANCED_PORT_CONTROL_CANCEL_RECT INSTEAD(224, 32, 72, 14)
#define ADVANCED_PORT_CONTROL_RESTORE "Pre&determinados"
#define ADVANCED_PORT_CONTROL_RESTORE_RECT INSTEAD(224, 52, 72, 14)
#define ADVANCED_PORT_CONTROL_TERMINATION_ENABLE "Habilitar terminación"

// Message boxes.
#define STRING_OUT_OF_MEMORY \
    "Memoria insuficiente para esta operación;\r\rcierre una o más aplicaciones de Windows para aumentar la memoria disponible."
#define STRING_OUT_OF_MEMORY_CAPTION "Puerto de comunicaciones"
#define STRING_NAME_IN_USE_QUESTION \
    "Otro dispositivo (por ejemplo, otro puerto COM o un módem) ya usa este nombre COM. El uso de nombres duplicados puede hacer que los dispositivos queden inaccesibles y que cambie su configuración. ¿Desea continuar?"
#define STRING_BOX_CAPTION "Propiedades del puerto de comunicaciones"
#define STRING_RENAME_FAILED "Se produjo un error al cambiar el nombre del puerto COM."

// Lists: the first character separates the items, and their order carries meaning.
#define STRING_PARITY_LIST ",Par,Impar,Ninguna,Marca,Espacio"
#define STRING_STOP_BITS_LIST ",1,1.5,2"
#define STRING_FLOW_CONTROL_LIST ",Xon / Xoff,Hardware,Ninguno"

// The suffix begins with a blank and follows a port's name.
#define STRING_ADVANCED_SETTINGS_TITLE "Configuración avanzada de %s"
#define STRING_LOW "Bajo (%d)"
#define STRING_HIGH "Alto (%d)"
#define STRING_IN_USE_SUFFIX " (en uso)"

// The list of a channel's resources.
#define STRING_RESOURCE_TYPE "Tipo de recurso"
#define STRING_SETTING "Configuración"
#define STRING_IO_RANGE "Intervalo de E/S"
#define STRING_IRQ "IRQ"
