// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "model/DataContainer.h"

#include <QObject>

/// Owns the container and makes every change visible: the only way to a non-const reference raises the signal
/// by which the project comes to count as modified.
class DataContainerWrapper : public QObject
{
    Q_OBJECT
public:
    using QObject::QObject;

    [[nodiscard]] DataContainer const& GetReadAccess() const { return data_container_; }
    /// Raises the signal first, unless `silent`, which is for the project restore alone.
    [[nodiscard]] DataContainer& GetWriteAccess(bool silent);

signals:
    void DataContainerWriteAccessRequested_Signal();

private:
    DataContainer data_container_;
};
