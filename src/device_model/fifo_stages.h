// The FIFO arithmetic of a UART: four receive trigger levels, and what a slider's position means.
#pragma once

#include "platform/platform.h"

constexpr u32 RxFifoStageCount = 4;

// What the two sliders of a UART stand at, on whichever dialog shows them; no part of the store.
struct FifoSliders {
    u32 RxFifo4Stage[RxFifoStageCount]; // the receive trigger levels, in bytes; all zero for a channel
                                        // that is no UART
    u32 RxFifoPos;                      // position of the receive slider, a stage number, 1 to 4
    u32 RxFifoPosTranslate;             // the trigger level of that position, in bytes
    u32 TxFifoPosTranslate; // position of the transmit slider, which is the trigger level in bytes
};

// The stage table of a receive FIFO of `uartRxFifoSize` bytes. Below 16 bytes the stages 2 to 4 are 0.
void RxFifoStages(u32 uartRxFifoSize, u32 (&stages)[RxFifoStageCount]);

// The trigger level of a slider position; 1 for a position that is none.
u32 RxStageOfPosition(const u32 (&stages)[RxFifoStageCount], u32 position);

// The position that shows a trigger level: the highest stage that does not exceed it; 1 with the FIFO off.
u32 RxPositionOfTrigger(const u32 (&stages)[RxFifoStageCount], u32 trigger, bool fifoEnable);
