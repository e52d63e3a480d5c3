// The three values of a UART's FIFO that a user sets, taken from a record, put into one, and compared.
#pragma once

#include "device_model/board_params.h"

// Use of the FIFO, 0 or 1, and two trigger levels in bytes; 0, 1, 1 with the FIFO off.
struct FifoValues {
    u32 UartFifoEnable;
    u32 UartTxFifoLowHigh;
    u32 UartRxFifoLowHigh;
};

FifoValues FifoValuesOf(const UartBasicInfo& uart);
void SetFifoValues(UartBasicInfo& uart, const FifoValues& values);
bool SameFifoValues(const FifoValues& left, const FifoValues& right);
