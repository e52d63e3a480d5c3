// The three FIFO settings of a UART: taken from a record, put into one, and compared.
#pragma once

#include "device_model/board_params.h"

// The use of the FIFO, 0 or 1, and two trigger levels in bytes. With the FIFO off they are 0, 1 and 1.
struct FifoValues {
    u32 UartFifoEnable;
    u32 UartTxFifoLowHigh;
    u32 UartRxFifoLowHigh;
};

FifoValues FifoValuesOf(const UartBasicInfo& uart);
void SetFifoValues(UartBasicInfo& uart, const FifoValues& values);
bool SameFifoValues(const FifoValues& left, const FifoValues& right);
