#include "device_model/channel_list.h"

void ChlListInit(ChlListEntry* entry) {
    entry->Next = entry;
    entry->Prev = entry;
}

bool ChlListIsEmpty(const ChlListEntry* head) {
    return head->Next == head;
}

ChlListEntry* ChlListFirst(const ChlListEntry* head) {
    return head->Next;
}

void ChlListInsertTail(ChlListEntry* head, ChlListEntry* record) {
    record->Next = head;
    record->Prev = head->Prev;
    head->Prev->Next = record;
    head->Prev = record;
}

void ChlListRemove(ChlListEntry* record) {
    record->Prev->Next = record->Next;
    record->Next->Prev = record->Prev;
    ChlListInit(record);
}

void BoardChlWalkInsert(BoardParams* board, BPPCHL* record) {
    const u32 number = record->CurrentInfo.ChlBasic.ChlNumber;
    if (number < 1 || number >= board->BoardOther.BoardNrController) {
        return;
    }
    BPPCHL** link = &board->WalkFirst;
    while (*link != nullptr && (*link)->CurrentInfo.ChlBasic.ChlNumber < number) {
        link = &(*link)->WalkNext;
    }
    if (*link == nullptr || (*link)->CurrentInfo.ChlBasic.ChlNumber != number) {
        record->WalkNext = *link;
        *link = record;
    }
}

BPPCHL* BoardChlByListIndex(const BoardParams* board, u32 index) {
    for (ChlListEntry* entry = ChlListFirst(&board->ChlList); entry != &board->ChlList; entry = entry->Next) {
        auto* chl = static_cast<BPPCHL*>(entry);
        if (chl->ListIndex == index) {
            return chl;
        }
    }
    return nullptr;
}

BPPCHL* BoardChlByNumber(const BoardParams* board, u32 number) {
    for (ChlListEntry* entry = ChlListFirst(&board->ChlList); entry != &board->ChlList; entry = entry->Next) {
        auto* chl = static_cast<BPPCHL*>(entry);
        if (chl->CurrentInfo.ChlBasic.ChlNumber == number) {
            return chl;
        }
    }
    return nullptr;
}
