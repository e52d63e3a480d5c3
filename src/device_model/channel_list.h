// The list of a board's channels, the two lookups, and the channel walk.
//
// The list is circular with a separate head and stands in enumeration order: all UARTs first, then each
// further class.
//
// The walk visits the channels with the numbers 1 up to, but not including, `BoardNrController`, in ascending
// order; a number without a channel is passed over, and of two channels with one number only the one
// enumerated first is visited. Every loop over channels is such a walk:
//
//     for (BPPCHL* chl = board->WalkFirst; chl != nullptr; chl = chl->WalkNext)
//
// The links are made as the records are inserted, so a walk costs the channels that are there and not the
// numbers that `BoardNrController` promises.
#pragma once

#include "device_model/board_params.h"

// The links of an entry, head or record, point to the entry itself.
void ChlListInit(ChlListEntry* entry);
bool ChlListIsEmpty(const ChlListEntry* head);
ChlListEntry* ChlListFirst(const ChlListEntry* head);
// Puts the record before the head, at the end of the list.
void ChlListInsertTail(ChlListEntry* head, ChlListEntry* record);
// Joins the neighbours and leaves the record pointing to itself.
void ChlListRemove(ChlListEntry* record);

// Links a record into the walk, if the walk visits it. `BoardNrController` must be known.
void BoardChlWalkInsert(BoardParams* board, BPPCHL* record);

// The first record in the list with that list box position, or with that channel number; null if there is
// none.
BPPCHL* BoardChlByListIndex(const BoardParams* board, u32 index);
BPPCHL* BoardChlByNumber(const BoardParams* board, u32 number);
