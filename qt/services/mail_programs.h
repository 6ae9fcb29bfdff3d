// qt/services/mail_programs.h - starts the programs that take a message, and sees whether they refuse it.
#pragma once

#include "base/result.h"
#include "qt/services/started_program.h"

#include <QString>
#include <chrono>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tallyhoop::qt {

/// @returns the whole path of a program on the search path; empty when it is not installed
QString installedProgram(const char* name);

/// @returns what a tool printed, without white space around it; empty when it is missing, fails or does not answer
std::string answerOf(const char* tool, const QStringList& arguments);

/// Programs that may end at once, or run for as long as their window is open.
class MailPrograms
{
public:
    /// @param patience how long a program is watched
    explicit MailPrograms(std::chrono::milliseconds patience);

    /// Starts a program and watches it for a while. One that still runs then is left running, now and when this program
    /// ends.
    /// @param arguments UTF-8
    /// @returns why it has not taken the message; nothing when it has ended well or still runs
    std::optional<Failure> run(const char* program, const std::vector<std::string>& arguments);

private:
    std::chrono::milliseconds m_patience;
    std::vector<std::unique_ptr<StartedProgram>> m_running; ///< kept, so that their ends are noticed
};

} // namespace tallyhoop::qt
