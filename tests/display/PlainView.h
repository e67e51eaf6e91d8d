// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "display/BaseViewWidget.h"
#include "display/ColumnContext.h"

#include <QPaintEvent>
#include <QPainter>

/// A track filled with one colour, whose status text is the column of the mouse.
class PlainView final : public BaseViewWidget
{
public:
    PlainView(QWidget* parent, QString const& name, ColumnContext const& context)
        : BaseViewWidget(parent, name, context.parameters, *context.directional_survey)
    {
    }
    [[nodiscard]] QString GetDescription() const override { return "plain"; }
    [[nodiscard]] StatusMessage GetStatusMessage(int x, int y) const override
    {
        return {ConvertYValueToDepth_metric(y), QString::number(x)};
    }

    QColor color = Qt::black;

protected:
    void paintEvent(QPaintEvent* event) override
    {
        QPainter painter(this);
        DrawCachedPixmap(painter, event->region(),
                         [this](QPainter& pixmap) { pixmap.fillRect(rect(), color); });
        RenderMouseCursor(painter);
    }
};
