// French (Canada).
//
// For translators: 1033_english_united_states.h says what a text's name and its &, %d, %s and \r mean.
// The blank before a colon is a no-break space (U+00A0); ; and ? stand without one, as is the custom in
// Canada. A text that needs more room than the layout gives carries its own rectangle. On the board's page a
// caption before a slider stands in two lines, split at a blank. The three buttons under the sliders fill
// their row.

#define LANGUAGE_PRIMARY 0x0C
#define LANGUAGE_SUB 0x03

// The page of a COM port.
#define PORT_SETTINGS "Paramètres du port"
#define PORT_SETTINGS_BAUD_RATE_CAPTION "&Bits par seconde :"
#define PORT_SETTINGS_BAUD_RATE_CAPTION_RECT INSTEAD(68, 19, 70, 8)
#define PORT_SETTINGS_DATA_BITS_CAPTION "Bits de &données :"
#define PORT_SETTINGS_DATA_BITS_CAPTION_RECT INSTEAD(68, 40, 70, 8)
#define PORT_SETTINGS_PARITY_CAPTION "&Parité :"
#define PORT_SETTINGS_PARITY_CAPTION_RECT INSTEAD(68, 61, 70, 8)
#define PORT_SETTINGS_STOP_BITS_CAPTION "Bits d'ar&rêt :"
#define PORT_SETTINGS_STOP_BITS_CAPTION_RECT INSTEAD(68, 82, 70, 8)
#define PORT_SETTINGS_FLOW_CONTROL_CAPTION "&Contrôle de flux :"
#define PORT_SETTINGS_FLOW_CONTROL_CAPTION_RECT INSTEAD(68, 102, 70, 8)
#define PORT_SETTINGS_ADVANCED "A&vancé..."
#define PORT_SETTINGS_ADVANCED_RECT INSTEAD(60, 130, 65, 14)
#define PORT_SETTINGS_RESTORE "Rétablir les valeurs par dé&faut"
#define PORT_SETTINGS_RESTORE_RECT INSTEAD(129, 130, 121, 14)

// The dialog for "Avancé..." of a COM port. The number of bytes in %d has up to five digits; those of the
// low and high ends up to three.
#define ADVANCED_PORT_SETTINGS "Paramètres avancés du port"
#define ADVANCED_PORT_SETTINGS_LARGEFIFO "&Activer les tampons FIFO de %d octets"
#define ADVANCED_PORT_SETTINGS_RECEIVE_CAPTION "Tampon de &réception :"
#define ADVANCED_PORT_SETTINGS_RECEIVE_CAPTION_RECT INSTEAD(23, 53, 98, 10)
#define ADVANCED_PORT_SETTINGS_RECEIVE_LOW "Faible (%d)"
#define ADVANCED_PORT_SETTINGS_RECEIVE_LOW_RECT INSTEAD(125, 53, 46, 10)
#define ADVANCED_PORT_SETTINGS_RECEIVE_SLIDER_RECT INSTEAD(172, 51, 70, 18)
#define ADVANCED_PORT_SETTINGS_RECEIVE_HIGH "Élevé (%d)"
#define ADVANCED_PORT_SETTINGS_RECEIVE_HIGH_RECT INSTEAD(250, 53, 44, 10)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_CAPTION "Tampon de &transmission :"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_CAPTION_RECT INSTEAD(23, 79, 98, 10)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_LOW "Faible (%d)"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_LOW_RECT INSTEAD(125, 79, 46, 10)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_SLIDER_RECT INSTEAD(172, 76, 70, 20)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_HIGH "Élevé (%d)"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_HIGH_RECT INSTEAD(250, 79, 44, 10)
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_CAPTION "Numéro de &port COM :"
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_CAPTION_RECT INSTEAD(13, 120, 86, 8)
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_RECT INSTEAD(104, 118, 139, 90)
#define ADVANCED_PORT_SETTINGS_OK "OK"
#define ADVANCED_PORT_SETTINGS_CANCEL "Annuler"
#define ADVANCED_PORT_SETTINGS_RESTORE "Par &défaut"

// The page of the board. STRING_LOW and STRING_HIGH replace the low and high ends at run time.
#define PORT_CONTROL "Contrôle des ports"
#define PORT_CONTROL_LARGEFIFO "Activer les &grands tampons FIFO"
#define PORT_CONTROL_LARGEFIFO_RECT INSTEAD(16, 93, 137, 12)
#define PORT_CONTROL_ADVANCED "A&vancé..."
#define PORT_CONTROL_RECEIVE_CAPTION "Tampon de &réception :"
#define PORT_CONTROL_RECEIVE_CAPTION_RECT INSTEAD(16, 112, 54, 17)
#define PORT_CONTROL_RECEIVE_LOW "Faible"
#define PORT_CONTROL_RECEIVE_LOW_RECT INSTEAD(75, 115, 37, 10)
#define PORT_CONTROL_RECEIVE_SLIDER_RECT INSTEAD(116, 113, 81, 18)
#define PORT_CONTROL_RECEIVE_HIGH "Élevé"
#define PORT_CONTROL_RECEIVE_HIGH_RECT INSTEAD(202, 115, 44, 10)
#define PORT_CONTROL_TRANSMIT_CAPTION "Tampon de trans&mission :"
#define PORT_CONTROL_TRANSMIT_CAPTION_RECT INSTEAD(16, 136, 54, 17)
#define PORT_CONTROL_TRANSMIT_LOW "Faible"
#define PORT_CONTROL_TRANSMIT_LOW_RECT INSTEAD(75, 139, 37, 10)
#define PORT_CONTROL_TRANSMIT_SLIDER_RECT INSTEAD(116, 136, 81, 18)
#define PORT_CONTROL_TRANSMIT_HIGH "Élevé"
#define PORT_CONTROL_TRANSMIT_HIGH_RECT INSTEAD(202, 139, 44, 10)
#define PORT_CONTROL_APPLY "App&liquer"
#define PORT_CONTROL_APPLY_RECT INSTEAD(17, 165, 60, 14)
#define PORT_CONTROL_SET_TO_ALL "Définir pour &tous"
#define PORT_CONTROL_SET_TO_ALL_RECT INSTEAD(87, 165, 70, 14)
#define PORT_CONTROL_RESTORE "Valeurs par &défaut"
#define PORT_CONTROL_RESTORE_RECT INSTEAD(167, 165, 78, 14)
#define PORT_CONTROL_PORT_NUMBER_CAPTION "Numéro de &port :"
#define PORT_CONTROL_PORT_NUMBER_CAPTION_RECT INSTEAD(16, 218, 65, 8)
#define PORT_CONTROL_PORT_NUMBER_RECT INSTEAD(86, 216, 139, 90)
#define PORT_CONTROL_POLLING_CYCLE_CAPTION "Cycle d'interrogation LPT (secondes) :"
#define PORT_CONTROL_POLLING_CYCLE_CAPTION_RECT INSTEAD(16, 195, 144, 8)
#define PORT_CONTROL_POLLING_CYCLE_RECT INSTEAD(165, 193, 72, 90)

// The dialog for "Avancé..." of the board. ACS is a function of the RS-485 driver.
#define ADVANCED_PORT_CONTROL "Contrôle avancé des ports"
#define ADVANCED_PORT_CONTROL_UART_GROUP "Fonctions UART"
#define ADVANCED_PORT_CONTROL_SORT_COM "Trier les UART"
#define ADVANCED_PORT_CONTROL_SORT_COM_RECT INSTEAD(24, 60, 62, 14)
#define ADVANCED_PORT_CONTROL_TERMINATION_GROUP "Fonctions RS-422/485"
#define ADVANCED_PORT_CONTROL_INTERFACE_CAPTION "&Type d'UART :"
#define ADVANCED_PORT_CONTROL_INTERFACE_CAPTION_RECT INSTEAD(25, 30, 55, 8)
#define ADVANCED_PORT_CONTROL_INTERFACE_SELECT_RECT INSTEAD(85, 28, 90, 54)
#define ADVANCED_PORT_CONTROL_ACS_GROUP "Fonctions RS-485"
#define ADVANCED_PORT_CONTROL_ACS_ENABLE "Activer la fonction &ACS RS-485"
#define ADVANCED_PORT_CONTROL_ACS_ENABLE_RECT INSTEAD(25, 168, 131, 12)
#define ADVANCED_PORT_CONTROL_OK "OK"
#define ADVANCED_PORT_CONTROL_CANCEL "Annuler"
#define ADVANCED_PORT_CONTROL_RESTORE "Par &défaut"
#define ADVANCED_PORT_CONTROL_TERMINATION_ENABLE "Activer la terminaison"

// Message boxes.
#define STRING_OUT_OF_MEMORY \
    "Mémoire insuffisante pour effectuer cette opération;\r\rfermez une ou plusieurs applications Windows pour augmenter la mémoire disponible."
#define STRING_OUT_OF_MEMORY_CAPTION "Port de communication"
#define STRING_NAME_IN_USE_QUESTION \
    "Ce nom COM est déjà utilisé par un autre périphérique (comme un autre port COM ou un modem). L'utilisation de noms en double peut rendre des périphériques inaccessibles et modifier des paramètres. Voulez-vous continuer?"
#define STRING_BOX_CAPTION "Propriétés du port de communication"
#define STRING_RENAME_FAILED "Une erreur s'est produite lors du changement de nom du port COM."

// Lists: the first character separates the items, and their order carries meaning.
#define STRING_PARITY_LIST ",Paire,Impaire,Aucune,Marque,Espace"
#define STRING_STOP_BITS_LIST ",1,1.5,2"
#define STRING_FLOW_CONTROL_LIST ",Xon / Xoff,Matériel,Aucun"

// The suffix begins with a blank and follows a port's name.
#define STRING_ADVANCED_SETTINGS_TITLE "Paramètres avancés pour %s"
#define STRING_LOW "Faible (%d)"
#define STRING_HIGH "Élevé (%d)"
#define STRING_IN_USE_SUFFIX " (en cours d'utilisation)"

// The list of a channel's resources.
#define STRING_RESOURCE_TYPE "Type de ressource"
#define STRING_SETTING "Paramètre"
#define STRING_IO_RANGE "Plage d'E/S"
#define STRING_IRQ "IRQ"
