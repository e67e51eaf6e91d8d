// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "display/BaseViewWidget.h"

struct ColumnContext;

/// The depth ruler of a column.
class DepthAxis final : public BaseViewWidget
{
    Q_OBJECT
public:
    inline static QString const OBJECT_NAME_ = QStringLiteral("VIEW_WIDGET_DEPTHAXIS");

    DepthAxis(QWidget* parent, QString const& name, ColumnContext const& context);

    [[nodiscard]] QString GetDescription() const override;
    /// The depth, with an empty text.
    [[nodiscard]] StatusMessage GetStatusMessage(int x, int y) const override;
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};
