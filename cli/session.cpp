// cli/session.cpp - the streams of the process, and files written as the program writes them.
#include "cli/session.h"

#include "base/one_line.h"
#include "base/windows1252.h"
#include "cli/terminal.h"
#include "files/replace_file.h"

#include <cerrno>
#include <cstdio>
#include <system_error>
#include <utility>
#include <vector>

namespace tallyhoop::cli {

namespace {

std::string forATerminal(std::string_view bytes)
{
    std::string text = toUtf8(bytes);
    std::erase(text, '\r');
    std::erase(text, '\f');
    return text;
}

} // namespace

Session::Session(CommonOptions options) : m_options{std::move(options)}, m_folder{m_options.folder} {}

void Session::fault(std::string_view words)
{
    ++m_faults;
    const std::string line = toUtf8(onOneLine(words)) + "\n";
    static_cast<void>(std::fwrite(line.data(), 1, line.size(), stderr));
}

void Session::faultIn(std::string_view file, std::string_view words)
{
    fault(std::string{file} + ": " + std::string{words});
}

void Session::write(const std::string& bytes)
{
    if (m_options.out) {
        if (const Result<Done> written = replaceFile(*m_options.out, bytes); !written)
            faultIn(shown(*m_options.out), written.failure().message);
        return;
    }
    if (std::fwrite(bytes.data(), 1, bytes.size(), stdout) != bytes.size() || std::fflush(stdout) != 0)
        fault("The output could not be written: " + fromUtf8(std::generic_category().message(errno)));
}

void Session::writeText(const std::string& bytes)
{
    const bool isForEyes = !m_options.out && isShownToAPerson();
    write(isForEyes ? forATerminal(bytes) : bytes);
}

} // namespace tallyhoop::cli
