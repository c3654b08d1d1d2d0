#pragma once

#include "app/CommandLine.h"
#include "app/Device.h"
#include "app/Refusal.h"
#include "app/Terminal.h"

#include <QJsonArray>
#include <QJsonObject>

#include <optional>

namespace vidora {

/// One command at work: what was asked, the machine it runs on, and how it waits and answers. Main thread.
class CommandSession
{
public:
    /// All outlive the session. `password`: where the command asks for one.
    CommandSession(const CommandLine& line, Device& device, QString password)
        : m_line(line)
        , m_device(device)
        , m_password(std::move(password))
    {
    }

    const CommandLine& line() const { return m_line; }
    /// The arguments as one text.
    QString argument() const { return m_line.arguments.join(QLatin1Char(' ')).trimmed(); }
    bool has(const char* option) const { return m_line.options.contains(QLatin1String(option)); }
    /// Nothing where it was not given.
    std::optional<QString> option(const char* name) const;
    const QString& password() const { return m_password; }

    Device& device() { return m_device; }
    VidoraAppDelegate& delegate() { return m_device.delegate(); }
    AlarmEngine& alarms() { return delegate().alarmEngine(); }
    const ChannelData& catalogue() { return delegate().channelData(); }

    /// Whether channels are chosen; says how to choose some where there are none.
    bool hasSelection();

    /// Prints what was asked for: the text, which ends with a line's end or gets one, or with --json the object.
    void answer(const QString& text, const QJsonObject& json) const;
    /// The command has answered, but could not do all of what was asked.
    void fail() { m_isDone = false; }
    bool isDone() const { return m_isDone; }

    /// Waits until nothing is being done to the calendars.
    void settle();
    /// Makes a request about favourites or alarms, and waits for what comes of it.
    template<typename Request>
    AlarmRequests::Outcome outcomeOf(const Request& request);
    /// Runs a query to its answer, which may come on any thread, while the main thread goes on with its work.
    template<typename Answer, typename Query>
    static Answer answerOf(const Query& query);
    /// The result of what blocks, off the main thread.
    template<typename Work>
    static auto aside(const Work& work);

private:
    const CommandLine& m_line;
    Device& m_device;
    const QString m_password;
    bool m_isDone = true;
};

template<typename Answer, typename Query>
Answer CommandSession::answerOf(const Query& query)
{
    std::optional<Answer> answer;
    query([&answer](Answer found) {
        DispatchQueue::main().async([&answer, found = std::move(found)] { answer.emplace(found); });
    });
    DispatchQueue::runMain([&] { return answer.has_value(); });
    return std::move(*answer);
}

template<typename Request>
AlarmRequests::Outcome CommandSession::outcomeOf(const Request& request)
{
    return answerOf<AlarmRequests::Outcome>([&](const auto& answer) { request(delegate().alarmRequests(), answer); });
}

template<typename Work>
auto CommandSession::aside(const Work& work)
{
    return answerOf<decltype(work())>([&work](const auto& answer) {
        DispatchQueue::global(QualityOfService::UserInitiated).async([&work, answer] { answer(work()); });
    });
}

} // namespace vidora
