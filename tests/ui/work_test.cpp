// tests/ui/work_test.cpp - steps that are counted and shown, until the person cancels.
#include "ui/work.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace tallyhoop {
namespace {

/// Remembers what it was told; the person lets the pointer of Cancel go again at once.
struct RecordedProgress : ui::Progress {
    std::vector<std::string> told;
    int cancelledAt = 0; ///< the only step at which Cancel is seen; 0 = never

    void begin(const std::string& what, int steps) override { told.push_back(what + " " + std::to_string(steps)); }
    bool advance(int stepsDone) override
    {
        told.push_back(std::to_string(stepsDone));
        return stepsDone != cancelledAt;
    }
    void end() override { told.emplace_back("end"); }
};

TEST(Work, CountsItsStepsFromOneAndEnds)
{
    RecordedProgress progress;
    {
        Work work{progress, "Scoring", 3};
        EXPECT_TRUE(work.step());
        EXPECT_TRUE(work.step());
        EXPECT_EQ(work.done(), 2);
        EXPECT_FALSE(work.cancelled());
    }
    EXPECT_EQ(progress.told, (std::vector<std::string>{"Scoring 3", "1", "2", "end"}));
}

TEST(Work, StaysCancelledAndAsksNoMore)
{
    RecordedProgress progress;
    progress.cancelledAt = 2;
    Work work{progress, "Scoring", 3};
    EXPECT_TRUE(work.step());
    EXPECT_FALSE(work.step());
    EXPECT_FALSE(work.step());
    EXPECT_TRUE(work.cancelled());
    EXPECT_EQ(progress.told, (std::vector<std::string>{"Scoring 3", "1", "2"}));
}

} // namespace
} // namespace tallyhoop
