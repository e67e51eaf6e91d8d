// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/UndoRedo.h"

#include "app/UndoTarget.h"
#include "app/kit/Interval.h"
#include "model/DataChannelIdentifier.h"
#include "model/DepthChannel.h"

#include <QCoreApplication>
#include <QThread>

namespace {
/// Writes down what undo and redo do, and applies depth corrections to a depth axis where it has one.
class Target final : public UndoTarget
{
public:
    void SetVisibleDepthInterval(Interval const& interval) override { Log("view %1", interval); }
    void SetDataViewScale(QString const& view, DataChannelIdentifier const& identifier,
                          Interval const& interval) override
    {
        EXPECT_EQ(identifier, channel);
        Log(view + " %1", interval);
    }
    void EmitApplyShift(DataChannelIdentifier const& identifier, float shift) override
    {
        EXPECT_EQ(identifier, channel);
        log_ << QString("shift %1").arg(shift);
        if (depths != nullptr) {
            depths->ApplyShift(static_cast<double>(shift));
        }
    }
    void EmitApplyStretch(DataChannelIdentifier const& identifier, float start, float drag,
                          float anchor) override
    {
        EXPECT_EQ(identifier, channel);
        log_ << QString("stretch %1 to %2 about %3").arg(start).arg(drag).arg(anchor);
        if (depths != nullptr) {
            depths->ApplyStretch(static_cast<double>(start), static_cast<double>(drag),
                                 static_cast<double>(anchor));
        }
    }
    void RefreshDataViews() override { log_ << "refresh"; }

    /// What came since the last call.
    [[nodiscard]] QString Take() { return std::exchange(log_, {}).join(", "); }

    DataChannelIdentifier const channel{3, QStringLiteral("0123abcd"), 2};
    DepthChannel* depths = nullptr;

private:
    void Log(QString const& text, Interval const& interval)
    {
        log_ << text.arg(QString("%1-%2").arg(interval.lower).arg(interval.upper));
    }

    QStringList log_;
};

Interval const first(0, 100);
Interval const second(20, 60);
Interval const third(30, 40);

class UndoRedoTest : public ::testing::Test
{
protected:
    UndoRedoTest()
    {
        QObject::connect(&undo, &UndoRedo::UpdateUndoRedoStatus_Signal, [this](bool can_undo, bool can_redo) {
            status_ << QStringLiteral("%1%2").arg(can_undo ? "u" : "-", can_redo ? "r" : "-");
        });
    }
    ~UndoRedoTest() override { EXPECT_EQ(target.Take(), "") << "recording has no effect of its own"; }

    void Zoom(Interval const& from, Interval const& to) { undo.InsertVerticalZoomCommand(&target, from, to); }
    QString Undo()
    {
        undo.Undo();
        return target.Take();
    }
    QString Redo()
    {
        undo.Redo();
        return target.Take();
    }
    /// The emitted statuses: "u-" undo only, "ur" both and so on.
    QString Status() { return std::exchange(status_, {}).join(' '); }

    Target target;
    UndoRedo undo{&target};

private:
    QStringList status_;
};
} // namespace

TEST_F(UndoRedoTest, EmptyListsAreSilent)
{
    EXPECT_EQ(Undo() + Redo() + Status(), "");
    EXPECT_FALSE(undo.UndoAvailable());
    EXPECT_FALSE(undo.RedoAvailable());
    undo.UpdateButtons();
    EXPECT_EQ(Status(), "--");
}

TEST_F(UndoRedoTest, EachCommandReversesAndRepeats)
{
    Zoom(first, second);
    EXPECT_EQ(Undo(), "view 0-100");
    EXPECT_EQ(Redo(), "view 20-60");
    undo.InsertHorizontalZoomCommand(&target, "Track 1", target.channel, first, second);
    EXPECT_EQ(Undo(), "Track 1 0-100");
    EXPECT_EQ(Redo(), "Track 1 20-60");
    undo.InsertShiftCommand(&target, target.channel, 1.5F);
    EXPECT_EQ(Undo(), "shift -1.5, refresh");
    EXPECT_EQ(Redo(), "shift 1.5, refresh");
    undo.InsertStretchCommand(&target, target.channel, 1000, 1010, 500);
    EXPECT_EQ(Undo(), "stretch 1000 to 990 about 500, refresh") << "dragged to the other side";
    EXPECT_EQ(Redo(), "stretch 1000 to 1010 about 500, refresh");
    undo.InsertVerticalZoomCommand(nullptr, third, first); // no target stands for the owner
    EXPECT_EQ(Undo(), "view 30-40");
}

TEST_F(UndoRedoTest, StatusFollowsEveryStep)
{
    Zoom(first, second);
    Zoom(second, third);
    EXPECT_EQ(Status(), "u- u-");
    EXPECT_EQ(Undo(), "view 20-60");
    EXPECT_EQ(Undo(), "view 0-100");
    EXPECT_EQ(Status(), "ur -r");
    EXPECT_EQ(Redo(), "view 20-60");
    EXPECT_EQ(Status(), "ur");
    Zoom(second, first); // a new command empties the redo list
    EXPECT_EQ(Status(), "u-");
    EXPECT_FALSE(undo.RedoAvailable());
    EXPECT_EQ(Redo(), "");
}

TEST_F(UndoRedoTest, ABatchIsOneStepBothWays)
{
    Zoom(first, second);
    undo.StartBatch();
    Zoom(second, third);
    undo.InsertShiftCommand(&target, target.channel, 2.0F);
    undo.StopBatch();
    for (int round = 0; round < 2; ++round) {
        EXPECT_EQ(Undo(), "shift -2, refresh, view 20-60") << "the newest first";
        EXPECT_TRUE(undo.UndoAvailable()) << "the command before the batch";
        EXPECT_EQ(Redo(), "view 30-40, shift 2, refresh") << "the oldest first";
        EXPECT_FALSE(undo.RedoAvailable());
    }
}

TEST_F(UndoRedoTest, AnEmptyBatchIsAStepWithoutEffect)
{
    Zoom(first, second);
    undo.StartBatch();
    undo.StopBatch();
    EXPECT_EQ(Undo(), "");
    EXPECT_TRUE(undo.UndoAvailable());
    EXPECT_TRUE(undo.RedoAvailable());
    EXPECT_EQ(Undo(), "view 0-100");
}

TEST_F(UndoRedoTest, AStopWithoutAStartTakesNothingIn)
{
    Zoom(first, second);
    Zoom(second, third);
    {
        DisableToken const token = undo.GetDisableToken();
        undo.StartBatch();
    }
    undo.StopBatch();
    EXPECT_EQ(Undo(), "view 20-60");
    EXPECT_TRUE(undo.UndoAvailable());
}

TEST_F(UndoRedoTest, UndoInsideABatchDoesNotReachBelowIt)
{
    Zoom(first, second);
    undo.StartBatch();
    Undo();
    undo.StopBatch();
    EXPECT_EQ(Undo(), "");
    EXPECT_FALSE(undo.UndoAvailable());
}

TEST_F(UndoRedoTest, RecordsNothingWhileATokenIsHeld)
{
    {
        DisableToken const token = undo.GetDisableToken();
        DisableToken copy = token;
        EXPECT_TRUE(copy.IsDisabled());
        undo.StartBatch();
        Zoom(first, second);
        undo.InsertHorizontalZoomCommand(&target, "Track 1", target.channel, first, second);
        undo.InsertShiftCommand(&target, target.channel, 1.0F);
        undo.InsertStretchCommand(&target, target.channel, 1.0F, 2.0F, 3.0F);
        undo.StopBatch();
    }
    EXPECT_EQ(Status(), "");
    EXPECT_FALSE(undo.UndoAvailable());
    Zoom(first, second);
    EXPECT_TRUE(undo.UndoAvailable());
}

TEST_F(UndoRedoTest, ATokenInAQueuedCallHoldsUntilItIsDelivered)
{
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
    Zoom(first, second);
    EXPECT_FALSE(undo.UndoAvailable());
    QCoreApplication::processEvents();
    EXPECT_TRUE(disabled_on_delivery);
}

TEST_F(UndoRedoTest, AShiftComesBackExactlyAndAStretchToFirstOrder)
{
    std::vector<DepthType> const depths = {1000, 1010, 1020, 1030, 1040};
    DepthChannel channel(depths, true);
    target.depths = &channel;

    channel.ApplyShift(1.5);
    undo.InsertShiftCommand(&target, target.channel, 1.5F);
    Undo();
    EXPECT_EQ(channel.GetMetricDepths(), depths);

    // Anchored at 1000 m, 1040 m is dragged by 1 m, and what lay at 1040 m ends 1 m times 1 m / 40 m short of
    // it.
    channel.ApplyStretch(1040.0, 1041.0, 1000.0);
    undo.InsertStretchCommand(&target, target.channel, 1040.0F, 1041.0F, 1000.0F);
    EXPECT_NEAR(channel.GetMetricDepths().back(), 1041.0, 1e-9);
    Undo();
    EXPECT_NEAR(channel.GetMetricDepths().back(), 1040.0 - 1.0 / 40.0, 1e-9);
    EXPECT_NEAR(channel.GetMetricDepths().front(), 1000.0, 1e-9);
}
