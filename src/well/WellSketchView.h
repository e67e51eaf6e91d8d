// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "display/BaseViewWidget.h"
#include "well/WellSketchRenderer.h"

#include <optional>
#include <vector>

struct ColumnContext;

/// The sketch of the well as a track of the column. Hit areas live from one rendering to the next.
class WellSketchView final : public BaseViewWidget
{
    Q_OBJECT
public:
    inline static QString const OBJECT_NAME_ = QStringLiteral("VIEW_WIDGET_WELL_SKETCH_VIEW");

    WellSketchView(QWidget* parent, QString const& name, ColumnContext const& context);

    [[nodiscard]] QString GetDescription() const override;
    /// The depth, and the text of the item under the mouse or "Well Sketch".
    [[nodiscard]] StatusMessage GetStatusMessage(int x, int y) const override;
    /// From the top of the uppermost string to the foot of the deepest.
    [[nodiscard]] std::optional<Interval> GetDepthInterval_metric() const;
    [[nodiscard]] QSize sizeHint() const override;

    void RenderToPainter(QPainter& painter, Interval const& interval, double dpi_x, double dpi_y,
                         WellSketchRenderer::ColorScheme const& scheme);
    /// Marks the item under the mouse.
    void RenderBoundingBox(QPainter& painter) const;

    /// The areas of the last rendering, in drawing order.
    [[nodiscard]] std::vector<WellComponentBoundingBox> const& GetBoundingBoxes() const { return boxes_; }
    [[nodiscard]] std::vector<PolygonBoundingBox> const& GetPolygons() const { return polygons_; }

signals:
    /// `depth` in metres.
    void WellComponentClicked_Signal(Interval const& depth, QString const& description);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    /// The rectangle drawn last at a point or, where there is none, the polygon drawn last.
    void FindItem(QPointF const& point);
    void ClearItem();
    [[nodiscard]] SketchItemText const* GetItemText() const;

    PipeStringData const& pipe_strings_;
    std::vector<WellComponentBoundingBox> boxes_;
    std::vector<PolygonBoundingBox> polygons_;
    WellComponentBoundingBox const* box_ = nullptr; ///< under the mouse
    PolygonBoundingBox const* polygon_ = nullptr;   ///< under the mouse
    WellSketchRenderer renderer_;
};
