// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "model/DataContainerWrapper.h"

DataContainer& DataContainerWrapper::GetWriteAccess(bool silent)
{
    if (!silent) {
        emit DataContainerWriteAccessRequested_Signal();
    }
    return data_container_;
}
