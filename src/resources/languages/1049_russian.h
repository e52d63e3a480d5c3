// Russian.
//
// For translators: 1033_english_united_states.h says what a text's name and its &, %d, %s and \r mean.
// The letters after & are Cyrillic, those of ОК too. The letter ё is written е, as Windows does. A text that
// needs more room than the layout gives carries its own rectangle. On the board's page a caption before a
// slider stands in two lines, split at a blank.

#define LANGUAGE_PRIMARY 0x19
#define LANGUAGE_SUB 0x01

// The page of a COM port.
#define PORT_SETTINGS "Параметры порта"
#define PORT_SETTINGS_BAUD_RATE_CAPTION "С&корость (бит/с):"
#define PORT_SETTINGS_BAUD_RATE_CAPTION_RECT INSTEAD(55, 19, 83, 8)
#define PORT_SETTINGS_DATA_BITS_CAPTION "&Биты данных:"
#define PORT_SETTINGS_DATA_BITS_CAPTION_RECT INSTEAD(55, 40, 83, 8)
#define PORT_SETTINGS_PARITY_CAPTION "&Четность:"
#define PORT_SETTINGS_PARITY_CAPTION_RECT INSTEAD(55, 61, 83, 8)
#define PORT_SETTINGS_STOP_BITS_CAPTION "&Стоповые биты:"
#define PORT_SETTINGS_STOP_BITS_CAPTION_RECT INSTEAD(55, 82, 83, 8)
#define PORT_SETTINGS_FLOW_CONTROL_CAPTION "&Управление потоком:"
#define PORT_SETTINGS_FLOW_CONTROL_CAPTION_RECT INSTEAD(55, 102, 83, 8)
#define PORT_SETTINGS_ADVANCED "&Дополнительно..."
#define PORT_SETTINGS_ADVANCED_RECT INSTEAD(66, 130, 76, 14)
#define PORT_SETTINGS_RESTORE "&Восстановить умолчания"
#define PORT_SETTINGS_RESTORE_RECT INSTEAD(146, 130, 104, 14)

// The dialog for "Дополнительно..." of a COM port. The number of bytes in %d has up to five digits; those
// of the low and high ends up to three.
#define ADVANCED_PORT_SETTINGS "Дополнительные параметры порта"
#define ADVANCED_PORT_SETTINGS_RECT INSTEAD(0, 0, 386, 145)
#define ADVANCED_PORT_SETTINGS_LARGEFIFO "&Включить буферы FIFO (%d байт)"
#define ADVANCED_PORT_SETTINGS_RECEIVE_CAPTION "Буфер &приема:"
#define ADVANCED_PORT_SETTINGS_RECEIVE_CAPTION_RECT INSTEAD(23, 53, 68, 10)
#define ADVANCED_PORT_SETTINGS_RECEIVE_LOW "Низкий (%d)"
#define ADVANCED_PORT_SETTINGS_RECEIVE_LOW_RECT INSTEAD(98, 53, 50, 10)
#define ADVANCED_PORT_SETTINGS_RECEIVE_SLIDER_RECT INSTEAD(149, 51, 81, 18)
#define ADVANCED_PORT_SETTINGS_RECEIVE_HIGH "Высокий (%d)"
#define ADVANCED_PORT_SETTINGS_RECEIVE_HIGH_RECT INSTEAD(238, 53, 56, 10)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_CAPTION "Буфер п&ередачи:"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_CAPTION_RECT INSTEAD(23, 79, 68, 10)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_LOW "Низкий (%d)"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_LOW_RECT INSTEAD(98, 79, 50, 10)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_SLIDER_RECT INSTEAD(149, 76, 81, 20)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_HIGH "Высокий (%d)"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_HIGH_RECT INSTEAD(238, 79, 56, 10)
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_CAPTION "&Номер COM-порта:"
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_CAPTION_RECT INSTEAD(13, 120, 74, 8)
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_RECT INSTEAD(92, 118, 112, 90)
#define ADVANCED_PORT_SETTINGS_OK "ОК"
#define ADVANCED_PORT_SETTINGS_OK_RECT INSTEAD(311, 12, 64, 14)
#define ADVANCED_PORT_SETTINGS_CANCEL "Отмена"
#define ADVANCED_PORT_SETTINGS_CANCEL_RECT INSTEAD(311, 31, 64, 14)
#define ADVANCED_PORT_SETTINGS_RESTORE "По &умолчанию"
#define ADVANCED_PORT_SETTINGS_RESTORE_RECT INSTEAD(311, 62, 64, 14)

// The page of the board. STRING_LOW and STRING_HIGH replace the low and high ends at run time.
#define PORT_CONTROL "Управление портами"
#define PORT_CONTROL_LARGEFIFO "Включить &большие буферы FIFO"
#define PORT_CONTROL_LARGEFIFO_RECT INSTEAD(16, 93, 140, 12)
#define PORT_CONTROL_ADVANCED "&Дополнительно..."
#define PORT_CONTROL_ADVANCED_RECT INSTEAD(169, 90, 76, 14)
#define PORT_CONTROL_RECEIVE_CAPTION "Буфер &приема:"
#define PORT_CONTROL_RECEIVE_CAPTION_RECT INSTEAD(16, 112, 53, 17)
#define PORT_CONTROL_RECEIVE_LOW "Низкий"
#define PORT_CONTROL_RECEIVE_LOW_RECT INSTEAD(75, 115, 41, 10)
#define PORT_CONTROL_RECEIVE_SLIDER_RECT INSTEAD(120, 113, 65, 18)
#define PORT_CONTROL_RECEIVE_HIGH "Высокий"
#define PORT_CONTROL_RECEIVE_HIGH_RECT INSTEAD(190, 115, 56, 10)
#define PORT_CONTROL_TRANSMIT_CAPTION "Буфер п&ередачи:"
#define PORT_CONTROL_TRANSMIT_CAPTION_RECT INSTEAD(16, 136, 53, 17)
#define PORT_CONTROL_TRANSMIT_LOW "Низкий"
#define PORT_CONTROL_TRANSMIT_LOW_RECT INSTEAD(75, 139, 41, 10)
#define PORT_CONTROL_TRANSMIT_SLIDER_RECT INSTEAD(120, 136, 65, 18)
#define PORT_CONTROL_TRANSMIT_HIGH "Высокий"
#define PORT_CONTROL_TRANSMIT_HIGH_RECT INSTEAD(190, 139, 56, 10)
#define PORT_CONTROL_APPLY "П&рименить"
#define PORT_CONTROL_APPLY_RECT INSTEAD(31, 165, 60, 14)
#define PORT_CONTROL_SET_TO_ALL "Задать для &всех"
#define PORT_CONTROL_SET_TO_ALL_RECT INSTEAD(101, 165, 70, 14)
#define PORT_CONTROL_RESTORE "По &умолчанию"
#define PORT_CONTROL_RESTORE_RECT INSTEAD(181, 165, 64, 14)
#define PORT_CONTROL_PORT_NUMBER_CAPTION "&Номер порта:"
#define PORT_CONTROL_PORT_NUMBER_CAPTION_RECT INSTEAD(16, 218, 54, 8)
#define PORT_CONTROL_PORT_NUMBER_RECT INSTEAD(75, 216, 112, 90)
#define PORT_CONTROL_POLLING_CYCLE_CAPTION "Период опроса LPT (в секундах):"
#define PORT_CONTROL_POLLING_CYCLE_CAPTION_RECT INSTEAD(16, 195, 128, 8)
#define PORT_CONTROL_POLLING_CYCLE_RECT INSTEAD(149, 193, 72, 90)

// The dialog for "Дополнительно..." of the board. ACS is a function of the RS-485 driver.
#define ADVANCED_PORT_CONTROL "Дополнительные параметры управления портами"
#define ADVANCED_PORT_CONTROL_RECT INSTEAD(0, 0, 297, 202)
#define ADVANCED_PORT_CONTROL_UART_GROUP "Функции UART"
#define ADVANCED_PORT_CONTROL_SORT_COM "Упорядочить UART"
#define ADVANCED_PORT_CONTROL_SORT_COM_RECT INSTEAD(24, 60, 80, 14)
#define ADVANCED_PORT_CONTROL_TERMINATION_GROUP "Функции RS-422/485"
#define ADVANCED_PORT_CONTROL_INTERFACE_CAPTION "&Тип UART:"
#define ADVANCED_PORT_CONTROL_INTERFACE_CAPTION_RECT INSTEAD(25, 30, 41, 8)
#define ADVANCED_PORT_CONTROL_ACS_GROUP "Функции RS-485"
#define ADVANCED_PORT_CONTROL_ACS_ENABLE "Включить &функцию ACS для RS-485"
#define ADVANCED_PORT_CONTROL_ACS_ENABLE_RECT INSTEAD(25, 168, 152, 12)
#define ADVANCED_PORT_CONTROL_OK "ОК"
#define ADVANCED_PORT_CONTROL_OK_RECT INSTEAD(224, 12, 64, 14)
#define ADVANCED_PORT_CONTROL_CANCEL "Отмена"
#define ADVANCED_PORT_CONTROL_CANCEL_RECT INSTEAD(224, 32, 64, 14)
#define ADVANCED_PORT_CONTROL_RESTORE "По &умолчанию"
#define ADVANCED_PORT_CONTROL_RESTORE_RECT INSTEAD(224, 52, 64, 14)
#define ADVANCED_PORT_CONTROL_TERMINATION_ENABLE "Включить терминатор"

// Message boxes.
#define STRING_OUT_OF_MEMORY \
    "Недостаточно памяти для выполнения операции.\r\rЗакройте одно или несколько приложений Windows, чтобы увеличить объем доступной памяти."
#define STRING_OUT_OF_MEMORY_CAPTION "Последовательный порт"
#define STRING_NAME_IN_USE_QUESTION \
    "Это имя COM-порта уже используется другим устройством (например, другим COM-портом или модемом). Использование одинаковых имен может привести к недоступности устройств и изменению их параметров. Продолжить?"
#define STRING_BOX_CAPTION "Свойства последовательного порта"
#define STRING_RENAME_FAILED "При переименовании COM-порта произошла ошибка."

// Lists: the first character separates the items, and their order carries meaning.
#define STRING_PARITY_LIST ",Чет,Нечет,Нет,Маркер,Пробел"
#define STRING_STOP_BITS_LIST ",1,1.5,2"
#define STRING_FLOW_CONTROL_LIST ",Xon / Xoff,Аппаратное,Нет"

// The suffix begins with a blank and follows a port's name.
#define STRING_ADVANCED_SETTINGS_TITLE "Дополнительные параметры %s"
#define STRING_LOW "Низкий (%d)"
#define STRING_HIGH "Высокий (%d)"
#define STRING_IN_USE_SUFFIX " (используется)"

// The list of a channel's resources.
#define STRING_RESOURCE_TYPE "Тип ресурса"
#define STRING_SETTING "Параметр"
#define STRING_IO_RANGE "Диапазон I/O"
#define STRING_IRQ "IRQ"
