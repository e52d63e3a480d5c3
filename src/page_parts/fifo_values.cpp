#include "page_parts/fifo_values.h"

FifoValues FifoValuesOf(const UartBasicInfo& uart) {
    return {uart.UartFifoEnable, uart.UartTxFifoLowHigh, uart.UartRxFifoLowHigh};
}

void SetFifoValues(UartBasicInfo& uart, const FifoValues& values) {
    uart.UartFifoEnable = values.UartFifoEnable;
    uart.UartTxFifoLowHigh = values.UartTxFifoLowHigh;
    uart.UartRxFifoLowHigh = values.UartRxFifoLowHigh;
}

bool SameFifoValues(const FifoValues& left, const FifoValues& right) {
    return left.UartFifoEnable == right.UartFifoEnable && left.UartTxFifoLowHigh == right.UartTxFifoLowHigh &&
           left.UartRxFifoLowHigh == right.UartRxFifoLowHigh;
}
