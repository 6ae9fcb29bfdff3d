// intake/addresses.h - finding e-mail addresses in text that mail programs have decorated.
#pragma once

#include <string>
#include <string_view>

namespace tallyhoop {

/// @returns the first thing that looks like an e-mail address, such as the first one in "a@b.c <mailto:a@b.c>"; empty
///          when there is none
std::string firstAddressIn(std::string_view text);

/// @returns whether the whole text is an address that entries can be sent to: one that every program reads there, and
///          firstAddressIn() finds in mails
bool isAddressForEntries(std::string_view text);

/// @returns whether an address is one of those in a text, in any case of its letters
bool namesAddress(std::string_view text, std::string_view address);

/// Who wrote what follows a text, by its last "From: Ann <ann@b.c>" or "On Monday Ann <ann@b.c> wrote:".
/// @returns empty when the text does not say
std::string lastWriterIn(std::string_view text);

} // namespace tallyhoop
