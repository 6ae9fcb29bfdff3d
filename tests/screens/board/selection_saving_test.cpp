// tests/screens/board/selection_saving_test.cpp - the questions before a selection is saved, and where it goes then.
#include "screens/board/selection_saving.h"

#include "fakes/fake_dialogs.h"
#include "fakes/scratch_folder.h"
#include "files/selection_file.h"

#include <fstream>

namespace tallyhoop::test {
namespace {

namespace fs = std::filesystem;

struct AskWhereToSave : testing::Test {
    ScratchFolder scratch;
    DataFolder folder = scratch.folder();
    FakeDialogs dialogs;
    Entry entry{{}, "JS", "Smith", "150", {}};

    fs::path in(const char* name) const { return scratch.path() / name; }

    std::optional<SaveTarget> ask(const fs::path& chosen, const fs::path& opened = {})
    {
        dialogs.pick(chosen);
        return askWhereToSave(dialogs, folder, entry, opened);
    }

    std::optional<SaveTarget> ask(const fs::path& chosen, const fs::path& opened, ui::Answer answer)
    {
        dialogs.answer(answer);
        return ask(chosen, opened);
    }

    /// The selection is to be saved there, as this.
    static void expectTarget(const std::optional<SaveTarget>& target, const fs::path& file, SaveKind kind)
    {
        ASSERT_TRUE(target);
        EXPECT_EQ(target->file, file);
        EXPECT_EQ(target->kind, kind);
    }
};

TEST(SelectionChoice, OffersTheSelectionsOfTheProgramsFolder)
{
    const ScratchFolder scratch;
    const ui::FileChoice choice = selectionChoice(scratch.folder(), "Open Selection", "x");
    EXPECT_EQ(choice.caption, "Open Selection");
    EXPECT_EQ(choice.filterName, "PoolSelections (*.THC)");
    EXPECT_EQ(choice.pattern, "*.THC");
    EXPECT_EQ(choice.folder, scratch.path());
    EXPECT_EQ(choice.proposedName, "x");
}

TEST_F(AskWhereToSave, ProposesNameUnderscoreInitials)
{
    dialogs.pick(std::nullopt);
    EXPECT_FALSE(askWhereToSave(dialogs, folder, entry, {}));
    ASSERT_EQ(dialogs.fileChoices.size(), 1u);
    EXPECT_EQ(dialogs.fileChoices[0].caption, "Save Selection");
    EXPECT_EQ(dialogs.fileChoices[0].proposedName, "Smith_JS.THC");
    EXPECT_TRUE(dialogs.shown.empty()) << "a cancelled dialog ends it";
}

TEST_F(AskWhereToSave, AsksNothingAboutANewFile)
{
    expectTarget(ask(in("Smith_JS.THC")), in("Smith_JS.THC"), SaveKind::NewFile);
    EXPECT_TRUE(dialogs.shown.empty());
}

TEST_F(AskWhereToSave, AppendsTheExtensionUnlessItIsThereInWhateverCase)
{
    expectTarget(ask(in("Smith Jr._JS")), in("Smith Jr._JS.THC"), SaveKind::NewFile);
    expectTarget(ask(in("Smith.txt")), in("Smith.txt.THC"), SaveKind::NewFile);
    expectTarget(ask(in("smith.thc")), in("smith.thc"), SaveKind::NewFile);
}

TEST_F(AskWhereToSave, AsksBeforeAnExistingFileIsReplaced)
{
    scratch.put("Smith_JS.THC", "another Smith");
    const ui::Message question{"",
                               "Do you want to replace the existing file ?\r\n" + in("Smith_JS.THC").string(),
                               ui::Buttons::YesNo,
                               ui::Icon::Question,
                               {},
                               true};
    EXPECT_FALSE(ask(in("Smith_JS"), {}, ui::Answer::No));
    expectTarget(ask(in("Smith_JS"), {}, ui::Answer::Yes), in("Smith_JS.THC"), SaveKind::Replaced);
    EXPECT_EQ(dialogs.shown, (std::vector{question, question}));
}

TEST_F(AskWhereToSave, MeansAnExistingFileWhateverTheCaseOfItsLetters)
{
    scratch.put("SMITH_JS.THC", "another Smith");
    expectTarget(ask(in("Smith_JS.thc"), {}, ui::Answer::Yes), in("SMITH_JS.THC"), SaveKind::Replaced);
#ifndef _WIN32 // where these are one file
    scratch.put("smith_js.thc", "and one more");
    expectTarget(ask(in("smith_js.thc"), {}, ui::Answer::Yes), in("smith_js.thc"), SaveKind::Replaced);
#endif
}

TEST_F(AskWhereToSave, TakesANameWithLettersThatOurCodePageLacksAsItIs)
{
    std::ofstream{scratch.path() / u8"Ńukasz_L.THC"} << "somebody else's";
    const fs::path chosen = scratch.path() / u8"Łukasz_L.THC";
    expectTarget(ask(chosen), chosen, SaveKind::NewFile);
    EXPECT_TRUE(dialogs.shown.empty());
}

TEST_F(AskWhereToSave, AsksNothingAboutTheOpenedFile)
{
    scratch.put("Smith_JS.THC", "opened");
    expectTarget(ask(in("Smith_JS.THC"), in("Smith_JS.THC")), in("Smith_JS.THC"), SaveKind::SameName);
    expectTarget(ask(in("SMITH_js"), in("Smith_JS.THC")), in("Smith_JS.THC"), SaveKind::SameName);
    EXPECT_TRUE(dialogs.shown.empty());
}

TEST_F(AskWhereToSave, SavesAnOpenedFileThatIsGoneUnderItsOwnNameWithoutAsking)
{
    for (const char* name : {"Smith_JS.THC", "SMITH_js"})
        expectTarget(ask(in(name), in("Smith_JS.THC")), in("Smith_JS.THC"), SaveKind::SameName);
    EXPECT_TRUE(dialogs.shown.empty());
}

TEST_F(AskWhereToSave, AsksOnceBeforeAnOpenedFileIsSavedUnderAnotherName)
{
    scratch.put("Smith_JS.THC", "opened");
    const ui::Message question{"",
                               "You opened the file:    " + in("Smith_JS.THC").string() +
                                   "\r\nNow you are attempting to save this \r\n  file under the name:    " +
                                   in("Jones_KJ.THC").string() + "\r\n\r\nIS THIS CORRECT?",
                               ui::Buttons::YesNo, ui::Icon::Question};
    EXPECT_FALSE(ask(in("Jones_KJ"), in("Smith_JS.THC"), ui::Answer::No));
    expectTarget(ask(in("Jones_KJ"), in("Smith_JS.THC"), ui::Answer::Yes), in("Jones_KJ.THC"), SaveKind::NewFile);
    EXPECT_EQ(dialogs.shown, (std::vector{question, question}));
}

TEST_F(AskWhereToSave, NamesThePlayerWhoseFileAnOpenedOneWouldReplace)
{
    scratch.put("Smith_JS.THC", "opened");
    scratch.put("Jones_KJ.THC", selectionFile({{}, "KJ", "Kim Jones", "150", {}}));
    const ui::Message question{"",
                               "There is a file of this name already:    " + in("Jones_KJ.THC").string() +
                                   "\r\nIt holds the selection of:    Kim Jones (KJ)\r\n"
                                   "\r\nDo you want to replace that selection?",
                               ui::Buttons::YesNo,
                               ui::Icon::Question,
                               {},
                               true};
    dialogs.answer(ui::Answer::Yes); // it is the name that was meant
    EXPECT_FALSE(ask(in("Jones_KJ"), in("Smith_JS.THC"), ui::Answer::No));
    ASSERT_EQ(dialogs.shown.size(), 2u);
    EXPECT_EQ(dialogs.shown.back(), question);
    dialogs.answer(ui::Answer::Yes);
    expectTarget(ask(in("Jones_KJ"), in("Smith_JS.THC"), ui::Answer::Yes), in("Jones_KJ.THC"), SaveKind::NewFile);
}

TEST_F(AskWhereToSave, NamesAPlayerWithoutInitialsOrNameByWhatThereIs)
{
    scratch.put("Smith_JS.THC", "opened");
    const auto named = [this](const std::string& initials, const std::string& name) {
        scratch.put("Jones_KJ.THC", selectionFile({{}, initials, name, "150", {}}));
        dialogs.answer(ui::Answer::Yes);
        EXPECT_FALSE(ask(in("Jones_KJ"), in("Smith_JS.THC"), ui::Answer::No));
        const std::string& text = dialogs.shown.back().text;
        const std::string before = "It holds the selection of:    ";
        const std::size_t begin = text.find(before) + before.size();
        return text.substr(begin, text.find("\r\n", begin) - begin);
    };
    EXPECT_EQ(named("", "Jones"), "Jones");
    EXPECT_EQ(named(" ", "Jones "), "Jones");
    EXPECT_EQ(named("KJ", "  "), "KJ");
}

TEST_F(AskWhereToSave, AsksAboutAnExistingFileAlsoWhenItHoldsNobodysName)
{
    scratch.put("Smith_JS.THC", "opened");
    scratch.put("Jones_KJ.THC", "");
    dialogs.answer(ui::Answer::Yes);
    EXPECT_FALSE(ask(in("Jones_KJ"), in("Smith_JS.THC"), ui::Answer::No));
    EXPECT_EQ(dialogs.shown.back().text, "There is a file of this name already:    " + in("Jones_KJ.THC").string() +
                                             "\r\n\r\nDo you want to replace that selection?");
}

TEST_F(AskWhereToSave, TheSameNameElsewhereIsAnotherFile)
{
    const ScratchFolder elsewhere;
    const fs::path there = elsewhere.path() / "Smith_JS.THC";
    expectTarget(ask(there, in("Smith_JS.THC"), ui::Answer::Yes), there, SaveKind::NewFile);
}

TEST_F(AskWhereToSave, DemoModeRefusesNewFilesAlsoThoseThatExist)
{
    scratch.put("TALLYHOOP.INI", "1\r\n");
    scratch.put("Smith_JS.THC", "there already");
    const ui::Message refusal{"", "You are not allowed to save a New File \r\nwhen executing under DEMO Mode",
                              ui::Buttons::Ok, ui::Icon::Exclamation};
    EXPECT_FALSE(ask(in("New.THC")));
    EXPECT_FALSE(ask(in("Smith_JS.THC")));
    EXPECT_EQ(dialogs.shown, (std::vector{refusal, refusal}));
}

TEST_F(AskWhereToSave, DemoModeRefusesNewNamesOfAnOpenedFileAndTakesItsOwn)
{
    scratch.put("TALLYHOOP.INI", "1\r\n");
    scratch.put("Smith_JS.THC", "opened");
    EXPECT_FALSE(ask(in("New.THC"), in("Smith_JS.THC")));
    EXPECT_EQ(dialogs.shown, (std::vector<ui::Message>{{"",
                                                        "You are not allowed to save a New File \r\n"
                                                        "Name when executing under DEMO Mode",
                                                        ui::Buttons::Ok, ui::Icon::Exclamation}}));
    expectTarget(ask(in("Smith_JS.THC"), in("Smith_JS.THC")), in("Smith_JS.THC"), SaveKind::SameName);
    EXPECT_EQ(dialogs.shown.size(), 1u);
}

} // namespace
} // namespace tallyhoop::test
