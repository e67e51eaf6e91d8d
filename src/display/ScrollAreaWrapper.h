// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/kit/Interval.h"
#include "model/DataChannelIdentifier.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>

class BaseCombinedViewWidget;
class BaseDataView;
class BaseViewWidget;
class CombinedDataViewWidget;
class ColumnSlots;
class DepthAxisCombinedViewWidget;
class MyAbstractScrollArea;
class QHBoxLayout;
class QPoint;
class QPointF;
class QSplitter;
class QWheelEvent;
class QWidget;
class ViewFactory;
struct ColumnContext;

/// The widgets of a column: a scroll area whose viewport holds one horizontal splitter, whose children are
/// the view pairs. Owns the scroll area, also after it was put into a layout of a parent. Main thread only.
class ScrollAreaWrapper final : public QObject
{
    Q_OBJECT
public:
    /// @param factory makes the zone, deviation and sketch views and the information box; null for none of
    /// them. Outlives this object.
    explicit ScrollAreaWrapper(ViewFactory const* factory, QObject* parent = nullptr);
    ~ScrollAreaWrapper() override;

    /// The creators give a hidden pair, wired to `column` and to this object's own signals, with its header
    /// named. The depth axis goes to splitter index 0, all others are appended.
    DepthAxisCombinedViewWidget* CreateDepthView(QString const& name, ColumnContext const& context,
                                                 ColumnSlots* column);
    /// An automatic view, or a user view.
    CombinedDataViewWidget* CreateDataView(QString const& name, ColumnContext const& context,
                                           ColumnSlots* column, bool automatic);
    /// These three ask the factory and return null without one, or when it does not make that view.
    BaseCombinedViewWidget* CreateZoneView(QString const& name, ColumnContext const& context,
                                           ColumnSlots* column);
    BaseCombinedViewWidget* CreateDeviationView(QString const& name, ColumnContext const& context,
                                                ColumnSlots* column);
    BaseCombinedViewWidget* CreateWellSketchView(QString const& name, ColumnContext const& context,
                                                 ColumnSlots* column);

    [[nodiscard]] int GetSplitterCount() const;
    /// Null for an index out of range.
    [[nodiscard]] BaseCombinedViewWidget* GetSplitterWidget(int index) const;
    [[nodiscard]] int GetSplitterIndex(QWidget const* widget) const;
    /// Width of a pair in pixels, 0 for a hidden one and for an index out of range.
    [[nodiscard]] int GetSplitterWidth(int index) const;
    /// Width of each pair in pixels, 0 for a hidden one.
    [[nodiscard]] QList<int> GetSplitterSizes() const;
    void SetSplitterSizes(QList<int> const& sizes);
    /// Puts a pair at an index; a pair that is already in the splitter is moved there.
    void InsertSplitterWidget(int index, BaseCombinedViewWidget* widget);
    void AddSplitterWidget(BaseCombinedViewWidget* widget);
    [[nodiscard]] QPoint SplitterMapToGlobal(QPoint const& point) const;
    void SetSplitterHandleColor(QString const& color);

    /// All pairs in splitter order.
    [[nodiscard]] QList<BaseCombinedViewWidget*> FindAllCombinedViewWidgets() const;
    /// The views with this object name, in splitter order.
    [[nodiscard]] QList<BaseViewWidget*> FindViewWidgets(QString const& object_name) const;
    [[nodiscard]] QList<BaseDataView*> FindAllBaseDataViews() const;

    /// ResetHorizontalScale_Clicked on every automatic, user and deviation view.
    void ResetHorizontalScale_Clicked();

    /// Width of the scroll area in pixels.
    [[nodiscard]] int GetWidth() const;
    /// Paints the visible views again from their cached images; the headers stay.
    void UpdateViewport();
    /// Paints headers and views again, the views from their cached images.
    void UpdateAll();

    /// These two do not raise OnscrollContentsBy_Signal.
    void SetScrollBarRange(int minimum, int maximum);
    void SetScrollBarPosition(int position);
    [[nodiscard]] int GetScrollBarValue() const;

    /// Opens the information box of a well component over the views; depths in metres.
    void AddOverlay(Interval const& md, Interval const& tvd, QString const& text);

    void AddToLayout(QHBoxLayout* layout);
    void show();
    void hide();
    [[nodiscard]] MyAbstractScrollArea* GetScrollArea() const;
    /// The window that questions to the user stand over.
    [[nodiscard]] QWidget* GetDialogParent() const;

signals:
    /// The user moved a handle between two views.
    void SplitterMoved_Signal();
    void OnShowEvent_Signal();
    void OnScrollZoomEvent_Signal(QWheelEvent* event);
    void OnscrollContentsBy_Signal(int dx, int dy);
    void HorizontalZoomEnd_Signal();
    void DepthUnitChanged_Signal();
    void ShiftStarted_Signal();
    /// A null identifier means the whole log pass; it is only alive during the call.
    void ApplyShift_Signal(DataChannelIdentifier const* identifier, float delta);
    void ApplyStretch_Signal(DataChannelIdentifier const* identifier, float from, float to, float anchor);
    void ShowUserDataViewProperties_Signal(QString const& view);
    void DataChannelDroppedOnUserDataView_Signal(QString const& view,
                                                 DataChannelIdentifier const& identifier);

private:
    BaseCombinedViewWidget* AppendFactoryPair(BaseCombinedViewWidget* pair, QString const& name,
                                              ColumnSlots* column);
    /// The undo entries and depth corrections of a data view that the factory made.
    static void ConnectDataView(CombinedDataViewWidget const* pair, ColumnSlots const* column);
    void AppendPair(BaseCombinedViewWidget* pair, QString const& name);

    ViewFactory const* factory_;
    QPointer<MyAbstractScrollArea> scroll_area_;
    QPointer<QSplitter> splitter_;
};
