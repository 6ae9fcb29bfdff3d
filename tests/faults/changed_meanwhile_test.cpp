// tests/faults/changed_meanwhile_test.cpp - two programs on one folder: a file that the other one has changed is not
// replaced unasked.
#include "faults/messages.h"
#include "faults/writers.h"

#include <gmock/gmock.h>

namespace tallyhoop::test {
namespace {

class WritersOfTwoPrograms : public testing::TestWithParam<WriterKind>
{
protected:
    const WriterKind kind = GetParam();
    ScratchFolder scratch;
    std::unique_ptr<Writer> writer;

    WritersOfTwoPrograms()
    {
        putPool(scratch);
        writer = kind.open(scratch.path());
        writer->forgetOpening();
    }
    ui::Message lastShown() const
    {
        return writer->platform.dialogs.shown.empty() ? ui::Message{} : writer->platform.dialogs.shown.back();
    }
    ui::Message question() const { return changedMeanwhile(scratch.path() / kind.file); }
};

TEST_P(WritersOfTwoPrograms, KeepTheFileAndTheScreenOnNo)
{
    scratch.put(kind.file, "what the other program saved");
    const std::string shownBefore = writer->onScreen();
    writer->save(ui::Answer::No);
    EXPECT_EQ(scratch.get(kind.file), "what the other program saved");
    EXPECT_EQ(writer->onScreen(), shownBefore);
    EXPECT_EQ(lastShown(), question());
    EXPECT_TRUE(writer->screens.unloads.empty());
    writer->save(ui::Answer::Yes);
    EXPECT_THAT(scratch.get(kind.file), testing::HasSubstr(kind.newText)) << "and the person may think again";
}

TEST_P(WritersOfTwoPrograms, ReplaceTheFileOnYes)
{
    scratch.put(kind.file, "what the other program saved");
    writer->save(ui::Answer::Yes);
    EXPECT_THAT(scratch.get(kind.file), testing::HasSubstr(kind.newText));
    EXPECT_THAT(scratch.get(kind.file), testing::Not(testing::HasSubstr("other program")));
}

TEST_P(WritersOfTwoPrograms, AskNothingWhenTheFileHasVanished)
{
    std::filesystem::remove(scratch.path() / kind.file);
    writer->save();
    EXPECT_THAT(scratch.get(kind.file), testing::HasSubstr(kind.newText));
}

std::vector<WriterKind> thoseThatAsk()
{
    std::vector<WriterKind> kinds;
    for (const WriterKind& kind : allWriters())
        if (kind.asks)
            kinds.push_back(kind);
    return kinds;
}

INSTANTIATE_TEST_SUITE_P(All, WritersOfTwoPrograms, testing::ValuesIn(thoseThatAsk()),
                         [](const auto& instance) { return std::string{instance.param.name}; });

} // namespace
} // namespace tallyhoop::test
