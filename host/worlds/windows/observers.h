// What the library does to the world outside itself, seen at its import table and written down in the lines
// of `World::Journal`. A call is written down before it is passed on, whatever comes of it.
#pragma once

#include <string>
#include <vector>

#include "host/worlds/world.h"

namespace host {

// Observes a library from here on. One library at a time.
void Observe(HMODULE library);

// Marks the line of the call that is being made as failed: for whoever makes calls fail below the observers.
void NoteFailure();

// The lines since the last call.
std::vector<std::string> TakeJournal();

// As `World::HearTrace`.
bool ObserveTrace(World::TraceListener hear);

// The style that an open message box was opened with, 0 if `box` is none.
UINT OpenBoxStyle(HWND box);

// The instance id of a device, UTF-8; empty if the set has no such device.
std::string InstanceId(HDEVINFO set, SP_DEVINFO_DATA* data);

} // namespace host
