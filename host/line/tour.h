// A short tour of the sample machine, for whoever starts the program without a word.
#pragma once

#include <memory>

#include "host/line/console.h"

namespace host {

std::unique_ptr<LineSource> TourLines();

} // namespace host
