// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/UndoRedo.h"

#include "app/UndoTarget.h"
#include "app/kit/Interval.h"
#include "model/DataChannelIdentifier.h"
#include "model/DepthChannel.h"

#include <QCoreApplication>
#include <QThread>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <functional>

using ::testing::_;
using ::testing::InSequence;

namespace {
class MockTarget : public UndoTarget
{
public:
    MOCK_METHOD(void, SetVisibleDepthInterval, (Interval const&), (override));
    MOCK_METHOD(void, SetDataViewScale, (QString const&, DataChannelIdentifier const&, Interval const&),
                (override));
    MOCK_METHOD(void, EmitApplyShift, (DataChannelIdentifier const&, float), (override));
    MOCK_METHOD(void, EmitApplyStretch, (DataChannelIdentifier const&, float, float, float), (override));
    MOCK_METHOD(void, RefreshDataViews, (), (override));
};

using StrictTarget = ::testing::StrictMock<MockTarget>;

/// Applies depth corrections to a real depth axis.
class DepthTarget : public ::testing::NiceMock<MockTarget>
{
public:
    explicit DepthTarget(DepthChannel& depths) : depths_(depths) {}
    void EmitApplyShift(DataChannelIdentifier const&, float shift) override
    {
        depths_.ApplyShift(static_cast<double>(shift));
    }
    void EmitApplyStretch(DataChannelIdentifier const&, float start, float drag, float anchor) override
    {
        depths_.ApplyStretch(static_cast<double>(start), static_cast<double>(drag),
                             static_cast<double>(anchor));
    }

private:
    DepthChannel& depths_;
};

DataChannelIdentifier const gamma_ray(3, QStringLiteral("0123abcd"), 2);
Interval const first(0, 100);
Interval const second(20, 60);
Interval const third(30, 40);

/// The emitted statuses as text: "u-" undo only, "ur" both and so on.
class StatusLog
{
public:
    explicit StatusLog(UndoRedo& undo)
    {
        QObject::connect(&undo, &UndoRedo::UpdateUndoRedoStatus_Signal, &receiver_,
                         [this](bool can_undo, bool can_redo) {
                             log_ += QStringLiteral("%1%2 ").arg(can_undo ? "u" : "-", can_redo ? "r" : "-");
                         });
    }
    [[nodiscard]] QString Take() { return std::exchange(log_, QString()).trimmed(); }

private:
    QObject receiver_;
    QString log_;
};
} // namespace

TEST(UndoRedo, EmptyListsAreSilent)
{
    StrictTarget target;
    UndoRedo undo(&target);
    StatusLog status(undo);
    undo.Undo();
    undo.Redo();
    EXPECT_EQ(status.Take(), "");
    EXPECT_FALSE(undo.UndoAvailable());
    EXPECT_FALSE(undo.RedoAvailable());
    undo.UpdateButtons();
    EXPECT_EQ(status.Take(), "--");
}

TEST(UndoRedo, EachCommandReversesAndRepeats)
{
    struct Case
    {
        std::function<void(UndoRedo&, UndoTarget&)> insert;
        std::function<void(MockTarget&)> expect_undo, expect_redo;
    };
    Case const cases[] = {
        {[](UndoRedo& undo, UndoTarget& target) { undo.InsertVerticalZoomCommand(&target, first, second); },
         [](MockTarget& target) { EXPECT_CALL(target, SetVisibleDepthInterval(first)); },
         [](MockTarget& target) { EXPECT_CALL(target, SetVisibleDepthInterval(second)); }},
        {[](UndoRedo& undo, UndoTarget& target) {
             undo.InsertHorizontalZoomCommand(&target, "Track 1", gamma_ray, first, second);
         },
         [](MockTarget& target) {
             EXPECT_CALL(target, SetDataViewScale(QString("Track 1"), gamma_ray, first));
         },
         [](MockTarget& target) {
             EXPECT_CALL(target, SetDataViewScale(QString("Track 1"), gamma_ray, second));
         }},
        {[](UndoRedo& undo, UndoTarget& target) { undo.InsertShiftCommand(&target, gamma_ray, 1.5F); },
         [](MockTarget& target) {
             EXPECT_CALL(target, EmitApplyShift(gamma_ray, -1.5F));
             EXPECT_CALL(target, RefreshDataViews());
         },
         [](MockTarget& target) {
             EXPECT_CALL(target, EmitApplyShift(gamma_ray, 1.5F));
             EXPECT_CALL(target, RefreshDataViews());
         }},
        // From 1000 m dragged to 1010 m: the reverse drags to 990 m.
        {[](UndoRedo& undo, UndoTarget& target) {
             undo.InsertStretchCommand(&target, gamma_ray, 1000.0F, 1010.0F, 500.0F);
         },
         [](MockTarget& target) {
             EXPECT_CALL(target, EmitApplyStretch(gamma_ray, 1000.0F, 990.0F, 500.0F));
             EXPECT_CALL(target, RefreshDataViews());
         },
         [](MockTarget& target) {
             EXPECT_CALL(target, EmitApplyStretch(gamma_ray, 1000.0F, 1010.0F, 500.0F));
             EXPECT_CALL(target, RefreshDataViews());
         }}};
    for (Case const& c : cases) {
        StrictTarget target;
        UndoRedo undo(&target);
        c.insert(undo, target); // recording has no effect of its own
        {
            InSequence const order;
            c.expect_undo(target);
        }
        undo.Undo();
        ::testing::Mock::VerifyAndClearExpectations(&target);
        {
            InSequence const order;
            c.expect_redo(target);
        }
        undo.Redo();
    }
}

TEST(UndoRedo, StatusFollowsEveryStep)
{
    ::testing::NiceMock<MockTarget> target;
    UndoRedo undo(&target);
    StatusLog status(undo);
    undo.InsertVerticalZoomCommand(&target, first, second);
    undo.InsertVerticalZoomCommand(&target, second, third);
    EXPECT_EQ(status.Take(), "u- u-");
    undo.Undo();
    undo.Undo();
    EXPECT_EQ(status.Take(), "ur -r");
    undo.Redo();
    EXPECT_EQ(status.Take(), "ur");
    undo.InsertVerticalZoomCommand(&target, second, first); // a new command empties the redo list
    EXPECT_EQ(status.Take(), "u-");
    EXPECT_FALSE(undo.RedoAvailable());
    EXPECT_CALL(target, SetVisibleDepthInterval(_)).Times(0);
    undo.Redo();
}

TEST(UndoRedo, ABatchIsOneStepBothWays)
{
    StrictTarget target;
    UndoRedo undo(&target);
    undo.InsertVerticalZoomCommand(&target, first, second);
    undo.StartBatch();
    undo.InsertVerticalZoomCommand(&target, second, third);
    undo.InsertShiftCommand(&target, gamma_ray, 2.0F);
    undo.StopBatch();

    for (int round = 0; round < 2; ++round) {
        {
            InSequence const newest_first;
            EXPECT_CALL(target, EmitApplyShift(gamma_ray, -2.0F));
            EXPECT_CALL(target, RefreshDataViews());
            EXPECT_CALL(target, SetVisibleDepthInterval(second));
        }
        undo.Undo();
        EXPECT_TRUE(undo.UndoAvailable()); // the command before the batch
        ::testing::Mock::VerifyAndClearExpectations(&target);
        {
            InSequence const oldest_first;
            EXPECT_CALL(target, SetVisibleDepthInterval(third));
            EXPECT_CALL(target, EmitApplyShift(gamma_ray, 2.0F));
            EXPECT_CALL(target, RefreshDataViews());
        }
        undo.Redo();
        EXPECT_FALSE(undo.RedoAvailable());
        ::testing::Mock::VerifyAndClearExpectations(&target);
    }
}

TEST(UndoRedo, AnEmptyBatchIsAStepWithoutEffect)
{
    StrictTarget target;
    UndoRedo undo(&target);
    undo.InsertVerticalZoomCommand(&target, first, second);
    undo.StartBatch();
    undo.StopBatch();
    undo.Undo();
    EXPECT_TRUE(undo.UndoAvailable());
    EXPECT_TRUE(undo.RedoAvailable());
    EXPECT_CALL(target, SetVisibleDepthInterval(first));
    undo.Undo();
}

TEST(UndoRedo, AStopWithoutAStartTakesNothingIn)
{
    ::testing::NiceMock<MockTarget> target;
    UndoRedo undo(&target);
    undo.InsertVerticalZoomCommand(&target, first, second);
    undo.InsertVerticalZoomCommand(&target, second, third);
    {
        DisableToken const token = undo.GetDisableToken();
        undo.StartBatch();
    }
    undo.StopBatch();
    EXPECT_CALL(target, SetVisibleDepthInterval(second));
    undo.Undo();
    EXPECT_TRUE(undo.UndoAvailable());
}

TEST(UndoRedo, UndoInsideABatchDoesNotReachBelowIt)
{
    ::testing::NiceMock<MockTarget> target;
    UndoRedo undo(&target);
    undo.InsertVerticalZoomCommand(&target, first, second);
    undo.StartBatch();
    undo.Undo();
    undo.StopBatch();
    EXPECT_CALL(target, SetVisibleDepthInterval(_)).Times(0);
    undo.Undo();
    EXPECT_FALSE(undo.UndoAvailable());
}

TEST(UndoRedo, RecordsNothingWhileATokenIsHeld)
{
    StrictTarget target;
    UndoRedo undo(&target);
    StatusLog status(undo);
    {
        DisableToken const token = undo.GetDisableToken();
        DisableToken copy = token;
        EXPECT_TRUE(copy.IsDisabled());
        undo.StartBatch();
        undo.InsertVerticalZoomCommand(&target, first, second);
        undo.InsertHorizontalZoomCommand(&target, "Track 1", gamma_ray, first, second);
        undo.InsertShiftCommand(&target, gamma_ray, 1.0F);
        undo.InsertStretchCommand(&target, gamma_ray, 1.0F, 2.0F, 3.0F);
        undo.StopBatch();
    }
    EXPECT_EQ(status.Take(), "");
    EXPECT_FALSE(undo.UndoAvailable());
    undo.InsertVerticalZoomCommand(&target, first, second);
    EXPECT_TRUE(undo.UndoAvailable());
}

TEST(UndoRedo, ATokenInAQueuedCallHoldsUntilItIsDelivered)
{
    StrictTarget target;
    UndoRedo undo(&target);
    QObject receiver;
    bool disabled_on_delivery = false;
    std::unique_ptr<QThread> const worker(
        QThread::create([&receiver, &disabled_on_delivery, token = undo.GetDisableToken()] {
            QMetaObject::invokeMethod(
                &receiver, [token, &disabled_on_delivery] { disabled_on_delivery = token.IsDisabled(); },
                Qt::QueuedConnection);
        }));
    worker->start();
    ASSERT_TRUE(worker->wait(60000));
    undo.InsertVerticalZoomCommand(&target, first, second);
    EXPECT_FALSE(undo.UndoAvailable());
    QCoreApplication::processEvents();
    EXPECT_TRUE(disabled_on_delivery);
}

TEST(UndoRedo, ANullTargetStandsForTheOwner)
{
    StrictTarget target;
    UndoRedo undo(&target);
    undo.InsertVerticalZoomCommand(nullptr, first, second);
    EXPECT_CALL(target, SetVisibleDepthInterval(first));
    undo.Undo();
}

TEST(UndoRedo, AShiftComesBackExactlyAndAStretchToFirstOrder)
{
    std::vector<DepthType> depths;
    for (int i = 0; i < 5; ++i) {
        depths.push_back(1000.0 + 10.0 * i);
    }
    DepthChannel channel(depths, true);
    DepthTarget target(channel);
    UndoRedo undo(&target);

    channel.ApplyShift(1.5);
    undo.InsertShiftCommand(&target, gamma_ray, 1.5F);
    undo.Undo();
    for (std::size_t i = 0; i < depths.size(); ++i) {
        EXPECT_EQ(channel.GetMetricDepths()[i], depths[i]);
    }

    // Anchored at 1000 m, 1040 m is dragged by 1 m, and what lay at 1040 m ends 1 m times 1 m / 40 m short of
    // it.
    channel.ApplyStretch(1040.0, 1041.0, 1000.0);
    undo.InsertStretchCommand(&target, gamma_ray, 1040.0F, 1041.0F, 1000.0F);
    EXPECT_NEAR(channel.GetMetricDepths().back(), 1041.0, 1e-9);
    undo.Undo();
    EXPECT_NEAR(channel.GetMetricDepths().back(), 1040.0 - 1.0 / 40.0, 1e-9);
    EXPECT_NEAR(channel.GetMetricDepths().front(), 1000.0, 1e-9);
}
