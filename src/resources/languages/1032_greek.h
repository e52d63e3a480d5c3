// Greek.
//
// For translators: 1033_english_united_states.h says what a text's name and its &, %d, %s and \r mean.
// The letters after & are Greek and bear no accent. The question mark is ;. A text that needs more room than
// the layout gives carries its own rectangle. The three buttons under the sliders fill their row.

#define LANGUAGE_PRIMARY 0x08
#define LANGUAGE_SUB 0x01

// The page of a COM port.
#define PORT_SETTINGS "Ρυθμίσεις θύρας"
#define PORT_SETTINGS_BAUD_RATE_CAPTION "Bit &ανά δευτερόλεπτο:"
#define PORT_SETTINGS_BAUD_RATE_CAPTION_RECT INSTEAD(56, 19, 82, 8)
#define PORT_SETTINGS_DATA_BITS_CAPTION "Bit &δεδομένων:"
#define PORT_SETTINGS_DATA_BITS_CAPTION_RECT INSTEAD(56, 40, 82, 8)
#define PORT_SETTINGS_PARITY_CAPTION "Ισοτι&μία:"
#define PORT_SETTINGS_PARITY_CAPTION_RECT INSTEAD(56, 61, 82, 8)
#define PORT_SETTINGS_STOP_BITS_CAPTION "Bit δια&κοπής:"
#define PORT_SETTINGS_STOP_BITS_CAPTION_RECT INSTEAD(56, 82, 82, 8)
#define PORT_SETTINGS_FLOW_CONTROL_CAPTION "Έλεγχος &ροής:"
#define PORT_SETTINGS_FLOW_CONTROL_CAPTION_RECT INSTEAD(56, 102, 82, 8)
#define PORT_SETTINGS_ADVANCED "&Για προχωρημένους..."
#define PORT_SETTINGS_ADVANCED_RECT INSTEAD(54, 130, 90, 14)
#define PORT_SETTINGS_RESTORE "Επαναφορά &προεπιλογών"
#define PORT_SETTINGS_RESTORE_RECT INSTEAD(148, 130, 102, 14)

// The dialog for "Για προχωρημένους..." of a COM port. The number of bytes in %d has up to five digits;
// those of the low and high ends up to three.
#define ADVANCED_PORT_SETTINGS "Ρυθμίσεις θύρας για προχωρημένους"
#define ADVANCED_PORT_SETTINGS_RECT INSTEAD(0, 0, 376, 145)
#define ADVANCED_PORT_SETTINGS_LARGEFIFO "&Χρήση buffer FIFO %d byte"
#define ADVANCED_PORT_SETTINGS_RECEIVE_CAPTION "Buffer &λήψης:"
#define ADVANCED_PORT_SETTINGS_RECEIVE_CAPTION_RECT INSTEAD(23, 53, 68, 10)
#define ADVANCED_PORT_SETTINGS_RECEIVE_LOW "Χαμηλό (%d)"
#define ADVANCED_PORT_SETTINGS_RECEIVE_LOW_RECT INSTEAD(98, 53, 52, 10)
#define ADVANCED_PORT_SETTINGS_RECEIVE_SLIDER_RECT INSTEAD(151, 51, 87, 18)
#define ADVANCED_PORT_SETTINGS_RECEIVE_HIGH "Υψηλό (%d)"
#define ADVANCED_PORT_SETTINGS_RECEIVE_HIGH_RECT INSTEAD(246, 53, 48, 10)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_CAPTION "Buffer &μετάδοσης:"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_CAPTION_RECT INSTEAD(23, 79, 68, 10)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_LOW "Χαμηλό (%d)"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_LOW_RECT INSTEAD(98, 79, 52, 10)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_SLIDER_RECT INSTEAD(151, 76, 87, 20)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_HIGH "Υψηλό (%d)"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_HIGH_RECT INSTEAD(246, 79, 48, 10)
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_CAPTION "Αριθμός &θύρας COM:"
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_CAPTION_RECT INSTEAD(13, 120, 80, 8)
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_RECT INSTEAD(98, 118, 95, 90)
#define ADVANCED_PORT_SETTINGS_OK "OK"
#define ADVANCED_PORT_SETTINGS_OK_RECT INSTEAD(311, 12, 54, 14)
#define ADVANCED_PORT_SETTINGS_CANCEL "Άκυρο"
#define ADVANCED_PORT_SETTINGS_CANCEL_RECT INSTEAD(311, 31, 54, 14)
#define ADVANCED_PORT_SETTINGS_RESTORE "&Προεπιλογές"
#define ADVANCED_PORT_SETTINGS_RESTORE_RECT INSTEAD(311, 62, 54, 14)

// The page of the board. STRING_LOW and STRING_HIGH replace the low and high ends at run time.
#define PORT_CONTROL "Έλεγχος θυρών"
#define PORT_CONTROL_LARGEFIFO "&Χρήση μεγάλων buffer FIFO"
#define PORT_CONTROL_LARGEFIFO_RECT INSTEAD(16, 93, 118, 12)
#define PORT_CONTROL_ADVANCED "&Για προχωρημένους..."
#define PORT_CONTROL_ADVANCED_RECT INSTEAD(155, 90, 90, 14)
#define PORT_CONTROL_RECEIVE_CAPTION "Buffer &λήψης:"
#define PORT_CONTROL_RECEIVE_CAPTION_RECT INSTEAD(16, 115, 68, 10)
#define PORT_CONTROL_RECEIVE_LOW "Χαμηλό"
#define PORT_CONTROL_RECEIVE_LOW_RECT INSTEAD(88, 115, 42, 10)
#define PORT_CONTROL_RECEIVE_SLIDER_RECT INSTEAD(134, 113, 59, 18)
#define PORT_CONTROL_RECEIVE_HIGH "Υψηλό"
#define PORT_CONTROL_RECEIVE_HIGH_RECT INSTEAD(198, 115, 48, 10)
#define PORT_CONTROL_TRANSMIT_CAPTION "Buffer &μετάδοσης:"
#define PORT_CONTROL_TRANSMIT_CAPTION_RECT INSTEAD(16, 139, 68, 10)
#define PORT_CONTROL_TRANSMIT_LOW "Χαμηλό"
#define PORT_CONTROL_TRANSMIT_LOW_RECT INSTEAD(88, 139, 42, 10)
#define PORT_CONTROL_TRANSMIT_SLIDER_RECT INSTEAD(134, 136, 59, 18)
#define PORT_CONTROL_TRANSMIT_HIGH "Υψηλό"
#define PORT_CONTROL_TRANSMIT_HIGH_RECT INSTEAD(198, 139, 48, 10)
#define PORT_CONTROL_APPLY "Εφ&αρμογή"
#define PORT_CONTROL_APPLY_RECT INSTEAD(12, 165, 46, 14)
#define PORT_CONTROL_SET_TO_ALL "&Ορισμός για όλες"
#define PORT_CONTROL_SET_TO_ALL_RECT INSTEAD(65, 165, 71, 14)
#define PORT_CONTROL_RESTORE "Επαναφορά &προεπιλογών"
#define PORT_CONTROL_RESTORE_RECT INSTEAD(143, 165, 102, 14)
#define PORT_CONTROL_PORT_NUMBER_CAPTION "Αριθμός &θύρας:"
#define PORT_CONTROL_PORT_NUMBER_CAPTION_RECT INSTEAD(16, 218, 60, 8)
#define PORT_CONTROL_PORT_NUMBER_RECT INSTEAD(81, 216, 95, 90)
#define PORT_CONTROL_POLLING_CYCLE_CAPTION "Κύκλος σταθμοσκόπησης LPT (δευτερόλεπτα):"
#define PORT_CONTROL_POLLING_CYCLE_CAPTION_RECT INSTEAD(16, 195, 172, 8)
#define PORT_CONTROL_POLLING_CYCLE_RECT INSTEAD(193, 193, 52, 90)

// The dialog for "Για προχωρημένους..." of the board. ACS is a function of the RS-485 driver.
#define ADVANCED_PORT_CONTROL "Έλεγχος θυρών για προχωρημένους"
#define ADVANCED_PORT_CONTROL_RECT INSTEAD(0, 0, 287, 202)
#define ADVANCED_PORT_CONTROL_UART_GROUP "Λειτουργίες UART"
#define ADVANCED_PORT_CONTROL_SORT_COM "Ταξινόμηση UART"
#define ADVANCED_PORT_CONTROL_SORT_COM_RECT INSTEAD(24, 60, 74, 14)
#define ADVANCED_PORT_CONTROL_TERMINATION_GROUP "Λειτουργίες RS-422/485"
#define ADVANCED_PORT_CONTROL_INTERFACE_CAPTION "&Τύπος UART:"
#define ADVANCED_PORT_CONTROL_INTERFACE_CAPTION_RECT INSTEAD(25, 30, 51, 8)
#define ADVANCED_PORT_CONTROL_INTERFACE_SELECT_RECT INSTEAD(81, 28, 90, 54)
#define ADVANCED_PORT_CONTROL_ACS_GROUP "Λειτουργίες RS-485"
#define ADVANCED_PORT_CONTROL_ACS_ENABLE "Ενεργοποίηση &λειτουργίας ACS για RS-485"
#define ADVANCED_PORT_CONTROL_ACS_ENABLE_RECT INSTEAD(25, 168, 173, 12)
#define ADVANCED_PORT_CONTROL_OK "OK"
#define ADVANCED_PORT_CONTROL_OK_RECT INSTEAD(224, 12, 54, 14)
#define ADVANCED_PORT_CONTROL_CANCEL "Άκυρο"
#define ADVANCED_PORT_CONTROL_CANCEL_RECT INSTEAD(224, 32, 54, 14)
#define ADVANCED_PORT_CONTROL_RESTORE "&Προεπιλογές"
#define ADVANCED_PORT_CONTROL_RESTORE_RECT INSTEAD(224, 52, 54, 14)
#define ADVANCED_PORT_CONTROL_TERMINATION_ENABLE "Ενεργοποίηση τερματισμού γραμμής"
#define ADVANCED_PORT_CONTROL_TERMINATION_ENABLE_RECT INSTEAD(25, 116, 140, 12)

// Message boxes.
#define STRING_OUT_OF_MEMORY \
    "Δεν υπάρχει αρκετή μνήμη για αυτήν τη λειτουργία.\r\rΚλείστε μία ή περισσότερες εφαρμογές των Windows για να αυξήσετε τη διαθέσιμη μνήμη."
#define STRING_OUT_OF_MEMORY_CAPTION "Θύρα επικοινωνίας"
#define STRING_NAME_IN_USE_QUESTION \
    "Αυτό το όνομα COM χρησιμοποιείται ήδη από άλλη συσκευή (όπως άλλη θύρα COM ή μόντεμ). Η χρήση διπλότυπων ονομάτων μπορεί να καταστήσει τις συσκευές μη προσπελάσιμες και να αλλάξει τις ρυθμίσεις τους. Θέλετε να συνεχίσετε;"
#define STRING_BOX_CAPTION "Ιδιότητες θύρας επικοινωνίας"
#define STRING_RENAME_FAILED "Παρουσιάστηκε σφάλμα κατά τη μετονομασία της θύρας COM."

// Lists: the first character separates the items, and their order carries meaning.
#define STRING_PARITY_LIST ",Άρτια,Περιττή,Καμία,Σήμανση,Διάστημα"
#define STRING_STOP_BITS_LIST ",1,1.5,2"
#define STRING_FLOW_CONTROL_LIST ",Xon / Xoff,Υλικό,Κανένας"

// The suffix begins with a blank and follows a port's name.
#define STRING_ADVANCED_SETTINGS_TITLE "Ρυθμίσεις για προχωρημένους - %s"
#define STRING_LOW "Χαμηλό (%d)"
#define STRING_HIGH "Υψηλό (%d)"
#define STRING_IN_USE_SUFFIX " (σε χρήση)"

// The list of a channel's resources.
#define STRING_RESOURCE_TYPE "Τύπος πόρου"
#define STRING_SETTING "Ρύθμιση"
#define STRING_IO_RANGE "Περιοχή I/O"
#define STRING_IRQ "IRQ"
