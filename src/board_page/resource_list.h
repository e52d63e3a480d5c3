// The list view of a channel's resources: up to three address ranges and the interrupt.
#pragma once

#include "device_model/board_params.h"

// Adds the two columns, once per page. A column is left out if its heading can't be loaded.
void AddResourceColumns(HWND hDlg);

// Shows the resources of a channel. If `channel` is null the list is left empty.
void _FillResourceList(HWND hDlg, const BPPCHL* channel);
