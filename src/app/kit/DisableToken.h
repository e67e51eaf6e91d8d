// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QMetaType>

#include <memory>

/// Holds undo recording off while any copy lives besides the one its UndoRedo object keeps. The state is the
/// use count of a shared object; there is no call to end it, the last copy going out of scope does.
/// May cross threads in a queued signal.
class DisableToken
{
public:
    DisableToken() : shared_(std::make_shared<char>()) {}

    /// True while anyone besides the first holder has a copy.
    [[nodiscard]] bool IsDisabled() const { return shared_.use_count() > 1; }

private:
    std::shared_ptr<char> shared_;
};

Q_DECLARE_METATYPE(DisableToken)
