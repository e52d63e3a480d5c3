// The FIFO arithmetic of a UART: the four receive trigger levels, and the meaning of a slider's position.
#pragma once

#include "platform/platform.h"

constexpr u32 RxFifoStageCount = 4;

// The positions of a UART's two sliders, on whichever dialog shows them. They are no part of the store.
struct FifoSliders {
    u32 RxFifo4Stage[RxFifoStageCount]; // the receive trigger levels, in bytes; all zero for a channel
                                        // that is no UART
    u32 RxFifoPos;                      // position of the receive slider, a stage number, 1 to 4
    u32 RxFifoPosTranslate;             // the trigger level of that position, in bytes
    u32 TxFifoPosTranslate; // position of the transmit slider, which is the trigger level in bytes
};

// Computes the stages of a receive FIFO of `uartRxFifoSize` bytes. Below 16 bytes stages 2 to 4 are 0.
void RxFifoStages(u32 uartRxFifoSize, u32 (&stages)[RxFifoStageCount]);

// The trigger level of a slider position, or 1 if the position is not 1 to 4.
u32 RxStageOfPosition(const u32 (&stages)[RxFifoStageCount], u32 position);

// The position for a trigger level, which is the highest stage that does not exceed it. 1 if the FIFO is off.
u32 RxPositionOfTrigger(const u32 (&stages)[RxFifoStageCount], u32 trigger, bool fifoEnable);
