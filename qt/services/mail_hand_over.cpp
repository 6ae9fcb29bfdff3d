// qt/services/mail_hand_over.cpp - chooses the mail client and starts it.
#include "qt/services/mail_hand_over.h"

#include "qt/services/message_file.h"

#include <QProcess>
#include <QStandardPaths>
#include <QStringList>
#include <algorithm>
#include <array>
#include <system_error>
#include <utility>

namespace tallyhoop::qt {

namespace {

constexpr int kAnswerMilliseconds = 5000; ///< what a small tool of the desktop may take

bool contains(const std::string& handler, const char* name)
{
    return QString::fromStdString(handler).contains(QLatin1String{name}, Qt::CaseInsensitive);
}

bool isBrowser(const std::string& handler)
{
    constexpr std::array<const char*, 9> kBrowsers = {"firefox", "chrom",  "epiphany",  "opera", "brave",
                                                      "vivaldi", "falkon", "konqueror", "msedge"};
    return std::ranges::any_of(kBrowsers, [&](const char* browser) { return contains(handler, browser); });
}

QString installed(const char* program) { return QStandardPaths::findExecutable(QString::fromLatin1(program)); }

QStringList asQt(const std::vector<std::string>& utf8)
{
    QStringList list;
    for (const std::string& text : utf8)
        list << QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    return list;
}

/// @returns what a tool printed, without white space around it; empty when it is missing, fails or does not answer
std::string answerOf(const char* program, const QStringList& arguments)
{
    const QString path = installed(program);
    if (path.isEmpty())
        return {};
    QProcess process;
    process.start(path, arguments, QIODevice::ReadOnly);
    if (!process.waitForFinished(kAnswerMilliseconds) || process.exitCode() != 0)
        return {};
    return process.readAllStandardOutput().trimmed().toStdString();
}

std::string mailHandler()
{
    return answerOf("xdg-mime",
                    {QStringLiteral("query"), QStringLiteral("default"), QStringLiteral("x-scheme-handler/mailto")});
}

std::optional<Failure> start(const char* program, const std::vector<std::string>& arguments)
{
    if (QProcess::startDetached(installed(program), asQt(arguments)))
        return std::nullopt;
    return Failure{std::string{program} + " could not be started."};
}

std::optional<Failure> missingFile(const OutgoingMail& mail)
{
    for (const std::filesystem::path& file : mail.files) {
        std::error_code ignored;
        if (!std::filesystem::is_regular_file(file, ignored))
            return Failure{"The file " + shown(file) + " is not there."};
    }
    return std::nullopt;
}

/// What the person can do instead.
Failure byHand(const Failure& reason, const OutgoingMail& mail)
{
    std::string text = "The message could not be handed to a mail program.\r\n" + reason.message;
    if (mail.files.empty())
        return {text};
    text += "\r\n\r\nYou can attach the files yourself:\r\n";
    for (const std::filesystem::path& file : mail.files)
        text += "\r\n" + shown(file.filename());
    text += "\r\n\r\nThey are in the folder " + shown(mail.files.front().parent_path());
    return {text};
}

} // namespace

std::vector<MailRoute> mailRoutes(const std::string& handler, bool hasThunderbird, bool hasXdgEmail)
{
    std::vector<MailRoute> routes;
    if (hasThunderbird && (handler.empty() || contains(handler, "thunderbird")))
        routes.push_back(MailRoute::Thunderbird);
    if (hasXdgEmail && !isBrowser(handler))
        routes.push_back(MailRoute::XdgEmail);
    routes.push_back(MailRoute::MessageFile);
    return routes;
}

MailHandOver::MailHandOver(DataFolder folder) : m_folder{std::move(folder)} {}

Result<Done> MailHandOver::signOn()
{
    m_open = true; // The client asks for itself whatever it needs.
    return Done{};
}

Result<Done> MailHandOver::send(const ui::MailMessage& message)
{
    const OutgoingMail mail = outgoing(message);
    if (const std::optional<Failure> missing = missingFile(mail))
        return byHand(*missing, mail);
    std::optional<Failure> trouble;
    for (const MailRoute route :
         mailRoutes(mailHandler(), !installed("thunderbird").isEmpty(), !installed("xdg-email").isEmpty())) {
        trouble = handOver(route, mail);
        if (!trouble)
            return Done{};
    }
    return byHand(*trouble, mail);
}

void MailHandOver::signOff() { m_open = false; }

std::optional<Failure> MailHandOver::handOver(MailRoute route, const OutgoingMail& mail) const
{
    switch (route) {
    case MailRoute::Thunderbird:
        return start("thunderbird", thunderbirdArguments(mail));
    case MailRoute::XdgEmail:
        return start("xdg-email", xdgEmailArguments(mail));
    case MailRoute::MessageFile:
        return openMessageFile(mail);
    }
    return std::nullopt;
}

std::optional<Failure> MailHandOver::openMessageFile(const OutgoingMail& mail) const
{
    const std::string opener = installed("gio").isEmpty() ? "xdg-open" : "gio";
    if (installed(opener.c_str()).isEmpty())
        return Failure{"No mail program was found."};
    const Result<std::string> bytes = messageFile(mail);
    if (!bytes)
        return bytes.failure();
    const Result<Done> written = m_folder.write(kMessageFile, *bytes);
    if (!written)
        return written.failure();
    const std::string file = m_folder.pathOf(kMessageFile)->native();
    if (opener == "xdg-open")
        return start("xdg-open", {file});

    // This one opens the file and ends at once; its exit code says whether any program could open it.
    QProcess process;
    process.start(installed("gio"), asQt({"open", file}), QIODevice::NotOpen);
    if (!process.waitForFinished(kAnswerMilliseconds))
        return Failure{"The desktop did not open the message."};
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        return Failure{"No mail program was found."};
    return std::nullopt;
}

} // namespace tallyhoop::qt
