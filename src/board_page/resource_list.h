// The list view of a channel's resources: up to three address ranges and the interrupt.
#pragma once

#include "device_model/board_params.h"

// Adds the two columns, once per page. A column whose heading can't be loaded is left out.
void AddResourceColumns(HWND hDlg);

// Shows the resources of a channel; nothing if `channel` is null.
void _FillResourceList(HWND hDlg, const BPPCHL* channel);
