// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/ColumnFixture.h"

#include "display/BaseScaleView.h"
#include "model/ViewObjectNames.h"

#include <QHBoxLayout>
#include <QPainter>

namespace {
class PlainView final : public BaseViewWidget
{
public:
    PlainView(QWidget* parent, QString const& name, QString const& object_name, ColumnContext const& context)
        : BaseViewWidget(parent, name, context.parameters, *context.directional_survey)
    {
        setObjectName(object_name);
    }
    QString GetDescription() const override { return "plain"; }
    StatusMessage GetStatusMessage(int /*x*/, int y) const override
    {
        StatusMessage message;
        message.depth = ConvertYValueToDepth_metric(y);
        return message;
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        DrawCachedPixmap(painter, [](QPainter&) {});
        RenderMouseCursor(painter);
    }
};

class PlainPair final : public BaseCombinedViewWidget
{
public:
    PlainPair(QString const& name, QString const& object_name, ColumnContext const& context)
        : view_(new PlainView(this, name, object_name, context))
    {
        view_->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
        auto* scale = new BaseScaleView(this);
        scale->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
        SetPair(scale, view_);
    }
    BaseViewWidget const* GetBaseViewWidget() const override { return view_; }
    BaseViewWidget* GetBaseViewWidget() override { return view_; }
    void RenderScales(QPainter&, int, QColor const&) override {}
    void RenderDataview(QPainter&, Interval const&, double, double, double, double) override {}
    QSize sizeHint() const override { return {60, 100}; }

private:
    PlainView* view_;
};

BASE_LOGPASS_STRUCT Record(QString const& hash, QStringList const& names, QColor const& color)
{
    BASE_LOGPASS_STRUCT record;
    record.properties.identifier = LogPassIdentifier(1, hash);
    record.properties.pen = QPen(color);
    record.file_path_and_name = hash + ".las";
    for (QString const& name : names) {
        record.curve_info_header.push_back(HeaderRow(name, "unit", "", "Description of " + name));
    }
    return record;
}
} // namespace

BaseCombinedViewWidget* PlainViewFactory::CreateZoneView(QString const& name,
                                                         ColumnContext const& context) const
{
    return new PlainPair(name, view_object_names::ZONE, context);
}

BaseCombinedViewWidget* PlainViewFactory::CreateDeviationView(QString const& name,
                                                              ColumnContext const& context) const
{
    return new PlainPair(name, view_object_names::DEVIATION, context);
}

BaseCombinedViewWidget* PlainViewFactory::CreateWellSketchView(QString const& name,
                                                               ColumnContext const& context) const
{
    return new PlainPair(name, view_object_names::WELL_SKETCH, context);
}

void PlainViewFactory::ConnectComponentClicks(BaseCombinedViewWidget* view, QObject* /*receiver*/,
                                              ComponentClicked const& clicked) const
{
    clicks[view->GetBaseViewWidgetName()] = clicked;
}

QWidget* PlainViewFactory::CreateComponentInfoOverlay(QWidget* /*parent*/, Interval const& md,
                                                      Interval const& tvd, QString const& text) const
{
    overlays.push_back({md, tvd, text});
    return nullptr;
}

std::shared_ptr<DepthLogPass> MakePass(QString const& hash, double top, double bottom, std::size_t count,
                                       QStringList const& names,
                                       std::function<float(int, double)> const& value, QColor const& color)
{
    std::vector<double> depths(count);
    for (std::size_t i = 0; i < count; ++i) {
        depths[i] = top + (bottom - top) * static_cast<double>(i) / static_cast<double>(count - 1);
    }
    BaseLog::DataMatrix data;
    for (int curve = 0; curve < names.size(); ++curve) {
        auto samples = std::make_shared<std::vector<float>>(count);
        for (std::size_t i = 0; i < count; ++i) {
            (*samples)[i] = value(curve, depths[i]);
        }
        data.push_back(samples);
    }
    return std::make_shared<DepthLogPass>(Record(hash, names, color), data, true, 0.0F, 1.0F, depths);
}

std::shared_ptr<DepthLogPass> MakePass(QString const& hash, double top, double bottom,
                                       QStringList const& names)
{
    return MakePass(hash, top, bottom, 10, names,
                    [](int curve, double) { return static_cast<float>(curve); });
}

std::shared_ptr<TimeLog> MakeTimeLog(QString const& hash, float depth, QStringList const& names)
{
    BaseLog::DataMatrix data;
    for (int curve = 0; curve < names.size(); ++curve) {
        data.push_back(std::make_shared<std::vector<float>>(std::vector<float>{1, 2, 3}));
    }
    return std::make_shared<TimeLog>(Record(hash, names, Qt::red), data, std::vector<double>{0, 1, 2}, depth);
}

void ColumnFixture::SetUp()
{
    Quorrel::DPI_X = 100;
    Quorrel::DPI_Y = 100;
    SettingsSingleton::Instance().SetMetricDepth(true);
    column = std::make_unique<ColumnWindow>(SURVEY, well.Context(), &factory);
}

void ColumnFixture::TearDown()
{
    column.reset();
    window.reset();
    SettingsSingleton::Instance().SetMetricDepth(false);
    SettingsSingleton::Instance().SetSeparatorSelection(US);
    Quorrel::DPI_X = 0;
    Quorrel::DPI_Y = 0;
}

void ColumnFixture::ShowOnScreen()
{
    window = std::make_unique<QWidget>();
    auto* layout = new QHBoxLayout(window.get());
    layout->setContentsMargins(0, 0, 0, 0);
    column->AddAddScrollAreaToLayout(layout);
    window->resize(1000, 600);
    window->show();
    column->show();
    Settle();
}

void ColumnFixture::Settle()
{
    for (int i = 0; i < 3; ++i) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents();
    }
}

QList<QString> ColumnFixture::Names() const
{
    QList<QString> names;
    for (BaseCombinedViewWidget const* pair : column->FindAllCombinedViewWidgets()) {
        names.append(pair->GetBaseViewWidgetName());
    }
    return names;
}

QList<QString> ColumnFixture::VisibleNames() const
{
    QList<QString> names;
    for (BaseCombinedViewWidget const* pair : column->FindAllVisibleCombinedViewWidgets()) {
        names.append(pair->GetBaseViewWidgetName());
    }
    return names;
}

std::map<QString, int> ColumnFixture::RenderCounts() const
{
    std::map<QString, int> counts;
    for (BaseCombinedViewWidget const* pair : column->FindAllCombinedViewWidgets()) {
        counts[pair->GetBaseViewWidgetName()] = pair->GetBaseViewWidget()->GetRenderCount();
    }
    return counts;
}
