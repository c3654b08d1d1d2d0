#include "core/SupportedChannelTypes.h"

namespace vidora {

SupportedChannelTypes::SupportedChannelTypes()
{
    const QString other = QStringLiteral("Other");
    m_pairs = {{QStringLiteral("sr"), QStringLiteral("Serbian")},
               {QStringLiteral("sr"), other},
               {QString(), other},
               {QStringLiteral("en"), other},
               {QStringLiteral("en/fr"), other},
               {QStringLiteral("tr"), other},
               {QStringLiteral("ru"), other},
               {QStringLiteral("me"), QStringLiteral("me")},
               {QStringLiteral("bs"), other}};
}

const SupportedChannelTypes& SupportedChannelTypes::sharedInstance()
{
    static const SupportedChannelTypes types;
    return types;
}

} // namespace vidora
