// What the library does to the world outside itself, observed at its import table and written in the lines of
// `World::Journal`. A call is written before it is passed on, whatever its result.
#pragma once

#include <string>
#include <vector>

#include "host/worlds/world.h"

namespace host {

// Observes a library from now on. Only one library at a time.
void Observe(HMODULE library);

// Marks the line of the call in progress as failed, for code below the observers that makes calls fail.
void NoteFailure();

// The lines since the last call.
std::vector<std::string> TakeJournal();

// As `World::HearTrace`.
bool ObserveTrace(World::TraceListener hear);

// The style that an open message box was opened with, or 0 if `box` is not one.
UINT OpenBoxStyle(HWND box);

// The instance id of a device, UTF-8; empty if the set has no such device.
std::string InstanceId(HDEVINFO set, SP_DEVINFO_DATA* data);

} // namespace host
