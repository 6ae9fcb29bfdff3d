// tests/help/help_file.h - TALLYHOOP.HLP taken apart: its topics, their links, the samples it shows.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace tallyhoop::test {

/// The whole help text as it is shipped.
std::string helpText();

/// The text from each anchor to the next one, by the anchor's name.
std::map<std::string, std::string> helpTopics();

/// The anchors that a text links to, in its order.
std::vector<std::string> linksOf(const std::string& text);

/// The lines of the first sample after a heading, without trailing blanks; empty when there is none.
std::vector<std::string> sampleUnder(const std::string& heading);

/// Everything between one text and the next occurrence of another, as often as both come.
std::vector<std::string> between(const std::string& text, const std::string& start, const std::string& end);

} // namespace tallyhoop::test
