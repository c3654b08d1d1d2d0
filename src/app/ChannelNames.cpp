#include "app/ChannelNames.h"

#include "app/Refusal.h"
#include "content/TextFolding.h"
#include "platform/DeviceSettings.h"
#include "platform/Localized.h"

#include <QCollator>

#include <algorithm>

namespace vidora {

namespace {

constexpr qsizetype mostNamed = 12; // of the candidates, in a message

} // namespace

QString titleOf(const ObjectId& channel, const ChannelData& channels)
{
    const auto found = channels.find(channel);
    return found == channels.end() ? channel.hex() : found->second.title().value_or(channel.hex());
}

std::vector<ObjectId> channelsByTitle(const ChannelData& channels)
{
    std::vector<std::pair<QString, ObjectId>> titles;
    for (const auto& [id, channel] : channels)
        titles.emplace_back(titleOf(id, channels), id);
    QCollator collator(DeviceSettings::locale());
    collator.setNumericMode(true);
    std::sort(titles.begin(), titles.end(), [&](const auto& a, const auto& b) {
        const int order = collator.compare(a.first, b.first);
        return order != 0 ? order < 0 : a.second < b.second;
    });
    std::vector<ObjectId> ids;
    for (const auto& title : titles)
        ids.push_back(title.second);
    return ids;
}

QStringList candidatesFor(const QString& name, const QStringList& texts)
{
    const QString trimmed = name.trimmed();
    const FoldedText foldedName(trimmed);
    const QStringView wanted = foldedName.units();
    QStringList exact, partial;
    for (const QString& text : texts) {
        const FoldedText foldedText(text);
        const QStringView present = foldedText.units();
        if (present == wanted)
            exact << text;
        else if (!wanted.isEmpty() && present.contains(wanted))
            partial << text;
    }
    return exact.isEmpty() ? partial : exact;
}

QString ambiguousName(const QString& name, const QStringList& candidates, const QStringList& all)
{
    const QStringList& shown = candidates.isEmpty() ? all : candidates;
    QString list = shown.mid(0, mostNamed).join(QLatin1String(", "));
    if (shown.size() > mostNamed)
        list += QStringLiteral(", ...");
    return candidates.isEmpty() ? localized("There is no \"%1\". There are: %2").arg(name, list)
                                : localized("\"%1\" may be: %2").arg(name, list);
}

QString textNamed(const QString& name, QStringList texts)
{
    texts.removeDuplicates();
    const QStringList candidates = candidatesFor(name, texts);
    if (candidates.size() != 1)
        throw Refusal{ambiguousName(name, candidates, texts)};
    return candidates.front();
}

ObjectId channelNamed(const QString& name, const ChannelData& channels)
{
    const ObjectId id = ObjectId::initWithHex(name.toLower());
    if (name.size() == 2 * ObjectId::length && channels.contains(id))
        return id;
    const std::vector<ObjectId> ids = channelsByTitle(channels);
    QStringList titles;
    for (const ObjectId& channel : ids)
        titles << titleOf(channel, channels);
    const QStringList candidates = candidatesFor(name, titles);
    if (candidates.size() == 1)
        return ids[static_cast<std::size_t>(titles.indexOf(candidates.front()))];
    QStringList described;
    for (qsizetype i = 0; i < titles.size(); ++i) {
        if (candidates.contains(titles[i])) // two channels of one title are told apart by their ids
            described << (candidates.count(titles[i]) > 1
                              ? titles[i] + QStringLiteral(" (%1)").arg(ids[static_cast<std::size_t>(i)].hex())
                              : titles[i]);
    }
    throw Refusal{ambiguousName(name, described, titles)};
}

} // namespace vidora
