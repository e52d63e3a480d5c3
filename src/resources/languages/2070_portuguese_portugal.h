// Portuguese (Portugal).
//
// For translators: 1033_english_united_states.h says what a text's name and its &, %d, %s and \r mean.
// A buffer is a "memória intermédia", as in Windows. A text that needs more room than the layout gives
// carries its own rectangle. The captions before the sliders stand in two lines, split at a blank. The three
// buttons under the sliders fill their row.

#define LANGUAGE_PRIMARY 0x16
#define LANGUAGE_SUB 0x02

// The page of a COM port.
#define PORT_SETTINGS "Definições da porta"
#define PORT_SETTINGS_BAUD_RATE_CAPTION "&Bits por segundo:"
#define PORT_SETTINGS_BAUD_RATE_CAPTION_RECT INSTEAD(70, 19, 68, 8)
#define PORT_SETTINGS_DATA_BITS_CAPTION "Bits de &dados:"
#define PORT_SETTINGS_DATA_BITS_CAPTION_RECT INSTEAD(70, 40, 68, 8)
#define PORT_SETTINGS_PARITY_CAPTION "&Paridade:"
#define PORT_SETTINGS_PARITY_CAPTION_RECT INSTEAD(70, 61, 68, 8)
#define PORT_SETTINGS_STOP_BITS_CAPTION "Bits de para&gem:"
#define PORT_SETTINGS_STOP_BITS_CAPTION_RECT INSTEAD(70, 82, 68, 8)
#define PORT_SETTINGS_FLOW_CONTROL_CAPTION "Controlo de &fluxo:"
#define PORT_SETTINGS_FLOW_CONTROL_CAPTION_RECT INSTEAD(70, 102, 68, 8)
#define PORT_SETTINGS_ADVANCED "A&vançadas..."
#define PORT_SETTINGS_ADVANCED_RECT INSTEAD(84, 130, 65, 14)
#define PORT_SETTINGS_RESTORE "&Restaurar predefinições"
#define PORT_SETTINGS_RESTORE_RECT INSTEAD(153, 130, 97, 14)

// The dialog for "Avançadas..." of a COM port. The number of bytes in %d has up to five digits; those of
// the low and high ends up to three.
#define ADVANCED_PORT_SETTINGS "Definições avançadas da porta"
#define ADVANCED_PORT_SETTINGS_RECT INSTEAD(0, 0, 381, 145)
#define ADVANCED_PORT_SETTINGS_LARGEFIFO "&Ativar memórias intermédias FIFO de %d bytes"
#define ADVANCED_PORT_SETTINGS_LARGEFIFO_RECT INSTEAD(23, 23, 199, 10)
#define ADVANCED_PORT_SETTINGS_RECEIVE_CAPTION "Memória intermédia de &receção:"
#define ADVANCED_PORT_SETTINGS_RECEIVE_CAPTION_RECT INSTEAD(23, 50, 76, 17)
#define ADVANCED_PORT_SETTINGS_RECEIVE_LOW "Baixa (%d)"
#define ADVANCED_PORT_SETTINGS_RECEIVE_LOW_RECT INSTEAD(103, 53, 44, 10)
#define ADVANCED_PORT_SETTINGS_RECEIVE_SLIDER_RECT INSTEAD(148, 51, 100, 18)
#define ADVANCED_PORT_SETTINGS_RECEIVE_HIGH "Alta (%d)"
#define ADVANCED_PORT_SETTINGS_RECEIVE_HIGH_RECT INSTEAD(256, 53, 38, 10)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_CAPTION "Memória intermédia de &transmissão:"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_CAPTION_RECT INSTEAD(23, 76, 76, 17)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_LOW "Baixa (%d)"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_LOW_RECT INSTEAD(103, 79, 44, 10)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_SLIDER_RECT INSTEAD(148, 76, 100, 20)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_HIGH "Alta (%d)"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_HIGH_RECT INSTEAD(256, 79, 38, 10)
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_CAPTION "Número da &porta COM:"
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_CAPTION_RECT INSTEAD(13, 120, 88, 8)
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_RECT INSTEAD(106, 118, 111, 90)
#define ADVANCED_PORT_SETTINGS_OK "OK"
#define ADVANCED_PORT_SETTINGS_OK_RECT INSTEAD(311, 12, 59, 14)
#define ADVANCED_PORT_SETTINGS_CANCEL "Cancelar"
#define ADVANCED_PORT_SETTINGS_CANCEL_RECT INSTEAD(311, 31, 59, 14)
#define ADVANCED_PORT_SETTINGS_RESTORE "Pre&definições"
#define ADVANCED_PORT_SETTINGS_RESTORE_RECT INSTEAD(311, 62, 59, 14)

// The page of the board. STRING_LOW and STRING_HIGH replace the low and high ends at run time.
#define PORT_CONTROL "Controlo de portas"
#define PORT_CONTROL_LARGEFIFO "Ativar memórias intermédias FIFO &grandes"
#define PORT_CONTROL_LARGEFIFO_RECT INSTEAD(16, 93, 170, 12)
#define PORT_CONTROL_ADVANCED "A&vançadas..."
#define PORT_CONTROL_ADVANCED_RECT INSTEAD(188, 90, 57, 14)
#define PORT_CONTROL_RECEIVE_CAPTION "Memória intermédia de &receção:"
#define PORT_CONTROL_RECEIVE_CAPTION_RECT INSTEAD(16, 112, 76, 17)
#define PORT_CONTROL_RECEIVE_LOW "Baixa"
#define PORT_CONTROL_RECEIVE_LOW_RECT INSTEAD(96, 115, 35, 10)
#define PORT_CONTROL_RECEIVE_SLIDER_RECT INSTEAD(135, 113, 68, 18)
#define PORT_CONTROL_RECEIVE_HIGH "Alta"
#define PORT_CONTROL_RECEIVE_HIGH_RECT INSTEAD(208, 115, 38, 10)
#define PORT_CONTROL_TRANSMIT_CAPTION "Memória intermédia de &transmissão:"
#define PORT_CONTROL_TRANSMIT_CAPTION_RECT INSTEAD(16, 136, 76, 17)
#define PORT_CONTROL_TRANSMIT_LOW "Baixa"
#define PORT_CONTROL_TRANSMIT_LOW_RECT INSTEAD(96, 139, 35, 10)
#define PORT_CONTROL_TRANSMIT_SLIDER_RECT INSTEAD(135, 136, 68, 18)
#define PORT_CONTROL_TRANSMIT_HIGH "Alta"
#define PORT_CONTROL_TRANSMIT_HIGH_RECT INSTEAD(208, 139, 38, 10)
#define PORT_CONTROL_APPLY "Ap&licar"
#define PORT_CONTROL_APPLY_RECT INSTEAD(13, 165, 46, 14)
#define PORT_CONTROL_SET_TO_ALL "Definir para t&odas"
#define PORT_CONTROL_SET_TO_ALL_RECT INSTEAD(66, 165, 75, 14)
#define PORT_CONTROL_RESTORE "Restaurar pre&definições"
#define PORT_CONTROL_RESTORE_RECT INSTEAD(148, 165, 97, 14)
#define PORT_CONTROL_PORT_NUMBER_CAPTION "Número da &porta:"
#define PORT_CONTROL_PORT_NUMBER_CAPTION_RECT INSTEAD(16, 218, 67, 8)
#define PORT_CONTROL_PORT_NUMBER_RECT INSTEAD(88, 216, 111, 90)
#define PORT_CONTROL_POLLING_CYCLE_CAPTION "Ciclo de consulta LPT (segundos):"
#define PORT_CONTROL_POLLING_CYCLE_CAPTION_RECT INSTEAD(16, 195, 130, 8)
#define PORT_CONTROL_POLLING_CYCLE_RECT INSTEAD(151, 193, 72, 90)

// The dialog for "Avançadas..." of the board. ACS is a function of the RS-485 driver.
#define ADVANCED_PORT_CONTROL "Controlo avançado de portas"
#define ADVANCED_PORT_CONTROL_RECT INSTEAD(0, 0, 292, 202)
#define ADVANCED_PORT_CONTROL_UART_GROUP "Funções UART"
#define ADVANCED_PORT_CONTROL_SORT_COM "Ordenar UART"
#define ADVANCED_PORT_CONTROL_SORT_COM_RECT INSTEAD(24, 60, 62, 14)
#define ADVANCED_PORT_CONTROL_TERMINATION_GROUP "Funções RS-422/485"
#define ADVANCED_PORT_CONTROL_INTERFACE_CAPTION "&Tipo de UART:"
#define ADVANCED_PORT_CONTROL_INTERFACE_CAPTION_RECT INSTEAD(25, 30, 56, 8)
#define ADVANCED_PORT_CONTROL_INTERFACE_SELECT_RECT INSTEAD(86, 28, 90, 54)
#define ADVANCED_PORT_CONTROL_ACS_GROUP "Funções RS-485"
#define ADVANCED_PORT_CONTROL_ACS_ENABLE "Ativar função &ACS do RS-485"
#define ADVANCED_PORT_CONTROL_ACS_ENABLE_RECT INSTEAD(25, 168, 125, 12)
#define ADVANCED_PORT_CONTROL_OK "OK"
#define ADVANCED_PORT_CONTROL_OK_RECT INSTEAD(224, 12, 59, 14)
#define ADVANCED_PORT_CONTROL_CANCEL "Cancelar"
#define ADVANCED_PORT_CONTROL_CANCEL_RECT INSTEAD(224, 32, 59, 14)
#define ADVANCED_PORT_CONTROL_RESTORE "Pre&definições"
#define ADVANCED_PORT_CONTROL_RESTORE_RECT INSTEAD(224, 52, 59, 14)
#define ADVANCED_PORT_CONTROL_TERMINATION_ENABLE "Ativar terminação"

// Message boxes.
#define STRING_OUT_OF_MEMORY \
    "Memória insuficiente para esta operação;\r\rfeche uma ou mais aplicações do Windows para aumentar a memória disponível."
#define STRING_OUT_OF_MEMORY_CAPTION "Porta de comunicações"
#define STRING_NAME_IN_USE_QUESTION \
    "Este nome COM está a ser utilizado por outro dispositivo (tal como outra porta COM ou um modem). A utilização de nomes duplicados pode tornar os dispositivos inacessíveis e alterar as definições. Pretende continuar?"
#define STRING_BOX_CAPTION "Propriedades da porta de comunicações"
#define STRING_RENAME_FAILED "Ocorreu um erro ao mudar o nome da porta COM."

// Lists: the first character separates the items, and their order carries meaning.
#define STRING_PARITY_LIST ",Par,Ímpar,Nenhuma,Marca,Espaço"
#define STRING_STOP_BITS_LIST ",1,1.5,2"
#define STRING_FLOW_CONTROL_LIST ",Xon / Xoff,Hardware,Nenhum"

// The suffix begins with a blank and follows a port's name.
#define STRING_ADVANCED_SETTINGS_TITLE "Definições avançadas de %s"
#define STRING_LOW "Baixa (%d)"
#define STRING_HIGH "Alta (%d)"
#define STRING_IN_USE_SUFFIX " (em utilização)"

// The list of a channel's resources.
#define STRING_RESOURCE_TYPE "Tipo de recurso"
#define STRING_SETTING "Definição"
#define STRING_IO_RANGE "Intervalo de E/S"
#define STRING_IRQ "IRQ"
