// SPDX-License-Identifier: MIT
#ifndef STORE_DEVICE_ROWS_H_
#define STORE_DEVICE_ROWS_H_

#include "DeviceName.h"
#include "RecordRows.h"

/// What the records of devices have in common. Only this folder sees it.

/// Asks for all devices of a kind.
RecordRows DeviceRows_retrieve(Info_DeviceType type, const char *select);

void DeviceRows_readName(const RecordRows &rows, unsigned int row, DeviceName &device);

#endif // STORE_DEVICE_ROWS_H_
