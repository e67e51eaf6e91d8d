// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "display/BaseViewWidget.h"
#include "well/ZoneBoundingBox.h"
#include "well/ZoneTrack.h"

#include <QList>
#include <QStringList>

#include <vector>

/// The zones of the well side by side: the perforations, each zone track and the survey's interpretation
/// zones, where there are any. The lists outlive the view.
class ZoneView final : public BaseViewWidget
{
    Q_OBJECT
public:
    inline static QString const OBJECT_NAME_ = QStringLiteral("VIEW_WIDGET_ZONE_VIEW");

    ZoneView(QWidget* parent, QString const& name, BaseViewWidgetParameters const* parameters,
             DirectionalSurveyData const& survey, QList<Zone> const& perforation_zones,
             QList<ZoneTrack> const& zone_tracks, QList<Zone> const& interpretation_zones);

    [[nodiscard]] QString GetDescription() const override;
    /// The depth, and the text of the zone under (x, y) or "No zone".
    [[nodiscard]] StatusMessage GetStatusMessage(int x, int y) const override;
    [[nodiscard]] QSize sizeHint() const override;

    /// Draws the zones over a width in pixels and the height of the painter's window.
    void RenderToPainter(QPainter& painter, Interval const& interval, int width);
    /// Marks the zone under the mouse.
    void RenderSelection(QPainter& painter) const;

    [[nodiscard]] int CountNumberOfZoneColumns() const { return static_cast<int>(GetHeadings().size()); }
    /// The headings of the columns, from the left.
    [[nodiscard]] QStringList GetHeadings() const;
    /// The zone covers some of the interval (metres), in whichever order its ends are.
    [[nodiscard]] static bool IsVisible(Interval const& zone, Interval const& interval);
    /// Index of the column at x, -1 for none.
    [[nodiscard]] int FindZoneColumn(int x) const;
    /// Null for none.
    [[nodiscard]] ZoneBoundingBox const* FineZoneBoundingBox(int x, int y) const;
    /// The hit areas of the last rendering, by column.
    [[nodiscard]] std::vector<std::vector<ZoneBoundingBox>> const& GetBoundingBoxes() const { return boxes_; }

signals:
    /// `depth` in metres.
    void ZoneClicked_Signal(Interval const& depth, QString const& text);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    [[nodiscard]] int CalculateZoneWidthInPixels(int width) const;
    void RenderColumn(QPainter& painter, QString const& heading, QList<Zone> const& zones,
                      Interval const& interval, int width);
    void AddBoundingBox(QString const& heading, Zone const& zone, QRect const& area);
    /// The zone drawn last at a row of a column; null for none.
    [[nodiscard]] static ZoneBoundingBox const*
    FindZoneBoundingBoxAtY(std::vector<ZoneBoundingBox> const& column, int y);
    [[nodiscard]] bool IsSelecting() const;
    /// Repaints when another zone, or none, is then under the mouse.
    void SetMouse(QPoint mouse);

    QList<Zone> const& perforation_zones_;
    QList<ZoneTrack> const& zone_tracks_;
    QList<Zone> const& interpretation_zones_;
    std::vector<std::vector<ZoneBoundingBox>> boxes_; ///< one list per column
    int column_width_ = 0;                            ///< of the last rendering, pixels
    QPoint mouse_{-1, -1};
};
