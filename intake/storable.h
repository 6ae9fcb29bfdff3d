// intake/storable.h - from Unicode to the characters that the program's files have.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tallyhoop {

/// Converts a text to Windows-1252. One that has a letter which Windows-1252 lacks must never be saved with a "?" in
/// its place: it is a refusal, which is added once.
/// @param subject  what the text is, to begin the refusal, such as "The name"
/// @param refusals gets "The name has a letter that the program's files cannot hold, at place 1: "?ukasz"."
/// @returns Windows-1252, "?" for what it lacks
std::string storable(std::string_view utf8, const std::string& subject, std::vector<std::string>& refusals);

} // namespace tallyhoop
