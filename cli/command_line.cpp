// cli/command_line.cpp - verbs, options and their explanations.
#include "cli/command_line.h"

#include "base/windows1252.h"
#include "cli/arguments.h"
#include "cli/session.h"
#include "cli/verbs.h"
#include "files/file_names.h"
#include "files/own_program.h"
#include "intake/addresses.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <functional>
#include <iostream>
#include <iterator>
#include <sstream>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

namespace tallyhoop::cli {

namespace {

/// What a person may choose from, and what it means.
template <class Value>
using Choices = std::vector<std::pair<std::string, Value>>;

const Choices<ChanceKind> kWeights{
    {"alike", ChanceKind::Alike}, {"seeds", ChanceKind::BySeed}, {"picks", ChanceKind::AsPicked}};

const Choices<CsvOptions::Table> kTables{{"standings", CsvOptions::Table::Standings},
                                         {"picks", CsvOptions::Table::Picks},
                                         {"picks-by-player", CsvOptions::Table::PicksByPlayer},
                                         {"outlook", CsvOptions::Table::Outlook}};

const Choices<int> kReportNumbers{{"1", 1}, {"2", 2}, {"3", 3}, {"4", 4}, {"5", 5}, {"6", 6}, {"7", 7}};

/// Adds an option or an argument that is one of these words, letter for letter.
template <class Value>
CLI::Option* addChoice(CLI::App* verb, const std::string& name, Value& value, const Choices<Value>& choices,
                       const std::string& explanation)
{
    std::vector<std::string> words;
    words.reserve(choices.size());
    std::ranges::transform(choices, std::back_inserter(words), &Choices<Value>::value_type::first);
    const auto take = [&value, &choices](const std::string& word) {
        value = std::ranges::find(choices, word, &Choices<Value>::value_type::first)->second;
    };
    return verb->add_option_function<std::string>(name, take, explanation)->check(CLI::IsMember(std::move(words)));
}

/// What a pool consists of is replaced by the windows and by `import`, and by no output.
bool isNameOfAPool(const std::filesystem::path& file)
{
    const std::string name = shown(file.filename());
    return endsWithFolded(name, ".THS") || endsWithFolded(name, file_name::kSelectionExtension) ||
           equalFolded(name, file_name::kPlayerNames) || equalFolded(name, file_name::kPrizes) ||
           equalFolded(name, file_name::kSettings);
}

/// @returns what a symbolic link leads to, which need not be there; the file itself when it is none
std::filesystem::path withoutLinks(std::filesystem::path file)
{
    constexpr int kMostLinks = 40; // as the system follows
    std::error_code trouble;
    for (int i = 0; i < kMostLinks && std::filesystem::is_symlink(file, trouble); ++i)
        file = file.parent_path() / std::filesystem::read_symlink(file, trouble);
    return file;
}

/// A link, of either kind, is what it leads to.
bool isPartOfAPool(const std::filesystem::path& file, const std::filesystem::path& folder)
{
    std::error_code trouble;
    if (isNameOfAPool(file) || isNameOfAPool(withoutLinks(file)))
        return true;
    if (!std::filesystem::exists(file, trouble))
        return false;
    for (std::filesystem::directory_iterator entry{folder, trouble}, end; !trouble && entry != end;
         entry.increment(trouble)) {
        std::error_code ignored; // of what is not there any more
        if (isNameOfAPool(entry->path()) && std::filesystem::equivalent(entry->path(), file, ignored))
            return true;
    }
    return false;
}

class CommandLine
{
public:
    CommandLine()
    {
        m_app.require_subcommand(1);
        m_app.get_formatter()->label("SUBCOMMAND", "VERB");
        m_app.fallthrough(); // the options of all verbs are understood after the verb, too
        m_app.set_version_flag("--version", "tallyhoop-cli " TALLYHOOP_VERSION);
        m_folderOption =
            m_app.add_option("--folder", m_folder, "Folder of the pool; without it, the one that holds this program")
                ->option_text("DIR")
                ->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);
        m_outOption =
            m_app
                .add_option("--out", m_out, "File to write, as a whole or not at all; without it, the standard output")
                ->option_text("FILE")
                ->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);
        m_app.footer("Exit status: 0 done, 1 faults found, 2 used wrongly. Faults go to the error stream, one a line.");
        addReports();
        addPage();
        addTables();
        addFinal();
        addEntries();
        addVerb("check", "Read every file of the pool and list every fault")->callback([this] {
            m_verb = [](Session& session) { check(session); };
        });
    }

    int run(int count, char** words)
    {
        try {
            std::vector<std::string> arguments = argumentsOf(count, words);
            std::ranges::reverse(arguments); // as the parser wants them
            m_app.parse(std::move(arguments));
            return runVerb();
        } catch (const CLI::RequiredError&) {
            return usedWrongly(m_app.get_subcommands().empty() ? wordsWithoutVerb() : wordsWithoutArgument());
        } catch (const CLI::ParseError& error) {
            return endOf(error);
        }
    }

private:
    CLI::App* addVerb(const std::string& name, const std::string& explanation)
    {
        CLI::App* const verb = m_app.add_subcommand(name, explanation);
        verb->group("Verbs");
        return verb;
    }

    void addReports()
    {
        CLI::App* const standingsVerb = addVerb("standings", "The tournament standings");
        addTitle(standingsVerb, m_standings.title);
        addJson(standingsVerb, m_standings.asJson);
        standingsVerb->callback([this] { m_verb = [this](Session& session) { standings(session, m_standings); }; });

        CLI::App* const reportVerb = addVerb("report", "One of the seven reports, as in RPTOPT1.TXT to RPTOPT7.TXT");
        addChoice(reportVerb, "number", m_report.number, kReportNumbers, "1 to 7")->required()->option_text("N");
        addTitle(reportVerb, m_report.title);
        reportVerb->callback([this] { m_verb = [this](Session& session) { report(session, m_report); }; });

        CLI::App* const scoresVerb = addVerb("scores", "The list of all scores");
        addJson(scoresVerb, m_scores.asJson);
        scoresVerb->callback([this] { m_verb = [this](Session& session) { scores(session, m_scores); }; });

        CLI::App* const outlookVerb = addVerb("outlook", "Who can still be first, and how often");
        addWeights(outlookVerb, m_outlook.weights);
        addJson(outlookVerb, m_outlook.asJson);
        outlookVerb->callback([this] { m_verb = [this](Session& session) { outlook(session, m_outlook); }; });
    }

    void addTables()
    {
        CLI::App* const csvVerb = addVerb("csv", "A table for spreadsheets");
        addChoice(csvVerb, "table", m_csv.table, kTables, "standings, picks, picks-by-player or outlook")
            ->required()
            ->option_text("TABLE");
        const CLI::Option* const weights = addWeights(csvVerb, m_csv.weights);
        csvVerb->callback([this, weights] {
            if (weights->count() > 0 && m_csv.table != CsvOptions::Table::Outlook)
                throw CLI::ValidationError("--weights", "Only the table outlook has chances");
            m_verb = [this](Session& session) { csv(session, m_csv); };
        });
    }

    void addPage()
    {
        CLI::App* const pageVerb = addVerb("page", "The pool as a page for the browser");
        addWeights(pageVerb, m_page.weights);
        pageVerb->callback([this] { m_verb = [this](Session& session) { page(session, m_page); }; });
    }

    void addFinal()
    {
        CLI::App* const finalVerb = addVerb("final", "The sheet that ends the season");
        addJson(finalVerb, m_final.asJson);
        finalVerb->callback([this] { m_verb = [this](Session& session) { finalSheet(session, m_final); }; });
    }

    void addEntries()
    {
        CLI::App* const formVerb = addVerb("form", "The entry form, a page for players");
        formVerb->add_option("--mail-to", m_form.organiser, "E-mail address that brackets are sent to")
            ->option_text("ADDRESS");
        formVerb->callback([this] {
            if (!m_form.organiser.empty() && !isAddressForEntries(m_form.organiser))
                throw CLI::ValidationError("--mail-to", "This is not an e-mail address that brackets can be sent to");
            m_verb = [this](Session& session) { form(session, m_form); };
        });

        CLI::App* const importVerb = addVerb("import", "Take in what players have handed in");
        importVerb->add_option("files", m_files, "Selections, mails, texts, spreadsheets, or folders of them")
            ->required()
            ->option_text("FILE...");
        importVerb->callback([this] {
            m_verb = [this](Session& session) {
                ImportOptions options;
                std::ranges::transform(m_files, std::back_inserter(options.files), pathOf);
                import(session, options);
            };
        });
    }

    static void addTitle(CLI::App* verb, std::string& title)
    {
        verb->add_option("--title", title, "Title of the report; without it, that of the field")->option_text("TEXT");
    }

    static void addJson(CLI::App* verb, bool& asJson) { verb->add_flag("--json", asJson, "The figures as JSON"); }

    static CLI::Option* addWeights(CLI::App* verb, ChanceKind& weights)
    {
        return addChoice(verb, "--weights", weights, kWeights,
                         "Chances of the open games: alike (without it), seeds or picks")
            ->option_text("CHANCES");
    }

    /// @returns what to say when no verb was understood
    std::string wordsWithoutVerb() const
    {
        // What follows an option that is not understood may be its value.
        const std::vector<std::string> words = m_app.remaining();
        const bool isVerb = !words.empty() && !words.front().starts_with('-');
        return isVerb ? "There is no verb " + words.front() : "A verb is required";
    }

    /// @returns what to say when the verb lacks what it is about
    std::string wordsWithoutArgument() const
    {
        const std::string verb = m_app.get_subcommands().front()->get_name();
        if (verb == "report")
            return "A number is required: 1 to 7";
        if (verb == "csv")
            return "A table is required: standings, picks, picks-by-player or outlook";
        return "A file is required, or a folder";
    }

    /// Answers instead of a verb: with the help, the version, or what is wrong.
    int endOf(const CLI::ParseError& error) const
    {
        std::ostringstream answer;
        if (m_app.exit(error, answer, std::cerr) != 0)
            return kUsedWrongly;
        Session session{CommonOptions{}};
        session.write(answer.str());
        return session.status();
    }

    int runVerb() const
    {
        if (m_folderOption->count() > 0 && m_folder.empty())
            return usedWrongly("--folder names no folder");
        if (m_outOption->count() > 0 && m_out.empty())
            return usedWrongly("--out names no file");
        CommonOptions options;
        options.folder = m_folder.empty() ? ownProgram().parent_path() : pathOf(m_folder);
        std::error_code ignored;
        if (!std::filesystem::is_directory(options.folder, ignored))
            return usedWrongly("There is no folder " + argumentOf(options.folder));
        if (!m_out.empty()) {
            options.out = pathOf(m_out);
            if (isPartOfAPool(*options.out, options.folder))
                return usedWrongly("--out would replace a part of the pool: " + m_out);
        }
        Session session{std::move(options)};
        m_verb(session);
        return session.status();
    }

    static int usedWrongly(const std::string& words)
    {
        std::cerr << words << "\nRun with --help for more information.\n";
        return kUsedWrongly;
    }

    CLI::App m_app{"Tallyhoop without its windows: reports, figures and imports of an office pool.", "tallyhoop-cli"};
    CLI::Option* m_folderOption = nullptr;
    CLI::Option* m_outOption = nullptr;
    std::string m_folder;
    std::string m_out;
    std::vector<std::string> m_files;
    StandingsOptions m_standings;
    ReportOptions m_report;
    ScoresOptions m_scores;
    OutlookOptions m_outlook;
    PageOptions m_page;
    CsvOptions m_csv;
    FinalOptions m_final;
    FormOptions m_form;
    std::function<void(Session&)> m_verb;
};

} // namespace

int run(int count, char** words) { return CommandLine{}.run(count, words); }

} // namespace tallyhoop::cli
