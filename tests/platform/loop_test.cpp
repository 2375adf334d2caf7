// Timers on the virtual clock: order, rhythm, restarts and DoEvents from inside a tick.
#include <gtest/gtest.h>

#include "platform/Form.h"
#include "platform/Headless.h"
#include "platform/Timer.h"

using namespace qp;

namespace {

struct Timed : Form {
  explicit Timed(Runtime& rt) : Form(rt, "frmTimed") {}
  Timer tFast{this, "tFast", 30};
  Timer tSlow{this, "tSlow", 50};
};

struct LoopTest : ::testing::Test {
  HeadlessRuntime h;
  Timed f{h.rt()};
  std::vector<std::pair<std::string, std::int64_t>> log;
  void record(Timer& t) {
    t.Timer_ = [this, &t] { log.push_back({t.Name().toStdString(), h.loop.now()}); };
  }
};

using Log = std::vector<std::pair<std::string, std::int64_t>>;

TEST_F(LoopTest, TimersFireInDueOrderAtTheirOwnTimes) {
  record(f.tFast);
  record(f.tSlow);
  f.tSlow.Enabled = true;
  f.tFast.Enabled = true;
  h.loop.advance(100);
  EXPECT_EQ(log, (Log{{"tFast", 30}, {"tSlow", 50}, {"tFast", 60}, {"tFast", 90}, {"tSlow", 100}}));
  EXPECT_EQ(h.loop.now(), 100);
  // Ticks already counted keep their rhythm across several small advances.
  log.clear();
  for (int i = 0; i < 4; ++i) h.loop.advance(5);
  EXPECT_EQ(log, (Log{{"tFast", 120}}));
  // A disabled timer or one of interval 0 never fires; a new interval counts from the write.
  log.clear();
  f.tSlow.Enabled = false;
  f.tFast.Interval = 0;
  h.loop.advance(1000);
  EXPECT_TRUE(log.empty());
  f.tFast.Interval = 200;
  h.loop.advance(199);
  h.loop.advance(1);
  EXPECT_EQ(log, (Log{{"tFast", 1320}}));
  h.loop.advance(100);
  f.tFast.Interval = 200;  // rewritten halfway: the next tick comes 200 ms from the write
  h.loop.advance(199);
  EXPECT_EQ(log.size(), 1u);
}

TEST_F(LoopTest, HandlerThatStopsAndRestartsItsTimerCountsFromThen) {
  int ticks = 0;
  f.tSlow.Enabled = true;
  f.tSlow.Timer_ = [&] {
    ++ticks;
    f.tSlow.Enabled = false;
    if (ticks == 1) {
      h.loop.advance(0);  // harmless: nothing else is due
      f.tSlow.Interval = 70;
      f.tSlow.Enabled = true;
    }
  };
  // Each advance, then the ticks so far: the second switched the timer off.
  for (const auto& [ms, want] : {std::pair{50, 1}, std::pair{69, 1}, std::pair{1, 2}, std::pair{1000, 2}}) {
    h.loop.advance(ms);
    EXPECT_EQ(ticks, want) << "at " << h.loop.now();
  }
}

TEST_F(LoopTest, DoEventsInsideATickRunsOthersButNeverTheSameTimer) {
  record(f.tFast);
  int depth = 0, maxDepth = 0;
  f.tFast.Interval = 3;
  f.tFast.Enabled = true;
  f.tSlow.Interval = 10;
  f.tSlow.Enabled = true;
  f.tSlow.Timer_ = [&] {
    maxDepth = std::max(maxDepth, ++depth);
    log.push_back({"slowStart", h.loop.now()});
    h.loop.post([&] { log.push_back({"posted", h.loop.now()}); });
    // A long drawing letting the window breathe: each DoEvents lets a little time pass.
    for (int i = 0; i < 5; ++i) h.loop.processEvents();
    log.push_back({"slowEnd", h.loop.now()});
    --depth;
  };
  h.loop.advance(10);
  EXPECT_EQ(maxDepth, 1) << "a timer is never re-entered from its own DoEvents";
  EXPECT_EQ(log, (Log{{"tFast", 3}, {"tFast", 6}, {"tFast", 9}, {"slowStart", 10}, {"posted", 10},
                      {"tFast", 12}, {"tFast", 15}, {"slowEnd", 15}}));
  EXPECT_EQ(h.loop.now(), 15);
}

TEST_F(LoopTest, AHandlerThatPostsItselfAndCallsDoEventsEnds) {
  int runs = 0;
  std::function<void()> again = [&] {
    ++runs;
    h.loop.post(again);
    h.loop.processEvents();
  };
  h.loop.post(again);
  h.loop.advance(10);
  EXPECT_TRUE(runs > 0 && runs < 100) << runs;
}

TEST_F(LoopTest, AnErrorEndsOnlyItsTickAndATimerGoneStopsTicking) {
  int later = 0, ticks = 0;
  f.tFast.Enabled = true;
  f.tFast.Timer_ = [&] { raiseError(RuntimeError::Overflow); };
  f.tSlow.Enabled = true;
  f.tSlow.Timer_ = [&] { ++later; };
  {
    Timer temp(&f, "tTemp", 10, true);
    temp.Timer_ = [&] { ++ticks; };
    EXPECT_NO_THROW(h.loop.advance(25));
  }
  EXPECT_NO_THROW(h.loop.advance(75));
  EXPECT_EQ(std::pair(later, ticks), std::pair(2, 2));
}

TEST(RandomTest, SameSeedSameSequenceSpreadEvenlyOverZeroToOne) {
  Random a(7), b(7), c(8);
  bool differs = false;
  int buckets[10] = {};
  for (int i = 0; i < 50000; ++i) {
    const float x = a.Rnd();
    ASSERT_EQ(x, b.Rnd());
    differs |= x != c.Rnd();
    ASSERT_TRUE(x >= 0.0f && x < 1.0f) << x;
    ++buckets[static_cast<int>(x * 10)];
  }
  EXPECT_TRUE(differs);
  for (int n : buckets) EXPECT_NEAR(n, 5000, 400);
}

}  // namespace
