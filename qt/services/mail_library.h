// qt/services/mail_library.h - loads gmime, which reads and writes mail messages, when it is first needed.
#pragma once

#include "intake/mail_library.h"

#include <QString>
#include <optional>

namespace tallyhoop::qt {

/// Loads a library by its name without prefix and extension, such as "gmime-3.0"; it stays for good.
/// @returns nothing when it, or one of the functions, is not there
std::optional<MailLibrary> loadMailLibrary(const QString& name);

/// @returns gmime, loaded and started at the first call; nullptr when it is not installed
const MailLibrary* mailLibrary();

} // namespace tallyhoop::qt
