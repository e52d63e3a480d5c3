// Portuguese (Brazil).
//
// For translators: 1033_english_united_states.h says what a text's name and its &, %d, %s and \r mean. A
// text that needs more room than the layout gives carries its own rectangle.

#define LANGUAGE_PRIMARY 0x16
#define LANGUAGE_SUB 0x01

// The page of a COM port.
#define PORT_SETTINGS "Configurações da porta"
#define PORT_SETTINGS_BAUD_RATE_CAPTION "&Bits por segundo:"
#define PORT_SETTINGS_BAUD_RATE_CAPTION_RECT INSTEAD(70, 19, 68, 8)
#define PORT_SETTINGS_DATA_BITS_CAPTION "Bits de &dados:"
#define PORT_SETTINGS_DATA_BITS_CAPTION_RECT INSTEAD(70, 40, 68, 8)
#define PORT_SETTINGS_PARITY_CAPTION "&Paridade:"
#define PORT_SETTINGS_PARITY_CAPTION_RECT INSTEAD(70, 61, 68, 8)
#define PORT_SETTINGS_STOP_BITS_CAPTION "Bit&s de parada:"
#define PORT_SETTINGS_STOP_BITS_CAPTION_RECT INSTEAD(70, 82, 68, 8)
#define PORT_SETTINGS_FLOW_CONTROL_CAPTION "Controle de &fluxo:"
#define PORT_SETTINGS_FLOW_CONTROL_CAPTION_RECT INSTEAD(70, 102, 68, 8)
#define PORT_SETTINGS_ADVANCED "A&vançado..."
#define PORT_SETTINGS_ADVANCED_RECT INSTEAD(104, 130, 65, 14)
#define PORT_SETTINGS_RESTORE "&Restaurar padrões"
#define PORT_SETTINGS_RESTORE_RECT INSTEAD(173, 130, 77, 14)

// The dialog for "Avançado..." of a COM port. The number of bytes in %d has up to five digits; those of
// the low and high ends up to three.
#define ADVANCED_PORT_SETTINGS "Configurações avançadas da porta"
#define ADVANCED_PORT_SETTINGS_LARGEFIFO "&Habilitar buffers FIFO de %d bytes"
#define ADVANCED_PORT_SETTINGS_RECEIVE_CAPTION "Buffer de &recepção:"
#define ADVANCED_PORT_SETTINGS_RECEIVE_CAPTION_RECT INSTEAD(23, 53, 86, 10)
#define ADVANCED_PORT_SETTINGS_RECEIVE_LOW "Baixo (%d)"
#define ADVANCED_PORT_SETTINGS_RECEIVE_LOW_RECT INSTEAD(113, 53, 44, 10)
#define ADVANCED_PORT_SETTINGS_RECEIVE_SLIDER_RECT INSTEAD(158, 51, 90, 18)
#define ADVANCED_PORT_SETTINGS_RECEIVE_HIGH "Alto (%d)"
#define ADVANCED_PORT_SETTINGS_RECEIVE_HIGH_RECT INSTEAD(256, 53, 38, 10)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_CAPTION "Buffer de &transmissão:"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_CAPTION_RECT INSTEAD(23, 79, 86, 10)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_LOW "Baixo (%d)"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_LOW_RECT INSTEAD(113, 79, 44, 10)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_SLIDER_RECT INSTEAD(158, 76, 90, 20)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_HIGH "Alto (%d)"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_HIGH_RECT INSTEAD(256, 79, 38, 10)
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_CAPTION "Número da &porta COM:"
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_CAPTION_RECT INSTEAD(13, 120, 88, 8)
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_RECT INSTEAD(106, 118, 90, 90)
#define ADVANCED_PORT_SETTINGS_OK "OK"
#define ADVANCED_PORT_SETTINGS_CANCEL "Cancelar"
#define ADVANCED_PORT_SETTINGS_RESTORE "Pa&drões"

// The page of the board. STRING_LOW and STRING_HIGH replace the low and high ends at run time.
#define PORT_CONTROL "Controle de portas"
#define PORT_CONTROL_LARGEFIFO "&Habilitar buffers FIFO grandes"
#define PORT_CONTROL_LARGEFIFO_RECT INSTEAD(16, 93, 128, 12)
#define PORT_CONTROL_ADVANCED "A&vançado..."
#define PORT_CONTROL_RECEIVE_CAPTION "Buffer de &recepção:"
#define PORT_CONTROL_RECEIVE_CAPTION_RECT INSTEAD(16, 115, 86, 10)
#define PORT_CONTROL_RECEIVE_LOW "Baixo"
#define PORT_CONTROL_RECEIVE_LOW_RECT INSTEAD(106, 115, 35, 10)
#define PORT_CONTROL_RECEIVE_SLIDER_RECT INSTEAD(145, 113, 58, 18)
#define PORT_CONTROL_RECEIVE_HIGH "Alto"
#define PORT_CONTROL_RECEIVE_HIGH_RECT INSTEAD(208, 115, 38, 10)
#define PORT_CONTROL_TRANSMIT_CAPTION "Buffer de &transmissão:"
#define PORT_CONTROL_TRANSMIT_CAPTION_RECT INSTEAD(16, 139, 86, 10)
#define PORT_CONTROL_TRANSMIT_LOW "Baixo"
#define PORT_CONTROL_TRANSMIT_LOW_RECT INSTEAD(106, 139, 35, 10)
#define PORT_CONTROL_TRANSMIT_SLIDER_RECT INSTEAD(145, 136, 58, 18)
#define PORT_CONTROL_TRANSMIT_HIGH "Alto"
#define PORT_CONTROL_TRANSMIT_HIGH_RECT INSTEAD(208, 139, 38, 10)
#define PORT_CONTROL_APPLY "Ap&licar"
#define PORT_CONTROL_APPLY_RECT INSTEAD(13, 165, 60, 14)
#define PORT_CONTROL_SET_TO_ALL "Definir para t&odas"
#define PORT_CONTROL_SET_TO_ALL_RECT INSTEAD(83, 165, 75, 14)
#define PORT_CONTROL_RESTORE "Restaurar pa&drões"
#define PORT_CONTROL_RESTORE_RECT INSTEAD(168, 165, 77, 14)
#define PORT_CONTROL_PORT_NUMBER_CAPTION "Número da &porta:"
#define PORT_CONTROL_PORT_NUMBER_CAPTION_RECT INSTEAD(16, 218, 67, 8)
#define PORT_CONTROL_PORT_NUMBER_RECT INSTEAD(88, 216, 90, 90)
#define PORT_CONTROL_POLLING_CYCLE_CAPTION "Ciclo de sondagem LPT (segundos):"
#define PORT_CONTROL_POLLING_CYCLE_CAPTION_RECT INSTEAD(16, 195, 137, 8)
#define PORT_CONTROL_POLLING_CYCLE_RECT INSTEAD(158, 193, 72, 90)

// The dialog for "Avançado..." of the board. ACS is a function of the RS-485 driver.
#define ADVANCED_PORT_CONTROL "Controle avançado de portas"
#define ADVANCED_PORT_CONTROL_UART_GROUP "Funções UART"
#define ADVANCED_PORT_CONTROL_SORT_COM "Ordenar UARTs"
#define ADVANCED_PORT_CONTROL_SORT_COM_RECT INSTEAD(24, 60, 66, 14)
#define ADVANCED_PORT_CONTROL_TERMINATION_GROUP "Funções RS-422/485"
#define ADVANCED_PORT_CONTROL_INTERFACE_CAPTION "&Tipo de UART:"
#define ADVANCED_PORT_CONTROL_INTERFACE_CAPTION_RECT INSTEAD(25, 30, 56, 8)
#define ADVANCED_PORT_CONTROL_INTERFACE_SELECT_RECT INSTEAD(86, 28, 90, 54)
#define ADVANCED_PORT_CONTROL_ACS_GROUP "Funções RS-485"
#define ADVANCED_PORT_CONTROL_ACS_ENABLE "Habilitar função &ACS do RS-485"
#define ADVANCED_PORT_CONTROL_ACS_ENABLE_RECT INSTEAD(25, 168, 134, 12)
#define ADVANCED_PORT_CONTROL_OK "OK"
#define ADVANCED_PORT_CONTROL_CANCEL "Cancelar"
#define ADVANCED_PORT_CONTROL_RESTORE "Pa&drões"
#define ADVANCED_PORT_CONTROL_TERMINATION_ENABLE "Habilitar terminação"

// Message boxes.
#define STRING_OUT_OF_MEMORY \
    "Memória insuficiente para esta operação;\r\rfeche um ou mais aplicativos do Windows para aumentar a memória disponível."
#define STRING_OUT_OF_MEMORY_CAPTION "Porta de comunicação"
#define STRING_NAME_IN_USE_QUESTION \
    "Este nome COM está sendo usado por outro dispositivo (como outra porta COM ou um modem). O uso de nomes duplicados pode tornar os dispositivos inacessíveis e alterar as configurações. Deseja continuar?"
#define STRING_BOX_CAPTION "Propriedades da porta de comunicação"
#define STRING_RENAME_FAILED "Ocorreu um erro ao renomear a porta COM."

// Lists: the first character separates the items, and their order carries meaning.
#define STRING_PARITY_LIST ",Par,Ímpar,Nenhuma,Marca,Espaço"
#define STRING_STOP_BITS_LIST ",1,1.5,2"
#define STRING_FLOW_CONTROL_LIST ",Xon / Xoff,Hardware,Nenhum"

// The suffix begins with a blank and follows a port's name.
#define STRING_ADVANCED_SETTINGS_TITLE "Configurações avançadas para %s"
#define STRING_LOW "Baixo (%d)"
#define STRING_HIGH "Alto (%d)"
#define STRING_IN_USE_SUFFIX " (em uso)"

// The list of a channel's resources.
#define STRING_RESOURCE_TYPE "Tipo de recurso"
#define STRING_SETTING "Configuração"
#define STRING_IO_RANGE "Intervalo de E/S"
#define STRING_IRQ "IRQ"
