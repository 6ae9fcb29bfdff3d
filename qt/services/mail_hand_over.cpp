// qt/services/mail_hand_over.cpp - chooses the mail client and starts it.
#include "qt/services/mail_hand_over.h"

#include "qt/services/client_arguments.h"
#include "qt/services/gmime_message.h"

#include <QStringList>
#include <algorithm>
#include <array>
#include <utility>

namespace tallyhoop::qt {

namespace {

bool contains(const std::string& handler, const char* name)
{
    return QString::fromStdString(handler).contains(QLatin1String{name}, Qt::CaseInsensitive);
}

/// Web browsers and most other handlers open a message without the files and say nothing.
bool takesAttachmentsFromXdgEmail(const std::string& handler)
{
    constexpr std::array<const char*, 3> kClients = {"thunderbird", "evolution", "kmail"};
    return std::ranges::any_of(kClients, [&](const char* client) { return contains(handler, client); });
}

bool isInstalled(const char* program) { return !installedProgram(program).isEmpty(); }

std::string mailHandler()
{
    return answerOf("xdg-mime",
                    {QStringLiteral("query"), QStringLiteral("default"), QStringLiteral("x-scheme-handler/mailto")});
}

} // namespace

std::vector<MailRoute> mailRoutes(const std::string& handler, bool hasThunderbird, bool hasXdgEmail)
{
    std::vector<MailRoute> routes;
    if (hasThunderbird && contains(handler, "thunderbird"))
        routes.push_back(MailRoute::Thunderbird);
    if (hasXdgEmail && takesAttachmentsFromXdgEmail(handler))
        routes.push_back(MailRoute::XdgEmail);
    routes.push_back(MailRoute::MessageFile);
    return routes;
}

MailHandOver::MailHandOver(DataFolder folder, std::chrono::milliseconds patience)
    : m_folder{std::move(folder)}, m_programs{patience}
{
}

Result<Done> MailHandOver::signOn()
{
    m_open = true; // The client asks for itself whatever it needs.
    return Done{};
}

Result<ui::HandedOver> MailHandOver::send(const ui::MailMessage& message)
{
    const OutgoingMail mail = outgoing(message);
    if (const std::optional<Failure> missing = missingFile(mail))
        return byHand(*missing, mail);
    std::string troubles; // of the routes tried so far, a line each
    for (const MailRoute route : mailRoutes(mailHandler(), isInstalled("thunderbird"), isInstalled("xdg-email"))) {
        if (route == MailRoute::MessageFile)
            break;
        const std::optional<Failure> trouble = compose(route, mail);
        if (!trouble)
            return ui::HandedOver{};
        troubles += trouble->message + "\r\n";
    }
    const Result<std::filesystem::path> file = writeMessageFile(mail, gmimeMessage, m_folder);
    if (!file)
        return byHand({troubles + file.failure().message}, mail);
    if (const std::optional<Failure> trouble = open(*file))
        return ui::HandedOver{*file, troubles + trouble->message};
    return ui::HandedOver{*file, {}};
}

void MailHandOver::signOff() { m_open = false; }

std::optional<Failure> MailHandOver::compose(MailRoute route, const OutgoingMail& mail)
{
    return route == MailRoute::Thunderbird ? m_programs.run("thunderbird", thunderbirdArguments(mail))
                                           : m_programs.run("xdg-email", xdgEmailArguments(mail));
}

/// Both programs end at once, and say whether anything could open the file.
std::optional<Failure> MailHandOver::open(const std::filesystem::path& file)
{
    if (isInstalled("gio"))
        return m_programs.run("gio", {"open", file.native()});
    if (isInstalled("xdg-open"))
        return m_programs.run("xdg-open", {file.native()});
    return Failure{"No program was found that opens message files."};
}

} // namespace tallyhoop::qt
