// The records of the machine that a world stands for.
#pragma once

#include "host/diagnosis/records.h"

namespace host {

Records RecordsOf(World& world);

} // namespace host
