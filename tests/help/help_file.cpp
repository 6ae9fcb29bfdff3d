// tests/help/help_file.cpp - finds topics, links and samples by plain text search.
#include "help/help_file.h"

#include "base/lines.h"
#include "base/text.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <utility>

namespace tallyhoop::test {

namespace {

constexpr const char* kAnchor = " id=\"";

std::string plain(std::string text)
{
    for (const auto& [entity, character] : {std::pair{"&lt;", '<'}, std::pair{"&gt;", '>'}, std::pair{"&amp;", '&'}})
        for (std::size_t at = text.find(entity); at != std::string::npos; at = text.find(entity))
            text.replace(at, std::string{entity}.size(), 1, character);
    return text;
}

} // namespace

std::string helpText()
{
    std::ifstream file{std::filesystem::path{TALLYHOOP_SOURCE_DIR} / "help" / "TALLYHOOP.HLP", std::ios::binary};
    EXPECT_TRUE(file);
    return {std::istreambuf_iterator<char>{file}, {}};
}

std::map<std::string, std::string> helpTopics()
{
    const std::string text = helpText();
    const std::string anchor = kAnchor;
    std::map<std::string, std::string> topics;
    for (std::size_t at = text.find(anchor); at != std::string::npos;) {
        const std::size_t name = at + anchor.size();
        const std::size_t next = text.find(anchor, name);
        const auto added = topics.emplace(text.substr(name, text.find('"', name) - name), text.substr(at, next - at));
        EXPECT_TRUE(added.second) << added.first->first << " is there twice";
        at = next;
    }
    return topics;
}

std::vector<std::string> between(const std::string& text, const std::string& start, const std::string& end)
{
    std::vector<std::string> found;
    for (std::size_t at = text.find(start); at != std::string::npos; at = text.find(start, at)) {
        at += start.size();
        found.push_back(text.substr(at, text.find(end, at) - at));
    }
    return found;
}

std::vector<std::string> linksOf(const std::string& text) { return between(text, "href=\"#", "\""); }

std::vector<std::string> sampleUnder(const std::string& heading)
{
    const std::string text = helpText();
    const std::size_t at = text.find(heading + "</h2>");
    if (at == std::string::npos)
        return {};
    const std::string section = text.substr(at, text.find("<h2", at) - at);
    const std::vector<std::string> samples = between(section, "<pre", "</pre>");
    if (samples.empty())
        return {};
    const std::string& sample = samples.front();
    std::vector<std::string> lines;
    for (const std::string& line : linesOf(plain(sample.substr(sample.find(">\n") + 2))))
        lines.push_back(trimTrailingBlanks(line));
    return lines;
}

} // namespace tallyhoop::test
