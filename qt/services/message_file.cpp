// qt/services/message_file.cpp - gathers what a message file holds.
#include "qt/services/message_file.h"

#include "base/windows1252.h"
#include "files/replace_file.h"

#include <vector>

namespace tallyhoop::qt {

namespace {

std::string utf8Of(const std::filesystem::path& path)
{
    const std::u8string name = path.u8string();
    return {name.begin(), name.end()};
}

} // namespace

bool isPage(const AttachedText& attachment) { return endsWithFolded(attachment.name, ".HTML"); }

Result<std::string> messageFile(const OutgoingMail& mail, MessageWriter write)
{
    std::vector<AttachedText> attachments;
    for (const std::filesystem::path& file : mail.files) {
        const Result<std::string> bytes = readFile(file);
        if (!bytes)
            return bytes.failure();
        attachments.push_back({utf8Of(file.filename()), *bytes});
    }
    return write(mail, attachments);
}

Result<std::filesystem::path> writeMessageFile(const OutgoingMail& mail, MessageWriter write, const DataFolder& folder)
{
    const Result<std::string> bytes = messageFile(mail, write);
    if (!bytes)
        return bytes.failure();
    if (const Result<Done> written = folder.write(kMessageFile, *bytes); !written)
        return written.failure();
    return folder.pathTo(kMessageFile);
}

} // namespace tallyhoop::qt
