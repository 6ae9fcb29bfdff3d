// tests/windows/console/saver.cpp - saves as a person does in the windows, without windows, so that tests can end it
// meanwhile and compare what it leaves on Linux and on Windows.
//
//   saver FOLDER pool                  puts a pool there
//   saver FOLDER list                  lists the writers, and the file of each
//   saver FOLDER save WRITER           saves once
//   saver FOLDER loop WRITER           says "ready" and saves until it is ended
//   saver FOLDER end WRITER CALL       saves once, and ends itself at its CALL-th call about a file (Windows only)
#include "fakes/fake_platform.h"
#include "fakes/scratch_folder.h"
#include "faults/writers.h"
#include "screens/board/pool_copy.h"
#include "windows/console/end_at_call.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace tallyhoop::test {
namespace {

namespace fs = std::filesystem;

constexpr const char* kCopy = "Copy"; // of the whole pool, into a dated folder

/// Makes a pool in a folder of its own and copies it: what prepares pools for tests knows no other place.
int putPoolInto(const fs::path& folder)
{
    const ScratchFolder scratch;
    putPool(scratch);
    fs::copy(scratch.path(), folder, fs::copy_options::recursive);
    return EXIT_SUCCESS;
}

int list()
{
    for (const WriterKind& kind : allWriters())
        std::printf("%s|%s\n", kind.name, kind.file);
    std::printf("%s|\n", kCopy);
    return EXIT_SUCCESS;
}

class CopyWriter : public Writer
{
public:
    using Writer::Writer;
    void save(std::optional<ui::Answer> /*mayReplace*/) override { backUpPool(folder, platform.services); }
    std::string onScreen() const override { return {}; }
};

std::unique_ptr<Writer> open(const std::string& name, const fs::path& folder)
{
    if (name == kCopy)
        return std::make_unique<CopyWriter>(folder);
    const auto& all = allWriters();
    const auto kind = std::ranges::find_if(all, [&](const WriterKind& one) { return name == one.name; });
    return kind == all.end() ? nullptr : kind->open(folder);
}

int save(Writer& writer, const std::string& verb, int call)
{
    if (verb == "end")
        endAtCall(call);
    if (verb != "loop") {
        writer.save();
        return EXIT_SUCCESS;
    }
    std::printf("ready\n");
    std::fflush(stdout);
    for (;;)
        writer.save();
}

int run(const std::vector<std::string>& words)
{
    const fs::path folder = fs::absolute(words.at(0));
    const std::string& verb = words.at(1);
    if (verb == "pool")
        return putPoolInto(folder);
    if (verb == "list")
        return list();
    const std::unique_ptr<Writer> writer = open(words.at(2), folder);
    if (writer == nullptr)
        return EXIT_FAILURE;
    writer->forgetOpening();
    return save(*writer, verb, verb == "end" ? std::stoi(words.at(3)) : 0);
}

} // namespace
} // namespace tallyhoop::test

int main(int count, char** words) { return tallyhoop::test::run({words + 1, words + count}); }
