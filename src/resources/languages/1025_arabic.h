// Arabic (Saudi Arabia).
//
// For translators: an & stands before the letter that reaches the control by the keyboard: one at most in a
// text, no letter twice in one dialog. %d is a number and %s a port name, put in at run time: keep them. \r
// is a line end. The file is UTF-8.
//
// The dialogs are laid out from left to right, so captions have no colon: it would stand at the far end from
// their control. Invisible marks keep a text in reading order. A text that ends in dots or a parenthesis has
// U+200F (right-to-left mark) after it; one that mixes in Latin letters or %s stands between U+202B
// (right-to-left embedding) and U+202C (its end). The texts of message boxes begin with U+200F twice: Windows
// then shows the whole box from right to left. STRING_IN_USE_SUFFIX has no mark: it follows a Latin name.

#define LANGUAGE_PRIMARY 0x01
#define LANGUAGE_SUB 0x01

// The page of a COM port. The captions stand right-aligned before their lists.
#define PORT_SETTINGS "إعدادات المنفذ"
#define PORT_SETTINGS_BAUD_RATE_CAPTION "بت في ال&ثانية"
#define PORT_SETTINGS_BAUD_RATE_CAPTION_RECT INSTEAD(40, 19, 98, 10)
#define PORT_SETTINGS_DATA_BITS_CAPTION "بتات ال&بيانات"
#define PORT_SETTINGS_DATA_BITS_CAPTION_RECT INSTEAD(40, 40, 98, 10)
#define PORT_SETTINGS_PARITY_CAPTION "الت&ماثل"
#define PORT_SETTINGS_PARITY_CAPTION_RECT INSTEAD(40, 61, 98, 10)
#define PORT_SETTINGS_STOP_BITS_CAPTION "بتات الإي&قاف"
#define PORT_SETTINGS_STOP_BITS_CAPTION_RECT INSTEAD(40, 82, 98, 10)
#define PORT_SETTINGS_FLOW_CONTROL_CAPTION "التحكم في الت&دفق"
#define PORT_SETTINGS_FLOW_CONTROL_CAPTION_RECT INSTEAD(40, 102, 98, 10)
#define PORT_SETTINGS_ADVANCED "&خيارات متقدمة...‏"
#define PORT_SETTINGS_ADVANCED_RECT INSTEAD(78, 130, 84, 14)
#define PORT_SETTINGS_RESTORE "ا&ستعادة الافتراضيات"
#define PORT_SETTINGS_RESTORE_RECT INSTEAD(166, 130, 84, 14)

// The dialog for "خيارات متقدمة..." of a COM port. The title shows only where
// STRING_ADVANCED_SETTINGS_TITLE is missing. The number of bytes in %d has up to five digits; those of
// "منخفض" and "مرتفع" up to three.
#define ADVANCED_PORT_SETTINGS "إعدادات المنفذ المتقدمة"
#define ADVANCED_PORT_SETTINGS_LARGEFIFO "‫تم&كين مخازن FIFO المؤقتة بسعة %d بايت‬"
#define ADVANCED_PORT_SETTINGS_LARGEFIFO_RECT INSTEAD(23, 22, 240, 12)
#define ADVANCED_PORT_SETTINGS_RECEIVE_CAPTION "مخزن الا&ستقبال المؤقت"
#define ADVANCED_PORT_SETTINGS_RECEIVE_CAPTION_RECT INSTEAD(23, 53, 88, 10)
#define ADVANCED_PORT_SETTINGS_RECEIVE_LOW "منخفض (%d)‏"
#define ADVANCED_PORT_SETTINGS_RECEIVE_LOW_RECT INSTEAD(112, 53, 44, 10)
#define ADVANCED_PORT_SETTINGS_RECEIVE_SLIDER_RECT INSTEAD(157, 51, 93, 18)
#define ADVANCED_PORT_SETTINGS_RECEIVE_HIGH "مرتفع (%d)‏"
#define ADVANCED_PORT_SETTINGS_RECEIVE_HIGH_RECT INSTEAD(253, 53, 45, 10)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_CAPTION "مخزن الإ&رسال المؤقت"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_CAPTION_RECT INSTEAD(23, 79, 88, 10)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_LOW "منخفض (%d)‏"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_LOW_RECT INSTEAD(112, 79, 44, 10)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_SLIDER_RECT INSTEAD(157, 76, 93, 20)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_HIGH "مرتفع (%d)‏"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_HIGH_RECT INSTEAD(253, 79, 45, 10)
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_CAPTION "‫ر&قم منفذ COM‬"
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_CAPTION_RECT INSTEAD(13, 120, 70, 10)
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_RECT INSTEAD(86, 118, 104, 90)
#define ADVANCED_PORT_SETTINGS_OK "موافق"
#define ADVANCED_PORT_SETTINGS_OK_RECT INSTEAD(311, 12, 53, 14)
#define ADVANCED_PORT_SETTINGS_CANCEL "إلغاء الأمر"
#define ADVANCED_PORT_SETTINGS_CANCEL_RECT INSTEAD(311, 31, 53, 14)
#define ADVANCED_PORT_SETTINGS_RESTORE "الا&فتراضيات"
#define ADVANCED_PORT_SETTINGS_RESTORE_RECT INSTEAD(311, 62, 53, 14)

// The page of the board. "منخفض" and "مرتفع" are replaced at run time by STRING_LOW and STRING_HIGH.
#define PORT_CONTROL "التحكم في المنفذ"
#define PORT_CONTROL_LARGEFIFO "‫تم&كين مخازن FIFO المؤقتة الكبيرة‬"
#define PORT_CONTROL_LARGEFIFO_RECT INSTEAD(16, 93, 147, 12)
#define PORT_CONTROL_ADVANCED "&خيارات متقدمة...‏"
#define PORT_CONTROL_ADVANCED_RECT INSTEAD(165, 90, 80, 14)
#define PORT_CONTROL_RECEIVE_CAPTION "مخزن الا&ستقبال المؤقت"
#define PORT_CONTROL_RECEIVE_CAPTION_RECT INSTEAD(16, 115, 88, 10)
#define PORT_CONTROL_RECEIVE_LOW "منخفض"
#define PORT_CONTROL_RECEIVE_LOW_RECT INSTEAD(105, 115, 39, 10)
#define PORT_CONTROL_RECEIVE_SLIDER_RECT INSTEAD(145, 113, 57, 18)
#define PORT_CONTROL_RECEIVE_HIGH "مرتفع"
#define PORT_CONTROL_RECEIVE_HIGH_RECT INSTEAD(203, 115, 44, 10)
#define PORT_CONTROL_TRANSMIT_CAPTION "مخزن الإ&رسال المؤقت"
#define PORT_CONTROL_TRANSMIT_CAPTION_RECT INSTEAD(16, 139, 88, 10)
#define PORT_CONTROL_TRANSMIT_LOW "منخفض"
#define PORT_CONTROL_TRANSMIT_LOW_RECT INSTEAD(105, 139, 39, 10)
#define PORT_CONTROL_TRANSMIT_SLIDER_RECT INSTEAD(145, 136, 57, 18)
#define PORT_CONTROL_TRANSMIT_HIGH "مرتفع"
#define PORT_CONTROL_TRANSMIT_HIGH_RECT INSTEAD(203, 139, 44, 10)
#define PORT_CONTROL_APPLY "ت&طبيق"
#define PORT_CONTROL_APPLY_RECT INSTEAD(17, 165, 64, 14)
#define PORT_CONTROL_SET_TO_ALL "ت&عيين للكل"
#define PORT_CONTROL_SET_TO_ALL_RECT INSTEAD(85, 165, 72, 14)
#define PORT_CONTROL_RESTORE "استعادة الا&فتراضيات"
#define PORT_CONTROL_RESTORE_RECT INSTEAD(161, 165, 84, 14)
#define PORT_CONTROL_PORT_NUMBER_CAPTION "ر&قم المنفذ"
#define PORT_CONTROL_PORT_NUMBER_CAPTION_RECT INSTEAD(16, 218, 50, 10)
#define PORT_CONTROL_PORT_NUMBER_RECT INSTEAD(69, 216, 104, 90)
#define PORT_CONTROL_POLLING_CYCLE_CAPTION "‫دورة استقصاء LPT (بالثواني)‬"
#define PORT_CONTROL_POLLING_CYCLE_CAPTION_RECT INSTEAD(16, 195, 104, 10)
#define PORT_CONTROL_POLLING_CYCLE_RECT INSTEAD(123, 193, 72, 90)

// The dialog for "خيارات متقدمة..." of the board. ACS is a function of the RS-485 driver; مقاومة الإنهاء
// is the resistor that terminates the line.
#define ADVANCED_PORT_CONTROL "التحكم المتقدم في المنفذ"
#define ADVANCED_PORT_CONTROL_UART_GROUP "‫ميزات UART‬"
#define ADVANCED_PORT_CONTROL_SORT_COM "‫فرز UART‬"
#define ADVANCED_PORT_CONTROL_SORT_COM_RECT INSTEAD(24, 60, 54, 14)
#define ADVANCED_PORT_CONTROL_TERMINATION_GROUP "‫ميزات RS-422/485‬"
#define ADVANCED_PORT_CONTROL_INTERFACE_CAPTION "‫&نوع UART‬"
#define ADVANCED_PORT_CONTROL_INTERFACE_CAPTION_RECT INSTEAD(25, 30, 46, 10)
#define ADVANCED_PORT_CONTROL_INTERFACE_SELECT_RECT INSTEAD(74, 28, 90, 54)
#define ADVANCED_PORT_CONTROL_ACS_GROUP "‫ميزات RS-485‬"
#define ADVANCED_PORT_CONTROL_ACS_ENABLE "‫تمكين &وظيفة ACS لواجهة RS-485‬"
#define ADVANCED_PORT_CONTROL_ACS_ENABLE_RECT INSTEAD(25, 168, 180, 12)
#define ADVANCED_PORT_CONTROL_OK "موافق"
#define ADVANCED_PORT_CONTROL_OK_RECT INSTEAD(224, 12, 53, 14)
#define ADVANCED_PORT_CONTROL_CANCEL "إلغاء الأمر"
#define ADVANCED_PORT_CONTROL_CANCEL_RECT INSTEAD(224, 32, 53, 14)
#define ADVANCED_PORT_CONTROL_RESTORE "الا&فتراضيات"
#define ADVANCED_PORT_CONTROL_RESTORE_RECT INSTEAD(224, 52, 53, 14)
#define ADVANCED_PORT_CONTROL_TERMINATION_ENABLE "تمكين مقاومة الإنهاء"

// Message boxes.
#define STRING_OUT_OF_MEMORY \
    "‏‏الذاكرة غير كافية لإجراء هذه العملية؛\r\rأغلق تطبيقًا واحدًا أو أكثر من تطبيقات Windows لزيادة الذاكرة المتوفرة."
#define STRING_OUT_OF_MEMORY_CAPTION "منفذ الاتصالات"
#define STRING_NAME_IN_USE_QUESTION \
    "‏‏اسم COM هذا قيد الاستخدام بواسطة جهاز آخر (مثل منفذ COM آخر أو مودم). قد يؤدي استخدام أسماء مكررة إلى تغيير الإعدادات وتعذر الوصول إلى الأجهزة. هل تريد المتابعة؟"
#define STRING_BOX_CAPTION "خصائص منفذ الاتصالات"
#define STRING_RENAME_FAILED "‏‏حدث خطأ أثناء إعادة تسمية منفذ COM."

// Lists: the first character separates the items, and their order carries meaning. Even, odd, none, mark,
// space; one, one and a half and two stop bits (the same text in every language); Xon / Xoff, hardware, none.
#define STRING_PARITY_LIST ",زوجي,فردي,بلا,علامة,مسافة"
#define STRING_STOP_BITS_LIST ",1,1.5,2"
#define STRING_FLOW_CONTROL_LIST ",Xon / Xoff,أجهزة,بلا"

// The suffix begins with a blank and follows a port's name.
#define STRING_ADVANCED_SETTINGS_TITLE "‫الإعدادات المتقدمة لـ %s‬"
#define STRING_LOW "منخفض (%d)‏"
#define STRING_HIGH "مرتفع (%d)‏"
#define STRING_IN_USE_SUFFIX " (قيد الاستخدام)"

// The list of a channel's resources.
#define STRING_RESOURCE_TYPE "نوع المورد"
#define STRING_SETTING "الإعداد"
#define STRING_IO_RANGE "نطاق الدخل/الخرج"
#define STRING_IRQ "IRQ"
