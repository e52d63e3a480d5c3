// English (Canada): the texts of the United Kingdom. A text that differs in Canada is defined again here,
// after an #undef of the other.

#include "2057_english_united_kingdom.h"

#undef LANGUAGE_SUB
#define LANGUAGE_SUB 0x04
