#include "app/Command.h"
#include "app/CommandSession.h"
#include "platform/Localized.h"
#include "platform/Settings.h"

#include <algorithm>

namespace vidora {

namespace {

const QString usualWord = QStringLiteral("default");

const Setting* settingNamed(const QString& key)
{
    const auto found = std::find_if(setting::ofUser.begin(), setting::ofUser.end(),
                                    [&](const Setting* setting) { return setting->name() == key; });
    return found == setting::ofUser.end() ? nullptr : *found;
}

QStringList keys()
{
    QStringList keys;
    for (const Setting* setting : setting::ofUser)
        keys << setting->name();
    return keys;
}

void checkSettings(const CommandLine& line)
{
    if (line.arguments.isEmpty())
        return;
    const Setting* setting = settingNamed(line.arguments.front());
    if (!setting)
        throw UsageError{localized("There is no \"%1\". There are: %2")
                             .arg(line.arguments.front(), keys().join(QLatin1String(", ")))};
    if (line.arguments.size() > 1 && line.arguments.back() != usualWord && !setting->valueOf(line.arguments.back()))
        throw UsageError{localized("%1 takes: %2.").arg(setting->name(), setting->range())};
}

void settings(CommandSession& session)
{
    UserDefaults& defaults = session.delegate().defaults();
    const QString key = session.line().arguments.value(0), value = session.line().arguments.value(1);
    if (value == usualWord)
        defaults.removeObjectForKey(key);
    else if (!value.isEmpty())
        defaults.setObject(*settingNamed(key)->valueOf(value), key);
    QJsonArray array;
    QString text;
    for (const Setting* setting : setting::ofUser) {
        if (!key.isEmpty() && setting->name() != key)
            continue;
        const QString set = setting->text(defaults);
        text += QStringLiteral("%1  %2\n")
                    .arg(setting->name() + QLatin1Char(' ') + set, -32)
                    .arg(localized(setting->meaning));
        if (!key.isEmpty())
            text += localized("%1 takes: %2.").arg(key, setting->range()) + QLatin1Char('\n');
        array.append(QJsonObject{{QStringLiteral("key"), setting->name()},
                                 {QStringLiteral("value"), setting->valueOf(set).value_or(QJsonValue(set))},
                                 {QStringLiteral("default"), *setting->valueOf(setting->usualText())},
                                 {QStringLiteral("takes"), setting->range()},
                                 {QStringLiteral("meaning"), localized(setting->meaning)}});
    }
    session.answer(text, {{QStringLiteral("settings"), array}});
}

} // namespace

const CommandFamily& settingCommands()
{
    static const CommandFamily family{
        {.name = "settings",
         .arguments = QT_TRANSLATE_NOOP("vidora", "[KEY [VALUE]]"),
         .meaning = QT_TRANSLATE_NOOP("vidora", "the settings, or change one; \"default\" sets it back"),
         .most = 2,
         .changesWith = 2,
         .check = checkSettings,
         .run = settings},
    };
    return family;
}

} // namespace vidora
