// tests/fuzz/mail.cpp - arbitrary bytes as a mail.
#include "fuzz/targets.h"

#include "intake/entry_readers.h"
#include "intake/entry_refusals.h"
#include "intake/field_2000.h"
#include "intake/limits.h"
#include "intake/mail_readers.h"

namespace tallyhoop::fuzz {

namespace {

Complaint mailTakenApartBy(const TakeMailApart& takeApart, std::string_view bytes)
{
    if (const Result<std::vector<MailPart>> parts = takeApart(bytes)) {
        if (parts->size() > kMostPartsOfMail)
            return "more parts than there may be";
        std::size_t size = 0;
        for (const MailPart& part : *parts)
            size += part.content.size();
        if (size > 6 * bytes.size() + 16) // a byte becomes three, and an unknown one a text such as "\u1234"
            return "a mail has grown";
    }
    const Field field = test::field2000();
    const std::vector<HandedIn> read = EntryReaders{field, takeApart}.read({"A.EML", std::string{bytes}});
    if (read.empty())
        return "a mail without entry and without refusal";
    for (const HandedIn& handedIn : read) {
        if (handedIn.origin.file != "A.EML")
            return "an entry has lost its origin";
        if (!handedIn.isLegible && refusalsOf(handedIn, field).empty())
            return "what could not be read is not refused";
    }
    return std::nullopt;
}

} // namespace

Complaint mail(std::string_view bytes)
{
    for (const test::MailReader& reader : test::mailReaders())
        if (Complaint complaint = mailTakenApartBy(reader.takeApart, bytes))
            return complaint;
    return std::nullopt;
}

} // namespace tallyhoop::fuzz
