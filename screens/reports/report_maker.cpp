// screens/reports/report_maker.cpp - what the making of a report says, as messages and progress.
#include "screens/reports/report_maker.h"

#include "screens/help_topics.h"
#include "screens/saving.h"
#include "ui/work.h"

namespace tallyhoop {

namespace {

class WatchingScreen : public ReportWatcher
{
public:
    explicit WatchingScreen(const ui::Platform& platform) : m_platform{platform} {}

    void fileIsDamaged(const std::filesystem::path& file, const Failure&) override
    {
        showReadingTrouble(m_platform.dialogs, file);
    }

    void listIsFaulty(const Failure& fault) override { showFaultyPlayerList(m_platform.dialogs, fault); }

    bool watch(const std::string& what, std::size_t steps, const std::function<void(const Step&)>& work) override
    {
        Work shown{m_platform.progress, what, steps};
        work([&shown] { return shown.step(); });
        return !shown.cancelled();
    }

private:
    const ui::Platform& m_platform;
};

ui::Icon iconOf(ReportRefusal::Weight weight)
{
    switch (weight) {
    case ReportRefusal::Weight::Plain:
        return ui::Icon::None;
    case ReportRefusal::Weight::News:
        return ui::Icon::Information;
    case ReportRefusal::Weight::Warning:
        return ui::Icon::Exclamation;
    case ReportRefusal::Weight::Fault:
        break;
    }
    return ui::Icon::Critical;
}

ui::Message messageOf(const ReportRefusal& refusal)
{
    ui::Message message{refusal.caption, refusal.reason, ui::Buttons::Ok, iconOf(refusal.weight)};
    if (refusal.isAboutPlayerList)
        message.helpTopic = help_topic::kRepair;
    return message;
}

NoReport withoutReport(const ReportRefusal& refusal) { return {messageOf(refusal), refusal.consequence}; }

} // namespace

ui::Message reportFailure(const ReportKind& kind, const std::string& reason)
{
    return messageOf(reportRefusal(kind, reason));
}

ReportMaker::ReportMaker(const DataFolder& folder, const ui::Platform& platform, const Field& field)
    : m_folder{folder}, m_platform{platform}, m_field{field}
{
}

MadeReport ReportMaker::make(const ReportKind& kind, const std::string& title, std::span<const FolderFile> files)
{
    WatchingScreen watcher{m_platform};
    ReportMaking::Made made = ReportMaking{m_folder, m_field, watcher}.make(kind, title, files);
    if (auto* lines = std::get_if<ReportLines>(&made))
        return std::move(*lines);
    return withoutReport(std::get<ReportRefusal>(made));
}

std::variant<std::string, NoReport> ReportMaker::makeCsv(const ReportKind& kind, std::span<const FolderFile> files)
{
    WatchingScreen watcher{m_platform};
    ReportMaking::MadeCsv made = ReportMaking{m_folder, m_field, watcher}.makeCsv(kind, files);
    if (auto* table = std::get_if<std::string>(&made))
        return std::move(*table);
    return withoutReport(std::get<ReportRefusal>(made));
}

} // namespace tallyhoop
