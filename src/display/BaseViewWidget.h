// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/kit/Interval.h"
#include "display/StatusMessage.h"

#include <QPixmap>
#include <QString>
#include <QWidget>

#include <functional>
#include <memory>
#include <vector>

class BaseViewWidgetParameters;
class DirectionalSurveyData;
struct ScaleItemParameters;

/// One track of a column: shows something against the shared depth scale. Keeps the rendered track in a
/// pixmap and draws the cross-hair and the selection over it, so that mouse moves never render. Owned by its
/// combined view widget; the parameters and the survey outlive it. Depths in metres.
class BaseViewWidget : public QWidget
{
    Q_OBJECT
public:
    /// `parent` is the combined view widget.
    BaseViewWidget(QWidget* parent, QString const& name, BaseViewWidgetParameters const* parameters,
                   DirectionalSurveyData const& directional_survey);
    ~BaseViewWidget() override;

    /// A short text of the kind of view.
    [[nodiscard]] virtual QString GetDescription() const = 0;
    /// Depth and text for the pixel (x, y) of the view.
    [[nodiscard]] virtual StatusMessage GetStatusMessage(int x, int y) const = 0;

    [[nodiscard]] QString const& GetName() const { return name_; }
    void SetNameAndTitle(QString const& name);
    [[nodiscard]] BaseViewWidgetParameters const* GetParameters() const { return parameters_; }
    [[nodiscard]] DirectionalSurveyData const& GetDirectionalSurvey() const { return directional_survey_; }

    /// The next paint renders anew.
    void ForceRedraw();
    /// How often the cached pixmap was rendered since construction.
    [[nodiscard]] int GetRenderCount() const { return render_count_; }

    /// The row of the column's shared cursor, -1 for none.
    void SetCursorRow(int y);
    [[nodiscard]] int GetCursorRow() const { return cursor_y_; }
    /// The row where the column's vertical selection began, -1 for none.
    void SetSelectionStartRow(int y);
    [[nodiscard]] int GetSelectionStartRow() const { return selection_start_y_; }

    /// Nearest row of a track of `height` pixels that shows `interval`: its top is row 0, its bottom row
    /// height - 1. Depths far outside are held at the ends of the 32-bit range; 0 when the interval has no
    /// length.
    [[nodiscard]] static int ConvertDepthToYValue(float depth, int height, Interval const& interval);
    /// Depth of a row of the view as it is now.
    [[nodiscard]] float ConvertYValueToDepth_metric(int y) const;
    /// Index into `size` regularly spaced samples from `first` to `last`; negative above, beyond size - 1
    /// below.
    [[nodiscard]] static int ConvertDepthToIndex(float depth, std::size_t size, float first, float last);
    [[nodiscard]] float GetTopDepthVisible_metric() const;
    [[nodiscard]] float GetBottomDepthVisible_metric() const;

signals:
    void MouseEnter_Signal();
    void MouseLeave_Signal();
    void VisibilityChanged_Signal();
    void SetScaleName_Signal(QString const& name);
    void DepthShiftDrag_Signal(int from, int to);
    void VerticalSelectionBegin_Signal(int y);
    /// Rows in ascending order.
    void VerticalSelectionEnd_Signal(int y1, int y2);
    void VisibleHeightChanged_Signal(int height);
    void MouseMove_Signal(int y, float depth, QString const& text);
    void SetScale_Signal(std::vector<std::shared_ptr<ScaleItemParameters>> scales);

protected:
    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

    /// A selection or a measuring drag is under way.
    [[nodiscard]] bool IsDragging() const
    {
        return press_x_ >= 0 || selection_start_x_ >= 0 || selection_start_y_ >= 0;
    }

    /// Draws those parts of the cached pixmap that `region` asks for; before that, when it is stale or has
    /// another size than the widget, fills it with the background colour and calls `render` on it.
    void DrawCachedPixmap(QPainter& painter, QRegion const& region,
                          std::function<void(QPainter&)> const& render);
    /// Whether what is drawn over the pixmap at this moment reaches beyond the cross-hair, so that a move of
    /// the mouse repaints the whole view instead of the lines that change.
    [[nodiscard]] virtual bool DrawsMoreThanCrossHair() const;
    /// Cross-hair, selection lines and selection band.
    void RenderMouseCursor(QPainter& painter) const;

    BaseViewWidgetParameters const* parameters_;
    DirectionalSurveyData const& directional_survey_;
    int cursor_y_ = -1;
    int cursor_x_ = -1;
    int selection_start_x_ = -1;
    int selection_start_y_ = -1;
    int press_x_ = -1;
    int press_y_ = -1;
    bool needs_redraw_ = true;

private:
    void SetCursorColumn(int x);
    /// Asks for a repaint of what is drawn at the cursor.
    void UpdateCrossHair();
    /// Emits MouseMove_Signal with the message for the pixel.
    void ReportMouse(int x, int y);
    void ReportRestingMouse();

    QString name_;
    std::shared_ptr<QPixmap> cached_pixmap_;
    int render_count_ = 0;
};
