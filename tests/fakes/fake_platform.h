// tests/fakes/fake_platform.h - a computer that records what it is asked to do.
#pragma once

#include "fakes/fake_dialogs.h"
#include "ui/platform.h"

#include <functional>
#include <map>

namespace tallyhoop::test {

class FakePrinter : public ui::Printer
{
public:
    std::vector<std::string> fonts{"Courier New"};
    bool dialogAccepted = true;
    std::optional<ui::PrinterFont> chosenFont;
    std::map<ui::Orientation, int> pageWidths{{ui::Orientation::Portrait, 11840}, {ui::Orientation::Landscape, 15440}};
    std::optional<Failure> trouble; ///< every printout fails with it
    bool there = true;
    std::filesystem::path chosenFile; ///< that was chosen in the printer dialog
    std::function<void()> whilePrinting;

    int printerDialogs = 0;
    int fontDialogs = 0;
    std::vector<ui::TextPrintout> texts;
    std::vector<ui::DrawingPrintout> drawings;
    std::vector<ui::TextPrintout> previewedTexts;
    std::vector<ui::DrawingPrintout> previewedDrawings;
    int previews = 0;
    std::function<void(const ui::Preview&)> whilePreviewed; ///< what the person does there
    std::vector<std::filesystem::path> pdfs;

    std::vector<std::string> fontNames() override { return fonts; }
    bool choosePrinter() override
    {
        ++printerDialogs;
        return dialogAccepted;
    }
    std::optional<ui::PrinterFont> chooseFont() override
    {
        ++fontDialogs;
        return chosenFont;
    }
    int pageWidthTwips(ui::Orientation orientation) override { return pageWidths.at(orientation); }
    bool isThere() override { return there; }
    std::filesystem::path outputFile() override { return chosenFile; }
    Result<Done> print(const ui::Printout& printout) override
    {
        note(printout, texts, drawings);
        return outcome();
    }
    Result<Done> savePdf(const ui::Printout& printout, const std::filesystem::path& file) override
    {
        note(printout, texts, drawings);
        pdfs.push_back(file);
        return outcome();
    }
    void preview(const ui::Preview& preview) override
    {
        ++previews;
        for (const ui::Printout& printout : preview.printouts)
            note(printout, previewedTexts, previewedDrawings);
        if (whilePreviewed)
            whilePreviewed(preview);
    }

private:
    static void note(const ui::Printout& printout, std::vector<ui::TextPrintout>& asText,
                     std::vector<ui::DrawingPrintout>& asDrawing)
    {
        if (const auto* text = std::get_if<ui::TextPrintout>(&printout))
            asText.push_back(*text);
        else
            asDrawing.push_back(std::get<ui::DrawingPrintout>(printout));
    }

    Result<Done> outcome() const
    {
        if (whilePrinting)
            whilePrinting();
        return trouble ? Result<Done>{*trouble} : Result<Done>{Done{}};
    }
};

class FakeMail : public ui::Mail
{
public:
    bool open = false;
    std::optional<Failure> signOnTrouble;
    std::optional<Failure> sendTrouble;
    ui::HandedOver handedOver; ///< where each message is then
    int signOns = 0;
    int signOffs = 0;
    std::vector<ui::MailMessage> sent;

    bool isOpen() const override { return open; }
    Result<Done> signOn() override
    {
        ++signOns;
        if (signOnTrouble)
            return *signOnTrouble;
        open = true;
        return Done{};
    }
    Result<ui::HandedOver> send(const ui::MailMessage& message) override
    {
        sent.push_back(message);
        return sendTrouble ? Result<ui::HandedOver>{*sendTrouble} : Result<ui::HandedOver>{handedOver};
    }
    void signOff() override
    {
        if (open)
            ++signOffs;
        open = false;
    }
};

class FakeHelp : public ui::HelpViewer
{
public:
    std::optional<Failure> trouble;
    std::vector<std::filesystem::path> shown;
    std::vector<std::string> topics;

    Result<Done> show(const std::filesystem::path& file, const std::string& topic) override
    {
        shown.push_back(file);
        topics.push_back(topic);
        return trouble ? Result<Done>{*trouble} : Result<Done>{Done{}};
    }
};

class FakePrograms : public ui::Programs
{
public:
    std::optional<Failure> checkTrouble;
    std::optional<Failure> startTrouble;
    std::vector<std::filesystem::path> started;
    std::function<void()> whenStarted; ///< what the program does
    std::function<void()> whileWaitedFor;
    std::optional<Result<Done>> end; ///< how the started program has ended
    std::function<void()> whenStopped;
    int stops = 0;
    std::vector<std::filesystem::path> foldersOpened;
    std::optional<Failure> openFolderTrouble;

    Result<Done> check(const std::filesystem::path&) override
    {
        return checkTrouble ? Result<Done>{*checkTrouble} : Result<Done>{Done{}};
    }
    Result<Done> start(const std::filesystem::path& program) override
    {
        if (startTrouble)
            return *startTrouble;
        started.push_back(program);
        if (whenStarted)
            whenStarted();
        return Done{};
    }
    std::optional<Result<Done>> waitForEnd(std::chrono::milliseconds) override
    {
        if (whileWaitedFor)
            whileWaitedFor();
        return end;
    }
    void stop() override
    {
        ++stops;
        if (whenStopped)
            whenStopped();
    }
    Result<Done> openFolder(const std::filesystem::path& folder) override
    {
        foldersOpened.push_back(folder);
        return openFolderTrouble ? Result<Done>{*openFolderTrouble} : Result<Done>{Done{}};
    }
};

class FakeClock : public ui::Clock
{
public:
    std::chrono::year_month_day day{std::chrono::year{2001}, std::chrono::March, std::chrono::day{5}};
    std::chrono::seconds timeOfDay = std::chrono::hours{10} + std::chrono::minutes{15} + std::chrono::seconds{30};
    std::chrono::year_month_day today() const override { return day; }
    std::chrono::local_seconds now() const override { return std::chrono::local_days{day} + timeOfDay; }
};

class FakeProgress : public ui::Progress
{
public:
    int begun = 0;
    int ended = 0;
    std::optional<int> cancelAt;       ///< the step at which the person cancels
    std::optional<int> cancelFromWork; ///< the work, counted from 1, that the person cancels

    void begin(const std::string&, int) override { ++begun; }
    bool advance(int stepsDone) override
    {
        return (!cancelAt || stepsDone < *cancelAt) && (!cancelFromWork || begun < *cancelFromWork);
    }
    void end() override { ++ended; }
};

class FakeClipboard : public ui::Clipboard
{
public:
    std::string text;
    void put(const std::string& newText) override { text = newText; }
};

/// The services together; `services` is what a screen's constructor takes.
struct FakePlatform {
    FakeDialogs dialogs;
    FakePrinter printer;
    FakeMail mail;
    FakeHelp help;
    FakePrograms programs;
    FakeClock clock;
    FakeProgress progress;
    FakeClipboard clipboard;
    ui::Platform services{dialogs, printer, mail, help, programs, clock, progress, clipboard};
};

} // namespace tallyhoop::test
