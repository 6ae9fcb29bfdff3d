// tests/ui/background_thread_test.cpp - work in another thread: done, replaced, abandoned, ended with its thread.
#include "ui/background_thread.h"

#include <atomic>
#include <future>
#include <gtest/gtest.h>
#include <memory>
#include <new>

namespace tallyhoop::test {
namespace {

void lastUntilAbandoned(const Step& step)
{
    while (step())
        std::this_thread::yield();
}

void failsNot(const std::exception_ptr&) { ADD_FAILURE() << "a slice has thrown"; }

TEST(BackgroundThread, DoesSlicesInAnotherThreadUntilThereAreNoMore)
{
    ui::BackgroundThread background;
    std::atomic<int> slices = 0;
    std::promise<std::thread::id> done;
    EXPECT_TRUE(background.run(
        [&](const Step& step) {
            EXPECT_TRUE(step()) << "nobody has abandoned it";
            if (++slices < 3)
                return true;
            done.set_value(std::this_thread::get_id());
            return false;
        },
        failsNot));
    EXPECT_NE(done.get_future().get(), std::this_thread::get_id());
    EXPECT_EQ(slices, 3);
}

TEST(BackgroundThread, EndsTheWorkBeforeBeforeItBeginsTheNext)
{
    ui::BackgroundThread background;
    std::promise<void> began;
    std::atomic<int> slicesOfFirst = 0;
    std::atomic<bool> hasFirstEnded = false;
    background.run(
        [&](const Step& step) {
            if (++slicesOfFirst == 1)
                began.set_value();
            lastUntilAbandoned(step);
            hasFirstEnded = true;
            return slicesOfFirst < 3;
        },
        failsNot);
    began.get_future().wait();
    std::promise<bool> second;
    background.run(
        [&](const Step&) {
            second.set_value(hasFirstEnded);
            return false;
        },
        failsNot);
    EXPECT_TRUE(second.get_future().get());
    EXPECT_EQ(slicesOfFirst, 1) << "it said that there was more to do";
}

TEST(BackgroundThread, DoesNotDoWhatWasReplacedWhileItWaited)
{
    ui::BackgroundThread background;
    std::promise<void> began;
    std::promise<void> mayEnd;
    background.run(
        [&, end = mayEnd.get_future().share()](const Step&) {
            began.set_value();
            end.wait();
            return false;
        },
        failsNot);
    began.get_future().wait();
    std::atomic<bool> wasReplacedDone = false;
    background.run(
        [&](const Step&) {
            wasReplacedDone = true;
            return false;
        },
        failsNot);
    std::promise<void> last;
    background.run(
        [&](const Step&) {
            last.set_value();
            return false;
        },
        failsNot);
    mayEnd.set_value();
    last.get_future().wait();
    EXPECT_FALSE(wasReplacedDone);
}

TEST(BackgroundThread, LetsGoOfAbandonedWork)
{
    ui::BackgroundThread background;
    std::promise<void> began;
    std::promise<void> gone;
    const auto own = [&] {
        return std::shared_ptr<int>{new int{}, [&](const int* number) {
                                        delete number;
                                        gone.set_value();
                                    }};
    };
    background.run(
        [&, owned = own()](const Step& step) {
            began.set_value();
            lastUntilAbandoned(step);
            return false;
        },
        failsNot);
    began.get_future().wait();
    background.abandon();
    gone.get_future().wait();
}

TEST(BackgroundThread, HandsOverWhatASliceThrowsAndDoesNotCallItAgain)
{
    ui::BackgroundThread background;
    std::atomic<int> slices = 0;
    std::promise<std::exception_ptr> thrown;
    background.run(
        [&](const Step&) -> bool {
            ++slices;
            throw std::bad_alloc{};
        },
        [&](const std::exception_ptr& trouble) { thrown.set_value(trouble); });
    EXPECT_THROW(std::rethrow_exception(thrown.get_future().get()), std::bad_alloc);
    std::promise<void> next; // the thread is still there
    background.run(
        [&](const Step&) {
            next.set_value();
            return false;
        },
        failsNot);
    next.get_future().wait();
    EXPECT_EQ(slices, 1);
}

TEST(BackgroundThread, EndsWhileThereIsWork)
{
    std::promise<void> began;
    std::atomic<bool> hasEnded = false;
    {
        ui::BackgroundThread background;
        background.run(
            [&](const Step& step) {
                began.set_value();
                lastUntilAbandoned(step);
                hasEnded = true;
                return false;
            },
            failsNot);
        began.get_future().wait();
    }
    EXPECT_TRUE(hasEnded) << "nothing of it is left when the thread's owner is gone";
}

} // namespace
} // namespace tallyhoop::test
