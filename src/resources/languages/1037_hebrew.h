// Hebrew.
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

#define LANGUAGE_PRIMARY 0x0D
#define LANGUAGE_SUB 0x01

// The page of a COM port. The captions stand right-aligned before their lists.
#define PORT_SETTINGS "הגדרות יציאה"
#define PORT_SETTINGS_BAUD_RATE_CAPTION "סיביות ל&שנייה"
#define PORT_SETTINGS_BAUD_RATE_CAPTION_RECT INSTEAD(40, 19, 98, 8)
#define PORT_SETTINGS_DATA_BITS_CAPTION "סיביות &נתונים"
#define PORT_SETTINGS_DATA_BITS_CAPTION_RECT INSTEAD(40, 40, 98, 8)
#define PORT_SETTINGS_PARITY_CAPTION "&זוגיות"
#define PORT_SETTINGS_PARITY_CAPTION_RECT INSTEAD(40, 61, 98, 8)
#define PORT_SETTINGS_STOP_BITS_CAPTION "סיביות &עצירה"
#define PORT_SETTINGS_STOP_BITS_CAPTION_RECT INSTEAD(40, 82, 98, 8)
#define PORT_SETTINGS_FLOW_CONTROL_CAPTION "&בקרת זרימה"
#define PORT_SETTINGS_FLOW_CONTROL_CAPTION_RECT INSTEAD(40, 102, 98, 8)
#define PORT_SETTINGS_ADVANCED "&מתקדם...‏"
#define PORT_SETTINGS_ADVANCED_RECT INSTEAD(102, 130, 72, 14)
#define PORT_SETTINGS_RESTORE "שחז&ר ברירות מחדל"
#define PORT_SETTINGS_RESTORE_RECT INSTEAD(178, 130, 72, 14)

// The dialog for "מתקדם..." of a COM port. The title shows only where STRING_ADVANCED_SETTINGS_TITLE is
// missing. The number of bytes in %d has up to five digits; those of "נמוך" and "גבוה" up to three.
#define ADVANCED_PORT_SETTINGS "הגדרות יציאה מתקדמות"
#define ADVANCED_PORT_SETTINGS_LARGEFIFO "‫&אפשר מאגרי FIFO של %d בתים‬"
#define ADVANCED_PORT_SETTINGS_RECEIVE_CAPTION "מאגר &קבלה"
#define ADVANCED_PORT_SETTINGS_RECEIVE_CAPTION_RECT INSTEAD(23, 53, 72, 10)
#define ADVANCED_PORT_SETTINGS_RECEIVE_LOW "נמוך (%d)‏"
#define ADVANCED_PORT_SETTINGS_RECEIVE_SLIDER_RECT INSTEAD(134, 51, 117, 18)
#define ADVANCED_PORT_SETTINGS_RECEIVE_HIGH "גבוה (%d)‏"
#define ADVANCED_PORT_SETTINGS_RECEIVE_HIGH_RECT INSTEAD(256, 53, 42, 10)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_CAPTION "מאגר &שידור"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_CAPTION_RECT INSTEAD(23, 79, 72, 10)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_LOW "נמוך (%d)‏"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_SLIDER_RECT INSTEAD(134, 76, 117, 20)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_HIGH "גבוה (%d)‏"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_HIGH_RECT INSTEAD(256, 79, 42, 10)
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_CAPTION "‫מספר &יציאת COM‬"
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_CAPTION_RECT INSTEAD(13, 120, 76, 8)
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_RECT INSTEAD(92, 118, 90, 90)
#define ADVANCED_PORT_SETTINGS_OK "אישור"
#define ADVANCED_PORT_SETTINGS_CANCEL "ביטול"
#define ADVANCED_PORT_SETTINGS_RESTORE "&ברירות מחדל"

// The page of the board. "נמוך" and "גבוה" are replaced at run time by STRING_LOW and STRING_HIGH.
#define PORT_CONTROL "בקרת יציאה"
#define PORT_CONTROL_LARGEFIFO "‫&אפשר מאגרי FIFO גדולים‬"
#define PORT_CONTROL_LARGEFIFO_RECT INSTEAD(16, 93, 150, 12)
#define PORT_CONTROL_ADVANCED "&מתקדם...‏"
#define PORT_CONTROL_RECEIVE_CAPTION "מאגר &קבלה"
#define PORT_CONTROL_RECEIVE_LOW "נמוך"
#define PORT_CONTROL_RECEIVE_LOW_RECT INSTEAD(72, 115, 31, 10)
#define PORT_CONTROL_RECEIVE_SLIDER_RECT INSTEAD(105, 113, 96, 18)
#define PORT_CONTROL_RECEIVE_HIGH "גבוה"
#define PORT_CONTROL_RECEIVE_HIGH_RECT INSTEAD(204, 115, 42, 10)
#define PORT_CONTROL_TRANSMIT_CAPTION "מאגר &שידור"
#define PORT_CONTROL_TRANSMIT_LOW "נמוך"
#define PORT_CONTROL_TRANSMIT_LOW_RECT INSTEAD(72, 139, 31, 10)
#define PORT_CONTROL_TRANSMIT_SLIDER_RECT INSTEAD(105, 136, 96, 18)
#define PORT_CONTROL_TRANSMIT_HIGH "גבוה"
#define PORT_CONTROL_TRANSMIT_HIGH_RECT INSTEAD(204, 139, 42, 10)
#define PORT_CONTROL_APPLY "הח&ל"
#define PORT_CONTROL_APPLY_RECT INSTEAD(21, 165, 72, 14)
#define PORT_CONTROL_SET_TO_ALL "ה&גדר לכל היציאות"
#define PORT_CONTROL_SET_TO_ALL_RECT INSTEAD(97, 165, 72, 14)
#define PORT_CONTROL_RESTORE "שחזר &ברירות מחדל"
#define PORT_CONTROL_RESTORE_RECT INSTEAD(173, 165, 72, 14)
#define PORT_CONTROL_PORT_NUMBER_CAPTION "מספר &יציאה"
#define PORT_CONTROL_PORT_NUMBER_CAPTION_RECT INSTEAD(16, 218, 56, 8)
#define PORT_CONTROL_PORT_NUMBER_RECT INSTEAD(75, 216, 90, 90)
#define PORT_CONTROL_POLLING_CYCLE_CAPTION "‫מחזור תשאול LPT (שניות)‬"
#define PORT_CONTROL_POLLING_CYCLE_CAPTION_RECT INSTEAD(16, 195, 104, 8)
#define PORT_CONTROL_POLLING_CYCLE_RECT INSTEAD(123, 193, 72, 90)

// The dialog for "מתקדם..." of the board. ACS is a function of the RS-485 driver; נגדי סיום are the
// resistors that terminate the line.
#define ADVANCED_PORT_CONTROL "בקרת יציאה מתקדמת"
#define ADVANCED_PORT_CONTROL_UART_GROUP "‫תכונות UART‬"
#define ADVANCED_PORT_CONTROL_SORT_COM "‫מיין UART‬"
#define ADVANCED_PORT_CONTROL_SORT_COM_RECT INSTEAD(24, 60, 54, 14)
#define ADVANCED_PORT_CONTROL_TERMINATION_GROUP "‫תכונות RS-422/485‬"
#define ADVANCED_PORT_CONTROL_INTERFACE_CAPTION "‫&סוג UART‬"
#define ADVANCED_PORT_CONTROL_INTERFACE_CAPTION_RECT INSTEAD(25, 30, 46, 8)
#define ADVANCED_PORT_CONTROL_INTERFACE_SELECT_RECT INSTEAD(74, 28, 90, 54)
#define ADVANCED_PORT_CONTROL_ACS_GROUP "‫תכונות RS-485‬"
#define ADVANCED_PORT_CONTROL_ACS_ENABLE "‫&אפשר פונקציית ACS של RS-485‬"
#define ADVANCED_PORT_CONTROL_ACS_ENABLE_RECT INSTEAD(25, 168, 180, 12)
#define ADVANCED_PORT_CONTROL_OK "אישור"
#define ADVANCED_PORT_CONTROL_CANCEL "ביטול"
#define ADVANCED_PORT_CONTROL_RESTORE "&ברירות מחדל"
#define ADVANCED_PORT_CONTROL_TERMINATION_ENABLE "אפשר נגדי סיום"

// Message boxes.
#define STRING_OUT_OF_MEMORY \
    "‏‏אין די זיכרון לביצוע פעולה זו;\r\rסגור יישום Windows אחד או יותר כדי להגדיל את הזיכרון הזמין."
#define STRING_OUT_OF_MEMORY_CAPTION "יציאת תקשורת"
#define STRING_NAME_IN_USE_QUESTION \
    "‏‏שם COM זה נמצא בשימוש על-ידי התקן אחר (כגון יציאת COM אחרת או מודם). שימוש בשמות כפולים עלול לגרום לחוסר גישה להתקנים ולשינויים בהגדרות. האם ברצונך להמשיך?"
#define STRING_BOX_CAPTION "מאפייני יציאת תקשורת"
#define STRING_RENAME_FAILED "‏‏אירעה שגיאה בעת שינוי השם של יציאת ה-COM."

// Lists: the first character separates the items, and their order carries meaning. Even, odd, none, mark,
// space; one, one and a half and two stop bits (the same text in every language); Xon / Xoff, hardware, none.
#define STRING_PARITY_LIST ",זוגית,אי-זוגית,ללא,סימן,רווח"
#define STRING_STOP_BITS_LIST ",1,1.5,2"
#define STRING_FLOW_CONTROL_LIST ",Xon / Xoff,חומרה,ללא"

// The suffix begins with a blank and follows a port's name.
#define STRING_ADVANCED_SETTINGS_TITLE "‫הגדרות מתקדמות עבור %s‬"
#define STRING_LOW "נמוך (%d)‏"
#define STRING_HIGH "גבוה (%d)‏"
#define STRING_IN_USE_SUFFIX " (בשימוש)"

// The list of a channel's resources.
#define STRING_RESOURCE_TYPE "סוג משאב"
#define STRING_SETTING "הגדרה"
#define STRING_IO_RANGE "טווח קלט/פלט"
#define STRING_IRQ "IRQ"
