// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/ColumnFixture.h"

#include "PlainView.h"
#include "display/BaseScaleView.h"
#include "support/Texts.h"

#include <QHBoxLayout>

namespace {
class PlainPair final : public BaseCombinedViewWidget
{
public:
    PlainPair(QString const& name, QString const& object_name, ColumnContext const& context)
        : view_(new PlainView(this, name, context))
    {
        view_->setObjectName(object_name);
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

BASE_LOGPASS_STRUCT Record(QString const& hash, QStringList const& names, QString const& unit)
{
    BASE_LOGPASS_STRUCT record;
    record.properties.identifier = LogPassIdentifier(1, hash);
    record.properties.pen = QPen(Qt::red);
    record.file_path_and_name = hash + ".las";
    for (QString const& name : names) {
        record.curve_info_header.push_back(HeaderRow(name, unit, "", "Description of " + name));
    }
    return record;
}
} // namespace

BaseCombinedViewWidget* PlainViewFactory::Create(QString const& name, QString const& object_name,
                                                 ColumnContext const& context)
{
    return new PlainPair(name, object_name, context);
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
                                       std::function<float(int, double)> const& value, QString const& unit)
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
    return std::make_shared<DepthLogPass>(Record(hash, names, unit), data, true, 0.0F, 1.0F, depths);
}

std::shared_ptr<DepthLogPass> MakePass(QString const& hash, double top, double bottom,
                                       QStringList const& names, QString const& unit)
{
    return MakePass(
        hash, top, bottom, 10, names, [](int curve, double) { return static_cast<float>(curve); }, unit);
}

std::shared_ptr<TimeLog> MakeTimeLog(QString const& hash, float depth, QStringList const& names,
                                     std::vector<float> const& samples)
{
    BaseLog::DataMatrix data;
    for (int curve = 0; curve < names.size(); ++curve) {
        data.push_back(std::make_shared<std::vector<float>>(samples));
    }
    std::vector<double> times(samples.size());
    for (std::size_t i = 0; i < times.size(); ++i) {
        times[i] = 0.5 * static_cast<double>(i);
    }
    return std::make_shared<TimeLog>(Record(hash, names, "unit"), data, times, depth);
}

std::unique_ptr<ColumnWindow> ColumnFixture::MakeColumn() const
{
    return std::make_unique<ColumnWindow>(SURVEY, bench.context, &factory);
}

DepthLogPass& ColumnFixture::Import(QString const& hash, double top, double bottom, QStringList const& names)
{
    passes.push_back(MakePass(hash, top, bottom, names));
    column->AddImportedDepthLog(passes.back());
    return *passes.back();
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
    return Texts(column->FindAllCombinedViewWidgets(), &BaseCombinedViewWidget::GetBaseViewWidgetName);
}

QList<QString> ColumnFixture::VisibleNames() const
{
    return Texts(column->FindAllVisibleCombinedViewWidgets(), &BaseCombinedViewWidget::GetBaseViewWidgetName);
}

std::map<QString, int> ColumnFixture::RenderCounts() const
{
    std::map<QString, int> counts;
    for (BaseCombinedViewWidget const* pair : column->FindAllCombinedViewWidgets()) {
        counts[pair->GetBaseViewWidgetName()] = pair->GetBaseViewWidget()->GetRenderCount();
    }
    return counts;
}
