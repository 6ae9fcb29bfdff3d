// ui/platform.h - the services the screens ask of the computer they run on.
#pragma once

#include "base/result.h"
#include "ui/dialogs.h"
#include "ui/mail.h"
#include "ui/printer.h"

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>

namespace tallyhoop::ui {

/// Shows the help text.
class HelpViewer
{
public:
    virtual ~HelpViewer() = default;

    /// @param topic an anchor inside the file; empty = its beginning
    /// @returns a failure when the file is missing, unreadable or empty
    virtual Result<Done> show(const std::filesystem::path& helpFile, const std::string& topic) = 0;
};

/// Starts other programs, one after another: directly, without a shell or a search path, with a hidden window. They go
/// on when this program ends.
class Programs
{
public:
    virtual ~Programs() = default;

    /// @returns a failure with the system's reason when the program is missing or may not be started
    virtual Result<Done> check(const std::filesystem::path& program) = 0;
    virtual Result<Done> start(const std::filesystem::path& program) = 0;

    /// Waits for the end of the program that was started last, but no longer than so long.
    /// @returns nothing while it runs, or when none was started; a failure, with what the program says of it, when it
    ///          has failed
    virtual std::optional<Result<Done>> waitForEnd(std::chrono::milliseconds atMost) = 0;

    /// Ends the program that was started last, if it is still running, and waits until it is gone.
    virtual void stop() = 0;

    /// Asks the desktop to show a folder. @returns a failure when it has nothing that does
    virtual Result<Done> openFolder(const std::filesystem::path& folder) = 0;
};

class Clock
{
public:
    virtual ~Clock() = default;
    virtual std::chrono::year_month_day today() const = 0;

    /// The local date and time of day.
    virtual std::chrono::local_seconds now() const = 0;
};

/// Busy pointer and, when work takes long, a progress window that can be cancelled.
class Progress
{
public:
    virtual ~Progress() = default;
    virtual void begin(const std::string& what, int steps) = 0;

    /// @returns false when the person cancelled
    virtual bool advance(int stepsDone) = 0;
    virtual void end() = 0;
};

class Clipboard
{
public:
    virtual ~Clipboard() = default;
    virtual void put(const std::string& text) = 0;
};

/// Everything above in one bundle, handed to the screens' constructors.
struct Platform {
    Dialogs& dialogs;
    Printer& printer;
    Mail& mail;
    HelpViewer& help;
    Programs& programs;
    Clock& clock;
    Progress& progress;
    Clipboard& clipboard;
};

} // namespace tallyhoop::ui
