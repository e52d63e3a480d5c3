// The list of a board's channels, the two lookups, and the channel walk.
//
// The list is circular, with a separate head, and in the order of enumeration: all UARTs, then each of the
// other classes.
//
// The walk visits the channels with numbers from 1 up to, but not including, `BoardNrController`, in
// ascending order. A number without a channel is skipped. Of two channels with the same number only the one
// that was enumerated first is visited. Every loop over the channels is such a walk:
//
//     for (BPPCHL* chl = board->WalkFirst; chl != nullptr; chl = chl->WalkNext)
//
// The links are made as the records are inserted, so the cost of a walk depends on the channels that exist
// and not on `BoardNrController`.
#pragma once

#include "device_model/board_params.h"

// Makes the links of an entry, head or record, point to the entry itself.
void ChlListInit(ChlListEntry* entry);
bool ChlListIsEmpty(const ChlListEntry* head);
ChlListEntry* ChlListFirst(const ChlListEntry* head);
// Puts the record before the head, at the end of the list.
void ChlListInsertTail(ChlListEntry* head, ChlListEntry* record);
// Joins the neighbours and leaves the record pointing to itself.
void ChlListRemove(ChlListEntry* record);

// Links a record into the walk if the walk visits it. `BoardNrController` must be set.
void BoardChlWalkInsert(BoardParams* board, BPPCHL* record);

// The first record in the list with this list box position or this channel number, or null.
BPPCHL* BoardChlByListIndex(const BoardParams* board, u32 index);
BPPCHL* BoardChlByNumber(const BoardParams* board, u32 number);
