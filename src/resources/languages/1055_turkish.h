// Turkish.
//
// For translators: 1033_english_united_states.h says what a text's name and its &, %d, %s and \r mean. A
// text that needs more room than the layout gives carries its own rectangle. On the board's page a caption
// before a slider stands in two lines, split at a blank. The three buttons under the sliders fill their row.

#define LANGUAGE_PRIMARY 0x1F
#define LANGUAGE_SUB 0x01

// The page of a COM port.
#define PORT_SETTINGS "Bağlantı Noktası Ayarları"
#define PORT_SETTINGS_BAUD_RATE_CAPTION "Saniyedeki &bit sayısı:"
#define PORT_SETTINGS_BAUD_RATE_CAPTION_RECT INSTEAD(56, 19, 82, 8)
#define PORT_SETTINGS_DATA_BITS_CAPTION "&Veri bitleri:"
#define PORT_SETTINGS_DATA_BITS_CAPTION_RECT INSTEAD(56, 40, 82, 8)
#define PORT_SETTINGS_PARITY_CAPTION "&Eşlik:"
#define PORT_SETTINGS_PARITY_CAPTION_RECT INSTEAD(56, 61, 82, 8)
#define PORT_SETTINGS_STOP_BITS_CAPTION "&Dur bitleri:"
#define PORT_SETTINGS_STOP_BITS_CAPTION_RECT INSTEAD(56, 82, 82, 8)
#define PORT_SETTINGS_FLOW_CONTROL_CAPTION "&Akış denetimi:"
#define PORT_SETTINGS_FLOW_CONTROL_CAPTION_RECT INSTEAD(56, 102, 82, 8)
#define PORT_SETTINGS_ADVANCED "&Gelişmiş..."
#define PORT_SETTINGS_ADVANCED_RECT INSTEAD(80, 130, 65, 14)
#define PORT_SETTINGS_RESTORE "Varsa&yılanları Geri Yükle"
#define PORT_SETTINGS_RESTORE_RECT INSTEAD(149, 130, 101, 14)

// The dialog for "Gelişmiş..." of a COM port. The number of bytes in %d has up to five digits; those of
// the low and high ends up to three.
#define ADVANCED_PORT_SETTINGS "Gelişmiş Bağlantı Noktası Ayarları"
#define ADVANCED_PORT_SETTINGS_RECT INSTEAD(0, 0, 379, 145)
#define ADVANCED_PORT_SETTINGS_LARGEFIFO "%d baytlık FIFO arabelleklerini &etkinleştir"
#define ADVANCED_PORT_SETTINGS_RECEIVE_CAPTION "&Alma arabelleği:"
#define ADVANCED_PORT_SETTINGS_RECEIVE_CAPTION_RECT INSTEAD(23, 53, 82, 10)
#define ADVANCED_PORT_SETTINGS_RECEIVE_LOW "Düşük (%d)"
#define ADVANCED_PORT_SETTINGS_RECEIVE_LOW_RECT INSTEAD(109, 53, 46, 10)
#define ADVANCED_PORT_SETTINGS_RECEIVE_SLIDER_RECT INSTEAD(156, 51, 80, 18)
#define ADVANCED_PORT_SETTINGS_RECEIVE_HIGH "Yüksek (%d)"
#define ADVANCED_PORT_SETTINGS_RECEIVE_HIGH_RECT INSTEAD(244, 53, 50, 10)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_CAPTION "Gö&nderme arabelleği:"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_CAPTION_RECT INSTEAD(23, 79, 82, 10)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_LOW "Düşük (%d)"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_LOW_RECT INSTEAD(109, 79, 46, 10)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_SLIDER_RECT INSTEAD(156, 76, 80, 20)
#define ADVANCED_PORT_SETTINGS_TRANSMIT_HIGH "Yüksek (%d)"
#define ADVANCED_PORT_SETTINGS_TRANSMIT_HIGH_RECT INSTEAD(244, 79, 50, 10)
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_CAPTION "COM &bağlantı noktası numarası:"
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_CAPTION_RECT INSTEAD(13, 120, 123, 8)
#define ADVANCED_PORT_SETTINGS_PORT_NUMBER_RECT INSTEAD(141, 118, 102, 90)
#define ADVANCED_PORT_SETTINGS_OK "Tamam"
#define ADVANCED_PORT_SETTINGS_OK_RECT INSTEAD(311, 12, 57, 14)
#define ADVANCED_PORT_SETTINGS_CANCEL "İptal"
#define ADVANCED_PORT_SETTINGS_CANCEL_RECT INSTEAD(311, 31, 57, 14)
#define ADVANCED_PORT_SETTINGS_RESTORE "&Varsayılanlar"
#define ADVANCED_PORT_SETTINGS_RESTORE_RECT INSTEAD(311, 62, 57, 14)

// The page of the board. STRING_LOW and STRING_HIGH replace the low and high ends at run time.
#define PORT_CONTROL "Bağlantı Noktası Denetimi"
#define PORT_CONTROL_LARGEFIFO "Büyük FIFO arabelleklerini &etkinleştir"
#define PORT_CONTROL_LARGEFIFO_RECT INSTEAD(16, 93, 152, 12)
#define PORT_CONTROL_ADVANCED "&Gelişmiş..."
#define PORT_CONTROL_RECEIVE_CAPTION "&Alma arabelleği:"
#define PORT_CONTROL_RECEIVE_CAPTION_RECT INSTEAD(16, 112, 53, 17)
#define PORT_CONTROL_RECEIVE_LOW "Düşük"
#define PORT_CONTROL_RECEIVE_LOW_RECT INSTEAD(75, 115, 37, 10)
#define PORT_CONTROL_RECEIVE_SLIDER_RECT INSTEAD(116, 113, 75, 18)
#define PORT_CONTROL_RECEIVE_HIGH "Yüksek"
#define PORT_CONTROL_RECEIVE_HIGH_RECT INSTEAD(196, 115, 50, 10)
#define PORT_CONTROL_TRANSMIT_CAPTION "Gö&nderme arabelleği:"
#define PORT_CONTROL_TRANSMIT_CAPTION_RECT INSTEAD(16, 136, 53, 17)
#define PORT_CONTROL_TRANSMIT_LOW "Düşük"
#define PORT_CONTROL_TRANSMIT_LOW_RECT INSTEAD(75, 139, 37, 10)
#define PORT_CONTROL_TRANSMIT_SLIDER_RECT INSTEAD(116, 136, 75, 18)
#define PORT_CONTROL_TRANSMIT_HIGH "Yüksek"
#define PORT_CONTROL_TRANSMIT_HIGH_RECT INSTEAD(196, 139, 50, 10)
#define PORT_CONTROL_APPLY "U&ygula"
#define PORT_CONTROL_APPLY_RECT INSTEAD(13, 165, 50, 14)
#define PORT_CONTROL_SET_TO_ALL "&Tümü İçin Ayarla"
#define PORT_CONTROL_SET_TO_ALL_RECT INSTEAD(68, 165, 71, 14)
#define PORT_CONTROL_RESTORE "&Varsayılanları Geri Yükle"
#define PORT_CONTROL_RESTORE_RECT INSTEAD(144, 165, 101, 14)
#define PORT_CONTROL_PORT_NUMBER_CAPTION "&Bağlantı noktası numarası:"
#define PORT_CONTROL_PORT_NUMBER_CAPTION_RECT INSTEAD(16, 218, 103, 8)
#define PORT_CONTROL_PORT_NUMBER_RECT INSTEAD(124, 216, 102, 90)
#define PORT_CONTROL_POLLING_CYCLE_CAPTION "LPT yoklama döngüsü (saniye):"
#define PORT_CONTROL_POLLING_CYCLE_CAPTION_RECT INSTEAD(16, 195, 119, 8)
#define PORT_CONTROL_POLLING_CYCLE_RECT INSTEAD(140, 193, 72, 90)

// The dialog for "Gelişmiş..." of the board. ACS is a function of the RS-485 driver.
#define ADVANCED_PORT_CONTROL "Gelişmiş Bağlantı Noktası Denetimi"
#define ADVANCED_PORT_CONTROL_RECT INSTEAD(0, 0, 290, 202)
#define ADVANCED_PORT_CONTROL_UART_GROUP "UART Özellikleri"
#define ADVANCED_PORT_CONTROL_SORT_COM "UART'ları Sırala"
#define ADVANCED_PORT_CONTROL_SORT_COM_RECT INSTEAD(24, 60, 68, 14)
#define ADVANCED_PORT_CONTROL_TERMINATION_GROUP "RS-422/485 Özellikleri"
#define ADVANCED_PORT_CONTROL_INTERFACE_CAPTION "UART &türü:"
#define ADVANCED_PORT_CONTROL_INTERFACE_CAPTION_RECT INSTEAD(25, 30, 42, 8)
#define ADVANCED_PORT_CONTROL_ACS_GROUP "RS-485 Özellikleri"
#define ADVANCED_PORT_CONTROL_ACS_ENABLE "RS-485 &ACS işlevini etkinleştir"
#define ADVANCED_PORT_CONTROL_ACS_ENABLE_RECT INSTEAD(25, 168, 128, 12)
#define ADVANCED_PORT_CONTROL_OK "Tamam"
#define ADVANCED_PORT_CONTROL_OK_RECT INSTEAD(224, 12, 57, 14)
#define ADVANCED_PORT_CONTROL_CANCEL "İptal"
#define ADVANCED_PORT_CONTROL_CANCEL_RECT INSTEAD(224, 32, 57, 14)
#define ADVANCED_PORT_CONTROL_RESTORE "&Varsayılanlar"
#define ADVANCED_PORT_CONTROL_RESTORE_RECT INSTEAD(224, 52, 57, 14)
#define ADVANCED_PORT_CONTROL_TERMINATION_ENABLE "Hat sonlandırmasını etkinleştir"

// Message boxes.
#define STRING_OUT_OF_MEMORY \
    "Bu işlem için yeterli bellek yok;\r\rkullanılabilir belleği artırmak için bir veya daha fazla Windows uygulamasını kapatın."
#define STRING_OUT_OF_MEMORY_CAPTION "İletişim Bağlantı Noktası"
#define STRING_NAME_IN_USE_QUESTION \
    "Bu COM adı başka bir aygıt (başka bir COM bağlantı noktası veya modem gibi) tarafından kullanılıyor. Yinelenen adların kullanılması aygıtların erişilemez duruma gelmesine ve ayarların değişmesine neden olabilir. Devam etmek istiyor musunuz?"
#define STRING_BOX_CAPTION "İletişim Bağlantı Noktası Özellikleri"
#define STRING_RENAME_FAILED "COM bağlantı noktası yeniden adlandırılırken bir hata oluştu."

// Lists: the first character separates the items, and their order carries meaning.
#define STRING_PARITY_LIST ",Çift,Tek,Yok,İşaret,Boşluk"
#define STRING_STOP_BITS_LIST ",1,1.5,2"
#define STRING_FLOW_CONTROL_LIST ",Xon / Xoff,Donanım,Yok"

// The suffix begins with a blank and follows a port's name.
#define STRING_ADVANCED_SETTINGS_TITLE "%s için Gelişmiş Ayarlar"
#define STRING_LOW "Düşük (%d)"
#define STRING_HIGH "Yüksek (%d)"
#define STRING_IN_USE_SUFFIX " (kullanımda)"

// The list of a channel's resources.
#define STRING_RESOURCE_TYPE "Kaynak türü"
#define STRING_SETTING "Ayar"
#define STRING_IO_RANGE "G/Ç aralığı"
#define STRING_IRQ "IRQ"
