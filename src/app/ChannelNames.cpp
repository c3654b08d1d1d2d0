#include "app/ChannelNames.h"

#include "app/Refusal.h"
#include "content/LatinFolding.h"
#include "content/TextFolding.h"
#include "core/ChannelFace.h"
#include "platform/DeviceSettings.h"
#include "platform/Localized.h"

#include <QCollator>

#include <algorithm>

namespace vidora {

namespace {

constexpr qsizetype mostNamed = 12; // of the candidates, in a message

/// A name as it was typed.
class TypedName
{
public:
    explicit TypedName(const QString& name)
        : m_folded(name.trimmed())
        , m_inLatin(foldedInLatin(name.trimmed()))
    {
    }

    /// The better it fits the higher.
    int fits(const QString& text) const
    {
        if (FoldedText(text).units() == m_folded.units())
            return 3;
        const QString present = foldedInLatin(text);
        if (present == m_inLatin)
            return 2;
        return !m_inLatin.isEmpty() && present.contains(m_inLatin) ? 1 : 0;
    }
    int fits(const QStringList& spellings) const
    {
        int best = 0;
        for (const QString& spelling : spellings)
            best = std::max(best, fits(spelling));
        return best;
    }

private:
    const FoldedText m_folded;
    const QString m_inLatin;
};

} // namespace

QString titleOf(const ObjectId& channel, const ChannelData& channels)
{
    return channels.contains(channel) ? channelFace(channel, channels).title : channel.hex();
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

std::vector<std::size_t> placesNamed(const QString& name, const std::vector<QStringList>& spellings)
{
    const TypedName typed(name);
    std::vector<std::size_t> places;
    int best = 1;
    for (std::size_t i = 0; i < spellings.size(); ++i) {
        const int fit = typed.fits(spellings[i]);
        if (fit > best)
            places.clear();
        best = std::max(best, fit);
        if (fit == best)
            places.push_back(i);
    }
    return places;
}

QStringList candidatesFor(const QString& name, const QStringList& texts)
{
    std::vector<QStringList> spellings;
    for (const QString& text : texts)
        spellings.push_back({text});
    QStringList candidates;
    for (const std::size_t place : placesNamed(name, spellings))
        candidates << spellings[place];
    return candidates;
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
    std::vector<QStringList> spellings;
    for (const ObjectId& channel : ids) {
        const ChannelFace face = channelFace(channel, channels);
        titles << face.title;
        spellings.push_back({face.title, face.catalogueTitle});
    }
    const std::vector<std::size_t> places = placesNamed(name, spellings);
    if (places.size() == 1)
        return ids[places.front()];
    QStringList candidates, described;
    for (const std::size_t place : places)
        candidates << spellings[place].front();
    for (std::size_t i = 0; i < places.size(); ++i) {
        const QString& title = candidates[static_cast<qsizetype>(i)];
        described << (candidates.count(title) > 1 // told apart by their ids
                          ? title + QStringLiteral(" (%1)").arg(ids[places[i]].hex())
                          : title);
    }
    throw Refusal{ambiguousName(name, described, titles)};
}

} // namespace vidora
