#include "app/CommandSession.h"

#include "platform/Localized.h"

#include <QJsonDocument>

namespace vidora {

std::optional<QString> CommandSession::option(const char* name) const
{
    const auto found = m_line.options.constFind(QLatin1String(name));
    return found == m_line.options.cend() ? std::nullopt : std::optional(*found);
}

bool CommandSession::hasSelection()
{
    if (!delegate().channels().selected().empty())
        return true;
    say(localized("No channels are chosen yet. \"vidora channels\" lists them, \"vidora select X...\" chooses."));
    return false;
}

void CommandSession::answer(const QString& text, const QJsonObject& json) const
{
    if (m_line.json)
        printText(QString::fromUtf8(QJsonDocument(json).toJson()));
    else
        printText(text.endsWith(QLatin1Char('\n')) ? text : text + QLatin1Char('\n'));
}

void CommandSession::settle()
{
    // What is queued on the main thread may still ask for work on the calendars.
    answerOf<bool>([this](const auto& answer) {
        DispatchQueue::main().async([this, answer] { alarms().whenIdle([answer] { answer(true); }); });
    });
}

} // namespace vidora
