// tests/help/help_links_test.cpp - does every link of the help, and everything in the program that sends people there,
// lead to a topic?
#include "base/lines.h"
#include "help/help_file.h"
#include "screens/help_topics.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <iterator>
#include <map>
#include <regex>
#include <set>

namespace tallyhoop::test {

namespace {

using testing::HasSubstr;

const std::filesystem::path kSources = TALLYHOOP_SOURCE_DIR;

/// The C++ files of the program itself.
std::vector<std::filesystem::path> sources()
{
    std::vector<std::filesystem::path> files;
    for (const char* room : {"app", "base", "demo", "files", "output", "pool", "qt", "reports", "screens", "ui"})
        for (const auto& entry : std::filesystem::recursive_directory_iterator{kSources / room})
            if (entry.path().extension() == ".cpp")
                files.push_back(entry.path());
    return files;
}

std::string contentOf(const std::filesystem::path& file)
{
    std::ifstream stream{file, std::ios::binary};
    return {std::istreambuf_iterator<char>{stream}, {}};
}

} // namespace

TEST(HelpLinks, EveryLinkLeadsToATopic)
{
    const auto topics = helpTopics();
    for (const std::string& link : linksOf(helpText()))
        EXPECT_TRUE(topics.contains(link)) << link;
}

TEST(HelpLinks, EveryTopicCanBeReachedFromTheFirst)
{
    const auto topics = helpTopics();
    std::set<std::string> reached{help_topic::kStart};
    std::vector<std::string> toFollow{help_topic::kStart};
    while (!toFollow.empty()) {
        const std::string topic = toFollow.back();
        toFollow.pop_back();
        for (const std::string& link : linksOf(topics.at(topic)))
            if (reached.insert(link).second)
                toFollow.push_back(link);
    }
    for (const auto& [topic, text] : topics)
        EXPECT_TRUE(reached.contains(topic)) << topic;
}

TEST(HelpLinks, EveryTopicThatTheProgramNamesIsThere)
{
    const auto topics = helpTopics();
    for (const char* topic : help_topic::kAll)
        EXPECT_TRUE(topics.contains(topic)) << topic;
}

TEST(HelpLinks, EveryTopicBeginsWithItsHeading)
{
    EXPECT_EQ(between(helpText(), " id=\"", "\"").size(),
              between(helpText(), "<h1 id=\"", "\"").size() + between(helpText(), "<h2 id=\"", "\"").size());
}

TEST(HelpLinks, EveryMessageThatSendsPeopleToTheHelpNamesItsTopic)
{
    // A file whose messages mention the help also says which topic F1 shows while they are there. What files/ and
    // output/ say is shown by a screen, and that one knows the topic.
    const std::regex mention{R"(See (the )?[Hh]elp|in HELP)"};
    const std::map<std::string, std::string> shownBy{{"player_names_file.cpp", "screens/saving.cpp"},
                                                     {"report_making.cpp", "screens/reports/report_maker.cpp"}};
    std::set<std::string> mentioning;
    for (const auto& file : sources()) {
        const std::string code = contentOf(file);
        if (!std::regex_search(code, mention))
            continue;
        mentioning.insert(file.filename().string());
        const auto other = shownBy.find(file.filename().string());
        const std::string shower = other == shownBy.end() ? code : contentOf(kSources / other->second);
        EXPECT_THAT(shower, HasSubstr("help_topic::k")) << file;
    }
    EXPECT_EQ(mentioning, (std::set<std::string>{"email_screen.cpp", "player_names_file.cpp", "report_making.cpp",
                                                 "setup_screen_save.cpp", "start_up.cpp"}));
}

TEST(HelpLinks, TheTopicsThatMessagesNameAnswerThem)
{
    const auto topics = helpTopics();
    EXPECT_THAT(topics.at(help_topic::kDemo), HasSubstr("DEMO-Reset"));
    EXPECT_THAT(topics.at(help_topic::kDemo), HasSubstr("saving the field is refused"));
    EXPECT_THAT(topics.at(help_topic::kDemo), HasSubstr("stays on"));
    EXPECT_THAT(topics.at(help_topic::kEmail), HasSubstr("TALLYHOOP.EML"));
    EXPECT_THAT(topics.at(help_topic::kPlayers), HasSubstr("Empty boxes are not added"));
    const std::string& repair = topics.at(help_topic::kRepair);
    for (const char* word : {"PLAYERNAMES.CSV", "PLAYERNAMES.TXT", "backup", "**Following Record was too long**",
                             "** Following record too short**", "**Formatting of following record incorrect**"})
        EXPECT_THAT(repair, HasSubstr(word));
}

} // namespace tallyhoop::test
