#include "device_model/fifo_stages.h"

void RxFifoStages(u32 uartRxFifoSize, u32 (&stages)[RxFifoStageCount]) {
    const u32 unit = uartRxFifoSize >> 4;
    stages[0] = 1;
    stages[1] = unit * 4;
    stages[2] = unit * 8;
    stages[3] = unit * 14;
}

u32 RxStageOfPosition(const u32 (&stages)[RxFifoStageCount], u32 position) {
    return position >= 1 && position <= RxFifoStageCount ? stages[position - 1] : 1;
}

u32 RxPositionOfTrigger(const u32 (&stages)[RxFifoStageCount], u32 trigger, bool fifoEnable) {
    u32 position = fifoEnable ? RxFifoStageCount : 1;
    while (position > 1 && trigger < stages[position - 1]) {
        --position;
    }
    return position;
}
