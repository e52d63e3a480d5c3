// English (Canada): the texts of the United Kingdom. A text that Canada says otherwise is defined anew here, behind an
// #undef of the other.

#include "2057_english_united_kingdom.h"

#undef LANGUAGE_SUB
#define LANGUAGE_SUB 0x04
