// tests/files/data_folder_test.cpp - finding, reading and writing files of the program's folder by name.
#include "files/data_folder.h"

#include "fakes/scratch_folder.h"

#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

namespace tallyhoop {
namespace {

namespace fs = std::filesystem;
using test::ScratchFolder;

std::vector<std::string> namesOf(const std::vector<FolderFile>& files)
{
    std::vector<std::string> names;
    std::transform(files.begin(), files.end(), std::back_inserter(names),
                   [](const FolderFile& file) { return file.name; });
    return names;
}

using Names = std::vector<std::string>;

TEST(JoinPath, PutsOneSeparatorBetweenFolderAndName)
{
    EXPECT_EQ(joinPath("C:\\DATA", '\\', "POOLSTART.THS"), "C:\\DATA\\POOLSTART.THS");
    EXPECT_EQ(joinPath("/home/pool", '/', "POOLSTART.THS"), "/home/pool/POOLSTART.THS");
}

TEST(JoinPath, AddsNoneAfterADriveRoot)
{
    EXPECT_EQ(joinPath("C:\\", '\\', "POOLSTART.THS"), "C:\\POOLSTART.THS");
    EXPECT_EQ(joinPath("/", '/', "POOLSTART.THS"), "/POOLSTART.THS");
}

TEST(DataFolderPathOf, FindsANameInAnyCase)
{
    const ScratchFolder scratch;
    scratch.put("Smith_JS.THC", "");
    EXPECT_EQ(scratch.folder().pathOf("SMITH_JS.THC"), scratch.path() / "Smith_JS.THC");
    EXPECT_EQ(scratch.folder().pathOf("smith_js.thc"), scratch.path() / "Smith_JS.THC");
}

#ifndef _WIN32 // where names that differ in case only are one
TEST(DataFolderPathOf, PrefersTheExactName)
{
    const ScratchFolder scratch;
    scratch.put("a.thc", "");
    scratch.put("A.THC", "");
    scratch.put("A.thc", "");
    EXPECT_EQ(scratch.folder().pathOf("A.thc"), scratch.path() / "A.thc");
    EXPECT_EQ(scratch.folder().pathOf("a.thc"), scratch.path() / "a.thc");
    EXPECT_EQ(scratch.folder().pathOf("a.THC"), scratch.path() / "A.THC") << "else the first in byte order";
}
#endif

TEST(DataFolderPathOf, GivesANewFileItsNameAsTyped)
{
    const ScratchFolder scratch;
    EXPECT_EQ(scratch.folder().pathOf("New One_NO.THC"), scratch.path() / "New One_NO.THC");
}

TEST(DataFolderPathOf, WritesAccentedLettersAsTheSystemDoes)
{
    const ScratchFolder scratch;
    EXPECT_EQ(scratch.folder().pathOf("Ren\xE9_R.THC"), scratch.path() / u8"René_R.THC");
    std::ofstream{scratch.path() / u8"RENÉ_R.THC"} << "one";
    EXPECT_EQ(scratch.folder().pathOf("ren\xE9_r.thc"), scratch.path() / u8"RENÉ_R.THC");
}

TEST(DataFolderPathOf, FindsTheOnlyFileWhoseLettersItCannotShow)
{
    const ScratchFolder scratch;
    scratch.put("Lukasz_L.THC", "");
    const fs::path file = scratch.path() / u8"Łukasz_L.THC";
    std::ofstream{file} << "one";
    EXPECT_EQ(scratch.folder().pathOf("?ukasz_l.thc"), file);
    EXPECT_TRUE(scratch.folder().exists("?ukasz_L.THC"));
}

TEST(DataFolderPathOf, FindsNoneOfTwoFilesThatLookAlike)
{
    const ScratchFolder scratch;
    std::ofstream{scratch.path() / u8"Łukasz_L.THC"} << "one";
    std::ofstream{scratch.path() / u8"Ńukasz_L.THC"} << "two";
    EXPECT_FALSE(scratch.folder().exists("?ukasz_L.THC"));
    EXPECT_FALSE(scratch.folder().read("?ukasz_L.THC"));
    EXPECT_TRUE(scratch.folder().remove("?ukasz_L.THC"));
    EXPECT_EQ(namesOf(scratch.folder().files(".THC")), (Names{"?ukasz_L.THC", "?ukasz_L.THC"})) << "both are there";
}

#ifndef _WIN32 // where no name may hold a question mark
TEST(DataFolderPathOf, PrefersTheFileThatIsCalledSo)
{
    const ScratchFolder scratch;
    std::ofstream{scratch.path() / u8"Łukasz_L.THC"} << "one";
    const fs::path file = scratch.put("?UKASZ_L.THC", "two");
    EXPECT_EQ(scratch.folder().pathOf("?ukasz_L.THC"), file);
    EXPECT_FALSE(isSameFile(file, scratch.path() / u8"Łukasz_L.THC"));
    EXPECT_TRUE(isSameFile(file, scratch.path() / "?ukasz_l.thc"));
}
#endif

TEST(DataFolderPathOf, RefusesWhatIsNoBareName)
{
    const ScratchFolder scratch;
    for (const std::string_view name : {"", ".", "..", "a/b", "/nowhere/outside", "..\\a", "C:a", "C:\\a"}) {
        EXPECT_EQ(scratch.folder().pathOf(name), std::nullopt) << name;
        EXPECT_FALSE(scratch.folder().exists(name)) << name;
        EXPECT_FALSE(scratch.folder().read(name)) << name;
        EXPECT_FALSE(scratch.folder().write(name, "x")) << name;
        EXPECT_FALSE(scratch.folder().remove(name)) << name;
    }
    EXPECT_FALSE(isBareName(std::string_view{"a\0b", 3}));
    EXPECT_TRUE(isBareName("..."));
    EXPECT_TRUE(isBareName("<b>&\"|?*"));
}

TEST(DataFolderExists, SeesFilesInAnyCase)
{
    const ScratchFolder scratch;
    scratch.put("poolstart.ths", "");
    EXPECT_TRUE(scratch.folder().exists("POOLSTART.THS"));
    EXPECT_FALSE(scratch.folder().exists("TALLYHOOP.THS"));
}

TEST(DataFolderExists, SurvivesNamesOfAnyLength)
{
    const ScratchFolder scratch;
    EXPECT_FALSE(scratch.folder().exists(std::string(300, 'a')));
    EXPECT_FALSE(scratch.folder().write(std::string(300, 'a'), "x"));
}

TEST(DataFolderFiles, ListsAnExtensionInAnyCaseSortedWithoutRegardToCase)
{
    const ScratchFolder scratch;
    for (const char* name : {"b.thc", "A.THC", "C.Thc", "D.THS", "E.THC.bak", "F"})
        scratch.put(name, "");
    EXPECT_EQ(namesOf(scratch.folder().files(".THC")), (Names{"A.THC", "b.thc", "C.Thc"}));
#ifndef _WIN32 // where names that differ in case only are one
    scratch.put("a.THC", "");
    EXPECT_EQ(namesOf(scratch.folder().files(".THC")), (Names{"A.THC", "a.THC", "b.thc", "C.Thc"}));
#endif
}

TEST(DataFolderFiles, LeavesOutFoldersAndStaleTemporaries)
{
    const ScratchFolder scratch;
    fs::create_directory(scratch.path() / "FOLDER.THC");
    scratch.put(".A.THC.tmp~", "");
    scratch.put("A.THC", "");
    EXPECT_EQ(namesOf(scratch.folder().files(".THC")), Names{"A.THC"});
}

#ifndef _WIN32 // where every name is text, or nearly so
TEST(DataFolderFiles, OpensAFileWhoseNameIsNoText)
{
    const ScratchFolder scratch;
    scratch.put("Ren\xE9.THC", "broken");
    scratch.put("\xE3\x81\x82.THC", "foreign");
    const std::vector<FolderFile> files = scratch.folder().files(".THC");
    ASSERT_EQ(namesOf(files), (Names{"?.THC", "Ren?.THC"}));
    EXPECT_EQ(files[0].path, scratch.path() / "\xE3\x81\x82.THC");
    EXPECT_EQ(files[1].path, scratch.path() / "Ren\xE9.THC");
    EXPECT_EQ(*scratch.folder().read("REN?.THC"), "broken");
}
#endif

TEST(DataFolderFiles, IsEmptyWhenTheFolderHasVanished)
{
    const ScratchFolder scratch;
    EXPECT_TRUE(DataFolder{scratch.path() / "gone"}.files(".THC").empty());
    EXPECT_FALSE(DataFolder{scratch.path() / "gone"}.exists("A.THC"));
}

TEST(DataFolderFiles, ListsTenThousand)
{
    const ScratchFolder scratch;
    for (int i = 0; i < 10'000; ++i)
        scratch.put("Player " + std::to_string(i) + ".THC", "");
    const std::vector<FolderFile> files = scratch.folder().files(".THC");
    ASSERT_EQ(files.size(), 10'000u);
    EXPECT_EQ(files[0].name, "Player 0.THC");
    EXPECT_EQ(files[1].name, "Player 1.THC");
    EXPECT_EQ(files[2].name, "Player 10.THC");
    EXPECT_EQ(files.back().name, "Player 9999.THC");
}

TEST(DataFolderWrite, ReplacesTheFileOfThatNameInAnyCase)
{
    const ScratchFolder scratch;
    scratch.put("Poolstart.ths", "old");
    EXPECT_TRUE(scratch.folder().write("POOLSTART.THS", "new"));
    EXPECT_EQ(scratch.get("Poolstart.ths"), "new");
    EXPECT_EQ(namesOf(scratch.folder().files(".THS")), Names{"Poolstart.ths"});
}

TEST(DataFolderRead, SaysWhyItFailed)
{
    const ScratchFolder scratch;
    EXPECT_EQ(scratch.folder().read("missing").failure().message, "No such file or directory");
    EXPECT_EQ(scratch.folder().read("../a").failure().message,
              "\"../a\" cannot be the name of a file in the program's folder.");
}

TEST(DataFolderRemove, DeletesTheFileInAnyCase)
{
    const ScratchFolder scratch;
    scratch.put("Tallyhoop.ini", "1");
    EXPECT_TRUE(scratch.folder().remove("TALLYHOOP.INI"));
    EXPECT_FALSE(scratch.has("Tallyhoop.ini"));
}

TEST(DataFolderRemove, SucceedsWhenThereIsNone)
{
    const ScratchFolder scratch;
    EXPECT_TRUE(scratch.folder().remove("TALLYHOOP.INI"));
}

#ifndef _WIN32 // where names that differ in case only are one
TEST(DataFolderSpellings, AreAllThatDifferInCaseOnly)
{
    const ScratchFolder scratch;
    for (const char* name : {"Adams_B.THC", "ADAMS_B.thc", "Adams_BC.THC"})
        scratch.put(name, "");
    EXPECT_EQ(scratch.folder().spellingsOf("adams_b.THC"), (std::vector<std::string>{"ADAMS_B.thc", "Adams_B.THC"}));
    EXPECT_TRUE(scratch.folder().spellingsOf("Baker_C.THC").empty());
}
#endif

TEST(DataFolderList, TellsAFolderWithoutFilesFromOneThatCannotBeListed)
{
    const ScratchFolder scratch;
    scratch.put("TALLYHOOP.THS", "");
    EXPECT_TRUE(scratch.folder().list(".THC").value.empty());
    EXPECT_FALSE(scratch.folder().list(".THC").trouble);
    const DataFolder gone{scratch.path() / "gone"};
    ASSERT_TRUE(gone.list(".THC").trouble);
    EXPECT_EQ(gone.list(".THC").trouble->message, "No such file or directory");
    EXPECT_TRUE(gone.files(".THC").empty());
}

TEST(DataFolderRemove, LeavesAFolderOfThatName)
{
    const ScratchFolder scratch;
    fs::create_directory(scratch.path() / "TALLYHOOP.INI");
    EXPECT_FALSE(scratch.folder().remove("TALLYHOOP.INI"));
    EXPECT_TRUE(scratch.has("TALLYHOOP.INI"));
}

TEST(DataFolderCheckWritable, LeavesNothingBehind)
{
    const ScratchFolder scratch;
    EXPECT_TRUE(scratch.folder().checkWritable());
    EXPECT_TRUE(fs::is_empty(scratch.path()));
}

TEST(DataFolderCheckWritable, SaysWhyNot)
{
    const ScratchFolder scratch;
    const Result<Done> outcome = DataFolder{scratch.path() / "gone"}.checkWritable();
    ASSERT_FALSE(outcome);
    EXPECT_EQ(outcome.failure().message, "No such file or directory");
}

TEST(Shown, IsTextForPeople)
{
    EXPECT_EQ(shown(u8"/pool/René"), "/pool/Ren\xE9");
#ifdef _WIN32
    EXPECT_EQ(shown(L"C:\\pool\\\xD800"), "?") << "half a character";
    EXPECT_EQ((DataFolder{"C:\\pool"}.shownPathOf("A.THC")), "C:\\pool\\A.THC");
    EXPECT_EQ((DataFolder{"C:\\"}.shownPathOf("A.THC")), "C:\\A.THC");
#else
    EXPECT_EQ(shown("/pool/Ren\xE9"), "/pool/Ren?");
    EXPECT_EQ((DataFolder{"/pool"}.shownPathOf("A.THC")), "/pool/A.THC");
    EXPECT_EQ((DataFolder{"/"}.shownPathOf("A.THC")), "/A.THC");
#endif
}

TEST(FindInAnyCase, FindsTheEntryOfATypedPath)
{
    const ScratchFolder scratch;
    scratch.put("Smith_JS.THC", "");
    EXPECT_EQ(findInAnyCase(scratch.path() / "Smith_JS.THC"), scratch.path() / "Smith_JS.THC");
    EXPECT_EQ(findInAnyCase(scratch.path() / "SMITH_js.thc"), scratch.path() / "Smith_JS.THC");
    EXPECT_EQ(findInAnyCase(scratch.path() / "Smith_JX.THC"), std::nullopt);
    EXPECT_EQ(findInAnyCase(scratch.path() / "no folder" / "Smith_JS.THC"), std::nullopt);
    EXPECT_EQ(findInAnyCase(scratch.path() / "A:Smith_JS.THC"), std::nullopt) << "no bare name";
}

#ifndef _WIN32 // where names that differ in case only are one
TEST(FindInAnyCase, PrefersTheExactName)
{
    const ScratchFolder scratch;
    scratch.put("clark_d.thc", "");
    scratch.put("CLARK_D.THC", "");
    EXPECT_EQ(findInAnyCase(scratch.path() / "clark_d.thc"), scratch.path() / "clark_d.thc");
    EXPECT_EQ(findInAnyCase(scratch.path() / "Clark_D.thc"), scratch.path() / "CLARK_D.THC");
}
#endif

TEST(FindInAnyCase, TakesANameWithLettersThatOurCodePageLacksAsItIs)
{
    const ScratchFolder scratch;
    const fs::path file = scratch.path() / u8"Łukasz_L.THC";
    std::ofstream{file} << "one";
    EXPECT_EQ(findInAnyCase(file), file);
    EXPECT_EQ(findInAnyCase(scratch.path() / u8"Ńukasz_L.THC"), std::nullopt) << "both are shown as ?ukasz_L.THC";
}

TEST(IsSameFile, IgnoresCase)
{
    EXPECT_TRUE(isSameFile("/pool/Smith_JS.THC", "/pool/SMITH_JS.thc"));
    EXPECT_FALSE(isSameFile("/pool/Smith_JS.THC", "/pool/Smith.THC"));
    EXPECT_FALSE(isSameFile("/pool/Smith_JS.THC", "/other/Smith_JS.THC"));
}

TEST(IsSameFile, DistinguishesNamesWhoseLettersOurCodePageLacks)
{
    EXPECT_FALSE(isSameFile(fs::path{"/pool"} / u8"Łukasz_L.THC", fs::path{"/pool"} / u8"Ńukasz_L.THC"));
    EXPECT_TRUE(isSameFile(fs::path{"/pool"} / u8"Łukasz_L.THC", fs::path{"/pool/x/.."} / u8"Łukasz_L.THC"));
}

TEST(IsSameFile, SeesThroughDetoursAndLinks)
{
    const ScratchFolder scratch;
    fs::create_directory(scratch.path() / "sub");
    scratch.put("A.THC", "");
    EXPECT_TRUE(isSameFile(scratch.path() / "sub" / ".." / "A.THC", scratch.path() / "A.THC"));
    EXPECT_TRUE(isSameFile(scratch.path() / "sub" / ".." / "NEW.THC", scratch.path() / "new.thc"));
#ifndef _WIN32 // where only administrators make links
    fs::create_symlink("A.THC", scratch.path() / "LINK.THC");
    EXPECT_TRUE(isSameFile(scratch.path() / "LINK.THC", scratch.path() / "A.THC"));
#endif
}

TEST(WithoutUnsafeCharacters, ReplacesWhatCannotBeInAFileName)
{
    EXPECT_EQ(withoutUnsafeCharacters("a/b\\c:d*e?f\"g<h>i|j"), "a_b_c_d_e_f_g_h_i_j");
    EXPECT_EQ(withoutUnsafeCharacters(std::string_view{"a\0b\tc\x7F", 6}), "a_b_c_");
    EXPECT_EQ(withoutUnsafeCharacters("O'Brien & S\xF6hne Jr._JS"), "O'Brien & S\xF6hne Jr._JS");
}

TEST(WithoutUnsafeCharacters, KeepsAwayFromTheDevicesOfWindows)
{
    EXPECT_EQ(withoutUnsafeCharacters("CON"), "CON_");
    EXPECT_EQ(withoutUnsafeCharacters("aux.THC_AB.THC"), "aux_.THC_AB.THC");
    EXPECT_EQ(withoutUnsafeCharacters("Com1 .txt"), "Com1_ .txt");
    EXPECT_EQ(withoutUnsafeCharacters("COM\xB9.THC"), "COM\xB9_.THC");
    EXPECT_EQ(withoutUnsafeCharacters("com\xB2"), "com\xB2_");
    EXPECT_EQ(withoutUnsafeCharacters("Lpt\xB3"), "Lpt\xB3_");
    EXPECT_EQ(withoutUnsafeCharacters("CONIN$.THC"), "CONIN$_.THC");
    EXPECT_EQ(withoutUnsafeCharacters("conout$"), "conout$_");
    EXPECT_EQ(withoutUnsafeCharacters("COM\xBD.THC"), "COM\xBD.THC"); // one half is no digit
    EXPECT_EQ(withoutUnsafeCharacters("Conrad.THC"), "Conrad.THC");
    EXPECT_EQ(withoutUnsafeCharacters("COM_1.THC"), "COM_1.THC");
    EXPECT_EQ(withoutUnsafeCharacters("CON_JS.THC"), "CON_JS.THC");
}

} // namespace
} // namespace tallyhoop
