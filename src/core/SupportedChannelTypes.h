#pragma once

#include <QString>

#include <vector>

namespace vidora {

/// A language of listings and a region in which channels of that language are offered.
struct SupportedChannelTypesPair
{
    QString language;
    QString region;
};

/// The pairs that the system serves. The first is the home pair: where a channel is offered in several, the record
/// nearest to it is kept.
class SupportedChannelTypes
{
public:
    static const SupportedChannelTypes& sharedInstance();
    const std::vector<SupportedChannelTypesPair>& pairs() const { return m_pairs; }
    const SupportedChannelTypesPair& home() const { return m_pairs.front(); }

private:
    SupportedChannelTypes();
    std::vector<SupportedChannelTypesPair> m_pairs;
};

} // namespace vidora
