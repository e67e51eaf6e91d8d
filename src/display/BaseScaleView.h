// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QWidget>

#include <memory>
#include <vector>

class QColor;
class QPainter;
class QVBoxLayout;
class ScaleItem;
class ScaleLabel;
struct ScaleItemParameters;

/// The header above a view: its name, by which the view is dragged, and one line per scale.
class BaseScaleView : public QWidget
{
    Q_OBJECT
public:
    static constexpr int LINE_HEIGHT = 20; ///< pixels of the name and of each item

    explicit BaseScaleView(QWidget* parent = nullptr);

    /// Shows one item per record; nothing here.
    virtual void SetScale(std::vector<std::shared_ptr<ScaleItemParameters>> scales);
    /// An item was clicked; nothing here.
    virtual void OnSelected(ScaleItem* item);
    /// Draws name and items into the painter's window, each `height` units high, in `color` on the page's own
    /// ground.
    virtual void RenderScalesToPainter(QPainter& painter, int height, QColor const& color);

    void SetName(QString const& name);
    [[nodiscard]] QString GetName() const;
    [[nodiscard]] int GetScaleCount() const;
    /// Draws the name into the painter's window.
    void RenderScaleNameToPainter(QPainter& painter) const;
    [[nodiscard]] QSize sizeHint() const override;

signals:
    void AdjustHeight_Signal();
    void MoveButtonReleased_Signal(int global_y);
    void SetSelectedCurveInfo_Signal(std::shared_ptr<ScaleItemParameters> selected);
    void MoveViewWidget_Signal(QPointF const& global);

protected:
    [[nodiscard]] QWidget* GetItemsArea() const { return items_area_; }
    [[nodiscard]] QVBoxLayout* GetItemsLayout() const { return items_layout_; }

private:
    QWidget* name_area_;
    QWidget* items_area_;
    ScaleLabel* label_;
    QVBoxLayout* items_layout_;
};
